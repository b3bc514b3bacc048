#pragma once

#include <windows.h>

// While an object of this class exists, new windows get the version 6 controls that this library's manifest names.
// Where the system has none, they get the host's controls.
class CCommonControls
{
public:
    CCommonControls();
    ~CCommonControls();
    CCommonControls(const CCommonControls&) = delete;
    CCommonControls& operator=(const CCommonControls&) = delete;

private:
    HANDLE m_hContext;
    ULONG_PTR m_nCookie = 0;
    bool m_bActive = false;
};
