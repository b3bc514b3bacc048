#pragma once

#include "dialogs/scheme/SchemePage.h"

#include <afxbutton.h>
#include <afxcmn.h>

// Eclosion (edge feathering) of a scheme.
class CDlgPrintSchemeElc : public CSchemePage
{
public:
    CDlgPrintSchemeElc();

    void UpdateCtrlState() override;
    void LoadFromScheme() override;
    void SaveToScheme() override;
    int ApplyLanguage() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void InitControls() override;
    void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void OnCustomEclosion();
    void OnTypeChange();
    void OnLevelChange();

    DECLARE_MESSAGE_MAP()

private:
    void FillFixedLists();
    void FillTypes();
    void FillLevels();
    bool IsPreset() const { return m_bUserEditor && !IsUserScheme(); }

    CComboBox m_cmbDotMode;
    CComboBox m_cmbCustomType;
    CComboBox m_cmbHeadEclosionType;
    CComboBox m_cmbEclosionLevel;
    CComboBox m_cmbEclosionType;
    CMFCButton m_btnCustomEclosion;
    CEdit m_editCustomRange;
    CSliderCtrl m_sliderCustomRange;
    bool m_bOpenCustomOnType = true; // choosing the custom type opens its dialog; loading it does not
    int m_nRangeL = 0;
    int m_nRangeM = 0;
    int m_nRangeS = 0;
    int m_nRangeSS = 0;
    int m_nCustomRange = 0;
};
