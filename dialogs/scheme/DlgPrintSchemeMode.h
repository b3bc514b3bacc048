#pragma once

#include "dialogs/scheme/SchemePage.h"

class IPrintConfig;

// Binds a factory scheme to a print mode of its configuration. Only the factory editor has it.
class CDlgPrintSchemeMode : public CSchemePage
{
public:
    CDlgPrintSchemeMode();

    void UpdateCtrlState() override;
    void LoadFromScheme() override;
    void SaveToScheme() override;
    int ApplyLanguage() override;

    int m_nConfigIndex = 0; // the editor's configuration; -1 for none

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void InitControls() override;
    void OnModeChange() { ShowModeDetails(); }

    DECLARE_MESSAGE_MAP()

private:
    int FillModes(IPrintConfig& config, int modeIndex);
    void ShowModeDetails();
    // Null unless the scheme belongs to the editor's configuration and both exist.
    IPrintScheme* BoundScheme() const;

    CComboBox m_cmbMode;
    CComboBox m_cmbPass;
    CComboBox m_cmbStayMode;
};
