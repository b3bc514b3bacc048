#pragma once

#include "dialogs/data/Ink.h"
#include "dialogs/scheme/SchemePage.h"

#include <afxcmn.h>

#include <array>

// Ink cut percentage of the active set-up's ink groups.
class CDlgPrintSchemeInkCut : public CSchemePage
{
public:
    CDlgPrintSchemeInkCut();

    void UpdateCtrlState() override;
    void LoadFromScheme() override;
    void SaveToScheme() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void InitControls() override;
    void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

    DECLARE_MESSAGE_MAP()

private:
    void ShowRow(std::size_t row, bool show);
    void LoadRow(std::size_t row, IInkGroup& group);

    std::array<float, INK_ROWS> m_fInkCut{};
    std::array<CSliderCtrl, INK_ROWS> m_sliderInkCut;
    std::array<CEdit, INK_ROWS> m_editInkCut;
    std::array<CStatic, INK_ROWS> m_lblPercent;
    std::array<CStatic, INK_ROWS> m_lblColor;
};
