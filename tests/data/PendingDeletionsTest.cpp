#include "dialogs/data/PendingDeletions.h"

#include <gtest/gtest.h>

namespace
{
using Ids = std::vector<int>;

Ids InRemovalOrder(const Ids& added)
{
    CPendingDeletions deletions;
    for (int id : added)
        deletions.Add(id);
    return deletions.InRemovalOrder();
}
} // namespace

TEST(PendingDeletions, RemoveTheHighestFirst)
{
    EXPECT_EQ(InRemovalOrder({1000, 1002, 1001}), (Ids{1002, 1001, 1000}));
    EXPECT_EQ(InRemovalOrder({0, 9, 10}), (Ids{10, 9, 0}));
}

TEST(PendingDeletions, RemoveEachOnce)
{
    EXPECT_EQ(InRemovalOrder({3, 5, 3, 5, 5}), (Ids{5, 3}));
}

TEST(PendingDeletions, KeepTheIdsOfLongLists)
{
    EXPECT_EQ(InRemovalOrder({65536, 1000, 66536}), (Ids{66536, 65536, 1000}));
}

TEST(PendingDeletions, OfNothingRemoveNothing)
{
    EXPECT_EQ(InRemovalOrder({}), Ids{});
}

TEST(PendingDeletions, AreKeptUntilTheyAreAskedForAgain)
{
    CPendingDeletions deletions;
    deletions.Add(1);
    EXPECT_EQ(deletions.InRemovalOrder(), (Ids{1}));
    deletions.Add(2);
    EXPECT_EQ(deletions.InRemovalOrder(), (Ids{2, 1}));
}
