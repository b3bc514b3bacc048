#include "dialogs/data/Configs.h"

#include "refhost/Host.h"
#include "tests/data/Stubs.h"

namespace
{
class Configs : public OverStubs
{
protected:
    Configs() { data.Give("GetConfigList", list); }

    Stub<IConfigList> list;
};

using ConfigsWithoutAList = OverStubs;

void GiveValues(Stub<IPrintConfig>& config, const char* name)
{
    config.Give("GetName", name);
    config.Give("GetXResolution", 720);
    config.Give("GetYResolution", 1200);
    config.Give("GetColorCount", 4);
    config.Give("GetDotBits", 2);
    config.Give("GetEnabled", 1);
}

TEST_F(Configs, AreFoundByTheirIndices)
{
    Stub<IPrintConfig> first, third;
    list.Hold<IPrintConfig>({&first, nullptr, &third});
    EXPECT_EQ(ConfigAt(0), &first);
    EXPECT_EQ(ConfigAt(1), nullptr);
    EXPECT_EQ(ConfigAt(2), &third);
    EXPECT_EQ(ConfigAt(3), nullptr);
    EXPECT_EQ(ConfigAt(-1), nullptr);
}

TEST_F(Configs, OfAJunkCountAreNone)
{
    Stub<IPrintConfig> config;
    list.Give("GetAt", config);
    list.Give("GetCount", 0xFFFFFFFF);
    EXPECT_EQ(ConfigAt(0), nullptr);
    EXPECT_TRUE(list.Made("GetAt").empty());
}

TEST_F(ConfigsWithoutAList, AreNoneAndTakeNone)
{
    Stub<IPrintConfig> config;
    EXPECT_EQ(ConfigAt(0), nullptr);
    EXPECT_FALSE(AddConfig(config));
    RemoveConfig(0);
    EXPECT_TRUE(data.Made("GetFactorySchemeList").empty());
    EXPECT_TRUE(data.Made("GetUserSchemeList").empty());
}

TEST(ConfigLine, ShowsNameAndValues)
{
    Stub<IPrintConfig> config;
    GiveValues(config, "Fast");
    EXPECT_EQ(ConfigLine(L"Fast", config), L"Fast [720X1200][4C][2B]");
    EXPECT_EQ(ConfigLine(L"(null)", config), L"(null) [720X1200][4C][2B]");
    EXPECT_EQ(ConfigLine(L"", config), L" [720X1200][4C][2B]");
}

TEST(ConfigLine, ShowsTheLargestValuesOfTheHost)
{
    Stub<IPrintConfig> config;
    config.Give("GetXResolution", 65535);
    config.Give("GetYResolution", 65535);
    config.Give("GetColorCount", 255);
    config.Give("GetDotBits", 255);
    EXPECT_EQ(ConfigLine(L"A", config), L"A [65535X65535][255C][255B]");
}

TEST(ConfigName, IsItsNameOrItsValues)
{
    Stub<IPrintConfig> named, empty, nameless;
    GiveValues(named, "Fast");
    GiveValues(empty, "");
    nameless.Give("GetXResolution", 720);
    EXPECT_EQ(ConfigName(named), L"Fast");
    EXPECT_EQ(ConfigName(empty), L"[720X1200][4C][2b]");
    EXPECT_EQ(ConfigName(nameless), L"[720X0][0C][0b]");
}

TEST(ConfigValues, AreFirstThoseOfANewConfiguration)
{
    const ConfigValues values;
    EXPECT_EQ(values.name, L"[720 X 720]");
    EXPECT_EQ(values.xResolution, 720);
    EXPECT_EQ(values.yResolution, 720);
    EXPECT_EQ(values.colorCount, 0);
    EXPECT_EQ(values.dotBits, 0);
    EXPECT_TRUE(values.enabled);
}

TEST(ReadConfig, TakesEachValueFromItsGetter)
{
    Stub<IPrintConfig> config;
    GiveValues(config, "Fast");
    const ConfigValues values = ReadConfig(config);
    EXPECT_EQ(values.name, L"Fast");
    EXPECT_EQ(values.xResolution, 720);
    EXPECT_EQ(values.yResolution, 1200);
    EXPECT_EQ(values.colorCount, 4);
    EXPECT_EQ(values.dotBits, 2);
    EXPECT_TRUE(values.enabled);
    EXPECT_EQ(config.Made(), (Calls{"GetXResolution()", "GetYResolution()", "GetColorCount()", "GetDotBits()",
                                    "GetEnabled()", "GetName()"}));
}

TEST(ReadConfig, TakesAnyEnablingButZeroAsOne)
{
    Stub<IPrintConfig> config;
    EXPECT_FALSE(ReadConfig(config).enabled);
    config.Give("GetEnabled", -1);
    EXPECT_TRUE(ReadConfig(config).enabled);
}

TEST(WriteConfig, GivesTheHostTheNameLast)
{
    Stub<IPrintConfig> config;
    WriteConfig(config, {L"Fast", 1440, 720, 6, 3, false});
    EXPECT_EQ(config.Made(), (Calls{"SetXResolution(1440)", "SetYResolution(720)", "SetColorCount(6)", "SetDotBits(3)",
                                    "SetEnabled(0)", "SetName(\"Fast\")"}));
}

TEST(WriteConfig, PassesValuesOnAsTheyWereTyped)
{
    Stub<IPrintConfig> config;
    WriteConfig(config, {L"", 70000, -1, 256, -300, true});
    EXPECT_EQ(config.Made(), (Calls{"SetXResolution(70000)", "SetYResolution(-1)", "SetColorCount(256)",
                                    "SetDotBits(-300)", "SetEnabled(1)", "SetName(\"\")"}));
}

struct NameCase
{
    int xResolution;
    int yResolution;
    int colorCount;
    int dotBits;
    const wchar_t* name;
};

constexpr NameCase kNames[] = {
    {720, 720, 0, 0, L"[720 X 720]"},
    {1440, 720, 4, 0, L"[1440 X 720][4 C]"},
    {720, 1200, 0, 2, L"[720 X 1200][2 B]"},
    {720, 1200, 4, 2, L"[720 X 1200][4 C][2 B]"},
    {0, 0, 0, 0, L"[0 X 0]"},
    {-720, 70000, -4, -2, L"[-720 X 70000][-4 C][-2 B]"},
};

TEST(NameFromValues, LeavesOutWhatIsZero)
{
    for (const NameCase& each : kNames)
    {
        ConfigValues values;
        values.xResolution = each.xResolution;
        values.yResolution = each.yResolution;
        values.colorCount = each.colorCount;
        values.dotBits = each.dotBits;
        EXPECT_EQ(NameFromValues(values), each.name);
    }
}

TEST_F(Configs, AreAddedWhereTheHostTakesThem)
{
    Stub<IPrintConfig> config;
    EXPECT_FALSE(AddConfig(config));
    list.Give("AddConfig", 1);
    EXPECT_TRUE(AddConfig(config));
    EXPECT_EQ(list.Made(), (Calls{"AddConfig(object)", "AddConfig(object)"}));
}

TEST_F(Configs, ThatAreNotThereAreNotRemoved)
{
    Stub<IPrintConfig> config;
    list.Hold<IPrintConfig>({&config, nullptr});
    for (int index : {-1, 1, 2})
        RemoveConfig(index);
    EXPECT_TRUE(list.Made("RemoveAt").empty());
    EXPECT_TRUE(data.Made("GetFactorySchemeList").empty());
}

template <class Scheme>
class SchemeRow
{
public:
    SchemeRow()
    {
        first.Give("GetConfigIndex", 1);
        second.Give("GetConfigIndex", 2);
        list.template Hold<Scheme>({&first, &second, nullptr, &first, &second, &first});
    }

