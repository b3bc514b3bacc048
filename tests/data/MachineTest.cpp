#include "dialogs/data/Machine.h"

#include "host/IDeviceState.h"
#include "host/IParamTable.h"
#include "tests/data/Stubs.h"

#include <climits>
#include <cstring>

namespace
{
// Entries are as long as a host likes; the first 32 bits are the value.
class LongEntries final : public IParamTable
{
public:
    explicit LongEntries(const std::vector<std::int32_t>& values) : m_vecValues(values) {}

    std::int32_t GetCount() override { return static_cast<std::int32_t>(m_vecValues.size()); }

    void GetEntry(void* entry, std::uint32_t index) override
    {
        if (index >= m_vecValues.size())
            return;
        std::memset(entry, 0xEE, 200);
        std::memcpy(entry, &m_vecValues[index], sizeof(std::int32_t));
    }

private:
    std::vector<std::int32_t> m_vecValues;
};

class MachineOptions : public OverStubs
{
protected:
    void GiveTable(int id, IParamTable& table)
    {
        data.Give<IParamTable>("GetParamTable(" + std::to_string(id) + ")", &table);
    }

    int WaveformsOf(std::int32_t count)
    {
        LongEntries table({count, 77});
        GiveTable(1015, table);
        return WaveformCount();
    }
};

class MachineLists : public OverStubs
{
protected:
    void MakeActive()
    {
        setup.Give("GetId", 42);
        state.Give("GetActiveSetup", setup);
        data.Give("GetDeviceState", state);
    }

