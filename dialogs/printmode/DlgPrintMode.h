#pragma once

#include "dialogs/base/DlgEditor.h"
#include "dialogs/printmode/DlgPrintModeCmmn.h"
#include "dialogs/printmode/DlgPrintModeData.h"

class IPrintConfig;

// The print-mode editor: the host's configurations, the modes of the selected one, and two pages for the selected
// mode. Everything is edited in the host's own objects; OK asks the host to save them.
class CDlgPrintMode : public CDlgEditor
{
public:
    CDlgPrintMode();

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void AddPages() override;
    void FillLists() override;
    void StoreEdits() override;

    void OnAddConfig();
    void OnDeleteConfig();
    void OnEditConfig();
    void OnConfigSelChange();
    void OnAddMode();
    void OnDeleteMode();
    void OnMoveModeUp();
    void OnMoveModeDown();
    void OnModeSelChange();
    void OnApply();

    DECLARE_MESSAGE_MAP()

private:
    void AppendConfig(IPrintConfig& config);
    void FillConfigList(int nSelect);
    void FillModeList(bool bSkipStore);
    void SelectMode(bool bStoreFirst);
    void AttachMode(IPrintMode* pMode);
    void UpdateButtons();

    IPrintConfig* SelectedConfig() const;
    // The mode of a line, null for none.
    IPrintMode* ModeAt(int nLine) const;
    // -1: at the end. Gives the new line.
    int InsertMode(int nLine, IPrintMode* pMode);
    void MoveLine(int nFrom, int nTo, int nSelect);
    bool IsAttachedModeListed() const;

    CMFCButton m_btnAddConfig;
    CMFCButton m_btnDeleteConfig;
    CMFCButton m_btnAddMode;
    CMFCButton m_btnDeleteMode;
    CMFCButton m_btnMoveUp;
    CMFCButton m_btnMoveDown;
    CListBox m_lstModes;
    CDlgPrintModeCmmn m_pageCommon;
    CDlgPrintModeData m_pageData;
};
