#include "dialogs/scheme/DlgSchemeEditor.h"

#include "dialogs/base/DlgPrintModeAddCfg.h"
#include "dialogs/base/EditorTab.h"
#include "dialogs/base/HostContext.h"
#include "dialogs/base/Rows.h"
#include "dialogs/scheme/ConfigNames.h"
#include "host/IHostControl.h"
#include "resources/resource.h"

CDlgSchemeEditor::CDlgSchemeEditor(UINT nIDTemplate, int nFirstDeletableId, std::int32_t nSaveKind)
    : CDialogEx(nIDTemplate), m_nFirstDeletableId(nFirstDeletableId), m_nSaveKind(nSaveKind)
{
}

void CDlgSchemeEditor::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_BTN_ADD_SCHEME, m_btnAdd);
    DDX_Control(pDX, IDC_BTN_DEL_SCHEME, m_btnDelete);
    DDX_Control(pDX, IDC_LIST_CFG, m_lstConfigs);
    DDX_Control(pDX, IDC_LIST_SCHEME, m_lstSchemes);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
    DDX_Control(pDX, IDOK, m_btnOk);
    DDX_Control(pDX, IDC_BTN_APPLY, m_btnApply);
}

BEGIN_MESSAGE_MAP(CDlgSchemeEditor, CDialogEx)
    ON_BN_CLICKED(IDC_BTN_ADD_SCHEME, &CDlgSchemeEditor::OnAddScheme)
    ON_BN_CLICKED(IDC_BTN_DEL_SCHEME, &CDlgSchemeEditor::OnDeleteScheme)
    ON_LBN_SELCHANGE(IDC_LIST_CFG, &CDlgSchemeEditor::OnConfigSelChange)
    ON_LBN_DBLCLK(IDC_LIST_CFG, &CDlgSchemeEditor::OnViewConfig)
    ON_LBN_SELCHANGE(IDC_LIST_SCHEME, &CDlgSchemeEditor::OnSchemeSelChange)
    ON_BN_CLICKED(IDC_BTN_APPLY, &CDlgSchemeEditor::OnApply)
END_MESSAGE_MAP()

BOOL CDlgSchemeEditor::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    InitLanguage(L"DLG_PRINT_SCHEME", this);
    CreatePages();
    if (GetHostContext().pData)
    {
        FillConfigList();
        FillSchemeList();
    }
    m_btnApply.ShowWindow(SW_HIDE);
    return TRUE;
}

int CDlgSchemeEditor::ApplyLanguage()
{
    static constexpr ControlText TEXTS[] = {
        {IDOK, L"SAVE_QUIT", L"Save&Quit"},
        {IDCANCEL, L"IDCANCEL", L"Cancel"},
        {IDC_STATIC_CFG, L"IDC_STATIC_CFG", L""},
        {IDC_STATIC_MODE, L"IDC_STATIC_MODE", L""},
    };
    SetControlTexts(TEXTS);
    return 1;
}

BOOL CDlgSchemeEditor::PreTranslateMessage(MSG* pMsg)
{
    return m_tab.PreTranslateMessage(pMsg) || CDialogEx::PreTranslateMessage(pMsg);
}

void CDlgSchemeEditor::CreatePages()
{
    CreateEditorTab(m_tab, *this, IDC_TAB);
    const std::vector<Page> pages = MakePages();
    for (const Page& page : pages)
    {
        page.pPage->Create(page.nTemplate, &m_tab);
        m_vecPages.push_back(page.pPage);
    }
    for (const Page& page : pages)
        m_tab.AddTab(page.pPage, page.strTabLabel);
    m_tab.SetActiveTab(0);
}

void CDlgSchemeEditor::FillConfigList()
{
    FillConfigNames(m_lstConfigs);
    m_lstConfigs.SetCurSel(0);
}

void CDlgSchemeEditor::OnOK()
{
    SavePages();
    for (int nSchemeId : m_deletions.InRemovalOrder())
        RemoveFromHost(nSchemeId);
    CDialogEx::OnOK(); // first, so that nothing is handled any more should the host dispatch messages while it saves
    const CWaitCursor wait;
    GetHostContext().pControl->SaveParameters(static_cast<std::uint32_t>(m_nSaveKind));
}

void CDlgSchemeEditor::OnDeleteScheme()
{
    const int nRow = m_lstSchemes.GetCurSel();
    const int nSchemeId = SelectedSchemeId();
    if (m_lstConfigs.GetCurSel() < 0 || nSchemeId < m_nFirstDeletableId)
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
    EnableControl(m_btnDelete, nSchemeId >= m_nFirstDeletableId);
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
