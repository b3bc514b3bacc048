#include "DisabledWindows.h"

#include "AfxState.h"

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

void EnableLast(size_t count)
{
    std::vector<HWND>& disabled = AfxGetState().disabledWindows;
    for (; count > 0; --count)
    {
        HWND window = disabled.back();
        disabled.pop_back();
        if (IsOfThisThread(window) && !::IsWindowEnabled(window))
            ::EnableWindow(window, TRUE);
    }
}
} // namespace

CDisabledWindows::CDisabledWindows(const std::vector<HWND>& windows)
    : m_enable([count = windows.size()] { EnableLast(count); })
{
    std::vector<HWND>& disabled = AfxGetState().disabledWindows;
    disabled.insert(disabled.end(), windows.begin(), windows.end());
    for (HWND window : windows)
        ::EnableWindow(window, FALSE);
}

std::vector<HWND> AfxEnabledWindows(HWND exempt)
{
    std::vector<HWND> windows = WindowsForTheOperator();
    const auto isLeftOut = [exempt](HWND window) { return window == exempt || !::IsWindowEnabled(window); };
    windows.erase(std::remove_if(windows.begin(), windows.end(), isLeftOut), windows.end());
    return windows;
}

HWND AfxFindVisibleWindow()
{
    const std::vector<HWND> windows = WindowsForTheOperator();
    const auto enabled = std::find_if(windows.begin(), windows.end(), &::IsWindowEnabled);
    if (enabled != windows.end())
        return *enabled;
    return windows.empty() ? nullptr : windows.front();
}
