#pragma once

#include "dialogs/base/DlgBase.h"

#include <afxdialogex.h>

#include <vector>

// Lets the operator choose the configurations that a scheme is copied to.
class CDlgPrintSchemeCopyToConfig : public CDialogEx, public CDlgBase
{
public:
    CDlgPrintSchemeCopyToConfig();

    // Indices of configurations, in ascending order; to be read after an OK.
    const std::vector<int>& GetChosen() const { return m_vecChosen; }

    int ApplyLanguage() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    CListBox m_lstConfigs;
    std::vector<int> m_vecChosen;
};
