#pragma once

#include "dialogs/scheme/SchemePage.h"

// General settings of a scheme. A user scheme's own record holds name, speed, direction, material and channel; the
// rest is shown from its base scheme and read-only.
class CDlgPrintSchemeCmmn : public CSchemePage
{
public:
    CDlgPrintSchemeCmmn();

    void UpdateCtrlState() override;
    void LoadFromScheme() override;
    void SaveToScheme() override;
    int ApplyLanguage() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void InitControls() override;
    void OnLayoutChange();

    DECLARE_MESSAGE_MAP()

private:
    void FillMaterials();
    void FillWaves();
    void FillChannels();
    void FillLayouts();
    void FillHeads();

    CString m_strName;
    CComboBox m_cmbSpeed;
    CComboBox m_cmbDirection;
    CComboBox m_cmbMaterial;
    CComboBox m_cmbEnable;
    CComboBox m_cmbWaitStep;
    CComboBox m_cmbWave;
    CComboBox m_cmbLayout;
    CComboBox m_cmbHead;
    CComboBox m_cmbChannel;
};
