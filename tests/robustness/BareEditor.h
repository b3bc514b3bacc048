#pragma once

#include <cstdint>
#include <vector>
#include <windows.h>

// The same dialogs from the same templates, with the same version of the controls, and none of the library's code: what
// grows here grows by the system's doing.
class BareEditor
{
public:
    // The templates of an editor and then of its pages, in the library's resources.
    BareEditor(HMODULE library, const std::vector<int>& templates);
    ~BareEditor();
    BareEditor(const BareEditor&) = delete;
    BareEditor& operator=(const BareEditor&) = delete;

    // Until it is cancelled; returns 1, as an editor's operation does.
    std::int32_t Run() const;

private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void CreatePages(HWND dialog) const;

    HMODULE m_library;
    std::vector<int> m_templates;
    HANDLE m_context;
};
