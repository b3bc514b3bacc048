#include "bench/WindowState.h"

#include <commctrl.h>

namespace
{
std::wstring ClassOf(HWND window)
{
    wchar_t name[64]{};
    GetClassNameW(window, name, 64);
    return name;
}

std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

struct RowMessages
{
    UINT count, textLength, text, data, selected;
};

constexpr RowMessages kListBox = {LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_GETITEMDATA, LB_GETCURSEL};
constexpr RowMessages kComboBox = {CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_GETITEMDATA, CB_GETCURSEL};

void ReadRows(HWND control, const RowMessages& messages, ControlState& state)
{
    const auto count = static_cast<WPARAM>(SendMessageW(control, messages.count, 0, 0));
    for (WPARAM row = 0; row < count; ++row)
    {
        std::wstring text(static_cast<std::size_t>(SendMessageW(control, messages.textLength, row, 0)) + 1, L'\0');
        SendMessageW(control, messages.text, row, reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        state.rows.push_back(text);
        state.data.push_back(SendMessageW(control, messages.data, row, 0));
    }
    state.selected = SendMessageW(control, messages.selected, 0, 0);
}

ControlState ReadControl(HWND control)
{
    ControlState state;
    state.id = GetDlgCtrlID(control);
    state.className = ClassOf(control);
    const LONG style = GetWindowLongW(control, GWL_STYLE);
    state.enabled = (style & WS_DISABLED) == 0;
    state.visible = (style & WS_VISIBLE) != 0;
    if (state.Is(L"ListBox"))
        ReadRows(control, kListBox, state);
    else if (state.Is(L"ComboBox"))
        ReadRows(control, kComboBox, state);
    else if (state.Is(TRACKBAR_CLASSW))
    {
        state.rangeMax = SendMessageW(control, TBM_GETRANGEMAX, 0, 0);
        state.position = SendMessageW(control, TBM_GETPOS, 0, 0);
    }
    else
        state.text = TextOf(control);
    if (state.Is(L"Button"))
        state.check = SendMessageW(control, BM_GETCHECK, 0, 0);
    return state;
}
} // namespace

bool IsOfClass(HWND window, const wchar_t* name)
{
    return ClassOf(window) == name;
}

std::vector<HWND> Children(HWND window)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

WindowState ReadWindow(HWND dialog)
{
    WindowState state;
    for (HWND control : Children(dialog))
        state.push_back(ReadControl(control));
    return state;
}
