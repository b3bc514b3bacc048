#include "dialogs/scheme/DlgPrintSchemeSapp.h"

#include "host/IPrintScheme.h"
#include "resources/resource.h"

CDlgPrintSchemeSapp::CDlgPrintSchemeSapp() : CSchemePage(IDD_SCHEME_SAPP) {}

void CDlgPrintSchemeSapp::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CMB_SMALL_MODE, m_cmbSmallMode);
    DDX_Text(pDX, IDC_EDIT_SMALL_OFFSET, m_nSmallOffset);
}

BOOL CDlgPrintSchemeSapp::OnInitDialog()
{
    if (!CSchemePage::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    FillSwitch(m_cmbSmallMode, L"", L"");
    m_cmbSmallMode.SetCurSel(m_nLoadedMode);
    UpdateCtrlState();
    LoadFromScheme();
    return TRUE;
}

int CDlgPrintSchemeSapp::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDC_STATIC_SMALL_MODE, L"IDC_STATIC_SMALL_MODE", L""},
        {IDC_STATIC_SMALL_OFFSET, L"IDC_STATIC_SMALL_OFFSET", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeSapp::UpdateCtrlState()
{
    if (!m_cmbSmallMode.GetSafeHwnd())
        return;
    EnableControl(m_cmbSmallMode, m_nSchemeId >= 0 && !m_bUserEditor);
    EnableControl(*GetDlgItem(IDC_EDIT_SMALL_OFFSET), IsEditable());
}

void CDlgPrintSchemeSapp::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    if (IPrintScheme* pScheme = FactoryScheme())
    {
        m_nLoadedMode = pScheme->GetSmallFormatMode();
        m_cmbSmallMode.SetCurSel(m_nLoadedMode);
        m_nSmallOffset = pScheme->GetSmallFormatOffset();
    }
    UpdateData(FALSE);
}

// Alone among the pages this one writes a preset too: what it showed goes back unchanged.
void CDlgPrintSchemeSapp::SaveToScheme()
{
    if (!UpdateData(TRUE))
        UpdateData(FALSE); // the value stays as it was, and shows again: a locked field must not ask a second time
    IPrintScheme* pScheme = m_nSchemeId >= 0 ? FactoryScheme() : nullptr;
    if (!pScheme)
        return;
    const int nMode = m_bUserEditor ? m_nLoadedMode : m_cmbSmallMode.GetCurSel();
    pScheme->SetSmallFormatMode(static_cast<std::uint8_t>(nMode));
    pScheme->SetSmallFormatOffset(static_cast<std::uint16_t>(m_nSmallOffset));
}
