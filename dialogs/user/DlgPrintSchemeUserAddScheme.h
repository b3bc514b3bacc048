#pragma once

#include "dialogs/base/DlgBase.h"

#include <afxdialogex.h>

#include <cstdint>

// Asks for the name and the source of a new user scheme. The editor makes the scheme.
class CDlgPrintSchemeUserAddScheme : public CDialogEx, public CDlgBase
{
public:
    // The source is the scheme id to preselect; one that is not offered leaves the first one selected.
    CDlgPrintSchemeUserAddScheme(int configIndex, int source);

    int ApplyLanguage() override;

    CString m_strName;
    int m_nSource; // after an OK the chosen scheme id, -1 for none

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    void FillSources();

    std::uint8_t m_nConfigIndex; // as wide as schemes store it
    CComboBox m_cmbSource;
};
