#pragma once

#include "dialogs/base/DlgEditor.h"
#include "dialogs/scheme/PendingDeletions.h"
#include "dialogs/scheme/SchemePage.h"

#include <vector>

class IPrintConfig;

// What the factory and the user editor share: configurations on the left, the schemes of the selected one beside them,
// and pages for the selected scheme. Deleted schemes stay in the host until OK, so that no index moves meanwhile.
class CDlgSchemeEditor : public CDlgEditor
{
protected:
    CDlgSchemeEditor(UINT nIDTemplate, BOOL bUserEditor);

    void DoDataExchange(CDataExchange* pDX) override;
    void FillLists() override;
    void StoreEdits() override;

    virtual void OnAddScheme() = 0;
    void OnDeleteScheme();
    void OnConfigSelChange() { FillSchemeList(); }
    void OnViewConfig();
    void OnSchemeSelChange() { SelectScheme(true); }
    void OnApply() { SavePages(); }

    DECLARE_MESSAGE_MAP()

    // Shows the schemes of the selected configuration.
    virtual void FillSchemeList() = 0;
    // Removes a scheme that was deleted in this run, if the host still has it.
    virtual void RemoveFromHost(int nSchemeId) = 0;
    // Called when the pages were saved and before they show another scheme.
    virtual void OnShowingScheme(int) {}

    void AddSchemePage(CSchemePage& page, UINT nTemplate, LPCTSTR pszTabKey);
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
    CListBox m_lstSchemes;

private:
    void SavePages();
    // A factory scheme is only a preset in the user editor.
    int FirstDeletableId() const { return m_bUserEditor ? FIRST_USER_SCHEME : 0; }

    std::vector<CSchemePage*> m_vecPages;
    CPendingDeletions m_deletions;
    BOOL m_bUserEditor;
};
