#pragma once

#include "dialogs/scheme/SchemePage.h"

#include <afxcmn.h>

#include <array>

class IInkGroup;

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
    BOOL OnInitDialog() override;
    void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

    DECLARE_MESSAGE_MAP()

private:
    static constexpr int ROW_COUNT = 12;
    using Groups = std::array<IInkGroup*, ROW_COUNT>;

    // The ink group of every row; null for a row that is not shown.
    static Groups GroupsOfRows();
    void ShowRow(int nRow, bool bShow);
    void LoadRow(size_t nRow, IInkGroup& group);

    std::array<float, ROW_COUNT> m_fInkCut{};
    std::array<CSliderCtrl, ROW_COUNT> m_sliderInkCut;
    std::array<CEdit, ROW_COUNT> m_editInkCut;
    std::array<CStatic, ROW_COUNT> m_lblPercent;
    std::array<CStatic, ROW_COUNT> m_lblColor;
};
