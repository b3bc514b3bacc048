#include "DisabledWindows.h"

#include <commctrl.h>

#include <algorithm>
#include <cwchar>
#include <iterator>

namespace
{
bool IsToolTip(HWND window)
{
    wchar_t name[32] = {};
    ::GetClassName(window, name, static_cast<int>(std::size(name)));
    return std::wcscmp(name, TOOLTIPS_CLASS) == 0;
}

// Tips and the windows of input methods are no place to work in.
bool IsForTheOperator(HWND window)
{
    const bool isInputMethod = (::GetClassLong(window, GCL_STYLE) & CS_IME) != 0;
    return ::IsWindowVisible(window) && !isInputMethod && !IsToolTip(window);
}

BOOL CALLBACK Collect(HWND window, LPARAM windows)
{
    if (IsForTheOperator(window))
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

// Topmost first.
std::vector<HWND> WindowsForTheOperator()
{
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), &Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

// False for a window that has gone, whoever has its handle now.
bool IsOfThisThread(HWND window)
{
    return ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId();
}
} // namespace

CDisabledWindows::CDisabledWindows(HWND exempt)
{
    for (HWND window : WindowsForTheOperator())
        if (window != exempt)
            Disable(window);
}

void CDisabledWindows::Disable(HWND window)
{
    if (!window || !::IsWindowEnabled(window))
        return;
    m_vecWindows.push_back(window);
    ::EnableWindow(window, FALSE);
}

void CDisabledWindows::Enable()
{
    const std::vector<HWND> windows = std::move(m_vecWindows);
    m_vecWindows.clear();
    for (HWND window : windows)
        if (IsOfThisThread(window) && !::IsWindowEnabled(window))
            ::EnableWindow(window, TRUE);
}

HWND AfxFindVisibleWindow()
{
    const std::vector<HWND> windows = WindowsForTheOperator();
    const auto enabled = std::find_if(windows.begin(), windows.end(), &::IsWindowEnabled);
    if (enabled != windows.end())
        return *enabled;
    return windows.empty() ? nullptr : windows.front();
}
