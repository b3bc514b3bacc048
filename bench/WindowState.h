#pragma once

#include <string>
#include <vector>
#include <windows.h>

// What a control shows, as far as messages can tell.
struct ControlState
{
    int id = 0;
    std::wstring className;
    std::wstring text;
    bool enabled = true;
    bool visible = true;
    std::vector<std::wstring> rows; // of a list box or combo box
    std::vector<LPARAM> data;
    LRESULT selected = -1;
    LRESULT check = 0;
    LRESULT rangeMax = 0; // of a trackbar
    LRESULT position = 0;

    bool Is(const wchar_t* name) const { return className == name; }
};

// The controls of a dialog or page, in template order.
using WindowState = std::vector<ControlState>;

WindowState ReadWindow(HWND dialog);

bool IsOfClass(HWND window, const wchar_t* name);
// The direct children only.
std::vector<HWND> Children(HWND window);
