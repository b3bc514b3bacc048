#include "bench/ReadyMessages.h"

#include "resources/resource.h"

#include <commctrl.h>
#include <stdexcept>

namespace
{
constexpr WPARAM kTextChars = 256;
} // namespace

ReadyMessages::ReadyMessages(const WindowState& from, const WindowState& to, const std::set<int>& rebuilt)
{
    if (from.size() != to.size())
        throw std::runtime_error("two states of a window do not match: " + std::to_string(from.size()) + " and " +
                                 std::to_string(to.size()) + " controls");
    for (std::size_t i = 0; i < from.size(); ++i)
    {
        const ControlState& before = from[i];
        const ControlState& after = to[i];
        Control control{after.id, {}};
        const auto add = [&](UINT message, WPARAM wParam, LPARAM lParam) {
            control.messages.push_back({message, wParam, lParam, {}, false});
        };
        if (before.text != after.text)
            control.messages.push_back({WM_SETTEXT, 0, 0, after.text, true});
        const bool isRebuilt = rebuilt.count(after.id) != 0 || before.rows != after.rows;
        if (isRebuilt)
            FillRows(control, after);
        if (isRebuilt || before.selected != after.selected)
            add(after.Is(L"ListBox") ? LB_SETCURSEL : CB_SETCURSEL, static_cast<WPARAM>(after.selected), 0);
        if (before.check != after.check)
            add(BM_SETCHECK, static_cast<WPARAM>(after.check), 0);
        if (before.rangeMax != after.rangeMax)
            add(TBM_SETRANGE, TRUE, MAKELPARAM(0, after.rangeMax));
        if (before.position != after.position)
            add(TBM_SETPOS, TRUE, after.position);
        if (before.enabled != after.enabled)
            control.enable = after.enabled;
        if (before.visible != after.visible)
            control.show = after.visible;
        if (after.id != IDC_STATIC && (!control.messages.empty() || control.enable >= 0 || control.show >= 0))
            m_controls.push_back(control);
    }
}

void ReadyMessages::FillRows(Control& control, const ControlState& state)
{
    const bool isList = state.Is(L"ListBox");
    const auto add = [&](UINT message, WPARAM wParam, LPARAM lParam) {
        control.messages.push_back({message, wParam, lParam, {}, false});
    };
    add(WM_SETREDRAW, FALSE, 0);
    add(isList ? LB_RESETCONTENT : CB_RESETCONTENT, 0, 0);
    for (std::size_t row = 0; row < state.rows.size(); ++row)
    {
        control.messages.push_back(
            {static_cast<UINT>(isList ? LB_ADDSTRING : CB_ADDSTRING), 0, 0, state.rows[row], true});
        if (state.data[row] != 0)
            add(isList ? LB_SETITEMDATA : CB_SETITEMDATA, row, state.data[row]);
    }
    add(WM_SETREDRAW, TRUE, 0);
}

ReadyMessages ReadyMessages::Reading(const WindowState& state)
{
    static wchar_t text[kTextChars];
    ReadyMessages reading;
    for (const ControlState& value : state)
    {
        Control control{value.id, {}};
        const auto add = [&](UINT message, WPARAM wParam) {
            control.messages.push_back({message, wParam, 0, {}, false});
        };
        if (value.Is(L"Edit"))
            control.messages.push_back({WM_GETTEXT, kTextChars, reinterpret_cast<LPARAM>(text), {}, false});
        else if (value.Is(L"ComboBox"))
        {
            add(CB_GETCURSEL, 0);
            add(CB_GETITEMDATA, static_cast<WPARAM>(value.selected));
        }
        else if (value.Is(TRACKBAR_CLASSW))
            add(TBM_GETPOS, 0);
        else if (value.Is(L"Button"))
            add(BM_GETCHECK, 0);
        if (!control.messages.empty())
            reading.m_controls.push_back(control);
    }
    return reading;
}

void ReadyMessages::Send(HWND window) const
{
    for (Control& control : m_controls)
    {
        if (control.parent != window)
            control.window = GetDlgItem(control.parent = window, control.id);
        const HWND target = control.window;
        for (const Message& message : control.messages)
            SendMessageW(target, message.message, message.wParam,
                         message.hasText ? reinterpret_cast<LPARAM>(message.text.data()) : message.lParam);
        if (control.enable >= 0)
            EnableWindow(target, control.enable);
        if (control.show >= 0)
            ShowWindow(target, control.show ? SW_SHOW : SW_HIDE);
    }
}
