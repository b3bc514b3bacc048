#pragma once

#include <cstdint>

// No machine has that many of anything: a greater count is junk, and the list is taken as empty rather than walked for
// minutes.
constexpr int MAX_HOST_COUNT = 1'000'000;

// Ink groups of a set-up, and channels of a group. These lists are walked within each other, so their counts multiply.
constexpr int MAX_INK_COUNT = 1024;

constexpr std::uint32_t SaneCount(std::uint32_t nCount, int nMost = MAX_HOST_COUNT)
{
    return nCount <= static_cast<std::uint32_t>(nMost) ? nCount : 0;
}

// The count of a host's list; a null list is an empty one.
template <class HostList>
std::uint32_t HostCount(HostList* pList)
{
    return pList ? SaneCount(pList->GetCount()) : 0;
}
