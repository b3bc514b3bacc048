#pragma once

#include "dialogs/base/DlgBase.h"

#include <afxbutton.h>
#include <afxdialogex.h>
#include <afxtabctrl.h>

#include <cstdint>

// What SaveParameters gets.
enum SaveKind : std::uint32_t
{
    SAVE_FACTORY_DATA = 2,
    SAVE_USER_DATA = 3,
};

// What all editors share: the list of the host's configurations, the pages in a tab control, and the buttons that end
// the run. OK asks the host to save; every other way of closing asks nothing and undoes nothing.
class CDlgEditor : public CDialogEx, public CDlgBase
{
public:
    int ApplyLanguage() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // The language section of the editor's own texts.
    CDlgEditor(UINT nIDTemplate, LPCTSTR pszSection, SaveKind nSaveKind);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    // Calls AddPage for every page, in tab order.
    virtual void AddPages() = 0;
    // The lists, when the pages are there.
    virtual void FillLists() = 0;
    // What OK writes into the host before it saves.
    virtual void StoreEdits() = 0;

    void AddPage(CDialog& page, UINT nTemplate, LPCTSTR pszTabKey);

    CMFCButton m_btnOk;
    CMFCButton m_btnCancel;
    CMFCButton m_btnApply;
    CListBox m_lstConfigs;

private:
    void CreateTab();

    LPCTSTR m_pszSection;
    SaveKind m_nSaveKind;
    CMFCTabCtrl m_tab;
};
