#pragma once

#include "dialogs/base/DlgBase.h"
#include "dialogs/scheme/PendingDeletions.h"
#include "dialogs/scheme/SchemePage.h"

#include <afxbutton.h>
#include <afxdialogex.h>
#include <afxtabctrl.h>

#include <cstdint>
#include <vector>

class IPrintConfig;

// What the factory and the user editor share: configurations on the left, the schemes of the selected one beside them,
// and pages for the selected scheme. Deleted schemes stay in the host until OK, so that no index moves meanwhile.
class CDlgSchemeEditor : public CDialogEx, public CDlgBase
{
public:
    int ApplyLanguage() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // A page, its template and the language key of its tab.
    struct Page
    {
        CSchemePage* pPage;
        UINT nTemplate;
        CString strTabLabel;
    };

    CDlgSchemeEditor(UINT nIDTemplate, int nFirstDeletableId, std::int32_t nSaveKind);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    virtual void OnAddScheme() = 0;
    void OnDeleteScheme();
    void OnConfigSelChange() { FillSchemeList(); }
    void OnViewConfig();
    void OnSchemeSelChange() { SelectScheme(true); }
    void OnApply() { SavePages(); }

    DECLARE_MESSAGE_MAP()

    // The pages in tab order, to be created and shown; called once.
    virtual std::vector<Page> MakePages() = 0;
    // Shows the schemes of the selected configuration.
    virtual void FillSchemeList() = 0;
    // Removes a scheme that was deleted in this run, if the host still has it.
    virtual void RemoveFromHost(int nSchemeId) = 0;
    // Called when the pages were saved and before they show another scheme.
    virtual void OnShowingScheme(int) {}

    void SelectScheme(bool bSaveFirst);
    // Adds a row for a scheme; negative when the list refuses it.
    int AddSchemeRow(LPCTSTR pszText, int nSchemeId);
    void SelectAddedRow(int nRow);
    // The selected scheme's id; negative for none.
    int SelectedSchemeId() const;
    // Null for no selection.
    IPrintConfig* SelectedConfig() const;

    CMFCButton m_btnAdd;
    CMFCButton m_btnDelete;
    CMFCButton m_btnCancel;
    CMFCButton m_btnOk;
    CMFCButton m_btnApply;
    CListBox m_lstConfigs;
    CListBox m_lstSchemes;

private:
    void CreatePages();
    void FillConfigList();
    void SavePages();

    CMFCTabCtrl m_tab;
    std::vector<CSchemePage*> m_vecPages;
    CPendingDeletions m_deletions;
    int m_nFirstDeletableId;
    std::int32_t m_nSaveKind;
};
