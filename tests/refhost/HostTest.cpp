#include "refhost/Host.h"

#include <gtest/gtest.h>
#include <limits>

#include "host/Quorvane.h"
#include "tests/machines/DetailedMachine.h"

using namespace refhost;

namespace
{

class HostTest : public testing::Test
{
protected:
    IPrintMode* Mode(std::uint32_t config, std::uint32_t mode)
    {
        return m_data->GetConfigList()->GetAt(config)->GetMode(mode);
    }

    CHost m_host{DetailedMachine()};
    IHostData* m_data = m_host.Data();
};

} // namespace

TEST_F(HostTest, ServesTheMachinesValues)
{
    IPrintConfig* config = m_data->GetConfigList()->GetAt(0);
    EXPECT_STREQ(config->GetName(), "Fast");
    EXPECT_EQ(config->GetXResolution(), 720);
    EXPECT_EQ(config->GetModeCount(), 2u);
    EXPECT_EQ(Mode(0, 1)->GetPassCount(), 8);
    EXPECT_EQ(Mode(0, 1)->GetSmallDotCompensation(1), 1.5f);
    EXPECT_EQ(Mode(0, 1)->GetFrontCompensation(0), 1);
    EXPECT_EQ(Mode(0, 1)->GetHeadDataMode(2), 0);
    EXPECT_EQ(m_data->GetFactorySchemeList()->GetAt(1)->GetInkCut(31), 7);
    EXPECT_EQ(m_data->GetFactorySchemeList()->GetAt(0)->GetWave(), 3);
    EXPECT_EQ(m_data->GetUserSchemeList()->GetAt(0)->GetBaseScheme(), 9);
    EXPECT_STREQ(m_data->GetXResolutionList()->GetAt(1)->GetName(), "720 dpi");
    EXPECT_EQ(m_data->GetMaterialList()->GetAt(0)->GetId(), 12);
    EXPECT_EQ(m_data->GetLayoutList()->GetAt(0)->GetId(), 5u);
}

TEST_F(HostTest, ValuesBeyondTheStoredOnesAreDefaults)
{
    EXPECT_EQ(Mode(0, 0)->GetHeadDataMode(0), 255);
    EXPECT_EQ(Mode(0, 0)->GetSmallDotCompensation(0xFFFFFFFF), 0.0f);
    EXPECT_EQ(Mode(0, 0)->GetBackCompensation(7), 0);
    EXPECT_EQ(m_data->GetFactorySchemeList()->GetAt(0)->GetInkMultiple(16), 0);
    EXPECT_EQ(m_data->GetFactorySchemeList()->GetAt(0)->GetInkCut(200), 0);
    EXPECT_EQ(m_data->GetConfigList()->GetAt(2), nullptr);
    EXPECT_EQ(m_data->GetParamTable(1), nullptr);
}

TEST_F(HostTest, ChangesAreInTheMachineAtOnce)
{
    Mode(0, 0)->SetPassCount(12);
    Mode(0, 0)->SetSmallDotCompensation(2.5f, 1);
    Mode(0, 0)->SetHeadDataMode(3, 1);
    m_data->GetFactorySchemeList()->GetAt(1)->SetWave(-1);
    m_data->GetUserSchemeList()->GetAt(1)->SetSpeed(255);
    m_data->GetCustomEclosionSet()->GetEclosion(0)->GetMode(0)->GetElement(1)->SetWidth(5);

    const Machine machine = m_host.CurrentMachine();
    EXPECT_EQ(machine.configurations[0].modes[0].passCount, 12);
    EXPECT_EQ(machine.configurations[0].modes[0].smallDotCompensation, (std::vector<float>{0.0f, 2.5f}));
    EXPECT_EQ(machine.configurations[0].modes[0].headDataModes, (std::vector<std::uint8_t>{255, 3}));
    EXPECT_EQ(machine.factorySchemes[1].wave, -1);
    EXPECT_EQ(machine.userSchemes[1].speed, -1);
    EXPECT_EQ(machine.customEclosions.definitions[0].modes[0].elements[1].width, 5);
}

TEST_F(HostTest, ValuesAreStoredAtTheirWidth)
{
    m_data->GetConfigList()->GetAt(0)->SetXResolution(70000);
    m_data->GetFactorySchemeList()->GetAt(0)->SetLayoutId(0x105);
    EXPECT_EQ(m_data->GetConfigList()->GetAt(0)->GetXResolution(), 70000 & 0xFFFF);
    EXPECT_EQ(m_data->GetFactorySchemeList()->GetAt(0)->GetLayoutId(), 5);
}

