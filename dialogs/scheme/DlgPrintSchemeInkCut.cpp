#include "dialogs/scheme/DlgPrintSchemeInkCut.h"

#include "resources/resource.h"

namespace
{
constexpr int MAX_PERCENT = 100;
} // namespace

CDlgPrintSchemeInkCut::CDlgPrintSchemeInkCut() : CSchemePage(IDD_SCHEME_INK_CUT) {}

void CDlgPrintSchemeInkCut::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    for (std::size_t row = 0; row < INK_ROWS; ++row)
    {
        const int offset = static_cast<int>(row);
        DDX_Control(pDX, IDC_SLIDER_INK_CUT_FIRST + 2 * offset, m_sliderInkCut[row]);
        DDX_Control(pDX, IDC_EDIT_INK_CUT_FIRST + 2 * offset, m_editInkCut[row]);
        DDX_Control(pDX, IDC_STATIC_PERCENT_FIRST + offset, m_lblPercent[row]);
        DDX_Control(pDX, IDC_STATIC_COLOR_FIRST + offset, m_lblColor[row]);
        DDX_Text(pDX, IDC_EDIT_INK_CUT_FIRST + 2 * offset, m_fInkCut[row]);
    }
}

BEGIN_MESSAGE_MAP(CDlgPrintSchemeInkCut, CSchemePage)
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

void CDlgPrintSchemeInkCut::InitControls()
{
    for (CSliderCtrl& slider : m_sliderInkCut)
        slider.SetRange(0, MAX_PERCENT);
    UpdateCtrlState();
}

void CDlgPrintSchemeInkCut::UpdateCtrlState()
{
    if (!m_sliderInkCut.front().GetSafeHwnd())
        return;
    for (CSliderCtrl& slider : m_sliderInkCut)
        EnableControl(slider, IsEditable());
}

void CDlgPrintSchemeInkCut::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    const InkGroupRows groups = InkGroupsOfRows();
    for (std::size_t row = 0; row < groups.size(); ++row)
    {
        ShowRow(row, groups[row] != nullptr);
        if (groups[row])
            LoadRow(row, *groups[row]);
    }
    UpdateData(FALSE);
}

// The trackbar, not the number beside it, is what is stored.
void CDlgPrintSchemeInkCut::SaveToScheme()
{
    if (!IsEditable())
        return;
    UpdateData(TRUE);
    const InkGroupRows groups = InkGroupsOfRows();
    for (std::size_t row = 0; row < groups.size(); ++row)
    {
        const std::optional<std::uint8_t> color = groups[row] ? ColorIndexOf(*groups[row]) : std::nullopt;
        if (!color)
            continue;
        const auto percent = static_cast<std::uint8_t>(m_sliderInkCut[row].GetPos());
        WithScheme([=](auto& scheme) { scheme.SetInkCut(percent, *color); });
    }
}

void CDlgPrintSchemeInkCut::LoadRow(std::size_t row, IInkGroup& group)
{
    ShowText(m_lblColor[row], TranslatedName(group.GetName()));
    const std::uint8_t color = ColorIndexOf(group).value_or(0);
    int percent = 0;
    WithScheme([&](auto& scheme) { percent = scheme.GetInkCut(color); });
    m_fInkCut[row] = static_cast<float>(percent);
    m_sliderInkCut[row].SetPos(percent);
}

void CDlgPrintSchemeInkCut::ShowRow(std::size_t row, bool show)
{
    for (CWnd* control :
         std::initializer_list<CWnd*>{&m_lblColor[row], &m_editInkCut[row], &m_lblPercent[row], &m_sliderInkCut[row]})
        ShowControl(*control, show);
}

void CDlgPrintSchemeInkCut::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    for (std::size_t row = 0; pScrollBar && row < m_sliderInkCut.size(); ++row)
        if (m_sliderInkCut[row].m_hWnd == pScrollBar->m_hWnd)
        {
            m_fInkCut[row] = static_cast<float>(m_sliderInkCut[row].GetPos());
            UpdateData(FALSE);
        }
    CSchemePage::OnHScroll(nSBCode, nPos, pScrollBar);
}
