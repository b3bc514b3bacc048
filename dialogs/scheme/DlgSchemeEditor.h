#pragma once

#include "dialogs/base/DlgEditor.h"
#include "dialogs/data/PendingDeletions.h"
#include "dialogs/scheme/SchemePage.h"

#include <string>
#include <vector>

class IPrintConfig;

// What the factory and the user editor share: configurations on the left, the schemes of the selected one beside them,
// and pages for the selected scheme. Deleted schemes stay in the host until OK, so that no index moves before.
class CDlgSchemeEditor : public CDlgEditor
{
protected:
    CDlgSchemeEditor(UINT templateId, BOOL userEditor);

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
    // Called when the pages were saved and before they show another scheme.
    virtual void OnShowingScheme(int) {}

    void AddSchemePage(CSchemePage& page, UINT templateId, const wchar_t* tabKey);
    void SelectScheme(bool saveFirst);
    // Lists and selects a scheme that the host has just added; takes it back where the list refuses the row.
    void ShowAddedScheme(const std::wstring& name, int schemeId);
    // The selected scheme's id; negative for none.
    int SelectedSchemeId() const;
    // Null for no selection.
    IPrintConfig* SelectedConfig() const;

    CMFCButton m_btnAdd;
    CMFCButton m_btnDelete;
    CListBox m_lstSchemes;

private:
    void SavePages();
    bool IsDeletable(int schemeId) const;

    std::vector<CSchemePage*> m_vecPages;
    CPendingDeletions m_deletions;
    BOOL m_bUserEditor;
};
