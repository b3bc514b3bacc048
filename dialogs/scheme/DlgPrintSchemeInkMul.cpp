#include "dialogs/scheme/DlgPrintSchemeInkMul.h"

#include "dialogs/data/NumberText.h"
#include "resources/resource.h"

namespace
{
constexpr int MAX_MULTIPLE = 8;
constexpr int TENTHS = 10; // multiples are stored in tenths
} // namespace

CDlgPrintSchemeInkMul::CDlgPrintSchemeInkMul() : CSchemePage(IDD_SCHEME_INK_MUL) {}

void CDlgPrintSchemeInkMul::DoDataExchange(CDataExchange* pDX)
{
    CSchemePage::DoDataExchange(pDX);
    for (std::size_t row = 0; row < INK_ROWS; ++row)
    {
        DDX_Control(pDX, IDC_CMB_INK_MUL_FIRST + static_cast<int>(row), m_cmbInkMul[row]);
        DDX_Control(pDX, IDC_STATIC_COLOR_FIRST + static_cast<int>(row), m_lblColor[row]);
    }
}

void CDlgPrintSchemeInkMul::UpdateCtrlState()
{
    if (!m_cmbInkMul.front().GetSafeHwnd())
        return;
    for (CComboBox& list : m_cmbInkMul)
        EnableControl(list, IsEditable());
}

void CDlgPrintSchemeInkMul::LoadFromScheme()
{
    if (m_nSchemeId < 0)
        return;
    IPrintScheme* factory = FactorySchemeOf(m_nSchemeId);
    m_vecChannels = factory ? InkChannelsOf(GetField(*factory, SchemeField::LayoutId)) : std::vector<IInkChannel*>();
    m_vecChannels.resize(INK_ROWS);
    for (std::size_t row = 0; row < INK_ROWS; ++row)
    {
        const bool shown = m_vecChannels[row] != nullptr;
        ShowControl(m_lblColor[row], shown);
        ShowControl(m_cmbInkMul[row], shown);
        if (shown)
            LoadRow(row, *m_vecChannels[row]);
    }
}

void CDlgPrintSchemeInkMul::SaveToScheme()
{
    if (!IsEditable())
        return;
    for (std::size_t row = 0; row < m_vecChannels.size(); ++row)
    {
        const std::optional<std::uint8_t> color = m_vecChannels[row] ? ColorIndexOf(*m_vecChannels[row]) : std::nullopt;
        if (!color)
            continue;
        const auto tenths = static_cast<std::uint16_t>(SelectedNumber(m_cmbInkMul[row]) * TENTHS);
        WithScheme([=](auto& scheme) { scheme.SetInkMultiple(tenths, *color); });
    }
}

void CDlgPrintSchemeInkMul::LoadRow(std::size_t row, IInkChannel& channel)
{
    ShowText(m_lblColor[row], TranslatedName(channel.GetName()));
    const std::uint8_t color = ColorIndexOf(channel).value_or(0);
    int tenths = 0;
    WithScheme([&](auto& scheme) { tenths = scheme.GetInkMultiple(color); });
    FillMultiples(m_cmbInkMul[row], tenths / TENTHS);
}

void CDlgPrintSchemeInkMul::FillMultiples(CComboBox& list, int multiple)
{
    RefillUnlessFull(list, MAX_MULTIPLE, [&] {
        for (int i = 1; i <= MAX_MULTIPLE; ++i)
            AddRow(list, NumberText(i).c_str(), i);
    });
    list.SetCurSel(multiple >= 1 && multiple <= MAX_MULTIPLE ? multiple - 1 : 0);
}
