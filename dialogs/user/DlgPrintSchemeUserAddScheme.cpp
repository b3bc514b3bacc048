#include "dialogs/user/DlgPrintSchemeUserAddScheme.h"

#include "dialogs/base/Controls.h"
#include "dialogs/data/SchemeNames.h"
#include "dialogs/data/Schemes.h"
#include "resources/resource.h"

CDlgPrintSchemeUserAddScheme::CDlgPrintSchemeUserAddScheme(int configIndex, int source)
    : CDialogEx(IDD_USER_ADD_SCHEME), m_nSource(source), m_nConfigIndex(static_cast<std::uint8_t>(configIndex))
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
    m_nSource = SelectedNumber(m_cmbSource);
    EndDialog(IDOK);
}

// Preset names stand unconverted, those of user schemes are converted: both as required.
void CDlgPrintSchemeUserAddScheme::FillSources()
{
    int selected = 0;
    const auto addSource = [&](const std::wstring& text, int schemeId) {
        const int row = AddRow(m_cmbSource, text.c_str(), schemeId);
        if (row >= 0 && schemeId == m_nSource)
            selected = row;
    };
    Refill(m_cmbSource, [&] {
        const std::wstring word = GetLanguageText(L"PRESET", L"预设").GetString();
        ForEachPresetOf(m_nConfigIndex,
                        [&](IPrintScheme& scheme, int id) { addSource(PresetText(scheme.GetName(), word), id); });
        ForEachUserSchemeOf(m_nConfigIndex,
                            [&](IUserScheme& scheme, int id) { addSource(HostText(scheme.GetName()), id); });
    });
    m_cmbSource.SetCurSel(selected);
    m_strName = ProposedSchemeName(GetLanguageText(L"SCHEME", L"方案").GetString()).c_str();
}
