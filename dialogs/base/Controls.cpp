#include "dialogs/base/Controls.h"

#include "dialogs/data/Configs.h"

namespace
{
// A page that is hidden has been left: its controls need not ask the system.
bool HoldsFocus(HWND window)
{
    const HWND focus = ::IsWindowVisible(window) ? ::GetFocus() : nullptr;
    return focus && (focus == window || ::IsChild(window, focus));
}
} // namespace

CRedrawOff::CRedrawOff(CWnd& list)
    : m_redrawOn([window = list.m_hWnd] { ::SendMessage(window, WM_SETREDRAW, TRUE, 0); })
{
    list.SetRedraw(FALSE);
}

void EnableControl(CWnd& control, bool enable)
{
    const HWND window = control.GetSafeHwnd();
    const bool enabled = ::IsWindowEnabled(window) != FALSE;
    if (enabled == enable)
        return;
    if (!enable && HoldsFocus(window))
        ::SendMessage(::GetAncestor(window, GA_ROOT), WM_NEXTDLGCTL, 0, 0);
    control.EnableWindow(enable);
}

void ShowControl(CWnd& control, bool show)
{
    // By its own style, because a page in the background hides it too.
    const bool shown = (control.GetStyle() & WS_VISIBLE) != 0;
    if (shown != show)
        control.ShowWindow(show ? SW_SHOW : SW_HIDE);
}

void ShowText(CWnd& control, const wchar_t* text)
{
    CString shown;
    control.GetWindowText(shown);
    if (shown != text)
        control.SetWindowText(text);
}

void FillConfigNames(CListBox& list)
{
    Refill(list, [&] {
        ForEachRow(HostData().GetConfigList(), [&](IPrintConfig* config, int) {
            AddRow(list, config ? ConfigName(*config).c_str() : L"", config);
        });
    });
}
