#include "tests/model/InkCutPageModel.h"

#include "resources/resource.h"

#include <algorithm>

namespace
{
constexpr int kFewestRows = 6;
constexpr int kMostRows = 12;
constexpr int kMostCut = 100;
} // namespace

InkCutPageModel::InkCutPageModel(ShownScheme& scheme) : SchemePageModel(scheme, IDD_SCHEME_INK_CUT) {}

int InkCutPageModel::RowCount() const
{
    int count = kFewestRows;
    for (std::uint16_t id : Machine().activeSetup.groups)
        if (const refhost::InkGroup* const group = FindGroup(id))
            count = std::max(count, static_cast<int>(group->channels.size()));
    return std::min(count, kMostRows);
}

const refhost::InkGroup* InkCutPageModel::GroupOf(int row) const
{
    const auto channel = static_cast<std::uint16_t>(row);
    for (std::uint16_t id : Machine().activeSetup.groups)
    {
        const refhost::InkGroup* const group = FindGroup(id);
        if (group && HasChannel(channel) &&
            std::find(group->channels.begin(), group->channels.end(), channel) != group->channels.end())
            return group;
    }
    return nullptr;
}

const refhost::InkGroup* InkCutPageModel::FindGroup(std::uint16_t id) const
{
    for (const refhost::InkGroup& group : Machine().inkGroups)
        if (group.id == id)
            return &group;
    return nullptr;
}

bool InkCutPageModel::HasChannel(std::uint16_t id) const
{
    return std::any_of(Machine().inkChannels.begin(), Machine().inkChannels.end(),
                       [=](const refhost::InkChannel& channel) { return channel.id == id; });
}

void InkCutPageModel::Load()
{
    if (Scheme().Id() < 0)
        return;
    const refhost::SchemeValues* const values = Scheme().Values();
    for (int i = 0; i < kMostRows; ++i)
    {
        CutRow& row = m_rows[static_cast<std::size_t>(i)];
        const refhost::InkGroup* const group = i < RowCount() ? GroupOf(i) : nullptr;
        row.isShown = group != nullptr;
        if (!group)
            continue;
        row.number = values && group->colorIndex < values->inkCut.size() ? values->inkCut[group->colorIndex] : 0;
        row.position = std::min(row.number, kMostCut);
    }
}

bool InkCutPageModel::Save()
{
    refhost::SchemeValues* const values = Scheme().Values();
    if (!Scheme().IsEditable() || !values)
        return true;
    for (int i = 0; i < RowCount(); ++i)
    {
        const refhost::InkGroup* const group = GroupOf(i);
        if (group && group->colorIndex < values->inkCut.size())
            values->inkCut[group->colorIndex] = LowByte(m_rows[static_cast<std::size_t>(i)].position);
    }
    return true;
}

void InkCutPageModel::Change(const Notice& notice)
{
    const auto row = static_cast<std::size_t>(notice.control - IDC_SLIDER_INK_CUT_FIRST) / 2;
    if (notice.message == WM_HSCROLL)
        m_rows[row].number = m_rows[row].position = notice.state;
}

void InkCutPageModel::AddTo(std::vector<Shown>& display) const
{
    for (int i = 0; i < kMostRows; ++i)
    {
        const CutRow& row = m_rows[static_cast<std::size_t>(i)];
        display.insert(display.end(), {Number(IDC_SLIDER_INK_CUT_FIRST + 2 * i, Aspect::Shown, row.isShown ? 1 : 0),
                                       Number(IDC_SLIDER_INK_CUT_FIRST + 2 * i, Aspect::Position, row.position),
                                       Text(IDC_EDIT_INK_CUT_FIRST + 2 * i, std::to_wstring(row.number))});
    }
}
