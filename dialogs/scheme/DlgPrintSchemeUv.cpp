#include "dialogs/scheme/DlgPrintSchemeUv.h"

#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"
#include "resources/resource.h"

namespace
{
constexpr int LAMPS[] = {IDC_CHECK_LPRINT_LLIGHT, IDC_CHECK_LPRINT_RLIGHT, IDC_CHECK_RPRINT_LLIGHT,
                         IDC_CHECK_RPRINT_RLIGHT};
} // namespace

CDlgPrintSchemeUv::CDlgPrintSchemeUv() : CSchemePage(IDD_SCHEME_UV) {}

void CDlgPrintSchemeUv::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    DDX_Check(pDX, IDC_CHECK_LPRINT_LLIGHT, m_bLPrintLLight);
    DDX_Check(pDX, IDC_CHECK_LPRINT_RLIGHT, m_bLPrintRLight);
    DDX_Check(pDX, IDC_CHECK_RPRINT_LLIGHT, m_bRPrintLLight);
    DDX_Check(pDX, IDC_CHECK_RPRINT_RLIGHT, m_bRPrintRLight);
}

BOOL CDlgPrintSchemeUv::OnInitDialog()
{
    if (!CSchemePage::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    UpdateCtrlState();
    LoadFromScheme();
    return TRUE;
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
    WithScheme([this](auto& scheme) {
        m_bLPrintLLight = scheme.GetLampLL();
        m_bLPrintRLight = scheme.GetLampLR();
        m_bRPrintLLight = scheme.GetLampRL();
        m_bRPrintRLight = scheme.GetLampRR();
    });
    UpdateData(FALSE);
}

void CDlgPrintSchemeUv::SaveToScheme()
{
    if (!IsEditable())
        return;
    UpdateData(TRUE);
    WithScheme([this](auto& scheme) {
        scheme.SetLampLL(static_cast<std::uint8_t>(m_bLPrintLLight));
        scheme.SetLampLR(static_cast<std::uint8_t>(m_bLPrintRLight));
        scheme.SetLampRL(static_cast<std::uint8_t>(m_bRPrintLLight));
        scheme.SetLampRR(static_cast<std::uint8_t>(m_bRPrintRLight));
    });
}
