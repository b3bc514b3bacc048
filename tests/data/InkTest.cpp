#include "dialogs/data/Ink.h"

#include "dialogs/data/Machine.h"
#include "host/IDeviceState.h"
#include "host/IInkChannelTable.h"
#include "tests/data/Stubs.h"

#include <utility>

namespace
{
using Channels = std::vector<IInkChannel*>;

// Appends the same channels for every layout.
class ChannelTable final : public IInkChannelTable
{
public:
    std::uint8_t GetColorIndex(std::uint16_t channelId) override { return static_cast<std::uint8_t>(channelId + 100); }

    void GetChannelsOfLayout(std::uint8_t layoutId, std::vector<IInkChannel*>* target) override
    {
        asked.push_back(layoutId);
        room = target->capacity();
        target->insert(target->end(), channels.begin(), channels.end());
    }

    Channels channels;
    std::vector<int> asked;
    std::size_t room = 0;
};

class InkChannels : public OverStubs
{
protected:
    InkChannels()
    {
        first.Give("GetId", 1);
        second.Give("GetId", 200);
        layouts.Hold<ILayout>({&first, nullptr, &second});
        data.Give("GetLayoutList", layouts);
        data.Give<IInkChannelTable>("GetInkChannels", &table);
    }

    Stub<ILayout> first, second;
    Stub<ILayoutList> layouts;
    Stub<IInkChannel> channel, other;
    ChannelTable table;
};

using InkOfNothing = OverStubs;

TEST_F(InkChannels, AreThoseOfTheLayout)
{
    table.channels = {&channel, nullptr, &other};
    EXPECT_EQ(InkChannelsOf(200), (Channels{&channel, nullptr, &other}));
    EXPECT_EQ(table.asked, (std::vector<int>{200}));
}

TEST_F(InkChannels, OfAnUnknownLayoutAreNone)
{
    table.channels = {&channel};
    for (int layout : {0, 2, 255, 256 + 1, -1})
        EXPECT_TRUE(InkChannelsOf(layout).empty()) << layout;
    EXPECT_TRUE(table.asked.empty());
}

TEST_F(InkChannels, AreAsManyAsThereAreRows)
{
    table.channels.assign(11, &channel);
    table.channels.push_back(&other);
    EXPECT_EQ(InkChannelsOf(1), table.channels);
    table.channels.push_back(&channel);
    const Channels shown = InkChannelsOf(1);
    EXPECT_EQ(shown.size(), 12u);
    EXPECT_EQ(shown.back(), &other);
    table.channels.resize(600);
    EXPECT_EQ(InkChannelsOf(1), shown);
}

TEST_F(InkChannels, OfAnEmptyLayoutAreNone)
{
    EXPECT_TRUE(InkChannelsOf(1).empty());
    EXPECT_EQ(table.asked.size(), 1u);
}

// The host must not let the array grow: it would do so on its own heap.
TEST_F(InkChannels, HaveRoomForEveryId)
{
    InkChannelsOf(1);
    EXPECT_GE(table.room, 65536u);
}

TEST_F(InkOfNothing, HasNoChannelsGroupsAndColours)
{
    Stub<IInkChannel> channel;
    Stub<IInkGroup> group;
    EXPECT_TRUE(InkChannelsOf(0).empty());
    EXPECT_EQ(InkGroupsOfRows(), InkGroupRows{});
    EXPECT_FALSE(ColorIndexOf(channel).has_value());
    EXPECT_FALSE(ColorIndexOf(group).has_value());
}

TEST_F(InkChannels, OfAMachineWithoutATableAreNone)
{
    data.Give<IInkChannelTable>("GetInkChannels", nullptr);
    EXPECT_TRUE(InkChannelsOf(1).empty());
}

TEST_F(InkChannels, HaveTheColourOfTheirId)
{
    channel.Give("GetId", 7);
    EXPECT_EQ(ColorIndexOf(channel), 107);
}

// The active set-up's groups, by ids from 500 on.
class InkGroups : public OverStubs
{
protected:
    InkGroups()
    {
        state.Give("GetActiveSetup", setup);
        data.Give("GetDeviceState", state);
        data.Give("GetInkGroups", table);
        for (int i = 0; i < 20; ++i)
            channels[i].Give("GetId", i);
    }

    void SetGroups(std::initializer_list<Stub<IInkGroup>*> groups)
    {
        int index = 0;
        for (Stub<IInkGroup>* group : groups)
        {
            setup.Give("GetGroupId(" + std::to_string(index) + ")", 500 + index);
            table.Give<IInkGroup>("GetGroup(" + std::to_string(500 + index++) + ")", group);
        }
        setup.Give("GetGroupCount", index);
    }

