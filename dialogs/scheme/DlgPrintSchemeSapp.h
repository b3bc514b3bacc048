#pragma once

#include "dialogs/scheme/SchemePage.h"

// Small-format printing. The values live in factory schemes: a user scheme shows, and changes, those of its base
// scheme, and so of every scheme that shares it.
class CDlgPrintSchemeSapp : public CSchemePage
{
public:
    CDlgPrintSchemeSapp();

    void UpdateCtrlState() override;
    void LoadFromScheme() override;
    void SaveToScheme() override;
    int ApplyLanguage() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void InitControls() override;

private:
    void DropRefusedOffset();

    CComboBox m_cmbSmallMode;
    int m_nSmallOffset = 0;
    int m_nShownMode = 1; // what a locked switch stands for, even a value that it has no row for
};
