#pragma once

#include <windows.h>

#include "host/Quorvane.h"

namespace refhost
{

// Quorvane.dll from the program's folder and the interface object that it gives, as any host would use it.
class CEditorLibrary
{
public:
    explicit CEditorLibrary(const wchar_t* path);
    ~CEditorLibrary();
    CEditorLibrary(const CEditorLibrary&) = delete;
    CEditorLibrary& operator=(const CEditorLibrary&) = delete;

    // Null when the library cannot be used.
    IQuorvane* Editors() const { return m_pEditors; }

private:
    HMODULE m_hModule;
    ReleaseInterfaceFunction m_pRelease = nullptr;
    IQuorvane* m_pEditors = nullptr;
};

} // namespace refhost
