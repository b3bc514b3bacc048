#include <afxtabctrl.h>

#include "GdiObjects.h"

#include <windowsx.h>

namespace
{
// Around a label, in pixels; the system's own would make seven tabs need arrows.
constexpr int TAB_PADDING = 4;

bool IsPressed(int nKey)
{
    return ::GetKeyState(nKey) < 0;
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

bool HoldsFocus(const CWnd* pPage)
{
    HWND hWndFocus = ::GetFocus();
    return hWndFocus && (hWndFocus == pPage->m_hWnd || ::IsChild(pPage->m_hWnd, hWndFocus));
}

bool WantsTabKey(HWND hWnd, const MSG& msg)
{
    const LRESULT nCode = ::SendMessage(hWnd, WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&msg));
    return (nCode & (DLGC_WANTTAB | DLGC_WANTALLKEYS)) != 0;
}

int MinTabWidth(HWND hWnd)
{
    const auto font = reinterpret_cast<HFONT>(::SendMessage(hWnd, WM_GETFONT, 0, 0));
    return 2 * CTextMeasure(hWnd, font).Height();
}
} // namespace

BEGIN_MESSAGE_MAP(CMFCTabCtrl, CWnd)
    ON_WM_SIZE()
    ON_MESSAGE(WM_LBUTTONDOWN, &CMFCTabCtrl::OnLButtonDown)
    ON_MESSAGE(TCM_SETCURFOCUS, &CMFCTabCtrl::OnSetCurFocus)
END_MESSAGE_MAP()

