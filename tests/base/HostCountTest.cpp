#include "dialogs/base/HostCount.h"

#include <gtest/gtest.h>

namespace
{
struct List
{
    std::uint32_t nCount;
    std::uint32_t GetCount() const { return nCount; }
};

std::uint32_t CountOf(std::uint32_t nCount)
{
    List list{nCount};
    return HostCount(&list);
}
} // namespace

TEST(HostCount, OfANullListIsNone)
{
    EXPECT_EQ(HostCount(static_cast<List*>(nullptr)), 0u);
}

TEST(HostCount, OfAnyMachineIsTaken)
{
    EXPECT_EQ(CountOf(0), 0u);
    EXPECT_EQ(CountOf(10'000), 10'000u);
    EXPECT_EQ(CountOf(1'000'000), 1'000'000u);
}

TEST(HostCount, BeyondAnyMachineIsNone)
{
    EXPECT_EQ(CountOf(1'000'001), 0u);
    EXPECT_EQ(CountOf(0x80000000u), 0u);
    EXPECT_EQ(CountOf(0xFFFFFFFFu), 0u);
}

TEST(HostCount, OfListsWithinEachOtherHasALowerLimit)
{
    EXPECT_EQ(SaneCount(1024, MAX_INK_COUNT), 1024u);
    EXPECT_EQ(SaneCount(1025, MAX_INK_COUNT), 0u);
    EXPECT_EQ(SaneCount(0xFFFFFFFFu, MAX_INK_COUNT), 0u);
}
