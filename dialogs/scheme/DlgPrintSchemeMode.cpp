#include "dialogs/scheme/DlgPrintSchemeMode.h"

#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "dialogs/base/HostText.h"
#include "dialogs/base/PassCounts.h"
#include "dialogs/base/Rows.h"
#include "host/IConfigList.h"
#include "host/IHostData.h"
#include "host/IPrintConfig.h"
#include "host/IPrintMode.h"
#include "host/IPrintScheme.h"
#include "resources/resource.h"

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

BOOL CDlgPrintSchemeMode::OnInitDialog()
{
    if (!CSchemePage::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    FillFixedLists();
    LoadFromScheme();
    return TRUE;
}

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
    IPrintScheme* pScheme = BoundScheme();
    IPrintConfig* pConfig = Config(); // asked for anew: the host may have lost it meanwhile
    if (!pScheme || !pConfig)
        return;
    int nSelect = FillModes(*pConfig, pScheme->GetModeIndex());
    if (m_cmbMode.GetCount() > 0)
    {
        if (nSelect < 0)
        {
            pScheme->SetModeIndex(static_cast<std::uint8_t>(m_cmbMode.GetItemData(0)));
            nSelect = 0;
        }
        m_cmbMode.SetCurSel(nSelect);
        ShowModeDetails();
    }
    UpdateData(FALSE);
}

void CDlgPrintSchemeMode::SaveToScheme()
{
    UpdateData(TRUE);
    IPrintScheme* pScheme = BoundScheme();
    if (pScheme && m_cmbMode.GetCurSel() >= 0)
        pScheme->SetModeIndex(static_cast<std::uint8_t>(SelectedData(m_cmbMode)));
}

void CDlgPrintSchemeMode::FillFixedLists()
{
    for (LPCTSTR pszPassCount : PASS_COUNTS)
        m_cmbPass.AddString(pszPassCount);
    m_cmbPass.SetCurSel(0);
    FillSwitch(m_cmbStayMode, L"禁用", L"启用");
    m_cmbStayMode.SetCurSel(0);
}

// Gives the mode's index when it is listed, else -1. The index is later used as the row as it is: where a disabled mode
// stands before, a later mode's row is selected.
int CDlgPrintSchemeMode::FillModes(IPrintConfig& config, int nModeIndex)
{
    int nFound = -1;
    Refill(m_cmbMode, [&] {
        const int nCount = static_cast<int>(SaneCount(config.GetModeCount()));
        for (int k = 0; k < nCount; ++k)
        {
            IPrintMode* pMode = config.GetMode(static_cast<std::uint32_t>(k));
            if (!pMode || pMode->GetDisabled())
                continue;
            AddRow(m_cmbMode, HostText(pMode->GetName()), k);
            if (k == nModeIndex)
                nFound = k;
        }
    });
    m_cmbMode.SetCurSel(-1); // an empty list, too, must show that nothing is selected
    return nFound;
}

void CDlgPrintSchemeMode::ShowModeDetails()
{
    const int nRow = m_cmbMode.GetCurSel();
    IPrintConfig* pConfig = nRow >= 0 ? Config() : nullptr;
    IPrintMode* pMode = pConfig ? pConfig->GetMode(static_cast<std::uint32_t>(nRow)) : nullptr;
    if (!pMode)
        return;
    CString strPass;
    strPass.Format(L"%d", pMode->GetPassCount());
    m_cmbPass.SetCurSel(m_cmbPass.FindStringExact(-1, strPass));
    m_cmbStayMode.SetCurSel(pMode->GetResident());
}

IPrintConfig* CDlgPrintSchemeMode::Config() const
{
    IConfigList* pList = GetHostContext().pData->GetConfigList();
    const auto nIndex = static_cast<std::uint32_t>(m_nConfigIndex);
    return pList && nIndex < pList->GetCount() ? pList->GetAt(nIndex) : nullptr;
}

IPrintScheme* CDlgPrintSchemeMode::BoundScheme() const
{
    IFactorySchemeList* pList = GetHostContext().pData->GetFactorySchemeList();
    if (!Config() || IsUserScheme() || !pList || static_cast<std::uint32_t>(m_nSchemeId) >= pList->GetCount())
        return nullptr;
    IPrintScheme* pScheme = pList->GetAt(static_cast<std::uint32_t>(m_nSchemeId));
    return pScheme && pScheme->GetConfigIndex() == m_nConfigIndex ? pScheme : nullptr;
}
