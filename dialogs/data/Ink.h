#pragma once

#include "dialogs/data/HostList.h"
#include "host/IInkChannel.h"
#include "host/IInkGroup.h"
#include "host/IInkGroupTable.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

// The ink channels and ink groups of the machine, as the scheme pages show them.

template <>
struct HostItems<IInkGroup>
{
    static constexpr std::uint32_t MOST = MAX_INK_COUNT;
    static std::uint32_t Count(IInkGroup& group) { return group.GetChannelCount(); }
    static IInkChannel* At(IInkGroup& group, std::uint32_t index) { return group.GetChannel(index); }
};

// What the ink pages have rows for.
constexpr std::size_t INK_ROWS = 12;

// The channels of a layout that the host knows, at most as many as there are rows; null ones keep their row. Empty for
// an unknown layout.
std::vector<IInkChannel*> InkChannelsOf(int layoutId);

// The ink group of each row of the ink cut page; null for a row that shows none. Row k belongs to the first group of
// the active set-up that holds the channel with id k. At least six rows are probed, more when a group has more
// channels.
using InkGroupRows = std::array<IInkGroup*, INK_ROWS>;
InkGroupRows InkGroupsOfRows();

// The colour under which schemes keep the ink multiple of a channel, and the ink cut of a group. Nothing where the host
// has no table of them.
std::optional<std::uint8_t> ColorIndexOf(IInkChannel& channel);
std::optional<std::uint8_t> ColorIndexOf(IInkGroup& group);
