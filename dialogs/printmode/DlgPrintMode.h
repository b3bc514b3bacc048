#pragma once

#include "dialogs/base/DlgBase.h"
#include "dialogs/printmode/DlgPrintModeCmmn.h"
#include "dialogs/printmode/DlgPrintModeData.h"

#include <afxbutton.h>
#include <afxdialogex.h>
#include <afxtabctrl.h>

class IPrintConfig;

// The print-mode editor: the host's configurations, the modes of the selected one, and two pages for the selected
// mode. Everything is edited in the host's own objects; OK asks the host to save them.
class CDlgPrintMode : public CDialogEx, public CDlgBase
{
public:
    CDlgPrintMode();

    int ApplyLanguage() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

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
    void CreatePages();
    void AppendConfig(IPrintConfig& config);
    void FillConfigList(int nSelect);
    void FillModeList(bool bSkipStore);
    void SelectMode(bool bStoreFirst);
    void AttachMode(IPrintMode* pMode);
    void UpdateButtons();

    IPrintConfig* SelectedConfig() const;
    // The mode of a line, null for none.
    IPrintMode* ModeAt(int nLine) const;
    int InsertMode(int nLine, IPrintMode* pMode);
    void MoveLine(int nFrom, int nTo, int nSelect);
    bool IsAttachedModeListed() const;

    CMFCButton m_btnAddConfig;
    CMFCButton m_btnDeleteConfig;
    CMFCButton m_btnAddMode;
    CMFCButton m_btnDeleteMode;
    CMFCButton m_btnMoveUp;
    CMFCButton m_btnMoveDown;
    CMFCButton m_btnCancel;
    CMFCButton m_btnOk;
    CMFCButton m_btnApply;
    CListBox m_lstConfigs;
    CListBox m_lstModes;
    CMFCTabCtrl m_tab;
    CDlgPrintModeCmmn m_pageCommon;
    CDlgPrintModeData m_pageData;
};
