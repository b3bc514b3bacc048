#include "dialogs/base/DlgBase.h"

#include "dialogs/base/Language.h"

void CDlgBase::InitLanguage(const wchar_t* section, CWnd* owner)
{
    m_strSection = section;
    m_pOwner = owner;
    ApplyLanguage();
}

CString CDlgBase::GetLanguageText(const wchar_t* key, const wchar_t* defaultText) const
{
    return LookUpText(m_strSection, key, defaultText).c_str();
}

int CDlgBase::SetControlText(int controlId, const wchar_t* key, const wchar_t* defaultText)
{
    CWnd* control = m_pOwner ? m_pOwner->GetDlgItem(controlId) : nullptr;
    if (!control)
        return 0;
    control->SetWindowText(GetLanguageText(key, defaultText));
    return 1;
}

int CDlgBase::ApplyTitle()
{
    if (!m_pOwner)
        return 0;
    m_pOwner->SetWindowText(GetLanguageText(L"TITLE", L""));
    return 1;
}
