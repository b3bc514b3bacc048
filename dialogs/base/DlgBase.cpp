#include "dialogs/base/DlgBase.h"

#include "dialogs/base/HostContext.h"

namespace
{
// A page that is hidden has been left: its controls need not ask the system.
bool HoldsFocus(HWND hWnd)
{
    const HWND hWndFocus = ::IsWindowVisible(hWnd) ? ::GetFocus() : nullptr;
    return hWndFocus && (hWndFocus == hWnd || ::IsChild(hWnd, hWndFocus));
}
} // namespace

void CDlgBase::InitLanguage(LPCTSTR pszSection, CWnd* pOwner)
{
    m_strSection = pszSection;
    m_pOwner = pOwner;
    ApplyLanguage();
}

CString CDlgBase::GetLanguageText(LPCTSTR pszKey, LPCTSTR pszDefault) const
{
    return LookUpText(m_strSection.GetString(), pszKey, pszDefault);
}

int CDlgBase::SetControlText(int nControlId, LPCTSTR pszKey, LPCTSTR pszDefault)
{
    CWnd* pControl = m_pOwner ? m_pOwner->GetDlgItem(nControlId) : nullptr;
    if (!pControl)
        return 0;
    pControl->SetWindowText(GetLanguageText(pszKey, pszDefault));
    return 1;
}

int CDlgBase::ApplyTitle()
{
    if (!m_pOwner)
        return 0;
    m_pOwner->SetWindowText(GetLanguageText(L"TITLE", L""));
    return 1;
}

void EnableControl(CWnd& control, bool bEnable)
{
    const HWND hWnd = control.GetSafeHwnd();
    const bool bEnabled = ::IsWindowEnabled(hWnd) != FALSE;
    if (bEnabled == bEnable)
        return;
    if (!bEnable && HoldsFocus(hWnd))
        ::SendMessage(::GetAncestor(hWnd, GA_ROOT), WM_NEXTDLGCTL, 0, 0);
    control.EnableWindow(bEnable);
}

void ShowControl(CWnd& control, bool bShow)
{
    // Showing what is shown would draw it again. Its own style, because a page in the background hides it too.
    const bool bShown = (control.GetStyle() & WS_VISIBLE) != 0;
    if (bShown != bShow)
        control.ShowWindow(bShow ? SW_SHOW : SW_HIDE);
}

void ShowText(CWnd& control, LPCTSTR pszText)
{
    CString strShown;
    control.GetWindowText(strShown);
    if (strShown != pszText)
        control.SetWindowText(pszText);
}
