#include "tests/editors/module/HostWindow.h"

namespace
{
constexpr wchar_t kClassName[] = L"HostMainWindow";
}

HostWindow::HostWindow()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &DefWindowProcW;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClassName;
    RegisterClassW(&windowClass);
    m_handle = CreateWindowExW(0, kClassName, L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 400, 300, nullptr,
                               nullptr, windowClass.hInstance, nullptr);
    m_child = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 100, 20, m_handle, nullptr,
                              windowClass.hInstance, nullptr);
    SetActiveWindow(m_handle);
    SetFocus(m_child);
}

HostWindow::~HostWindow()
{
    if (IsWindow(m_handle))
        DestroyWindow(m_handle);
}
