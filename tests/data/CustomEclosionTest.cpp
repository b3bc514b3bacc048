#include "dialogs/data/CustomEclosion.h"

#include "refhost/Host.h"
#include "tests/data/Stubs.h"

namespace
{
constexpr char kLock[] = "SetLocked(1)";

void HoldEclosions(Stub<ICustomEclosionSet>& set, std::initializer_list<Stub<ICustomEclosion>*> eclosions)
{
    set.Hold<ICustomEclosion>(eclosions, "GetEclosion");
}

TEST(PrepareEclosionSet, AddsUpToFour)
{
    for (int count = 0; count <= 4; ++count)
    {
        Stub<ICustomEclosionSet> set;
        set.Give("GetCount", count);
        PrepareEclosionSet(set);
        EXPECT_EQ(set.Made("AddEclosion").size(), static_cast<std::size_t>(4 - count));
    }
}

TEST(PrepareEclosionSet, AddsNoneToMore)
{
    for (std::uint32_t count : {5u, 6u, 1'000'000u})
    {
        Stub<ICustomEclosionSet> set;
        set.Give("GetCount", count);
        PrepareEclosionSet(set);
        EXPECT_TRUE(set.Made("AddEclosion").empty()) << count;
    }
}

TEST(PrepareEclosionSet, LocksOnlyTheFirstFour)
{
    Stub<ICustomEclosion> first, second, third, fourth, fifth, sixth;
    Stub<ICustomEclosionSet> set;
    HoldEclosions(set, {&first, &second, &third, &fourth, &fifth, &sixth});
    PrepareEclosionSet(set);
    for (Stub<ICustomEclosion>* each : {&first, &second, &third, &fourth})
        EXPECT_EQ(each->Made(), (Calls{"IsLocked()", kLock}));
    EXPECT_TRUE(fifth.Made().empty());
    EXPECT_TRUE(sixth.Made().empty());
}

TEST(PrepareEclosionSet, PassesOverNullAndLockedOnes)
{
    Stub<ICustomEclosion> locked, open;
    locked.Give("IsLocked", 1);
    Stub<ICustomEclosionSet> set;
    HoldEclosions(set, {&locked, nullptr, &open, nullptr});
    PrepareEclosionSet(set);
    EXPECT_EQ(locked.Made(), (Calls{"IsLocked()"}));
    EXPECT_EQ(open.Made("Set"), (Calls{kLock}));
}

TEST(PrepareEclosionSet, GivesANewOneItsDefaults)
{
    Stub<IEclosionElement> element;
    Stub<IEclosionMode> mode;
    Stub<ICustomEclosion> added;
    Stub<ICustomEclosionSet> set;
    mode.Give("AddElement", element);
    added.Give("AddMode", mode);
    set.Give("AddEclosion", added);
    set.Give("GetCount", 3);
    PrepareEclosionSet(set);
    EXPECT_EQ(added.Made(), (Calls{kLock, "SetCurrentMode(0)", "AddMode()", "AddMode()"}));
    EXPECT_EQ(mode.Made(), (Calls{"AddElement()", "AddElement()", "AddElement()", "AddElement()"}));
    EXPECT_EQ(element.Made("SetWidth"), (Calls(4, "SetWidth(1)")));
    EXPECT_EQ(element.Made("SetHeight"), (Calls(4, "SetHeight(1)")));
}

TEST(PrepareEclosionSet, GoesOnWithoutWhatTheHostRefuses)
{
    Stub<IEclosionMode> modeWithoutElements;
    Stub<ICustomEclosion> withModes, withoutModes;
    Stub<ICustomEclosionSet> set;
    withModes.Give("AddMode", modeWithoutElements);
    set.Give("AddEclosion", withModes);
    PrepareEclosionSet(set);
    EXPECT_EQ(modeWithoutElements.Made("AddElement").size(), 16u);
    set.Give("AddEclosion", withoutModes);
    PrepareEclosionSet(set);
    EXPECT_EQ(withoutModes.Made("AddMode").size(), 8u);
}

TEST(PrepareEclosionSet, OfAJunkCountTouchesNoEclosion)
{
    Stub<ICustomEclosion> eclosion;
    Stub<ICustomEclosionSet> set;
    set.Give("GetCount", 0xFFFFFFFF);
    set.Give("GetEclosion", eclosion);
    PrepareEclosionSet(set);
    EXPECT_TRUE(set.Made("GetEclosion").empty());
    EXPECT_TRUE(set.Made("AddEclosion").empty());
}

TEST(PrepareEclosionSet, MakesTheFirstOneCurrent)
{
    for (int current : {1, 5, -1})
    {
        Stub<ICustomEclosionSet> set;
        set.Give("GetCurrentIndex", current);
        PrepareEclosionSet(set);
        EXPECT_EQ(set.Made("Set"), (Calls{"SetCurrentIndex(0)"})) << current;
    }
}

TEST(PrepareEclosionSet, LeavesTheFirstOneCurrent)
{
    Stub<ICustomEclosionSet> set;
    PrepareEclosionSet(set);
    EXPECT_TRUE(set.Made("Set").empty());
}

refhost::CustomEclosionSet Prepared(std::size_t count)
{
    refhost::Machine machine;
    machine.customEclosions.definitions.resize(count);
    machine.customEclosions.currentIndex = 1;
    refhost::CHost host(machine);
    PrepareEclosionSet(*host.Data()->GetCustomEclosionSet());
    return host.CurrentMachine().customEclosions;
}

TEST(PrepareEclosionSet, BringsTwoToFour)
{
    const refhost::CustomEclosionSet set = Prepared(2);
    ASSERT_EQ(set.definitions.size(), 4u);
    EXPECT_EQ(set.currentIndex, 0);
    for (const refhost::CustomEclosion& each : set.definitions)
        EXPECT_TRUE(each.locked);
    EXPECT_TRUE(set.definitions[1].modes.empty());
    ASSERT_EQ(set.definitions[2].modes.size(), 2u);
    EXPECT_EQ(set.definitions[3].modes[1].elements.size(), 2u);
}

TEST(PrepareEclosionSet, KeepsSix)
{
    const refhost::CustomEclosionSet set = Prepared(6);
    ASSERT_EQ(set.definitions.size(), 6u);
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(set.definitions[i].locked, i < 4) << i;
}

TEST(CustomEclosion, CountsModesAndElements)
{
    Stub<IEclosionElement> element;
    Stub<IEclosionMode> mode;
    Stub<ICustomEclosion> eclosion;
    mode.Hold<IEclosionElement>({nullptr, &element}, "GetElement", "GetElementCount");
    eclosion.Hold<IEclosionMode>({&mode}, "GetMode", "GetModeCount");
    EXPECT_EQ(CountOf(static_cast<ICustomEclosion*>(&eclosion)), 1u);
    EXPECT_EQ(At(static_cast<ICustomEclosion*>(&eclosion), 0), &mode);
    EXPECT_EQ(At(static_cast<IEclosionMode*>(&mode), 1), &element);
    EXPECT_EQ(At(static_cast<IEclosionMode*>(&mode), 2), nullptr);
}

struct PreviewCase
{
    PreviewFrame frame;
    int width;
    int height;
    PreviewFrame shown;
};

constexpr PreviewCase kPreviews[] = {
    // Wide and high frames: the shorter side counts.
    {{0, 0, 200, 80}, 8, 8, {60, 0, 140, 80}},
    {{0, 0, 80, 200}, 8, 8, {0, 60, 80, 140}},
    {{0, 0, 200, 80}, 1, 8, {95, 0, 105, 80}},
    {{10, 20, 90, 100}, 2, 4, {40, 40, 60, 80}},
    // What an eighth leaves over stays free.
    {{0, 0, 87, 87}, 8, 8, {3, 3, 83, 83}},
    // Odd frames and odd sizes: the half of each is cut off by itself.
    {{0, 0, 25, 25}, 3, 1, {8, 11, 17, 14}},
    {{1, 1, 26, 26}, 1, 1, {12, 12, 15, 15}},
    {{0, 0, 24, 24}, 1, 3, {11, 8, 14, 17}},
    // A frame left of and above its window.
    {{-50, -40, 31, 40}, 4, 2, {-29, -10, 11, 10}},
    // Too small for a step, or nothing to show.
    {{0, 0, 7, 100}, 8, 8, {3, 50, 3, 50}},
    {{0, 0, 80, 80}, 0, 0, {40, 40, 40, 40}},
    {{0, 0, 0, 0}, 8, 8, {0, 0, 0, 0}},
};

std::vector<int> Sides(const PreviewFrame& frame)
{
    return {frame.left, frame.top, frame.right, frame.bottom};
}

TEST(ElementPreview, IsCentredInStepsOfAnEighth)
{
    for (const PreviewCase& each : kPreviews)
        EXPECT_EQ(Sides(ElementPreview(each.frame, each.width, each.height)), Sides(each.shown));
}
} // namespace
