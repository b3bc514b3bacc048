#include "tests/model/InkMultiplePageModel.h"

#include "resources/resource.h"

#include <algorithm>

namespace
{
constexpr std::size_t kMostRows = 12;
constexpr int kHighestMultiple = 8;
} // namespace

InkMultiplePageModel::InkMultiplePageModel(ShownScheme& scheme) : SchemePageModel(scheme, IDD_SCHEME_INK_MUL) {}

void InkMultiplePageModel::Load()
{
    if (Scheme().Id() < 0)
        return;
    m_wasLoaded = true;
    m_rows.clear();
    if (const refhost::Layout* const layout = Layout())
        for (std::uint16_t id : layout->channels)
            AddRow(id);
}

const refhost::Layout* InkMultiplePageModel::Layout() const
{
    if (const refhost::FactoryScheme* const behind = Scheme().FactoryBehind())
        for (const refhost::Layout& layout : Machine().layouts)
            if (layout.id == behind->layoutId)
                return &layout;
    return nullptr;
}

// A channel that the machine has not is not among the layout's.
void InkMultiplePageModel::AddRow(std::uint16_t channelId)
{
    const auto channel = std::find_if(Machine().inkChannels.begin(), Machine().inkChannels.end(),
                                      [=](const refhost::InkChannel& each) { return each.id == channelId; });
    if (channel == Machine().inkChannels.end() || m_rows.size() == kMostRows)
        return;
    const refhost::SchemeValues* const values = Scheme().Values();
    const bool isStored = values && channel->colorIndex < values->inkMultiple.size();
    const int multiple = isStored ? values->inkMultiple[channel->colorIndex] / 10 : 0;
    m_rows.push_back({channel->colorIndex, multiple >= 1 && multiple <= kHighestMultiple ? multiple - 1 : 0});
}

bool InkMultiplePageModel::Save()
{
    refhost::SchemeValues* const values = Scheme().Values();
    if (!Scheme().IsEditable() || !values)
        return true;
    for (const ColorRow& each : m_rows)
        if (each.color < values->inkMultiple.size())
            values->inkMultiple[each.color] = static_cast<std::uint16_t>(10 * (each.row + 1));
    return true;
}

void InkMultiplePageModel::Change(const Notice& notice)
{
    const auto row = static_cast<std::size_t>(notice.control - IDC_CMB_INK_MUL_FIRST);
    if (notice.code == CBN_SELCHANGE && row < m_rows.size())
        m_rows[row].row = notice.state;
}

void InkMultiplePageModel::AddTo(std::vector<Shown>& display) const
{
    for (int i = 0; i < static_cast<int>(kMostRows); ++i)
        display.push_back(Number(IDC_CMB_INK_MUL_FIRST + i, Aspect::Shown, !m_wasLoaded || i < Rows()));
    for (int i = 0; i < Rows(); ++i)
        display.push_back(Row(IDC_CMB_INK_MUL_FIRST + i, m_rows[static_cast<std::size_t>(i)].row));
}
