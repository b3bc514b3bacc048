#include "dialogs/printmode/DlgPrintMode.h"

#include "dialogs/base/DlgPrintModeAddCfg.h"
#include "dialogs/base/HostContext.h"
#include "dialogs/base/HostCount.h"
#include "dialogs/base/HostText.h"
#include "dialogs/base/MisreadText.h"
#include "dialogs/base/Rows.h"
#include "dialogs/printmode/PrintModeRules.h"
#include "host/IConfigList.h"
#include "host/IHostData.h"
#include "host/IPrintConfig.h"
#include "host/IPrintMode.h"
#include "host/IPrintScheme.h"
#include "host/ISchemeList.h"
#include "host/IUserScheme.h"
#include "resources/resource.h"

namespace
{
// A configuration on loan from the host; it goes back whatever happens.
class CNewConfig
{
public:
    explicit CNewConfig(IHostData& data) : m_data(data), m_pConfig(data.CreateConfig()) {}
    ~CNewConfig()
    {
        try
        {
            if (m_pConfig)
                m_data.DestroyConfig(m_pConfig);
        }
        catch (...)
        {
            // Thrown out of a destructor it would end the host.
        }
    }
    CNewConfig(const CNewConfig&) = delete;
    CNewConfig& operator=(const CNewConfig&) = delete;

    IPrintConfig* Get() const { return m_pConfig; }

private:
    IHostData& m_data;
    IPrintConfig* m_pConfig;
};

IConfigList* ConfigList()
{
    return GetHostContext().pData->GetConfigList();
}
} // namespace

CDlgPrintMode::CDlgPrintMode() : CDlgEditor(IDD_PRINT_MODE, L"DLG_PRINT_MODE", SAVE_FACTORY_DATA) {}

void CDlgPrintMode::DoDataExchange(CDataExchange* pDX)
{
    CDlgEditor::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_BTN_ADD_CFG, m_btnAddConfig);
    DDX_Control(pDX, IDC_BTN_DEL_CFG, m_btnDeleteConfig);
    DDX_Control(pDX, IDC_BTN_ADD_MODE, m_btnAddMode);
    DDX_Control(pDX, IDC_BTN_DEL_MODE, m_btnDeleteMode);
    DDX_Control(pDX, IDC_BTN_MODE_UP, m_btnMoveUp);
    DDX_Control(pDX, IDC_BTN_MODE_DOWN, m_btnMoveDown);
    DDX_Control(pDX, IDC_LIST_MODE, m_lstModes);
}

BEGIN_MESSAGE_MAP(CDlgPrintMode, CDlgEditor)
    ON_BN_CLICKED(IDC_BTN_ADD_CFG, &CDlgPrintMode::OnAddConfig)
    ON_BN_CLICKED(IDC_BTN_DEL_CFG, &CDlgPrintMode::OnDeleteConfig)
    ON_BN_CLICKED(IDC_BTN_ADD_MODE, &CDlgPrintMode::OnAddMode)
    ON_BN_CLICKED(IDC_BTN_DEL_MODE, &CDlgPrintMode::OnDeleteMode)
    ON_BN_CLICKED(IDC_BTN_MODE_UP, &CDlgPrintMode::OnMoveModeUp)
    ON_BN_CLICKED(IDC_BTN_MODE_DOWN, &CDlgPrintMode::OnMoveModeDown)
    ON_LBN_SELCHANGE(IDC_LIST_CFG, &CDlgPrintMode::OnConfigSelChange)
    ON_LBN_DBLCLK(IDC_LIST_CFG, &CDlgPrintMode::OnEditConfig)
    ON_LBN_SELCHANGE(IDC_LIST_MODE, &CDlgPrintMode::OnModeSelChange)
    ON_BN_CLICKED(IDC_BTN_APPLY, &CDlgPrintMode::OnApply)
END_MESSAGE_MAP()

BOOL CDlgPrintMode::OnInitDialog()
{
    if (!CDlgEditor::OnInitDialog())
        return FALSE;
    m_btnMoveUp.SetWindowText(L"↑");
    m_btnMoveDown.SetWindowText(L"↓");
    UpdateButtons();
    return TRUE;
}

void CDlgPrintMode::AddPages()
{
    AddPage(m_pageCommon, IDD_PRINT_MODE_CMMN, L"TAB_COMMON");
    AddPage(m_pageData, IDD_PRINT_MODE_DATA, L"TAB_DATA");
}

