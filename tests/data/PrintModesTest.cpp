#include "dialogs/data/PrintModes.h"

#include "tests/data/Stubs.h"

namespace
{
Stub<IDataMode> Named(const char* name)
{
    Stub<IDataMode> mode;
    mode.Give("GetName", name);
    return mode;
}

int Find(IHeadLayout& head, const std::wstring& name)
{
    return FindDataMode(head, [&](const std::wstring& each) { return each == name; });
}

// Adds a mode to a configuration of this name that then has so many.
std::string NameOfNewMode(const char* configName, int count)
{
    Stub<IPrintMode> mode;
    Stub<IPrintConfig> config;
    config.Give("AddMode", mode);
    config.Give("GetModeCount", count);
    if (configName)
        config.Give("GetName", configName);
    EXPECT_EQ(AddMode(config), &mode);
    EXPECT_EQ(mode.Made().size(), 1u);
    return mode.Made().front();
}

std::string SetName(const std::string& name)
{
    return "SetName(\"" + name + "\")";
}

TEST(PassCounts, AreEight)
{
    const std::vector<std::wstring> offered(std::begin(PASS_COUNTS), std::end(PASS_COUNTS));
    EXPECT_EQ(offered, (std::vector<std::wstring>{L"1", L"2", L"3", L"4", L"6", L"8", L"12", L"16"}));
}

TEST(AddMode, NamesItAfterTheConfigurationAndTheCount)
{
    EXPECT_EQ(NameOfNewMode("Fast", 1), SetName("Fast-1"));
    EXPECT_EQ(NameOfNewMode("Fast", 12), SetName("Fast-12"));
    EXPECT_EQ(NameOfNewMode("", 3), SetName("-3"));
    EXPECT_EQ(NameOfNewMode(nullptr, 3), SetName("(null)-3"));
}

TEST(AddMode, CutsItsNameAt259Bytes)
{
    EXPECT_EQ(NameOfNewMode(std::string(257, 'n').c_str(), 1), SetName(std::string(257, 'n') + "-1"));
    EXPECT_EQ(NameOfNewMode(std::string(257, 'n').c_str(), 12), SetName(std::string(257, 'n') + "-1"));
    EXPECT_EQ(NameOfNewMode(std::string(259, 'n').c_str(), 1), SetName(std::string(259, 'n')));
    EXPECT_EQ(NameOfNewMode(std::string(5000, 'n').c_str(), 1), SetName(std::string(259, 'n')));
}

TEST(AddMode, CountsAfterwards)
{
    Stub<IPrintMode> mode;
    Stub<IPrintConfig> config;
    config.Give("AddMode", mode);
    AddMode(config);
    EXPECT_EQ(config.Made(), (Calls{"AddMode()", "GetModeCount()", "GetName()"}));
}

TEST(AddMode, OfARefusedModeNamesNothing)
{
    Stub<IPrintConfig> config;
    EXPECT_EQ(AddMode(config), nullptr);
    EXPECT_EQ(config.Made(), (Calls{"AddMode()"}));
}

TEST(RemoveLastMode, TakesTheLastOneBack)
{
    Stub<IPrintConfig> config;
    config.Give("GetModeCount", 4);
    RemoveLastMode(config);
    EXPECT_EQ(config.Made("RemoveMode"), (Calls{"RemoveMode(3)"}));
}

TEST(RemoveMode, RemovesTheFirstThatIsTheMode)
{
    Stub<IPrintMode> first, second;
    Stub<IPrintConfig> config;
    config.Hold<IPrintMode>({&first, nullptr, &second, &second}, "GetMode", "GetModeCount");
    RemoveMode(config, &second);
    EXPECT_EQ(config.Made("RemoveMode"), (Calls{"RemoveMode(2)"}));
}

TEST(RemoveMode, OfAnotherConfigurationRemovesNothing)
{
    Stub<IPrintMode> mode, other;
    Stub<IPrintConfig> config, empty;
    config.Hold<IPrintMode>({&mode}, "GetMode", "GetModeCount");
    RemoveMode(config, &other);
    RemoveMode(empty, &mode);
    EXPECT_TRUE(config.Made("RemoveMode").empty());
    EXPECT_TRUE(empty.Made("RemoveMode").empty());
}

TEST(RemoveMode, OfAJunkCountRemovesNothing)
{
    Stub<IPrintMode> mode;
    Stub<IPrintConfig> config;
    config.Give("GetModeCount", 0xFFFFFFFF);
    config.Give("GetMode", mode);
    RemoveMode(config, &mode);
    EXPECT_EQ(config.Made(), (Calls{"GetModeCount()"}));
}

TEST(FindDataMode, FindsTheFirstOfTheName)
{
    Stub<IDataMode> none = Named("None"), normal = Named("Normal"), fine = Named("Fine");
    Stub<IHeadLayout> head;
    head.Hold<IDataMode>({&none, nullptr, &normal, &fine, &normal}, "GetDataMode", "GetDataModeCount");
    EXPECT_EQ(Find(head, L"Normal"), 2);
    EXPECT_EQ(Find(head, L"Fine"), 3);
    EXPECT_EQ(Find(head, L"Coarse"), -1);
}

TEST(FindDataMode, FindsTheFirstModeToo)
{
    Stub<IDataMode> none = Named("None");
    Stub<IHeadLayout> head;
    head.Hold<IDataMode>({&none}, "GetDataMode", "GetDataModeCount");
    EXPECT_EQ(Find(head, L"None"), FIRST_DATA_MODE_VALUE);
}

TEST(FindDataMode, HasAWordForAMissingName)
{
    Stub<IDataMode> nameless;
    Stub<IHeadLayout> head;
    head.Hold<IDataMode>({nullptr, &nameless}, "GetDataMode", "GetDataModeCount");
    EXPECT_EQ(Find(head, L"(null)"), 1);
}

TEST(FindDataMode, OfNoModesFindsNone)
{
    Stub<IDataMode> mode = Named("A");
    Stub<IHeadLayout> empty, junk;
    junk.Give("GetDataMode", mode);
    junk.Give("GetDataModeCount", 0xFFFFFFFF);
    EXPECT_EQ(Find(empty, L"A"), -1);
    EXPECT_EQ(Find(junk, L"A"), -1);
    EXPECT_TRUE(junk.Made("GetDataMode(").empty());
}

TEST(FindDataMode, FindsOnlyWhatAByteCanName)
{
    Stub<IDataMode> last = Named("Last"), beyond = Named("Beyond");
    Stub<IHeadLayout> head;
    head.Give("GetDataModeCount", 300);
    head.Give("GetDataMode(254)", last);
    head.Give("GetDataMode(255)", beyond);
    EXPECT_EQ(NO_DATA_MODE_VALUE, 255);
    EXPECT_EQ(Find(head, L"Last"), 254);
    EXPECT_EQ(Find(head, L"Beyond"), -1);
    EXPECT_TRUE(beyond.Made().empty());
}
} // namespace