TEST_F(HostTest, IndicesThatNameNothingChangeNothing)
{
    Mode(0, 0)->SetSmallDotCompensation(1.0f, 0xFFFFFFFF);
    Mode(0, 0)->SetHeadDataMode(1, 0xFFFFFFFF);
    m_data->GetFactorySchemeList()->GetAt(0)->SetInkMultiple(50, 16);
    m_data->GetConfigList()->RemoveAt(9);
    EXPECT_TRUE(m_host.CurrentMachine().configurations[0].modes[0].smallDotCompensation.empty());
    EXPECT_TRUE(m_host.CurrentMachine().configurations[0].modes[0].headDataModes.empty());
    EXPECT_EQ(m_data->GetConfigList()->GetCount(), 2u);
}

TEST_F(HostTest, CompensationThatIsNoFiniteNumberIsNotTaken)
{
    Mode(0, 1)->SetSmallDotCompensation(std::numeric_limits<float>::infinity(), 1);
    EXPECT_EQ(Mode(0, 1)->GetSmallDotCompensation(1), 1.5f);
}

TEST_F(HostTest, NullNameIsAnEmptyName)
{
    Mode(0, 0)->SetName(nullptr);
    EXPECT_STREQ(Mode(0, 0)->GetName(), "");
}

TEST_F(HostTest, AddedModeHasTheHostsDefaults)
{
    IPrintMode* mode = m_data->GetConfigList()->GetAt(1)->AddMode();
    EXPECT_EQ(Mode(1, 1), mode);
    EXPECT_STREQ(mode->GetName(), "");
    EXPECT_EQ(mode->GetPassCount(), 4);
    EXPECT_EQ(mode->GetXResolutionIndex(), 0);
    EXPECT_EQ(mode->GetHeadDataMode(0), 255);
    EXPECT_EQ(mode->GetLargeDotCompensation(0), 0.0f);
    EXPECT_EQ(mode->GetDisabled(), 0);
}

TEST_F(HostTest, AddConfigCopiesAndLeavesTheSourceToItsMaker)
{
    IPrintConfig* source = m_data->CreateConfig();
    source->SetName("New");
    source->AddMode()->SetPassCount(16);
    EXPECT_EQ(m_data->GetConfigList()->AddConfig(source), 1);
    m_data->DestroyConfig(source);

    EXPECT_STREQ(m_data->GetConfigList()->GetAt(2)->GetName(), "New");
    EXPECT_EQ(Mode(2, 0)->GetPassCount(), 16);
}

TEST_F(HostTest, DestroyConfigOfNoneOfItsOwnChangesNothing)
{
    m_data->DestroyConfig(m_data->GetConfigList()->GetAt(0));
    m_data->DestroyConfig(nullptr);
    EXPECT_EQ(m_data->GetConfigList()->GetCount(), 2u);
}

TEST_F(HostTest, RemovalMovesLaterItemsDownAndKeepsTheirAddresses)
{
    IPrintConfig* second = m_data->GetConfigList()->GetAt(1);
    m_data->GetConfigList()->RemoveAt(0);
    EXPECT_EQ(m_data->GetConfigList()->GetCount(), 1u);
    EXPECT_EQ(m_data->GetConfigList()->GetAt(0), second);

    IUserScheme* scheme = m_data->GetUserSchemeList()->GetAt(1);
    m_data->GetUserSchemeList()->RemoveAt(0);
    EXPECT_EQ(m_data->GetUserSchemeList()->GetAt(0), scheme);
    EXPECT_EQ(m_host.CurrentMachine().userSchemes[0].name, "User 1");
}

TEST_F(HostTest, ItemsKeepTheirAddressesWhenOthersAreAdded)
{
    IPrintScheme* first = m_data->GetFactorySchemeList()->GetAt(0);
    for (int i = 0; i < 200; ++i)
        m_data->GetFactorySchemeList()->AddScheme();
    EXPECT_EQ(m_data->GetFactorySchemeList()->GetAt(0), first);
    EXPECT_EQ(m_data->GetFactorySchemeList()->GetCount(), 202u);
}

TEST_F(HostTest, ParamsCopyAWholeSchemeOfTheSameKind)
{
    IPrintScheme* copy = m_data->GetFactorySchemeList()->AddScheme();
    copy->GetParams()->CopyFrom(m_data->GetFactorySchemeList()->GetAt(1)->GetParams());
    EXPECT_STREQ(copy->GetName(), "Factory 1");
    EXPECT_EQ(copy->GetConfigIndex(), 1);
    EXPECT_EQ(copy->GetModeIndex(), 2);
    EXPECT_EQ(copy->GetSmallFormatOffset(), 65535);
    EXPECT_EQ(copy->GetInkMultiple(15), 80);

    IUserScheme* user = m_data->GetUserSchemeList()->AddScheme();
    user->GetParams()->CopyFrom(m_data->GetUserSchemeList()->GetAt(0)->GetParams());
    EXPECT_EQ(user->GetBaseScheme(), 9);
}

