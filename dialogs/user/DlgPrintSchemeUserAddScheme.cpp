#include "dialogs/user/DlgPrintSchemeUserAddScheme.h"

#include "dialogs/base/HostText.h"
#include "dialogs/base/Rows.h"
#include "dialogs/user/SourceSchemes.h"
#include "resources/resource.h"

CDlgPrintSchemeUserAddScheme::CDlgPrintSchemeUserAddScheme(int nConfigIndex, int nSource)
    : CDialogEx(IDD_USER_ADD_SCHEME), m_nSource(nSource), m_nConfigIndex(static_cast<std::uint8_t>(nConfigIndex))
{
}

void CDlgPrintSchemeUserAddScheme::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CMB_SOURCE, m_cmbSource);
    DDX_Text(pDX, IDC_EDIT_NAME, m_strName);
}

BOOL CDlgPrintSchemeUserAddScheme::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    SetWindowText(GetLanguageText(L"ADD_SCHEME", L""));
    FillSources();
    UpdateData(FALSE);
    return TRUE;
}

int CDlgPrintSchemeUserAddScheme::ApplyLanguage()
{
    // The first label has another id than the one named here, so it keeps its text in every language.
    static constexpr ControlText TEXTS[] = {
        {IDOK, L"IDOK", L"OK"},
        {IDCANCEL, L"IDCANCEL", L"Cancel"},
        {IDC_STATIC_MODE, L"IDC_STATIC_CFG", L""},
        {IDC_STATIC_SOURCE, L"IDC_STATIC_SOURCE", L""},
    };
    ApplyTitle();
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeUserAddScheme::OnOK()
{
    UpdateData(TRUE);
    m_nSource = static_cast<int>(m_cmbSource.GetItemData(m_cmbSource.GetCurSel()));
    EndDialog(IDOK);
}

// Preset names stand unconverted, those of user schemes are converted.
void CDlgPrintSchemeUserAddScheme::FillSources()
{
    const auto nConfig = static_cast<std::uint8_t>(m_nConfigIndex);
    int nSelect = 0;
    Refill(m_cmbSource, [&] {
        const CString strPreset = GetLanguageText(L"PRESET", L"预设");
        ForEachPreset(nConfig, [&](IPrintScheme& scheme, int nSchemeId) {
            AddSource(PresetText(scheme.GetName(), strPreset), nSchemeId, nSelect);
        });
        ForEachUserScheme(nConfig, [&](IUserScheme& scheme, int nSchemeId) {
            AddSource(HostText(scheme.GetName()), nSchemeId, nSelect);
        });
    });
    m_cmbSource.SetCurSel(nSelect);
    IUserSchemeList* pUserSchemes = GetHostContext().pData->GetUserSchemeList();
    m_strName.Format(L"%s-%d", GetLanguageText(L"SCHEME", L"方案").GetString(),
                     (pUserSchemes ? pUserSchemes->GetCount() : 0) + 1);
}

void CDlgPrintSchemeUserAddScheme::AddSource(LPCTSTR pszText, int nSchemeId, int& nSelect)
{
    const int nRow = m_cmbSource.AddString(pszText);
    if (nRow < 0)
        return;
    m_cmbSource.SetItemData(nRow, static_cast<DWORD_PTR>(static_cast<INT_PTR>(nSchemeId)));
    if (nSchemeId == m_nSource)
        nSelect = nRow;
}
