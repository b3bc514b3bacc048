#include "dialogs/printmode/DlgPrintMode.h"

#include "dialogs/base/Controls.h"
#include "dialogs/base/DlgPrintModeAddCfg.h"
#include "dialogs/data/Configs.h"
#include "dialogs/data/MisreadText.h"
#include "dialogs/data/PrintModes.h"
#include "resources/resource.h"

namespace
{
// A configuration on loan from the host; it goes back whatever happens.
class CNewConfig
{
public:
    CNewConfig() : m_data(HostData()), m_pConfig(m_data.CreateConfig()) {}
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
            ::OutputDebugString(L"Quorvane: the host threw an exception out of DestroyConfig\n");
        }
    }
    CNewConfig(const CNewConfig&) = delete;
    CNewConfig& operator=(const CNewConfig&) = delete;

    IPrintConfig* Get() const { return m_pConfig; }

private:
    IHostData& m_data;
    IPrintConfig* m_pConfig;
};
} // namespace

CDlgPrintMode::CDlgPrintMode() : CDlgEditor(IDD_PRINT_MODE, L"DLG_PRINT_MODE", SaveKind::FactoryData) {}

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

// As required, the configuration dialog runs under the resources that the editor's own run has made current, and needs
// no modal runner.
void CDlgPrintMode::OnAddConfig()
{
    CDlgPrintModeAddCfg dialog;
    if (dialog.DoModal() != IDOK)
        return;
    const CNewConfig config;
    if (config.Get())
    {
        WriteConfig(*config.Get(), dialog.GetValues());
        AppendConfig(*config.Get());
    }
}

// The host keeps a copy of its own. The unread name and the SetRedraw without a partner are as required.
void CDlgPrintMode::AppendConfig(IPrintConfig& config)
{
    if (!AddConfig(config))
        return;
    const int row = m_lstConfigs.AddString(ConfigLine(NarrowReadAsWide(config.GetName()), config).c_str());
    if (row < 0)
        return;
    m_lstConfigs.SetCurSel(row);
    m_lstConfigs.SetRedraw(TRUE);
    FillModeList(false);
}

void CDlgPrintMode::OnDeleteConfig()
{
    const int row = m_lstConfigs.GetCurSel();
    if (!SelectedConfig())
        return;
    // The configuration's modes go with it: the pages must not keep one of them.
    if (IsAttachedModeListed())
        AttachMode(nullptr);
    if (!RemoveConfig(row))
        return;
    m_lstConfigs.DeleteString(static_cast<UINT>(row));
    m_lstConfigs.SetCurSel(RowAfterDelete(row, m_lstConfigs.GetCount()));
    FillModeList(true);
}

void CDlgPrintMode::OnEditConfig()
{
    IPrintConfig* config = SelectedConfig();
    if (!config)
        return;
    const ConfigValues oldValues = ReadConfig(*config);
    CDlgPrintModeAddCfg dialog;
    dialog.m_bParamsLocked = TRUE;
    dialog.SetValues(oldValues);
    if (dialog.DoModal() != IDOK || dialog.GetValues().name == oldValues.name)
        return;
    SetHostName(*config, dialog.GetValues().name.c_str());
    FillConfigList(m_lstConfigs.GetCurSel());
}

void CDlgPrintMode::OnConfigSelChange()
{
    FillModeList(false);
}

void CDlgPrintMode::OnAddMode()
{
    IPrintConfig* config = SelectedConfig();
    IPrintMode* mode = config ? AddMode(*config) : nullptr;
    if (!mode)
        return;
    const int row = InsertMode(-1, mode);
    if (row < 0)
    {
        RemoveLastMode(*config);
        return;
    }
    m_lstModes.SetRedraw(TRUE); // without a partner, as required
    m_lstModes.SetCurSel(row);
    SelectMode(true);
}

