#include "dialogs/scheme/DlgPrintSchemeCopyToConfig.h"

#include "dialogs/scheme/ConfigNames.h"
#include "resources/resource.h"

#include <algorithm>

CDlgPrintSchemeCopyToConfig::CDlgPrintSchemeCopyToConfig() : CDialogEx(IDD_SCHEME_COPY) {}

void CDlgPrintSchemeCopyToConfig::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LIST_CFG, m_lstConfigs);
}

BOOL CDlgPrintSchemeCopyToConfig::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    SetWindowText(GetLanguageText(L"SELECT_CONFIG", L""));
    FillConfigNames(m_lstConfigs);
    return TRUE;
}

int CDlgPrintSchemeCopyToConfig::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDOK, L"IDOK", L"OK"},
        {IDCANCEL, L"IDCANCEL", L"Cancel"},
        {IDC_STATIC_CFG, L"IDC_STATIC_CFG", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeCopyToConfig::OnOK()
{
    UpdateData(TRUE);
    std::vector<int> rows(static_cast<size_t>(std::max(m_lstConfigs.GetSelCount(), 0)));
    const int nRead = m_lstConfigs.GetSelItems(static_cast<int>(rows.size()), rows.data());
    rows.resize(static_cast<size_t>(std::max(nRead, 0)));
    m_vecChosen.assign(rows.begin(), rows.end());
    CDialogEx::OnOK();
}