TEST_F(HostTest, ParamsCopyBetweenTheKindsTakesWhatBothHave)
{
    IUserScheme* user = m_data->GetUserSchemeList()->GetAt(0);
    user->GetParams()->CopyFrom(m_data->GetFactorySchemeList()->GetAt(0)->GetParams());
    EXPECT_STREQ(user->GetName(), "Factory 0");
    EXPECT_EQ(user->GetSpeed(), 2);
    EXPECT_EQ(user->GetBaseScheme(), 9);
}

TEST_F(HostTest, ChannelsOfALayoutAreAppended)
{
    std::vector<IInkChannel*> channels(1, nullptr);
    channels.reserve(16);
    m_data->GetInkChannels()->GetChannelsOfLayout(5, &channels);
    m_data->GetInkChannels()->GetChannelsOfLayout(6, &channels);
    ASSERT_EQ(channels.size(), 3u);
    EXPECT_STREQ(channels[1]->GetName(), "Black");
    EXPECT_EQ(channels[2]->GetId(), 0);
}

TEST_F(HostTest, LookUpsByIdFindOrSayThatTheyDoNot)
{
    EXPECT_EQ(m_data->GetHeadLayoutList()->IndexOfId(71), 1);
    EXPECT_EQ(m_data->GetHeadLayoutList()->IndexOfId(72), -1);
    EXPECT_EQ(m_data->GetHeadLayoutList()->FindById(70), m_data->GetHeadLayoutList()->GetAt(0));
    EXPECT_EQ(m_data->GetHeadLayoutList()->FindById(72), nullptr);
    EXPECT_STREQ(m_data->GetHeadLayoutList()->GetAt(0)->GetDataMode(1)->GetName(), "Fine");
    EXPECT_EQ(m_data->GetInkGroups()->GetColorIndex(101), 9);
    EXPECT_EQ(m_data->GetInkGroups()->GetGroup(100)->GetChannel(1)->GetId(), 1);
    EXPECT_EQ(m_data->GetInkGroups()->GetGroup(102), nullptr);
    EXPECT_EQ(m_data->GetInkChannels()->GetColorIndex(1), 7);
    EXPECT_EQ(m_data->GetChannelList()->GetAt(0)->FindSetup(1), 1);
    EXPECT_EQ(m_data->GetChannelList()->GetAt(1)->FindSetup(1), -1);
    EXPECT_EQ(m_data->GetDeviceState()->GetActiveSetup()->GetGroupId(1), 101);
}

TEST_F(HostTest, ParamTableFillsTheEntryThatItIsGiven)
{
    std::int32_t entry[2] = {7, 7};
    m_data->GetParamTable(2055)->GetEntry(entry, 2);
    EXPECT_EQ(entry[0], -1);
    EXPECT_EQ(entry[1], 7);
    EXPECT_EQ(m_data->GetParamTable(2055)->GetCount(), 3);
}

TEST_F(HostTest, CustomEclosionsAreEditedInPlace)
{
    ICustomEclosionSet* set = m_data->GetCustomEclosionSet();
    set->SetCurrentIndex(1);
    ICustomEclosion* added = set->AddEclosion();
    added->SetLocked(1);
    added->SetRange(15);
    added->AddMode()->AddElement()->SetHeight(8);
    set->GetEclosion(0)->GetMode(0)->DeleteElement(0);
    set->GetEclosion(0)->DeleteMode(1);

    const CustomEclosionSet values = m_host.CurrentMachine().customEclosions;
    EXPECT_EQ(values.currentIndex, 1);
    ASSERT_EQ(values.definitions.size(), 3u);
    EXPECT_EQ(values.definitions[2].range, 15);
    EXPECT_EQ(values.definitions[2].modes[0].elements[0].height, 8);
    ASSERT_EQ(values.definitions[0].modes.size(), 1u);
    ASSERT_EQ(values.definitions[0].modes[0].elements.size(), 1u);
    EXPECT_EQ(values.definitions[0].modes[0].elements[0].width, 8);
}

TEST_F(HostTest, SaveRequestsReachTheHandler)
{
    std::vector<SaveRequest> requests;
    m_host.OnSave([&](SaveRequest request) { requests.push_back(request); });
    m_host.Control()->SaveParameters(2);
    m_host.Control()->SaveCustomEclosionSet();
    EXPECT_EQ(requests, (std::vector<SaveRequest>{SaveRequest::Parameters, SaveRequest::CustomEclosionSet}));
}

TEST(LargeMachine, IsServed)
{
    Machine machine = DetailedMachine();
    machine.configurations[0].name.assign(10000, 'N');
    machine.xResolutions.assign(10000, "dpi");
    CHost host(machine);
    EXPECT_EQ(std::string(host.Data()->GetConfigList()->GetAt(0)->GetName()).size(), 10000u);
    EXPECT_EQ(host.Data()->GetXResolutionList()->GetCount(), 10000u);
    EXPECT_STREQ(host.Data()->GetXResolutionList()->GetAt(9999)->GetName(), "dpi");
}
