#include "dialogs/scheme/DlgPrintSchemeUv.h"

#include "resources/resource.h"

namespace
{
constexpr int LAMPS[] = {IDC_CHECK_LPRINT_LLIGHT, IDC_CHECK_LPRINT_RLIGHT, IDC_CHECK_RPRINT_LLIGHT,
                         IDC_CHECK_RPRINT_RLIGHT};
} // namespace

CDlgPrintSchemeUv::CDlgPrintSchemeUv() : CSchemePage(IDD_SCHEME_UV)
{
    BindNumber(SchemeField::LampLL, m_bLPrintLLight);
    BindNumber(SchemeField::LampLR, m_bLPrintRLight);
    BindNumber(SchemeField::LampRL, m_bRPrintLLight);
    BindNumber(SchemeField::LampRR, m_bRPrintRLight);
}

void CDlgPrintSchemeUv::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    DDX_Check(pDX, IDC_CHECK_LPRINT_LLIGHT, m_bLPrintLLight);
    DDX_Check(pDX, IDC_CHECK_LPRINT_RLIGHT, m_bLPrintRLight);
    DDX_Check(pDX, IDC_CHECK_RPRINT_LLIGHT, m_bRPrintLLight);
    DDX_Check(pDX, IDC_CHECK_RPRINT_RLIGHT, m_bRPrintRLight);
}

int CDlgPrintSchemeUv::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDC_STATIC_LPRINT, L"IDC_STATIC_LPRINT", L""},
        {IDC_STATIC_RPRINT, L"IDC_STATIC_RPRINT", L""},
        {IDC_CHECK_LPRINT_LLIGHT, L"IDC_CHECK_LPRINT_LLIGHT", L""},
        {IDC_CHECK_LPRINT_RLIGHT, L"IDC_CHECK_LPRINT_RLIGHT", L""},
        {IDC_CHECK_RPRINT_LLIGHT, L"IDC_CHECK_RPRINT_LLIGHT", L""},
        {IDC_CHECK_RPRINT_RLIGHT, L"IDC_CHECK_RPRINT_RLIGHT", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeUv::UpdateCtrlState()
{
    if (GetDlgItem(IDC_CHECK_LPRINT_LLIGHT))
        EnableControls(LAMPS, IsEditable());
}

void CDlgPrintSchemeUv::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    WithScheme([this](auto& scheme) { LoadFields(scheme); });
    UpdateData(FALSE);
}

void CDlgPrintSchemeUv::SaveToScheme()
{
    if (!IsEditable())
        return;
    UpdateData(TRUE);
    WithScheme([this](auto& scheme) { SaveFields(scheme); });
}
