#include "dialogs/base/DlgEditor.h"

#include "dialogs/data/HostRun.h"
#include "resources/resource.h"

CDlgEditor::CDlgEditor(UINT templateId, const wchar_t* section, SaveKind saveKind)
    : CDialogEx(templateId), m_pszSection(section), m_saveKind(saveKind)
{
}

void CDlgEditor::DoDataExchange(CDataExchange* pDX)
{
    CDialogEx::DoDataExchange(pDX);
    DDX_Control(pDX, IDOK, m_btnOk);
    DDX_Control(pDX, IDCANCEL, m_btnCancel);
    DDX_Control(pDX, IDC_BTN_APPLY, m_btnApply);
    DDX_Control(pDX, IDC_LIST_CFG, m_lstConfigs);
}

BOOL CDlgEditor::OnInitDialog()
{
    if (!CDialogEx::OnInitDialog())
        return FALSE;
    InitLanguage(m_pszSection, this);
    CreateTab();
    AddPages();
    m_tab.SetActiveTab(0);
    FillLists();
    m_btnApply.ShowWindow(SW_HIDE);
    return TRUE;
}

int CDlgEditor::ApplyLanguage()
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

BOOL CDlgEditor::PreTranslateMessage(MSG* pMsg)
{
    return m_tab.PreTranslateMessage(pMsg) || CDialogEx::PreTranslateMessage(pMsg);
}

void CDlgEditor::OnOK()
{
    StoreEdits();
    CDialogEx::OnOK(); // first, so that nothing is handled any more should the host dispatch messages while it saves
    const CWaitCursor wait;
    HostControl().SaveParameters(static_cast<std::uint32_t>(m_saveKind));
}

// Over the placeholder of the same id, and after it in the tab order.
void CDlgEditor::CreateTab()
{
    CWnd* placeholder = GetDlgItem(IDC_TAB);
    RECT rect;
    placeholder->GetWindowRect(&rect);
    ScreenToClient(&rect);
    m_tab.Create(CMFCTabCtrl::STYLE_3D, rect, this, IDC_TAB, CMFCTabCtrl::LOCATION_TOP, FALSE);
    ::SetWindowPos(m_tab.m_hWnd, placeholder->m_hWnd, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void CDlgEditor::AddPage(CDialog& page, UINT templateId, const wchar_t* tabKey)
{
    page.Create(templateId, &m_tab);
    m_tab.AddTab(&page, GetLanguageText(tabKey, L""));
}
