#include "dialogs/base/DlgBase.h"

#include "dialogs/base/HostContext.h"

namespace
{
// Only what is to be seen can hold it; asking the system takes longer.
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
    if (!::IsWindowEnabled(hWnd) == !bEnable)
        return;
    if (!bEnable && HoldsFocus(hWnd))
        ::SendMessage(::GetAncestor(hWnd, GA_ROOT), WM_NEXTDLGCTL, 0, 0);
    control.EnableWindow(bEnable);
}

void ShowControl(CWnd& control, bool bShow)
{
    // Asking for what is there already costs as much as a change.
    if (!(control.GetStyle() & WS_VISIBLE) == bShow)
        control.ShowWindow(bShow ? SW_SHOW : SW_HIDE);
}

void ShowText(CWnd& control, LPCTSTR pszText)
{
    CString strShown;
    control.GetWindowText(strShown);
    if (strShown != pszText)
        control.SetWindowText(pszText);
}
