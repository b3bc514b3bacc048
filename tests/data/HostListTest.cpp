#include "dialogs/data/HostList.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace
{
struct Item
{
};

struct List
{
    std::uint32_t count;
    std::vector<Item*> items;
    std::vector<std::uint32_t> asked;

    std::uint32_t GetCount() const { return count; }
    Item* GetAt(std::uint32_t index)
    {
        asked.push_back(index);
        return index < items.size() ? items[index] : nullptr;
    }
};

List* volatile kNoList = nullptr; // GCC 14 would warn of a null that it sees walked

std::uint32_t CountOfMany(std::uint32_t count)
{
    List list{count, {}, {}};
    return CountOf(&list);
}
} // namespace

TEST(CountOf, ANullListIsNone)
{
    EXPECT_EQ(CountOf(kNoList), 0u);
}

TEST(CountOf, AnyMachineIsTaken)
{
    EXPECT_EQ(CountOfMany(0), 0u);
    EXPECT_EQ(CountOfMany(10'000), 10'000u);
    EXPECT_EQ(CountOfMany(1'000'000), 1'000'000u);
}

TEST(CountOf, MoreThanAnyMachineHasIsNone)
{
    EXPECT_EQ(CountOfMany(1'000'001), 0u);
    EXPECT_EQ(CountOfMany(0x80000000u), 0u);
    EXPECT_EQ(CountOfMany(0xFFFFFFFFu), 0u);
}

TEST(SaneCount, OfListsWithinEachOtherHasALowerLimit)
{
    EXPECT_EQ(SaneCount(1024, MAX_INK_COUNT), 1024u);
    EXPECT_EQ(SaneCount(1025, MAX_INK_COUNT), 0u);
    EXPECT_EQ(SaneCount(0xFFFFFFFFu, MAX_INK_COUNT), 0u);
}

TEST(At, GivesTheItemThatIsThere)
{
    Item first, second;
    List list{3, {&first, nullptr, &second}, {}};
    EXPECT_EQ(At(&list, 0), &first);
    EXPECT_EQ(At(&list, 1), nullptr);
    EXPECT_EQ(At(&list, 2u), &second);
}

TEST(At, NeverAsksBeyondTheCount)
{
    Item item;
    List list{1, {&item, &item}, {}};
    EXPECT_EQ(At(&list, 1), nullptr);
    EXPECT_EQ(At(&list, -1), nullptr);
    EXPECT_EQ(At(&list, 0xFFFFFFFFu), nullptr);
    EXPECT_EQ(At(kNoList, 0), nullptr);
    EXPECT_TRUE(list.asked.empty());
}

TEST(At, OfAJunkCountAsksNothing)
{
    Item item;
    List list{0xFFFFFFFFu, {&item}, {}};
    EXPECT_EQ(At(&list, 0), nullptr);
    EXPECT_TRUE(list.asked.empty());
}

TEST(ForEachRow, VisitsNullItemsTooAndInOrder)
{
    Item first, second;
    List list{3, {&first, nullptr, &second}, {}};
    std::vector<std::pair<Item*, int>> rows;
    ForEachRow(&list, [&](Item* item, int index) { rows.emplace_back(item, index); });
    const std::vector<std::pair<Item*, int>> expected = {{&first, 0}, {nullptr, 1}, {&second, 2}};
    EXPECT_EQ(rows, expected);
}

TEST(ForEach, VisitsTheItemsThereAreWithTheirIndices)
{
    Item first, second;
    List list{3, {&first, nullptr, &second}, {}};
    std::vector<std::pair<Item*, int>> items;
    ForEach(&list, [&](Item& item, int index) { items.emplace_back(&item, index); });
    const std::vector<std::pair<Item*, int>> expected = {{&first, 0}, {&second, 2}};
    EXPECT_EQ(items, expected);
    ForEach(kNoList, [](Item&, int) { FAIL(); });
}
