#include "dialogs/base/DlgBase.h"

#include "dialogs/base/HostContext.h"

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
    const HWND hWndFocus = ::GetFocus();
    if (!bEnable && (hWndFocus == hWnd || ::IsChild(hWnd, hWndFocus)))
        ::SendMessage(::GetAncestor(hWnd, GA_ROOT), WM_NEXTDLGCTL, 0, 0);
    control.EnableWindow(bEnable);
}
