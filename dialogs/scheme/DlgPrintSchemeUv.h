#pragma once

#include "dialogs/scheme/SchemePage.h"

// UV lamps that are lit for each print direction.
class CDlgPrintSchemeUv : public CSchemePage
{
public:
    CDlgPrintSchemeUv();

    void UpdateCtrlState() override;
    void LoadFromScheme() override;
    void SaveToScheme() override;
    int ApplyLanguage() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void InitControls() override { UpdateCtrlState(); }

private:
    int m_bLPrintLLight = 0; // leftward pass, left lamp
    int m_bLPrintRLight = 0;
    int m_bRPrintLLight = 0;
    int m_bRPrintRLight = 0;
};
