#pragma once

#include "dialogs/data/Ink.h"
#include "dialogs/scheme/SchemePage.h"

#include <array>
#include <vector>

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
    void InitControls() override { UpdateCtrlState(); }

private:
    void LoadRow(std::size_t row, IInkChannel& channel);
    void FillMultiples(CComboBox& list, int multiple);

    std::array<CComboBox, INK_ROWS> m_cmbInkMul;
    std::array<CStatic, INK_ROWS> m_lblColor;
    std::vector<IInkChannel*> m_vecChannels; // the host's, by row; null for a row that is not shown
};
