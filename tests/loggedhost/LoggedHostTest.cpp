#include "tests/loggedhost/LoggedHost.h"

#include "host/Quorvane.h"
#include "tests/machines/DetailedMachine.h"

#include <gtest/gtest.h>

namespace
{

using Texts = std::vector<std::string>;

class LoggedHostTest : public testing::Test
{
protected:
    IPrintMode* Mode(std::uint32_t config, std::uint32_t mode)
    {
        return m_data->GetConfigList()->GetAt(config)->GetMode(mode);
    }

    LoggedHost m_host{DetailedMachine()};
    IHostData* m_data = m_host.Data();
};

HostFaults KeepingRemoved()
{
    HostFaults faults;
    faults.keepRemoved = true;
    return faults;
}

HostFaults Failing(const Texts& calls)
{
    HostFaults faults;
    faults.failing = calls;
    return faults;
}

} // namespace

TEST_F(LoggedHostTest, AddConfigLeavesTheSourceToItsMaker)
{
    IPrintConfig* source = m_data->CreateConfig();
    source->SetName("New");
    source->AddMode()->SetPassCount(16);
    EXPECT_EQ(m_host.OutstandingConfigs(), 1u);
    EXPECT_EQ(m_data->GetConfigList()->AddConfig(source), 1);
    m_data->DestroyConfig(source);

    EXPECT_EQ(m_host.OutstandingConfigs(), 0u);
    EXPECT_STREQ(m_data->GetConfigList()->GetAt(2)->GetName(), "New");
    EXPECT_EQ(Mode(2, 0)->GetPassCount(), 16);
    EXPECT_EQ(m_host.Log().Violations(), Texts());
}

TEST_F(LoggedHostTest, SaveRequestsReachTheHandlerAndTheLog)
{
    std::vector<refhost::SaveRequest> requests;
    m_host.OnSave([&](refhost::SaveRequest request) { requests.push_back(request); });
    m_host.Control()->SaveParameters(2);
    m_host.Control()->SaveCustomEclosionSet();
    EXPECT_EQ(requests, (std::vector<refhost::SaveRequest>{refhost::SaveRequest::Parameters,
                                                           refhost::SaveRequest::CustomEclosionSet}));
    EXPECT_EQ(m_host.Log().Changes(),
              (Texts{"IHostControl.SaveParameters(2)", "IHostControl.SaveCustomEclosionSet()"}));
}

TEST_F(LoggedHostTest, DestroyConfigTwiceIsAViolation)
{
    IPrintConfig* config = m_data->CreateConfig();
    m_data->DestroyConfig(config);
    m_data->DestroyConfig(config);
    EXPECT_EQ(m_host.Log().Violations().size(), 1u);
}

TEST(HostFaultsTest, ParamTableMayFillALongerEntry)
{
    HostFaults faults;
    faults.paramEntryBytes = 8;
    LoggedHost host(DetailedMachine(), faults);
    std::int32_t entry[3] = {7, 7, 7};
    host.Data()->GetParamTable(1015)->GetEntry(entry, 0);
    EXPECT_EQ(entry[0], 4);
    EXPECT_NE(entry[1], 7);
    EXPECT_EQ(entry[2], 7);
}

TEST_F(LoggedHostTest, CallsAreWrittenDownInOrderWithTheirArguments)
{
    m_data->GetConfigList()->GetAt(1)->AddMode()->SetName("A\xC8");
    Mode(0, 1)->SetSmallDotCompensation(0.1f, 3);
    Mode(0, 1)->SetName(nullptr);
    m_data->GetConfigList()->AddConfig(m_data->CreateConfig());
    m_data->GetUserSchemeList()->GetAt(1)->GetParams()->CopyFrom(m_data->GetUserSchemeList()->GetAt(0)->GetParams());
    const Texts expected{"IPrintConfig[1].AddMode()",
                         "IPrintMode[1.1].SetName(\"A\\xC8\")",
                         "IPrintMode[0.1].SetSmallDotCompensation(0.1, 3)",
                         "IPrintMode[0.1].SetName(null)",
                         "IHostData.CreateConfig()",
                         "IConfigList.AddConfig(new.0)",
                         "ISchemeParams[user.1].CopyFrom(user.0)"};
    EXPECT_EQ(m_host.Log().Changes(), expected);
}

TEST_F(LoggedHostTest, GettersAreWrittenDownToo)
{
    m_data->GetConfigList()->GetAt(0)->GetName();
    const Texts expected{"IHostData.GetConfigList()", "IConfigList.GetAt(0)", "IPrintConfig[0].GetName()"};
    EXPECT_EQ(m_host.Log().Everything(), expected);
    EXPECT_EQ(m_host.Log().Changes(), Texts());
}

TEST_F(LoggedHostTest, LogLevelLeavesCallsOut)
{
    m_host.Log().SetLevel(CallLog::Level::Changes);
    Mode(0, 0)->SetPassCount(1);
    EXPECT_EQ(m_host.Log().Everything(), Texts{"IPrintMode[0.0].SetPassCount(1)"});
    m_host.Log().SetLevel(CallLog::Level::Nothing);
    m_host.Log().Clear();
    Mode(0, 0)->SetPassCount(1);
    EXPECT_EQ(m_host.Log().Everything(), Texts());
}

TEST_F(LoggedHostTest, NumbersInTheLogAreNotUsedAgainAfterARemoval)
{
    IPrintConfig* config = m_data->GetConfigList()->GetAt(0);
    config->RemoveMode(1);
    config->AddMode()->SetPassCount(2);
    EXPECT_EQ(m_host.Log().Changes().back(), "IPrintMode[0.2].SetPassCount(2)");
}

