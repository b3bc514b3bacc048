#pragma once

#include <afxwin.h>

// The library's application object. It gives the message boxes their caption.
class CQuorvaneApp : public CWinApp
{
public:
    CQuorvaneApp() : CWinApp(L"Quorvane") {}
    BOOL InitInstance() override;
};
