#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "refhost/MachineFile.h"
#include "tests/support/BesideProgram.h"
#include "tests/support/FileContent.h"

using namespace refhost;

namespace
{

std::wstring SamplePath()
{
    return BesideProgram(L"samples\\machine.json");
}

class SampleMachine : public testing::Test
{
protected:
    const Machine m_machine = LoadMachine(SamplePath());
};

template <class Items, class Predicate>
bool Any(const Items& items, Predicate predicate)
{
    return std::any_of(items.begin(), items.end(), predicate);
}

std::set<std::uint32_t> LayoutsOfSchemes(const Machine& machine)
{
    std::set<std::uint32_t> ids;
    for (const FactoryScheme& scheme : machine.factorySchemes)
        ids.insert(scheme.layoutId);
    return ids;
}

std::set<std::uint32_t> IdsOfLayouts(const Machine& machine)
{
    std::set<std::uint32_t> ids;
    for (const Layout& layout : machine.layouts)
        ids.insert(layout.id);
    return ids;
}

const ParamTable& Table(const Machine& machine, std::uint32_t id)
{
    for (const ParamTable& table : machine.paramTables)
        if (table.id == id)
            return table;
    throw std::out_of_range("no table " + std::to_string(id));
}

std::vector<std::string> AllNames(const Machine& machine)
{
    std::vector<std::string> names = machine.xResolutions;
    for (const PrintConfig& config : machine.configurations)
        names.push_back(config.name);
    for (const FactoryScheme& scheme : machine.factorySchemes)
        names.push_back(scheme.name);
    for (const UserScheme& scheme : machine.userSchemes)
        names.push_back(scheme.name);
    return names;
}

bool IsAscii(const std::string& name)
{
    return std::all_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

TEST_F(SampleMachine, IsWrittenAsTheHostWritesIt)
{
    std::string file = ContentOf(SamplePath());
    file.erase(std::remove(file.begin(), file.end(), '\r'), file.end());
    EXPECT_EQ(FormatMachine(m_machine), file);
}

TEST_F(SampleMachine, IsLargeEnoughToBeBelieved)
{
    std::size_t modes = 0;
    for (const PrintConfig& config : m_machine.configurations)
        modes += config.modes.size();
    EXPECT_GE(m_machine.configurations.size(), 6u);
    EXPECT_GE(modes, 24u);
    EXPECT_GE(m_machine.xResolutions.size(), 12u);
    EXPECT_GE(m_machine.materials.size(), 12u);
    EXPECT_GE(m_machine.inkGroups.size(), 12u);
    EXPECT_GE(m_machine.factorySchemes.size(), 40u);
    EXPECT_GE(m_machine.userSchemes.size(), 12u);
    EXPECT_GE(m_machine.customEclosions.definitions.size(), 4u);
}

TEST_F(SampleMachine, LayoutsHaveFourEightAndTwelveChannelsAndOneIsUnused)
{
    std::set<std::size_t> counts;
    for (const Layout& layout : m_machine.layouts)
        counts.insert(layout.channels.size());
    EXPECT_GE(m_machine.layouts.size(), 4u);
    EXPECT_EQ(counts, (std::set<std::size_t>{4, 8, 12}));
    const auto used = LayoutsOfSchemes(m_machine);
    EXPECT_TRUE(Any(m_machine.layouts, [&](const Layout& layout) { return used.count(layout.id) == 0; }));
}

TEST_F(SampleMachine, HeadLayoutsHaveTwoToSixDataModesAndOneHasNone)
{
    EXPECT_GE(m_machine.headLayouts.size(), 10u);
    std::size_t without = 0;
    for (const HeadLayout& head : m_machine.headLayouts)
    {
        without += head.dataModes.empty() ? 1 : 0;
        EXPECT_TRUE(head.dataModes.empty() || (head.dataModes.size() >= 2 && head.dataModes.size() <= 6));
    }
    EXPECT_EQ(without, 1u);
}

TEST_F(SampleMachine, HoldsSchemesThatDoNotFit)
{
    const auto layouts = IdsOfLayouts(m_machine);
    EXPECT_TRUE(Any(m_machine.factorySchemes,
                    [&](const FactoryScheme& scheme) { return layouts.count(scheme.layoutId) == 0; }));
    EXPECT_TRUE(Any(m_machine.factorySchemes, [&](const FactoryScheme& scheme) {
        const auto& modes = m_machine.configurations.at(scheme.configIndex).modes;
        return modes.at(scheme.modeIndex).disabled;
    }));
    EXPECT_TRUE(Any(m_machine.userSchemes,
                    [&](const UserScheme& scheme) { return scheme.baseScheme >= m_machine.factorySchemes.size(); }));
}

TEST_F(SampleMachine, SomeChannelSetupsDoNotFitTheActiveOne)
{
    const auto fits = [&](const ChannelSetup& setup) {
        return std::count(setup.fits.begin(), setup.fits.end(), m_machine.activeSetup.id) != 0;
    };
    EXPECT_TRUE(Any(m_machine.channelSetups, fits));
    EXPECT_TRUE(Any(m_machine.channelSetups, [&](const ChannelSetup& setup) { return !fits(setup); }));
}

TEST_F(SampleMachine, ParameterTablesAreFilledWithGaps)
{
    EXPECT_GE(Table(m_machine, 1015).entries.at(0), 1);
    EXPECT_NE(Table(m_machine, 2057).entries.at(0), 0);
    const auto& types = Table(m_machine, 2055).entries;
    EXPECT_NE(types.at(19), 0);
    EXPECT_TRUE(Any(types, [](std::int32_t entry) { return entry == 0; }));
}

TEST_F(SampleMachine, NamesAreEnglishAndChineseOfOddAndEvenLengthsAndOneIsEmpty)
{
    const std::vector<std::string> names = AllNames(m_machine);
    for (std::size_t odd : {0u, 1u})
    {
        const auto hasParity = [&](const std::string& name) { return name.size() % 2 == odd; };
        EXPECT_TRUE(Any(names, [&](const std::string& name) { return IsAscii(name) && hasParity(name); }));
        EXPECT_TRUE(Any(names, [&](const std::string& name) { return !IsAscii(name) && hasParity(name); }));
    }
    EXPECT_TRUE(Any(m_machine.configurations, [](const PrintConfig& config) { return config.name.empty(); }));
}

TEST_F(SampleMachine, PassCountsAreMostlyThoseOfTheListAndOneIsNot)
{
    const std::set<int> listed{1, 2, 3, 4, 6, 8, 12, 16};
    int others = 0;
    for (const PrintConfig& config : m_machine.configurations)
        for (const PrintMode& mode : config.modes)
            others += listed.count(mode.passCount) == 0 ? 1 : 0;
    EXPECT_EQ(others, 1);
}

TEST_F(SampleMachine, EveryInkChannelAndGroupThatIsReferredToExists)
{
    std::set<std::uint16_t> channels;
    for (const InkChannel& channel : m_machine.inkChannels)
        channels.insert(channel.id);
    for (const Layout& layout : m_machine.layouts)
        for (std::uint16_t id : layout.channels)
            EXPECT_EQ(channels.count(id), 1u) << id;
    std::set<std::uint16_t> groups;
    for (const InkGroup& group : m_machine.inkGroups)
        groups.insert(group.id);
    for (std::uint16_t id : m_machine.activeSetup.groups)
        EXPECT_EQ(groups.count(id), 1u) << id;
}
