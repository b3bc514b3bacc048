#include "dialogs/scheme/DlgSchemeEditor.h"

#include "dialogs/base/DlgPrintModeAddCfg.h"
#include "dialogs/base/Rows.h"
#include "dialogs/scheme/ConfigNames.h"
#include "resources/resource.h"

CDlgSchemeEditor::CDlgSchemeEditor(UINT nIDTemplate, BOOL bUserEditor)
    : CDlgEditor(nIDTemplate, L"DLG_PRINT_SCHEME", bUserEditor ? SAVE_USER_DATA : SAVE_FACTORY_DATA),
      m_bUserEditor(bUserEditor)
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

void CDlgSchemeEditor::AddSchemePage(CSchemePage& page, UINT nTemplate, LPCTSTR pszTabKey)
{
    page.m_bUserEditor = m_bUserEditor;
    AddPage(page, nTemplate, pszTabKey);
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
    for (int nSchemeId : m_deletions.InRemovalOrder())
        RemoveFromHost(nSchemeId);
}

void CDlgSchemeEditor::OnDeleteScheme()
{
    const int nRow = m_lstSchemes.GetCurSel();
    const int nSchemeId = SelectedSchemeId();
    if (m_lstConfigs.GetCurSel() < 0 || nSchemeId < FirstDeletableId())
        return;
    m_lstSchemes.DeleteString(static_cast<UINT>(nRow));
    m_deletions.Add(nSchemeId);
    m_lstSchemes.SetRedraw(TRUE);
    m_lstSchemes.SetCurSel(RowAfterDelete(nRow, m_lstSchemes.GetCount()));
    SelectScheme(false); // the pages hold the deleted scheme's values
}

void CDlgSchemeEditor::OnViewConfig()
{
    IPrintConfig* pConfig = SelectedConfig();
    if (!pConfig)
        return;
    CDlgPrintModeAddCfg dialog;
    dialog.m_bNameLocked = TRUE;
    dialog.m_bParamsLocked = TRUE;
    dialog.ReadFrom(*pConfig);
    dialog.DoModal();
}

void CDlgSchemeEditor::SavePages()
{
    for (CSchemePage* pPage : m_vecPages)
        pPage->SaveToScheme();
}

// The pages still hold the scheme that was shown until now, so what was edited goes there.
void CDlgSchemeEditor::SelectScheme(bool bSaveFirst)
{
    if (bSaveFirst)
        SavePages();
    const int nSchemeId = SelectedSchemeId();
    EnableControl(m_btnDelete, nSchemeId >= FirstDeletableId());
    OnShowingScheme(nSchemeId);
    for (CSchemePage* pPage : m_vecPages)
        pPage->ShowScheme(nSchemeId);
}

int CDlgSchemeEditor::AddSchemeRow(LPCTSTR pszText, int nSchemeId)
{
    const int nRow = m_lstSchemes.AddString(pszText);
    if (nRow >= 0)
        m_lstSchemes.SetItemData(nRow, static_cast<DWORD_PTR>(static_cast<INT_PTR>(nSchemeId)));
    return nRow;
}

void CDlgSchemeEditor::SelectAddedRow(int nRow)
{
    m_lstSchemes.SetRedraw(TRUE);
    m_lstSchemes.SetCurSel(nRow);
    SelectScheme(true);
}

int CDlgSchemeEditor::SelectedSchemeId() const
{
    const int nRow = m_lstSchemes.GetCurSel();
    return nRow >= 0 ? static_cast<int>(m_lstSchemes.GetItemData(nRow)) : NO_SCHEME;
}

IPrintConfig* CDlgSchemeEditor::SelectedConfig() const
{
    const int nRow = m_lstConfigs.GetCurSel();
    return nRow >= 0 ? reinterpret_cast<IPrintConfig*>(m_lstConfigs.GetItemData(nRow)) : nullptr;
}
