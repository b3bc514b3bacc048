#include "tests/robustness/ReachableControls.h"

#include "tests/support/DialogWatch.h"

namespace
{
bool IsReachableControl(HWND window)
{
    const std::wstring name = WindowClass(window);
    return IsWindowVisible(window) && IsWindowEnabled(window) && name != L"#32770" && name != L"Static";
}

BOOL CALLBACK Collect(HWND window, LPARAM controls)
{
    if (IsReachableControl(window))
        reinterpret_cast<std::vector<HWND>*>(controls)->push_back(window);
    return TRUE;
}
} // namespace

std::vector<HWND> ReachableControls(HWND dialog)
{
    std::vector<HWND> controls;
    EnumChildWindows(dialog, &Collect, reinterpret_cast<LPARAM>(&controls));
    return controls;
}
