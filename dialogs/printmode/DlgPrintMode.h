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
    void FillConfigList(int selectedRow);
    void FillModeList(bool skipStore);
    void SelectMode(bool storeFirst);
    void AttachMode(IPrintMode* mode);
    void UpdateButtons();

    IPrintConfig* SelectedConfig() const;
    // The mode of a row, null for none.
    IPrintMode* ModeAt(int row) const;
    // -1: at the end. Gives the new row; negative when the list refuses it.
    int InsertMode(int row, IPrintMode* mode);
    void MoveRow(int from, int to, int selectedRow);
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
