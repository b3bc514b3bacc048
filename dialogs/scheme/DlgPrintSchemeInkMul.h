#pragma once

#include "dialogs/scheme/SchemePage.h"

#include <array>
#include <vector>

class IInkChannel;

// Ink multiple of every channel of the scheme's layout.
class CDlgPrintSchemeInkMul : public CSchemePage
{
public:
    CDlgPrintSchemeInkMul();

    void UpdateCtrlState() override;
    void LoadFromScheme() override;
    void SaveToScheme() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

private:
    static constexpr int ROW_COUNT = 12;

    void ShowRow(int nRow, bool bShow);
    void LoadRow(int nRow);
    void FillMultiples(CComboBox& combo, int nMultiple);
    std::vector<IInkChannel*> ChannelsOfLayout() const;
    bool HasLayout(std::uint8_t nLayoutId) const;

    std::array<CComboBox, ROW_COUNT> m_cmbInkMul;
    std::array<CStatic, ROW_COUNT> m_lblColor;
    std::vector<IInkChannel*> m_vecChannels; // the host's, of the rows shown
};
