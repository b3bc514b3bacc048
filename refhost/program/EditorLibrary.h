#pragma once

#include <windows.h>

#include "host/Quorvane.h"

namespace refhost
{

/// Quorvane.dll from the program's folder and the interface object that it gives, as any host would use it.
class EditorLibrary
{
public:
    explicit EditorLibrary(const wchar_t* path);
    ~EditorLibrary();
    EditorLibrary(const EditorLibrary&) = delete;
    EditorLibrary& operator=(const EditorLibrary&) = delete;

    /// Null when the library cannot be used.
    IQuorvane* Editors() const { return m_editors; }

private:
    HMODULE m_module;
    ReleaseInterfaceFunction m_release = nullptr;
    IQuorvane* m_editors = nullptr;
};

} // namespace refhost
