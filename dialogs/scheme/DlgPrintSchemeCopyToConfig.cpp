#include "dialogs/scheme/DlgPrintSchemeCopyToConfig.h"

#include "dialogs/base/Controls.h"
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
    m_vecChosen.resize(static_cast<size_t>(std::max(m_lstConfigs.GetSelCount(), 0)));
    const int readCount = m_lstConfigs.GetSelItems(static_cast<int>(m_vecChosen.size()), m_vecChosen.data());
    m_vecChosen.resize(static_cast<size_t>(std::max(readCount, 0)));
    CDialogEx::OnOK();
}