void CDlgPrintMode::FillLists()
{
    FillConfigList(0);
}

// By Enter the focus is still in a field whose value is written when it leaves. A refused one is not asked for again.
void CDlgPrintMode::StoreEdits()
{
    if (!m_pageCommon.IsRefused())
        GotoDlgCtrl(&m_btnOk);
    m_pageCommon.StoreToMode();
}

void CDlgPrintMode::OnAddConfig()
{
    IHostData* pData = GetHostContext().pData;
    CDlgPrintModeAddCfg dialog;
    if (!pData || dialog.DoModal() != IDOK)
        return;
    const CNewConfig config(*pData);
    if (config.Get())
    {
        dialog.WriteTo(*config.Get());
        AppendConfig(*config.Get());
    }
}

// The host keeps a copy of its own.
void CDlgPrintMode::AppendConfig(IPrintConfig& config)
{
    IConfigList* pList = ConfigList();
    if (!pList || !pList->AddConfig(&config))
        return;
    const int nLine = m_lstConfigs.AddString(ConfigText(NarrowReadAsWide(config.GetName()), config));
    if (nLine < 0)
        return;
    m_lstConfigs.SetCurSel(nLine);
    m_lstConfigs.SetRedraw(TRUE);
    FillModeList(false);
}

void CDlgPrintMode::OnDeleteConfig()
{
    const int nLine = m_lstConfigs.GetCurSel();
    IConfigList* pList = ConfigList();
    if (!pList || !SelectedConfig())
        return;
    // The configuration's modes go with it: the pages must not keep one of them.
    if (IsAttachedModeListed())
        AttachMode(nullptr);
    pList->RemoveAt(static_cast<std::uint32_t>(nLine));
    RemoveSchemesOfConfig(GetHostContext().pData->GetFactorySchemeList(), nLine);
    RemoveSchemesOfConfig(GetHostContext().pData->GetUserSchemeList(), nLine);
    m_lstConfigs.DeleteString(static_cast<UINT>(nLine));
    m_lstConfigs.SetCurSel(RowAfterDelete(nLine, m_lstConfigs.GetCount()));
    FillModeList(true);
}

void CDlgPrintMode::OnEditConfig()
{
    IPrintConfig* pConfig = SelectedConfig();
    if (!pConfig)
        return;
    CDlgPrintModeAddCfg dialog;
    dialog.m_bParamsLocked = TRUE;
    dialog.ReadFrom(*pConfig);
    const CString strOldName = dialog.m_strName;
    if (dialog.DoModal() != IDOK || dialog.m_strName == strOldName)
        return;
    SetHostName(*pConfig, dialog.m_strName);
    FillConfigList(m_lstConfigs.GetCurSel());
}

void CDlgPrintMode::OnConfigSelChange()
{
    FillModeList(false);
}

void CDlgPrintMode::OnAddMode()
{
    IPrintConfig* pConfig = SelectedConfig();
    IPrintMode* pMode = pConfig ? pConfig->AddMode() : nullptr;
    if (!pMode)
        return;
    pMode->SetName(NewModeName(*pConfig).c_str());
    const int nLine = InsertMode(-1, pMode);
    if (nLine < 0)
    {
        pConfig->RemoveMode(pConfig->GetModeCount() - 1);
        return;
    }
    m_lstModes.SetRedraw(TRUE);
    m_lstModes.SetCurSel(nLine);
    SelectMode(true);
}

void CDlgPrintMode::OnDeleteMode()
{
    IPrintConfig* pConfig = SelectedConfig();
    const int nLine = m_lstModes.GetCurSel();
    IPrintMode* pMode = ModeAt(nLine);
    if (!pConfig || !pMode)
        return;
    if (m_pageCommon.GetAttachedMode() == pMode)
        AttachMode(nullptr);
    RemoveModeOf(*pConfig, pMode);
    m_lstModes.DeleteString(static_cast<UINT>(nLine));
    m_lstModes.SetCurSel(RowAfterDelete(nLine, m_lstModes.GetCount()));
    m_lstModes.SetRedraw(TRUE);
    SelectMode(false);
}

void CDlgPrintMode::OnMoveModeUp()
{
    const int nLine = m_lstModes.GetCurSel();
    MoveLine(nLine, nLine - 1, nLine - 1);
}