    Stub<Scheme> first, second;
    Stub<ISchemeList<Scheme>> list;
};

TEST_F(Configs, AreRemovedWithTheirSchemesFromTheLastOnDown)
{
    Stub<IPrintConfig> config;
    list.Hold<IPrintConfig>({&config, &config, &config});
    SchemeRow<IPrintScheme> factory;
    SchemeRow<IUserScheme> user;
    data.Give("GetFactorySchemeList", factory.list);
    data.Give("GetUserSchemeList", user.list);
    RemoveConfig(1);
    EXPECT_EQ(list.Made("RemoveAt"), (Calls{"RemoveAt(1)"}));
    EXPECT_EQ(factory.list.Made("RemoveAt"), (Calls{"RemoveAt(5)", "RemoveAt(3)", "RemoveAt(0)"}));
    EXPECT_EQ(user.list.Made("RemoveAt"), (Calls{"RemoveAt(5)", "RemoveAt(3)", "RemoveAt(0)"}));
    EXPECT_TRUE(factory.second.Made("Set").empty());
    EXPECT_TRUE(user.second.Made("Set").empty());
}

TEST_F(Configs, AreRemovedBeforeTheirSchemes)
{
    Stub<IPrintConfig> config;
    list.Hold<IPrintConfig>({&config});
    RemoveConfig(0);
    EXPECT_EQ(list.Made().back(), "RemoveAt(0)");
    EXPECT_EQ(data.Made().back(), "GetUserSchemeList()");
}

TEST_F(Configs, BeyondTheWidthOfASchemesIndexHaveNoSchemes)
{
    Stub<IPrintConfig> config;
    list.Give("GetCount", 300);
    list.Give("GetAt", config);
    SchemeRow<IPrintScheme> factory;
    data.Give("GetFactorySchemeList", factory.list);
    RemoveConfig(257);
    EXPECT_EQ(list.Made("RemoveAt"), (Calls{"RemoveAt(257)"}));
    EXPECT_TRUE(factory.list.Made("RemoveAt").empty());
}

template <class Scheme>
std::vector<Scheme> SchemesOf(std::initializer_list<int> configs)
{
    std::vector<Scheme> schemes(configs.size());
    auto scheme = schemes.begin();
    for (int config : configs)
        (scheme++)->configIndex = static_cast<std::uint8_t>(config);
    return schemes;
}

template <class Scheme>
std::vector<int> ConfigsOf(const std::vector<Scheme>& schemes)
{
    std::vector<int> configs;
    for (const Scheme& scheme : schemes)
        configs.push_back(scheme.configIndex);
    return configs;
}

TEST(RemoveConfig, LeavesTheIndicesOfOtherSchemesToTheHost)
{
    refhost::Machine machine;
    machine.configurations.resize(4);
    machine.factorySchemes = SchemesOf<refhost::FactoryScheme>({2, 0, 2, 3, 2});
    machine.userSchemes = SchemesOf<refhost::UserScheme>({3, 2, 1, 2});
    refhost::CHost host(machine);
    SetHost(*host.Data(), *host.Control());
    RemoveConfig(2);
    const refhost::Machine left = host.CurrentMachine();
    EXPECT_EQ(left.configurations.size(), 3u);
    EXPECT_EQ(ConfigsOf(left.factorySchemes), (std::vector<int>{0, 3}));
    EXPECT_EQ(ConfigsOf(left.userSchemes), (std::vector<int>{3, 1}));
}

TEST(RemoveConfig, TakesTenThousandSchemesAlong)
{
    constexpr std::size_t kMany = 10'000;
    refhost::Machine machine;
    machine.configurations.resize(2);
    machine.factorySchemes.resize(kMany);
    machine.userSchemes.resize(kMany);
    machine.userSchemes.front().configIndex = 1;
    refhost::CHost host(machine);
    SetHost(*host.Data(), *host.Control());
    RemoveConfig(0);
    EXPECT_TRUE(host.CurrentMachine().factorySchemes.empty());
    EXPECT_EQ(ConfigsOf(host.CurrentMachine().userSchemes), std::vector<int>{1});
}
} // namespace
