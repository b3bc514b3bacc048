#pragma once

#include <afxdialogex.h>

class IPrintConfig;

// The values of one print configuration: entered for a new one, renamed, or only looked at. It never talks to the
// host by itself; its caller fills it before the run and reads it after an OK.
class CDlgPrintModeAddCfg : public CDialogEx
{
public:
    CDlgPrintModeAddCfg();

    // The transfer of all values in either direction; a configuration's name comes last.
    void ReadFrom(IPrintConfig& config);
    void WriteTo(IPrintConfig& config) const;

    BOOL m_bNameLocked = FALSE;
    BOOL m_bParamsLocked = FALSE;
    CString m_strName;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    void EnableFields();
    CString NameFromValues() const;

    int m_nColorCount = 0;
    int m_nDotBits = 0;
    int m_nXResolution = 720;
    int m_nYResolution = 720;
    int m_nEnabled = BST_CHECKED;
};