void CDlgPrintMode::OnDeleteMode()
{
    IPrintConfig* config = SelectedConfig();
    const int row = m_lstModes.GetCurSel();
    IPrintMode* mode = ModeAt(row);
    if (!config || !mode)
        return;
    if (m_pageCommon.GetAttachedMode() == mode)
        AttachMode(nullptr);
    RemoveMode(*config, mode);
    m_lstModes.DeleteString(static_cast<UINT>(row));
    m_lstModes.SetCurSel(RowAfterDelete(row, m_lstModes.GetCount()));
    m_lstModes.SetRedraw(TRUE); // without a partner, as required
    SelectMode(false);
}

void CDlgPrintMode::OnMoveModeUp()
{
    const int row = m_lstModes.GetCurSel();
    MoveRow(row, row - 1, row - 1);
}

void CDlgPrintMode::OnMoveModeDown()
{
    const int row = m_lstModes.GetCurSel();
    if (row >= 0)
        MoveRow(row + 1, row, row + 1);
}

// Only the rows change places: the host keeps its order of modes.
void CDlgPrintMode::MoveRow(int from, int to, int selectedRow)
{
    IPrintMode* moved = ModeAt(from);
    if (!moved || !ModeAt(to))
        return;
    {
        const CRedrawOff redrawOff(m_lstModes);
        m_lstModes.DeleteString(static_cast<UINT>(from));
        InsertMode(to, moved);
    }
    m_lstModes.SetCurSel(selectedRow);
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

void CDlgPrintMode::FillConfigList(int selectedRow)
{
    Refill(m_lstConfigs, [this] {
        ForEachRow(HostData().GetConfigList(), [this](IPrintConfig* config, int) {
            const std::wstring text =
                config ? ConfigLine(HostTextForFormat(config->GetName()), *config) : std::wstring();
            m_lstConfigs.AddString(text.c_str());
        });
    });
    if (m_lstConfigs.GetCount() == 0)
        return;
    m_lstConfigs.SetCurSel(selectedRow);
    FillModeList(false);
}

void CDlgPrintMode::FillModeList(bool skipStore)
{
    Refill(m_lstModes, [this] { ForEach(SelectedConfig(), [this](IPrintMode& mode, int) { InsertMode(-1, &mode); }); });
    if (m_lstModes.GetCount() == 0)
        return; // the pages keep their mode, whose edits must not be lost, and the buttons their state
    m_lstModes.SetCurSel(0);
    SelectMode(!skipStore);
}

void CDlgPrintMode::SelectMode(bool storeFirst)
{
    if (storeFirst)
        m_pageCommon.StoreToMode();
    AttachMode(ModeAt(m_lstModes.GetCurSel()));
    UpdateButtons();
}

void CDlgPrintMode::AttachMode(IPrintMode* mode)
{
    m_pageData.AttachMode(mode);
    m_pageCommon.AttachMode(mode);
}

void CDlgPrintMode::UpdateButtons()
{
    const bool hasMode = m_lstModes.GetCurSel() >= 0;
    EnableControl(m_btnDeleteConfig, m_lstConfigs.GetCurSel() >= 0);
    EnableControl(m_btnDeleteMode, hasMode);
    EnableControl(m_btnMoveUp, hasMode);
    EnableControl(m_btnMoveDown, hasMode);
}

IPrintConfig* CDlgPrintMode::SelectedConfig() const
{
    return ConfigAt(m_lstConfigs.GetCurSel());
}

IPrintMode* CDlgPrintMode::ModeAt(int row) const
{
    return RowObject<IPrintMode>(m_lstModes, row);
}

int CDlgPrintMode::InsertMode(int row, IPrintMode* mode)
{
    const int inserted = m_lstModes.InsertString(row, HostText(mode->GetName()).c_str());
    if (inserted >= 0)
        SetRowData(m_lstModes, inserted, mode);
    return inserted;
}

bool CDlgPrintMode::IsAttachedModeListed() const
{
    const IPrintMode* attached = m_pageCommon.GetAttachedMode();
    for (int row = 0; attached && row < m_lstModes.GetCount(); ++row)
        if (ModeAt(row) == attached)
            return true;
    return false;
}