TEST(RemovedObjects, CallOnARemovedModeIsAViolation)
{
    LoggedHost host(DetailedMachine(), KeepingRemoved());
    IPrintConfig* config = host.Data()->GetConfigList()->GetAt(0);
    IPrintMode* mode = config->GetMode(0);
    config->RemoveMode(0);
    EXPECT_EQ(host.Log().Violations(), Texts());
    mode->GetName();
    mode->SetPassCount(3);
    const Texts expected{"IPrintMode[0.0].GetName() after its removal",
                         "IPrintMode[0.0].SetPassCount(3) after its removal"};
    EXPECT_EQ(host.Log().Violations(), expected);
}

TEST(RemovedObjects, WhatLiesBelowARemovedObjectIsRemovedToo)
{
    LoggedHost host(DetailedMachine(), KeepingRemoved());
    IPrintMode* mode = host.Data()->GetConfigList()->GetAt(0)->GetMode(0);
    ISchemeParams* params = host.Data()->GetFactorySchemeList()->GetAt(0)->GetParams();
    ICustomEclosion* eclosion = host.Data()->GetCustomEclosionSet()->GetEclosion(0);
    IEclosionElement* element = eclosion->GetMode(0)->GetElement(0);
    host.Data()->GetConfigList()->RemoveAt(0);
    host.Data()->GetFactorySchemeList()->RemoveAt(0);
    eclosion->DeleteMode(0);

    host.Log().SetLevel(CallLog::Level::Nothing);
    mode->GetPassCount();
    params->CopyFrom(nullptr);
    element->SetWidth(1);
    EXPECT_EQ(host.Log().Violations().size(), 3u);
}

TEST(HostFaultsTest, ListsComeBackAsNull)
{
    LoggedHost host(DetailedMachine(), Failing({"IHostData.*"}));
    EXPECT_EQ(host.Data()->GetConfigList(), nullptr);
    EXPECT_EQ(host.Data()->GetUserSchemeList(), nullptr);
    EXPECT_EQ(host.Data()->GetParamTable(1015), nullptr);
    EXPECT_EQ(host.Data()->CreateConfig(), nullptr);
    EXPECT_EQ(host.OutstandingConfigs(), 0u);
}

TEST(HostFaultsTest, OnlyWhatIsNamedFails)
{
    LoggedHost host(DetailedMachine(),
                    Failing({"IConfigList.GetAt(1)", "IPrintConfig[*].AddMode()", "IConfigList.AddConfig(*)",
                             "ISchemeList[user].AddScheme()", "IPrintMode[*].GetName()"}));
    IConfigList* configs = host.Data()->GetConfigList();
    EXPECT_EQ(configs->GetAt(1), nullptr);
    ASSERT_NE(configs->GetAt(0), nullptr);
    EXPECT_EQ(configs->GetAt(0)->AddMode(), nullptr);
    EXPECT_EQ(configs->GetAt(0)->GetModeCount(), 2u);
    EXPECT_EQ(configs->GetAt(0)->GetMode(0)->GetName(), nullptr);
    EXPECT_EQ(configs->AddConfig(host.Data()->CreateConfig()), 0);
    EXPECT_EQ(configs->GetCount(), 2u);
    EXPECT_EQ(host.Data()->GetUserSchemeList()->AddScheme(), nullptr);
    EXPECT_NE(host.Data()->GetFactorySchemeList()->AddScheme(), nullptr);
}

TEST_F(LoggedHostTest, AnObjectIsTheSameEachTime)
{
    EXPECT_EQ(Mode(0, 1), Mode(0, 1));
    EXPECT_EQ(m_data->GetInkGroups()->GetGroup(100)->GetChannel(1), m_data->GetInkGroups()->GetAt(0)->GetChannel(1));
    EXPECT_EQ(m_data->GetHeadLayoutList()->FindById(70), m_data->GetHeadLayoutList()->GetAt(0));
    IPrintMode* const added = m_data->GetConfigList()->GetAt(0)->AddMode();
    EXPECT_EQ(Mode(0, 2), added);
}

TEST_F(LoggedHostTest, WhatIsSharedHasOnePlace)
{
    std::vector<IInkChannel*> channels;
    channels.reserve(16);
    m_data->GetInkChannels()->GetChannelsOfLayout(5, &channels);
    channels.at(0)->GetName();
    m_data->GetParamTable(2055)->GetCount();
    const Texts calls = m_host.Log().Everything();
    const Texts expected{"IHostData.GetInkChannels()", "IInkChannelTable.GetChannelsOfLayout(5)",
                         "IInkChannel[1].GetName()", "IHostData.GetParamTable(2055)", "IParamTable[1].GetCount()"};
    EXPECT_EQ(calls, expected);
}

TEST_F(LoggedHostTest, AddedConfigurationTakesTheNextPlace)
{
    IPrintConfig* const source = m_data->CreateConfig();
    source->AddMode()->SetPassCount(16);
    m_data->GetConfigList()->RemoveAt(1);
    m_data->GetConfigList()->AddConfig(source);
    m_data->DestroyConfig(source);
    Mode(1, 0)->SetPassCount(3);
    const Texts expected{
        "IHostData.CreateConfig()",       "IPrintConfig[new.0].AddMode()", "IPrintMode[new.0.0].SetPassCount(16)",
        "IConfigList.RemoveAt(1)",        "IConfigList.AddConfig(new.0)",  "IHostData.DestroyConfig(new.0)",
        "IPrintMode[2.0].SetPassCount(3)"};
    EXPECT_EQ(m_host.Log().Changes(), expected);
}
