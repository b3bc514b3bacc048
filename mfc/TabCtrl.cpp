#include <afxtabctrl.h>

#include "GdiObjects.h"

#include <algorithm>
#include <uxtheme.h>
#include <windowsx.h>

namespace
{
// Around a label, in pixels; the system's own would make seven tabs need arrows.
constexpr int TAB_PADDING = 4;

bool IsPressed(int key)
{
    return ::GetKeyState(key) < 0;
}

// How many tabs a key goes forward; 0 for every other message.
int StepOfKey(const MSG& msg)
{
    if (msg.message != WM_KEYDOWN || !IsPressed(VK_CONTROL) || IsPressed(VK_MENU))
        return 0;
    if (msg.wParam == VK_TAB)
        return IsPressed(VK_SHIFT) ? -1 : 1;
    if (msg.wParam == VK_PRIOR || msg.wParam == VK_NEXT)
        return msg.wParam == VK_PRIOR ? -1 : 1;
    return 0;
}

bool HoldsFocus(const CWnd* page)
{
    HWND focus = ::GetFocus();
    return focus && (focus == page->m_hWnd || ::IsChild(page->m_hWnd, focus));
}

bool WantsTabKey(HWND window, const MSG& msg)
{
    const LRESULT code = ::SendMessage(window, WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&msg));
    return (code & (DLGC_WANTTAB | DLGC_WANTALLKEYS)) != 0;
}

bool IsStop(HWND control)
{
    const LONG style = ::GetWindowLong(control, GWL_STYLE);
    return (style & WS_TABSTOP) != 0 && (style & WS_VISIBLE) != 0 && (style & WS_DISABLED) == 0;
}

int MinTabWidth(HWND window, HFONT font)
{
    return 2 * CTextMeasure(window, font).Height();
}
} // namespace

BEGIN_MESSAGE_MAP(CMFCTabCtrl, CWnd)
    ON_WM_SIZE()
    ON_MESSAGE(WM_SETFONT, &CMFCTabCtrl::OnSetFont)
    ON_MESSAGE(WM_LBUTTONDOWN, &CMFCTabCtrl::OnLButtonDown)
    ON_MESSAGE(TCM_SETCURFOCUS, &CMFCTabCtrl::OnSetCurFocus)
END_MESSAGE_MAP()

BOOL CMFCTabCtrl::Create(Style, const RECT& rect, CWnd* parent, UINT id, Location location, BOOL)
{
    const INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_TAB_CLASSES};
    ::InitCommonControlsEx(&controls);
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | WS_CLIPCHILDREN | WS_CLIPSIBLINGS |
                        TCS_FOCUSONBUTTONDOWN | (location == LOCATION_BOTTOM ? TCS_BOTTOM : 0u);
    if (!CreateEx(WS_EX_CONTROLPARENT, WC_TABCONTROL, nullptr, style, rect, parent, id))
        return FALSE;
    SendMessage(WM_SETFONT, static_cast<WPARAM>(parent->SendMessage(WM_GETFONT)));
    return TRUE;
}

void CMFCTabCtrl::AddTab(CWnd* page, const wchar_t* label, UINT, BOOL)
{
    TCITEM item = {};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(label ? label : L"");
    SendMessage(TCM_INSERTITEM, m_vecPages.size(), reinterpret_cast<LPARAM>(&item));
    ::SetParent(page->m_hWnd, m_hWnd);
    m_vecPages.push_back(page);
    m_nActive = std::max(m_nActive, 0);
    ::EnableThemeDialogTexture(page->m_hWnd, ETDT_ENABLETAB);
    page->MoveWindow(PageRect());
    page->ShowWindow(page == ActivePage() ? SW_SHOW : SW_HIDE);
}

BOOL CMFCTabCtrl::SetActiveTab(int tab)
{
    if (tab < 0 || tab >= GetTabsNum())
        return FALSE;
    const bool left = tab == m_nActive || LeaveActivePage();
    if (left && tab != m_nActive)
    {
        CWnd* oldPage = ActivePage();
        m_nActive = tab;
        ActivePage()->ShowWindow(SW_SHOW);
        oldPage->ShowWindow(SW_HIDE);
    }
    SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(m_nActive)); // sends no notification
    return left;
}

// Takes the focus out of the active page while the page is still visible, so that an edit there gets its kill-focus
// notification. False when the focus came back.
bool CMFCTabCtrl::LeaveActivePage()
{
    if (!HoldsFocus(ActivePage()))
        return true;
    SetFocus();
    return !HoldsFocus(ActivePage());
}