void CDlgPrintMode::OnMoveModeDown()
{
    const int nLine = m_lstModes.GetCurSel();
    if (nLine >= 0)
        MoveLine(nLine + 1, nLine, nLine + 1);
}

// Only the lines change places: the host keeps its order of modes.
void CDlgPrintMode::MoveLine(int nFrom, int nTo, int nSelect)
{
    IPrintMode* pMoved = ModeAt(nFrom);
    if (!pMoved || !ModeAt(nTo))
        return;
    {
        const CRedrawOff redrawOff(m_lstModes);
        m_lstModes.DeleteString(static_cast<UINT>(nFrom));
        InsertMode(nTo, pMoved);
    }
    m_lstModes.SetCurSel(nSelect);
    SelectMode(true);
}

void CDlgPrintMode::OnModeSelChange()
{
    SelectMode(true);
}

void CDlgPrintMode::OnApply()
{
    m_pageCommon.StoreToMode();
}

void CDlgPrintMode::FillConfigList(int nSelect)
{
    Refill(m_lstConfigs, [this] {
        IConfigList* pList = ConfigList();
        const std::uint32_t nCount = HostCount(pList);
        for (std::uint32_t i = 0; i < nCount; ++i)
        {
            IPrintConfig* pConfig = pList->GetAt(i);
            m_lstConfigs.AddString(pConfig ? ConfigText(HostTextForFormat(pConfig->GetName()), *pConfig) : CString());
        }
    });
    if (m_lstConfigs.GetCount() == 0)
        return;
    m_lstConfigs.SetCurSel(nSelect);
    FillModeList(false);
}

void CDlgPrintMode::FillModeList(bool bSkipStore)
{
    Refill(m_lstModes, [this] {
        IPrintConfig* pConfig = SelectedConfig();
        const std::uint32_t nCount = pConfig ? SaneCount(pConfig->GetModeCount()) : 0;
        for (std::uint32_t i = 0; i < nCount; ++i)
            if (IPrintMode* pMode = pConfig->GetMode(i))
                InsertMode(-1, pMode);
    });
    if (m_lstModes.GetCount() == 0)
        return; // the pages keep their mode, whose edits must not be lost, and the buttons their state
    m_lstModes.SetCurSel(0);
    SelectMode(!bSkipStore);
}

void CDlgPrintMode::SelectMode(bool bStoreFirst)
{
    if (bStoreFirst)
        m_pageCommon.StoreToMode();
    AttachMode(ModeAt(m_lstModes.GetCurSel()));
    UpdateButtons();
}

void CDlgPrintMode::AttachMode(IPrintMode* pMode)
{
    m_pageData.AttachMode(pMode);
    m_pageCommon.AttachMode(pMode);
}

void CDlgPrintMode::UpdateButtons()
{
    const bool bMode = m_lstModes.GetCurSel() >= 0;
    EnableControl(m_btnDeleteConfig, m_lstConfigs.GetCurSel() >= 0);
    EnableControl(m_btnDeleteMode, bMode);
    EnableControl(m_btnMoveUp, bMode);
    EnableControl(m_btnMoveDown, bMode);
}

IPrintConfig* CDlgPrintMode::SelectedConfig() const
{
    const int nLine = m_lstConfigs.GetCurSel();
    IConfigList* pList = nLine >= 0 ? ConfigList() : nullptr;
    return pList ? pList->GetAt(static_cast<std::uint32_t>(nLine)) : nullptr;
}

IPrintMode* CDlgPrintMode::ModeAt(int nLine) const
{
    if (nLine < 0 || nLine >= m_lstModes.GetCount())
        return nullptr;
    return reinterpret_cast<IPrintMode*>(m_lstModes.GetItemData(nLine));
}

int CDlgPrintMode::InsertMode(int nLine, IPrintMode* pMode)
{
    const int nAdded = m_lstModes.InsertString(nLine, HostText(pMode->GetName()));
    if (nAdded >= 0)
        m_lstModes.SetItemData(nAdded, reinterpret_cast<DWORD_PTR>(pMode));
    return nAdded;
}

bool CDlgPrintMode::IsAttachedModeListed() const
{
    const IPrintMode* pAttached = m_pageCommon.GetAttachedMode();
    for (int i = 0; pAttached && i < m_lstModes.GetCount(); ++i)
        if (ModeAt(i) == pAttached)
            return true;
    return false;
}