BOOL CMFCTabCtrl::Create(Style, const RECT& rect, CWnd* pParentWnd, UINT nID, Location location, BOOL)
{
    const INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_TAB_CLASSES};
    ::InitCommonControlsEx(&controls);
    const DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN | WS_CLIPSIBLINGS |
                          TCS_FOCUSONBUTTONDOWN | (location == LOCATION_BOTTOM ? TCS_BOTTOM : 0u);
    if (!CreateEx(WS_EX_CONTROLPARENT, WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    SendMessage(WM_SETFONT, static_cast<WPARAM>(pParentWnd->SendMessage(WM_GETFONT)));
    SendMessage(TCM_SETPADDING, 0, MAKELPARAM(TAB_PADDING, TAB_PADDING));
    SendMessage(TCM_SETMINTABWIDTH, 0, MinTabWidth(m_hWnd));
    return TRUE;
}

void CMFCTabCtrl::AddTab(CWnd* pTabWnd, LPCTSTR lpszTabLabel, UINT, BOOL)
{
    TCITEM item = {};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<LPTSTR>(lpszTabLabel ? lpszTabLabel : L"");
    SendMessage(TCM_INSERTITEM, m_pages.size(), reinterpret_cast<LPARAM>(&item));
    ::SetParent(pTabWnd->m_hWnd, m_hWnd);
    m_pages.push_back(pTabWnd);
    if (m_nActive < 0)
        m_nActive = 0;
    pTabWnd->MoveWindow(PageRect());
    pTabWnd->ShowWindow(pTabWnd == ActivePage() ? SW_SHOW : SW_HIDE);
}

BOOL CMFCTabCtrl::SetActiveTab(int iTab)
{
    if (iTab < 0 || iTab >= GetTabsNum())
        return FALSE;
    const bool bLeft = iTab == m_nActive || LeaveActivePage();
    if (bLeft && iTab != m_nActive)
    {
        CWnd* pOldPage = ActivePage();
        m_nActive = iTab;
        ActivePage()->ShowWindow(SW_SHOW);
        pOldPage->ShowWindow(SW_HIDE);
    }
    SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(m_nActive)); // sends no notification
    return bLeft;
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

BOOL CMFCTabCtrl::PreTranslateMessage(MSG* pMsg)
{
    const int nStep = StepOfKey(*pMsg);
    if (m_pages.empty())
        return FALSE;
    if (nStep == 0)
        return MoveByTabKey(*pMsg);
    SetActiveTab((m_nActive + nStep + GetTabsNum()) % GetTabsNum());
    return TRUE;
}

HWND CMFCTabCtrl::FirstStopOfPage() const
{
    HWND hWndPage = ActivePage()->m_hWnd;
    HWND hWndStop = ::GetNextDlgTabItem(hWndPage, nullptr, FALSE);
    const bool bStop = hWndStop && (::GetWindowLong(hWndStop, GWL_STYLE) & WS_TABSTOP) != 0;
    return bStop && ::IsChild(hWndPage, hWndStop) ? hWndStop : nullptr;
}

// The system passes over a window that has controls of its own, so the ways to and from the strip are walked here.
// Null: the system knows the way.
HWND CMFCTabCtrl::TabTarget(HWND hWndFocus, bool bBack) const
{
    HWND hWndRoot = ::GetAncestor(m_hWnd, GA_ROOT);
    HWND hWndFirst = FirstStopOfPage();
    if (!hWndFirst)
        return nullptr;
    if (hWndFocus == m_hWnd)
        return bBack ? ::GetNextDlgTabItem(hWndRoot, hWndFirst, TRUE) : hWndFirst;
    if (bBack)
        return hWndFocus == hWndFirst ? m_hWnd : nullptr;
    const bool bEnters = !HoldsFocus(ActivePage()) && ::GetNextDlgTabItem(hWndRoot, hWndFocus, FALSE) == hWndFirst;
    return bEnters ? m_hWnd : nullptr;
}

bool CMFCTabCtrl::MoveByTabKey(const MSG& msg)
{
    const bool bTab = msg.message == WM_KEYDOWN && msg.wParam == VK_TAB && !IsPressed(VK_CONTROL);
    if (!bTab || !IsWindowVisible() || WantsTabKey(msg.hwnd, msg))
        return false;
    HWND hWndTarget = TabTarget(msg.hwnd, IsPressed(VK_SHIFT));
    if (!hWndTarget)
        return false;
    ::SendMessage(::GetAncestor(m_hWnd, GA_ROOT), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(hWndTarget), TRUE);
    return true;
}

// A refused value must be asked for once, so the page is left before the strip itself takes the focus. The strip is
// switched here: after an arrow key some systems take the tab left behind for a pressed button, and a click on any
// other then only lets that go.
LRESULT CMFCTabCtrl::OnLButtonDown(WPARAM, LPARAM lParam)
{
    const int nTab = TabAt(lParam);
    if (nTab < 0 || nTab == m_nActive)
        return Default();
    if (SetActiveTab(nTab))
        SetFocus();
    return 0;
}

// Some systems mark the tab even when the page was not left.
LRESULT CMFCTabCtrl::OnSetCurFocus(WPARAM wParam, LPARAM)
{
    SetActiveTab(static_cast<int>(wParam));
    return 0;
}

BOOL CMFCTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_NOTIFY || m_pages.empty())
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    switch (reinterpret_cast<const NMHDR*>(lParam)->code)
    {
    case TCN_SELCHANGING:
        *pResult = !LeaveActivePage();
        return TRUE;
    case TCN_SELCHANGE:
        SetActiveTab(static_cast<int>(SendMessage(TCM_GETCURSEL)));
        return TRUE;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}

void CMFCTabCtrl::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    for (CWnd* pPage : m_pages)
        pPage->MoveWindow(PageRect());
}

void CMFCTabCtrl::PostNcDestroy()
{
    m_pages.clear();
    m_nActive = -1;
}

int CMFCTabCtrl::TabAt(LPARAM lParamPoint) const
{
    TCHITTESTINFO hit = {{GET_X_LPARAM(lParamPoint), GET_Y_LPARAM(lParamPoint)}, 0};
    return static_cast<int>(SendMessage(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
}

RECT CMFCTabCtrl::PageRect() const
{
    RECT rect;
    GetClientRect(&rect);
    SendMessage(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rect));
    return rect;
}