BOOL CMFCTabCtrl::PreTranslateMessage(MSG* message)
{
    const int step = StepOfKey(*message);
    if (m_vecPages.empty())
        return FALSE;
    if (step == 0)
        return MoveByTabKey(*message);
    SetActiveTab((m_nActive + step + GetTabsNum()) % GetTabsNum());
    return TRUE;
}

// Walked by hand: GetNextDlgTabItem promises nothing for a search that starts at no control.
HWND CMFCTabCtrl::FirstStopOfPage() const
{
    HWND control = ::GetWindow(ActivePage()->m_hWnd, GW_CHILD);
    while (control && !IsStop(control))
        control = ::GetWindow(control, GW_HWNDNEXT);
    return control;
}

// The system passes over a window that has controls of its own, so the ways to and from the strip are walked here.
// Null: the system knows the way.
HWND CMFCTabCtrl::TabTarget(HWND focus, bool back) const
{
    HWND root = ::GetAncestor(m_hWnd, GA_ROOT);
    HWND first = FirstStopOfPage();
    if (!first)
        return nullptr;
    if (focus == m_hWnd)
        return back ? ::GetNextDlgTabItem(root, first, TRUE) : first;
    if (back)
        return focus == first ? m_hWnd : nullptr;
    const bool enters = !HoldsFocus(ActivePage()) && ::GetNextDlgTabItem(root, focus, FALSE) == first;
    return enters ? m_hWnd : nullptr;
}

bool CMFCTabCtrl::MoveByTabKey(const MSG& msg)
{
    const bool isTab = msg.message == WM_KEYDOWN && msg.wParam == VK_TAB && !IsPressed(VK_CONTROL);
    if (!isTab || !IsWindowVisible() || WantsTabKey(msg.hwnd, msg))
        return false;
    HWND target = TabTarget(msg.hwnd, IsPressed(VK_SHIFT));
    if (!target)
        return false;
    ::SendMessage(::GetAncestor(m_hWnd, GA_ROOT), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
    return true;
}

// A refused value must be asked for once, so the page is left before the strip itself takes the focus. The strip is
// switched here: after an arrow key some systems take the tab left behind for a pressed button, and a click on any
// other then only lets that go.
LRESULT CMFCTabCtrl::OnLButtonDown(WPARAM, LPARAM lParam)
{
    const int tab = TabAt(lParam);
    if (tab < 0 || tab == m_nActive)
        return Default();
    if (SetActiveTab(tab))
        SetFocus();
    return 0;
}

// Some systems mark the tab even when the page was not left.
LRESULT CMFCTabCtrl::OnSetCurFocus(WPARAM wParam, LPARAM)
{
    SetActiveTab(static_cast<int>(wParam));
    return 0;
}

BOOL CMFCTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_NOTIFY || m_vecPages.empty())
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    switch (reinterpret_cast<const NMHDR*>(lParam)->code)
    {
    case TCN_SELCHANGING:
        *result = !LeaveActivePage();
        return TRUE;
    case TCN_SELCHANGE:
        SetActiveTab(static_cast<int>(SendMessage(TCM_GETCURSEL)));
        return TRUE;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}

void CMFCTabCtrl::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    PlacePages();
}

// The tabs get as high as the font wants them, and leave the rest to the pages.
LRESULT CMFCTabCtrl::OnSetFont(WPARAM wParam, LPARAM)
{
    const LRESULT result = Default();
    SendMessage(TCM_SETPADDING, 0, MAKELPARAM(TAB_PADDING, TAB_PADDING));
    SendMessage(TCM_SETMINTABWIDTH, 0, MinTabWidth(m_hWnd, reinterpret_cast<HFONT>(wParam)));
    PlacePages();
    return result;
}

void CMFCTabCtrl::PlacePages()
{
    for (CWnd* page : m_vecPages)
        page->MoveWindow(PageRect());
}

void CMFCTabCtrl::PostNcDestroy()
{
    m_vecPages.clear();
    m_nActive = -1;
}

int CMFCTabCtrl::TabAt(LPARAM point) const
{
    TCHITTESTINFO hit = {{GET_X_LPARAM(point), GET_Y_LPARAM(point)}, 0};
    return static_cast<int>(SendMessage(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
}

RECT CMFCTabCtrl::PageRect() const
{
    RECT rect;
    GetClientRect(&rect);
    SendMessage(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rect));
    return rect;
}
