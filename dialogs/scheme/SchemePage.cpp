#include "dialogs/scheme/SchemePage.h"

#include "dialogs/base/HostText.h"

void CSchemePage::ShowScheme(int nSchemeId)
{
    m_nSchemeId = nSchemeId;
    if (!m_hWnd)
        return;
    UpdateCtrlState();
    LoadFromScheme();
}

IPrintScheme* CSchemePage::FactoryScheme() const
{
    return IsUserScheme() ? BaseSchemeOf(UserScheme()) : FactorySchemeAt(m_nSchemeId);
}

CString CSchemePage::TranslatedName(const char* pszNarrow) const
{
    const CString strName = HostText(pszNarrow);
    return GetLanguageText(strName, strName);
}

int CSchemePage::AddRow(CComboBox& combo, LPCTSTR pszText, int nData)
{
    const int nRow = combo.AddString(pszText);
    if (nRow >= 0)
        combo.SetItemData(nRow, static_cast<DWORD_PTR>(static_cast<INT_PTR>(nData)));
    return nRow;
}

int CSchemePage::SelectedData(const CComboBox& combo)
{
    return static_cast<int>(combo.GetItemData(combo.GetCurSel()));
}

void CSchemePage::FillSwitch(CComboBox& combo, LPCTSTR pszOffDefault, LPCTSTR pszOnDefault)
{
    combo.AddString(GetLanguageText(L"DISABLE", pszOffDefault));
    combo.AddString(GetLanguageText(L"ENABLE", pszOnDefault));
}
