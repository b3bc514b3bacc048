#include "dialogs/scheme/DlgPrintSchemeMode.h"

#include "dialogs/data/Configs.h"
#include "dialogs/data/NumberText.h"
#include "dialogs/data/PrintModes.h"
#include "resources/resource.h"

#include <string>

CDlgPrintSchemeMode::CDlgPrintSchemeMode() : CSchemePage(IDD_SCHEME_MODE) {}

void CDlgPrintSchemeMode::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CMB_PRINT_MODE, m_cmbMode);
    DDX_Control(pDX, IDC_CMB_PASS, m_cmbPass);
    DDX_Control(pDX, IDC_CMB_RESIDENT, m_cmbStayMode);
}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeMode, CSchemePage)
    ON_CBN_SELCHANGE(IDC_CMB_PRINT_MODE, &CDlgPrintSchemeMode::OnModeChange)
END_MESSAGE_MAP()

int CDlgPrintSchemeMode::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDC_STATIC_PRINT_MODE, L"IDC_STATIC_PRINT_MODE", L""},
        {IDC_STATIC_PASS, L"IDC_STATIC_PASS", L""},
        {IDC_STATIC_RESIDENT, L"IDC_STATIC_STAY_MODE", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

void CDlgPrintSchemeMode::UpdateCtrlState()
{
    if (m_cmbMode.GetSafeHwnd())
        EnableControl(m_cmbMode, m_nSchemeId >= 0);
}

void CDlgPrintSchemeMode::LoadFromScheme()
{
    IPrintScheme* scheme = BoundScheme();
    IPrintConfig* config = ConfigAt(m_nConfigIndex); // asked for again: the host may have lost it since
    if (!scheme || !config)
        return;
    int selected = FillModes(*config, GetField(*scheme, SchemeField::ModeIndex));
    if (m_cmbMode.GetCount() > 0)
    {
        if (selected < 0)
        {
            SetField(*scheme, SchemeField::ModeIndex, static_cast<int>(m_cmbMode.GetItemData(0)));
            selected = 0;
        }
        m_cmbMode.SetCurSel(selected);
        ShowModeDetails();
    }
    UpdateData(FALSE);
}

void CDlgPrintSchemeMode::SaveToScheme()
{
    UpdateData(TRUE);
    IPrintScheme* scheme = BoundScheme();
    if (scheme && m_cmbMode.GetCurSel() >= 0)
        SetField(*scheme, SchemeField::ModeIndex, SelectedNumber(m_cmbMode));
}

void CDlgPrintSchemeMode::InitControls()
{
    for (const wchar_t* passCount : PASS_COUNTS)
        m_cmbPass.AddString(passCount);
    m_cmbPass.SetCurSel(0);
    FillSwitch(m_cmbStayMode, L"禁用", L"启用");
    m_cmbStayMode.SetCurSel(0);
}

// Gives the mode's index when it is listed, else -1. As required, the index is later used as the row as it is: where a
// disabled mode stands before, a later mode's row is selected.
int CDlgPrintSchemeMode::FillModes(IPrintConfig& config, int modeIndex)
{
    int found = -1;
    Refill(m_cmbMode, [&] {
        ForEach(&config, [&](IPrintMode& mode, int index) {
            if (mode.GetDisabled())
                return;
            AddRow(m_cmbMode, HostText(mode.GetName()).c_str(), index);
            if (index == modeIndex)
                found = index;
        });
    });
    m_cmbMode.SetCurSel(-1); // an empty list, too, must show that nothing is selected
    return found;
}

void CDlgPrintSchemeMode::ShowModeDetails()
{
    IPrintMode* mode = At(ConfigAt(m_nConfigIndex), m_cmbMode.GetCurSel());
    if (!mode)
        return;
    m_cmbPass.SetCurSel(m_cmbPass.FindStringExact(-1, NumberText(mode->GetPassCount()).c_str()));
    m_cmbStayMode.SetCurSel(mode->GetResident());
}

IPrintScheme* CDlgPrintSchemeMode::BoundScheme() const
{
    IPrintScheme* scheme = ConfigAt(m_nConfigIndex) ? FactorySchemeAt(m_nSchemeId) : nullptr;
    return scheme && BelongsTo(*scheme, m_nConfigIndex) ? scheme : nullptr;
}
