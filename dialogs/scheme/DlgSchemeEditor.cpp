#include "dialogs/scheme/DlgSchemeEditor.h"

#include "dialogs/base/DlgPrintModeAddCfg.h"
#include "dialogs/data/Configs.h"
#include "resources/resource.h"

CDlgSchemeEditor::CDlgSchemeEditor(UINT templateId, BOOL userEditor)
    : CDlgEditor(templateId, L"DLG_PRINT_SCHEME", userEditor ? SaveKind::UserData : SaveKind::FactoryData),
      m_bUserEditor(userEditor)
{
}

void CDlgSchemeEditor::DoDataExchange(CDataExchange* pDX)
{
    CDlgEditor::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_BTN_ADD_SCHEME, m_btnAdd);
    DDX_Control(pDX, IDC_BTN_DEL_SCHEME, m_btnDelete);
    DDX_Control(pDX, IDC_LIST_SCHEME, m_lstSchemes);
}

BEGIN_MESSAGE_MAP(CDlgSchemeEditor, CDlgEditor)
    ON_BN_CLICKED(IDC_BTN_ADD_SCHEME, &CDlgSchemeEditor::OnAddScheme)
    ON_BN_CLICKED(IDC_BTN_DEL_SCHEME, &CDlgSchemeEditor::OnDeleteScheme)
    ON_LBN_SELCHANGE(IDC_LIST_CFG, &CDlgSchemeEditor::OnConfigSelChange)
    ON_LBN_DBLCLK(IDC_LIST_CFG, &CDlgSchemeEditor::OnViewConfig)
    ON_LBN_SELCHANGE(IDC_LIST_SCHEME, &CDlgSchemeEditor::OnSchemeSelChange)
    ON_BN_CLICKED(IDC_BTN_APPLY, &CDlgSchemeEditor::OnApply)
END_MESSAGE_MAP()

void CDlgSchemeEditor::AddSchemePage(CSchemePage& page, UINT templateId, const wchar_t* tabKey)
{
    page.m_bUserEditor = m_bUserEditor;
    AddPage(page, templateId, tabKey);
    m_vecPages.push_back(&page);
}

void CDlgSchemeEditor::FillLists()
{
    FillConfigNames(m_lstConfigs);
    m_lstConfigs.SetCurSel(0);
    FillSchemeList();
}

void CDlgSchemeEditor::StoreEdits()
{
    SavePages();
    for (int schemeId : m_deletions.InRemovalOrder())
        RemoveScheme(schemeId);
}

void CDlgSchemeEditor::OnDeleteScheme()
{
    const int row = m_lstSchemes.GetCurSel();
    const int schemeId = SelectedSchemeId();
    if (m_lstConfigs.GetCurSel() < 0 || !IsDeletable(schemeId))
        return;
    m_lstSchemes.DeleteString(static_cast<UINT>(row));
    m_deletions.Add(schemeId);
    m_lstSchemes.SetRedraw(TRUE); // without a partner, as required
    m_lstSchemes.SetCurSel(RowAfterDelete(row, m_lstSchemes.GetCount()));
    SelectScheme(false); // the pages hold the deleted scheme's values
}

// As required, the configuration dialog runs under the resources that the editor's own run has made current, and needs
// no modal runner.
void CDlgSchemeEditor::OnViewConfig()
{
    IPrintConfig* config = SelectedConfig();
    if (!config)
        return;
    CDlgPrintModeAddCfg dialog;
    dialog.m_bNameLocked = TRUE;
    dialog.m_bParamsLocked = TRUE;
    dialog.SetValues(ReadConfig(*config));
    dialog.DoModal();
}

void CDlgSchemeEditor::SavePages()
{
    for (CSchemePage* page : m_vecPages)
        page->SaveToScheme();
}

// The pages still hold the scheme that was shown until now, so what was edited goes there.
void CDlgSchemeEditor::SelectScheme(bool saveFirst)
{
    if (saveFirst)
        SavePages();
    const int schemeId = SelectedSchemeId();
    EnableControl(m_btnDelete, IsDeletable(schemeId));
    OnShowingScheme(schemeId);
    for (CSchemePage* page : m_vecPages)
        page->ShowScheme(schemeId);
}

void CDlgSchemeEditor::ShowAddedScheme(const std::wstring& name, int schemeId)
{
    const int row = AddRow(m_lstSchemes, name.c_str(), schemeId);
    if (row < 0)
    {
        RemoveScheme(schemeId);
        return;
    }
    m_lstSchemes.SetRedraw(TRUE); // without a partner, as required
    m_lstSchemes.SetCurSel(row);
    SelectScheme(true);
}

int CDlgSchemeEditor::SelectedSchemeId() const
{
    return SelectedNumber(m_lstSchemes);
}

IPrintConfig* CDlgSchemeEditor::SelectedConfig() const
{
    return RowObject<IPrintConfig>(m_lstConfigs, m_lstConfigs.GetCurSel());
}

// A factory scheme is only a preset in the user editor.
bool CDlgSchemeEditor::IsDeletable(int schemeId) const
{
    return IsUserSchemeId(schemeId) || (!m_bUserEditor && IsFactorySchemeId(schemeId));
}
