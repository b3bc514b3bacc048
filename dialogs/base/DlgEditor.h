#pragma once

#include "dialogs/base/DlgBase.h"

#include <afxbutton.h>
#include <afxdialogex.h>
#include <afxtabctrl.h>

#include <cstdint>

// What SaveParameters gets.
enum class SaveKind : std::uint32_t
{
    FactoryData = 2,
    UserData = 3,
};

// What all editors share: the list of the host's configurations, the pages in a tab control, and the buttons that end
// the run. OK asks the host to save. Any other way of closing sends no request, and what was changed stays changed.
class CDlgEditor : public CDialogEx, public CDlgBase
{
public:
    int ApplyLanguage() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // The language section of the editor's own texts.
    CDlgEditor(UINT templateId, const wchar_t* section, SaveKind saveKind);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    // Calls AddPage for every page, in tab order.
    virtual void AddPages() = 0;
    // The lists, when the pages are there.
    virtual void FillLists() = 0;
    // What OK writes into the host before it saves.
    virtual void StoreEdits() = 0;

    void AddPage(CDialog& page, UINT templateId, const wchar_t* tabKey);

    CMFCButton m_btnOk;
    CMFCButton m_btnCancel;
    CMFCButton m_btnApply;
    CListBox m_lstConfigs;

private:
    void CreateTab();

    const wchar_t* m_pszSection;
    SaveKind m_saveKind;
    CMFCTabCtrl m_tab;
};
