#pragma once

#include "dialogs/data/Configs.h"

#include <afxdialogex.h>

// The values of one print configuration: entered for a new one, renamed, or only looked at. It never talks to the
// host: its caller fills the values before the run and reads them after an OK.
class CDlgPrintModeAddCfg : public CDialogEx
{
public:
    CDlgPrintModeAddCfg();

    void SetValues(const ConfigValues& values);
    ConfigValues GetValues() const;

    BOOL m_bNameLocked = FALSE;
    BOOL m_bParamsLocked = FALSE;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    void EnableFields();

    CString m_strName;
    int m_nColorCount = 0;
    int m_nDotBits = 0;
    int m_nXResolution = 0;
    int m_nYResolution = 0;
    int m_nEnabled = BST_UNCHECKED;
};