    Stub<IActiveSetup> setup;
    Stub<IDeviceState> state;
};

using Indices = std::vector<int>;

TEST_F(MachineLists, OfAHostWithoutAStateHaveNoActiveSetup)
{
    EXPECT_EQ(ActiveSetup(), nullptr);
    data.Give("GetDeviceState", state);
    EXPECT_EQ(ActiveSetup(), nullptr);
    MakeActive();
    EXPECT_EQ(ActiveSetup(), &setup);
}

TEST_F(MachineOptions, CountUpTo1024Waveforms)
{
    EXPECT_EQ(WaveformsOf(0), 0);
    EXPECT_EQ(WaveformsOf(1), 1);
    EXPECT_EQ(WaveformsOf(1024), 1024);
    EXPECT_EQ(WaveformsOf(1025), 1024);
    EXPECT_EQ(WaveformsOf(INT_MAX), 1024);
}

TEST_F(MachineOptions, CountNoWaveformsBelowOne)
{
    EXPECT_EQ(WaveformsOf(-1), 0);
    EXPECT_EQ(WaveformsOf(INT_MIN), 0);
}

TEST_F(MachineOptions, OfMissingTablesAreNotOffered)
{
    EXPECT_EQ(WaveformCount(), 0);
    EXPECT_FALSE(OffersCustomLevel());
    EXPECT_FALSE(OffersEclosionType(0));
    EXPECT_EQ(EclosionTypeCount(), 0);
}

TEST_F(MachineOptions, OfEmptyTablesAreNotOffered)
{
    LongEntries empty({});
    for (int table : {1015, 2055, 2057})
        GiveTable(table, empty);
    EXPECT_EQ(WaveformCount(), 0);
    EXPECT_FALSE(OffersCustomLevel());
    EXPECT_FALSE(OffersEclosionType(0));
    EXPECT_EQ(EclosionTypeCount(), 0);
}

TEST_F(MachineOptions, TellOfTheCustomLevelInTheFirstEntry)
{
    LongEntries offered({1, 0}), negative({-1}), refused({0, 1});
    GiveTable(2057, offered);
    EXPECT_TRUE(OffersCustomLevel());
    GiveTable(2057, negative);
    EXPECT_TRUE(OffersCustomLevel());
    GiveTable(2057, refused);
    EXPECT_FALSE(OffersCustomLevel());
}

TEST_F(MachineOptions, OfferTheTypesThatAreNotZero)
{
    LongEntries types({1, 0, 7, 0, -1});
    GiveTable(2055, types);
    EXPECT_EQ(EclosionTypeCount(), 5);
    Indices offered;
    for (int type = -1; type <= 5; ++type)
        if (OffersEclosionType(type))
            offered.push_back(type);
    EXPECT_EQ(offered, (Indices{0, 2, 4}));
}

TEST_F(MachineOptions, HaveTypesThatAByteCanName)
{
    LongEntries full(std::vector<std::int32_t>(255, 1)), beyond(std::vector<std::int32_t>(300, 1));
    GiveTable(2055, full);
    EXPECT_EQ(EclosionTypeCount(), 255);
    GiveTable(2055, beyond);
    EXPECT_EQ(EclosionTypeCount(), 255);
}

TEST_F(MachineOptions, HaveNoTypesOfANegativeCount)
{
    Stub<IParamTable> table;
    GiveTable(2055, table);
    for (int count : {-1, INT_MIN})
    {
        table.Give("GetCount", count);
        EXPECT_EQ(EclosionTypeCount(), 0) << count;
    }
}

Indices ShownMaterials()
{
    Indices shown;
    ForEachMaterial([&](IMaterial&, int index) { shown.push_back(index); });
    return shown;
}

TEST_F(MachineLists, OfMaterialsAreShownWithAnActiveSetup)
{
    Stub<IMaterial> material;
    Stub<IMaterialList> list;
    list.Hold<IMaterial>({&material, nullptr, &material});
    data.Give("GetMaterialList", list);
    EXPECT_TRUE(ShownMaterials().empty());
    EXPECT_TRUE(list.Made().empty());
    MakeActive();
    EXPECT_EQ(ShownMaterials(), (Indices{0, 2}));
}

TEST_F(MachineLists, OfMaterialsMayBeMissing)
{
    MakeActive();
    EXPECT_TRUE(ShownMaterials().empty());
}

Indices FittingSetups()
{
    Indices fitting;
    ForEachFittingSetup([&](IChannelSetup&, int index) { fitting.push_back(index); });
    return fitting;
}

TEST_F(MachineLists, OfChannelSetupsKeepTheirIndices)
{
    Stub<IChannelSetup> first, last, foreign;
    first.Give("FindSetup(42)", 0);
    last.Give("FindSetup(42)", 3);
    foreign.Give("FindSetup", -1);
    Stub<IChannelList> list;
    list.Hold<IChannelSetup>({&foreign, &first, nullptr, &foreign, &last});
    data.Give("GetChannelList", list);
    EXPECT_TRUE(FittingSetups().empty());
    MakeActive();
    EXPECT_EQ(FittingSetups(), (Indices{1, 4}));
    EXPECT_EQ(foreign.Made(), (Calls{"FindSetup(42)", "FindSetup(42)"}));
}

TEST_F(MachineLists, OfChannelSetupsMayBeMissing)
{
    MakeActive();
    EXPECT_TRUE(FittingSetups().empty());
}

std::vector<IHeadLayout*> HeadsOf(ILayout& layout)
{
    std::vector<IHeadLayout*> heads;
    ForEachHeadOf(layout, [&](IHeadLayout& head) { heads.push_back(&head); });
    return heads;
}

TEST_F(MachineLists, OfHeadsAreShownByTheirLayout)
{
    Stub<ILayout> layout;
    layout.Give("GetId", 0x10001);
    Stub<IHeadLayout> first, second, other;
    first.Give("GetLayoutId", 0x10001);
    second.Give("GetLayoutId", 0x10001);
    other.Give("GetLayoutId", 1);
    Stub<IHeadLayoutList> list;
    list.Hold<IHeadLayout>({&first, &other, nullptr, &second});
    EXPECT_TRUE(HeadsOf(layout).empty());
    data.Give("GetHeadLayoutList", list);
    EXPECT_EQ(HeadsOf(layout), (std::vector<IHeadLayout*>{&first, &second}));
}
} // namespace