    void SetChannels(Stub<IInkGroup>& group, std::initializer_list<int> ids)
    {
        int index = 0;
        for (int id : ids)
            group.Give<IInkChannel>("GetChannel(" + std::to_string(index++) + ")", id < 0 ? nullptr : &channels[id]);
        group.Give("GetChannelCount", index);
    }

    Stub<IActiveSetup> setup;
    Stub<IDeviceState> state;
    Stub<IInkGroupTable> table;
    Stub<IInkChannel> channels[20];
    Stub<IInkGroup> first, second;
};

// The rows that have a group.
using Rows = std::vector<std::pair<std::size_t, IInkGroup*>>;

Rows ShownRows()
{
    const InkGroupRows groups = InkGroupsOfRows();
    Rows shown;
    for (std::size_t row = 0; row < groups.size(); ++row)
        if (groups[row])
            shown.emplace_back(row, groups[row]);
    return shown;
}

TEST_F(InkGroups, StandInTheRowsOfTheirChannels)
{
    SetChannels(first, {3, 0});
    SetChannels(second, {1});
    SetGroups({&first, &second});
    EXPECT_EQ(ShownRows(), (Rows{{0, &first}, {1, &second}, {3, &first}}));
}

TEST_F(InkGroups, GiveARowToTheFirstThatHoldsItsChannel)
{
    SetChannels(first, {2});
    SetChannels(second, {1, 2});
    SetGroups({&second, &first});
    EXPECT_EQ(ShownRows(), (Rows{{1, &second}, {2, &second}}));
}

TEST_F(InkGroups, PassOverMissingGroupsAndChannels)
{
    SetChannels(first, {-1, 4});
    SetGroups({nullptr, &first});
    EXPECT_EQ(ShownRows(), (Rows{{4, &first}}));
}

TEST_F(InkGroups, OutsideTheSetupAreNotShown)
{
    SetChannels(first, {0});
    SetChannels(second, {1});
    table.Hold<IInkGroup>({&first, &second});
    table.Give("GetGroup(600)", second);
    SetGroups({&first});
    EXPECT_EQ(ShownRows(), (Rows{{0, &first}}));
}

TEST_F(InkGroups, FillAtLeastSixRows)
{
    SetChannels(first, {5, 6});
    SetGroups({&first});
    EXPECT_EQ(ShownRows(), (Rows{{5, &first}}));
}

TEST_F(InkGroups, FillAsManyRowsAsAGroupHasChannels)
{
    SetChannels(first, {6, 7});
    SetChannels(second, {-1, -1, -1, -1, -1, -1, -1});
    SetGroups({&first, &second});
    EXPECT_EQ(ShownRows(), (Rows{{6, &first}}));
}

TEST_F(InkGroups, FillNoMoreThanTwelveRows)
{
    SetChannels(first, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
    SetGroups({&first});
    const Rows shown = ShownRows();
    EXPECT_EQ(shown.size(), 12u);
    EXPECT_EQ(shown.back(), (Rows::value_type{11, &first}));
}

TEST_F(InkGroups, OfJunkCountsFillNoRow)
{
    SetChannels(first, {0});
    first.Give("GetChannelCount", 0xFFFFFFFF);
    SetGroups({&first});
    EXPECT_TRUE(ShownRows().empty());
    setup.Give("GetGroupCount", 1025);
    EXPECT_TRUE(ShownRows().empty());
    EXPECT_TRUE(first.Made("GetChannel(").empty());
}

TEST_F(InkGroups, AndChannelsMayBeAThousandAndTwentyFour)
{
    first.Give("GetChannelCount", 1024);
    first.Give<IInkChannel>("GetChannel(1023)", &channels[9]);
    setup.Give("GetGroupCount", 1024);
    setup.Give("GetGroupId(1023)", 500);
    table.Give("GetGroup(500)", first);
    EXPECT_EQ(ShownRows(), (Rows{{9, &first}}));
}

TEST_F(InkGroups, WithoutASetupOrATableFillNoRow)
{
    SetChannels(first, {0});
    SetGroups({&first});
    data.Give<IInkGroupTable>("GetInkGroups", nullptr);
    EXPECT_TRUE(ShownRows().empty());
    data.Give("GetInkGroups", table);
    EXPECT_FALSE(ShownRows().empty());
    data.Give<IDeviceState>("GetDeviceState", nullptr);
    EXPECT_TRUE(ShownRows().empty());
}

TEST_F(InkGroups, HaveTheColourOfTheirId)
{
    first.Give("GetId", 500);
    table.Give("GetColorIndex(500)", 31);
    EXPECT_EQ(ColorIndexOf(first), 31);
}
} // namespace
