#include "dialogs/data/Ink.h"

#include "dialogs/data/ChannelArray.h"
#include "dialogs/data/Machine.h"
#include "host/IInkChannelTable.h"

#include <algorithm>

namespace
{
constexpr std::uint32_t MIN_PROBED_ROWS = 6;

bool HasLayout(int layoutId)
{
    bool found = false;
    ForEach(HostData().GetLayoutList(),
            [&](ILayout& layout, int) { found = found || layout.GetId() == static_cast<std::uint32_t>(layoutId); });
    return found;
}

// Calls the visitor with every existing group of the active set-up, in the set-up's order.
template <class Visitor>
void ForEachActiveGroup(Visitor visit)
{
    IInkGroupTable* table = HostData().GetInkGroups();
    IActiveSetup* setup = table ? ActiveSetup() : nullptr;
    const std::uint32_t count = setup ? SaneCount(setup->GetGroupCount(), MAX_INK_COUNT) : 0;
    for (std::uint32_t i = 0; i < count; ++i)
        if (IInkGroup* group = table->GetGroup(setup->GetGroupId(i)))
            visit(*group);
}
} // namespace

std::vector<IInkChannel*> InkChannelsOf(int layoutId)
{
    IInkChannelTable* table = HasLayout(layoutId) ? HostData().GetInkChannels() : nullptr;
    if (!table)
        return {};
    CChannelArray channels;
    table->GetChannelsOfLayout(static_cast<std::uint8_t>(layoutId), channels.AsVector());
    return channels.First(INK_ROWS);
}

InkGroupRows InkGroupsOfRows()
{
    InkGroupRows rows{};
    std::uint32_t probed = MIN_PROBED_ROWS;
    ForEachActiveGroup([&](IInkGroup& group) {
        probed = std::max(probed, CountOf(&group));
        ForEach(&group, [&](IInkChannel& channel, int) {
            const std::size_t row = channel.GetId();
            if (row < rows.size() && !rows[row])
                rows[row] = &group;
        });
    });
    for (std::size_t row = probed; row < rows.size(); ++row)
        rows[row] = nullptr;
    return rows;
}

std::optional<std::uint8_t> ColorIndexOf(IInkChannel& channel)
{
    if (IInkChannelTable* table = HostData().GetInkChannels())
        return table->GetColorIndex(channel.GetId());
    return std::nullopt;
}

std::optional<std::uint8_t> ColorIndexOf(IInkGroup& group)
{
    if (IInkGroupTable* table = HostData().GetInkGroups())
        return table->GetColorIndex(group.GetId());
    return std::nullopt;
}
