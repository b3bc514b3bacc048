#pragma once

#include <cstdint>

// No machine has that many of anything. A greater count is junk, and the list counts as empty: walking it would take
// minutes.
constexpr std::uint32_t MAX_HOST_COUNT = 1'000'000;

// Ink groups of a set-up, and channels of a group. These lists are walked within each other, so their counts multiply.
constexpr std::uint32_t MAX_INK_COUNT = 1024;

// The one rule for the count of each list that is walked.
constexpr std::uint32_t SaneCount(std::uint32_t count, std::uint32_t most = MAX_HOST_COUNT)
{
    return count <= most ? count : 0;
}

// How a host object counts its items and hands them out. Where its operations have other names than these, the header
// of this folder that includes its interface specialises the template.
template <class List>
struct HostItems
{
    static constexpr std::uint32_t MOST = MAX_HOST_COUNT;
    static std::uint32_t Count(List& list) { return list.GetCount(); }
    static auto* At(List& list, std::uint32_t index) { return list.GetAt(index); }
};

// The number of items. A null list is an empty one.
template <class List>
std::uint32_t CountOf(List* list)
{
    return list ? SaneCount(HostItems<List>::Count(*list), HostItems<List>::MOST) : 0;
}

// The item at an index of any sign; null where the list has none.
template <class List, class Index>
auto* At(List* list, Index index)
{
    using Item = decltype(HostItems<List>::At(*list, 0));
    const auto position = static_cast<std::uint32_t>(index);
    return position < CountOf(list) ? HostItems<List>::At(*list, position) : Item(nullptr);
}

// Calls the visitor with each item and its index, null items too: where a row's number is the host's index.
template <class List, class Visitor>
void ForEachRow(List* list, Visitor visit)
{
    const std::uint32_t count = CountOf(list);
    for (std::uint32_t i = 0; i < count; ++i)
        visit(HostItems<List>::At(*list, i), static_cast<int>(i));
}

// Calls the visitor with each item that exists and its index.
template <class List, class Visitor>
void ForEach(List* list, Visitor visit)
{
    ForEachRow(list, [&](auto* item, int index) {
        if (item)
            visit(*item, index);
    });
}
