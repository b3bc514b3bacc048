#include "dialogs/data/SchemeNames.h"

#include "tests/data/Stubs.h"

namespace
{
using ProposedSchemeNameOf = OverStubs;

struct NewNameCase
{
    const char* configName;
    int schemeId;
    const char* name;
};

// Of a plain Latin name the first character is left.
constexpr NewNameCase kNewNames[] = {
    {"720X600", 4, "7-5"}, {"Fast", 0, "F-1"}, {"F", 999, "F-1000"}, {"", 2, "-3"}, {nullptr, 2, "(null)-3"},
};

TEST(NewSchemeName, IsTheBytesBeforeTheFirstZeroAndTheCount)
{
    for (const NewNameCase& each : kNewNames)
        EXPECT_EQ(NewSchemeName(each.configName, each.schemeId), each.name);
}

TEST(CopiedSchemeName, TellsTheResolution)
{
    Stub<IPrintConfig> config;
    config.Give("GetXResolution", 720);
    config.Give("GetYResolution", 1200);
    EXPECT_EQ(CopiedSchemeName(config), "720X1200_Copy");
    config.Give("GetXResolution", 65535);
    config.Give("GetYResolution", 0);
    EXPECT_EQ(CopiedSchemeName(config), "65535X0_Copy");
}

TEST_F(ProposedSchemeNameOf, AllConfigurationsCountsTheSchemes)
{
    Stub<IUserScheme> here, elsewhere;
    elsewhere.Give("GetConfigIndex", 7);
    Stub<IUserSchemeList> schemes;
    data.Give("GetUserSchemeList", schemes);
    schemes.Hold<IUserScheme>({&here, &elsewhere, nullptr, &elsewhere, &here});
    EXPECT_EQ(ProposedSchemeName(L"Scheme"), L"Scheme-6");
    EXPECT_EQ(ProposedSchemeName(L"\x65B9\x6848"), L"\x65B9\x6848-6");
    EXPECT_EQ(ProposedSchemeName(L""), L"-6");
}

TEST_F(ProposedSchemeNameOf, AHostWithoutSchemesIsTheFirst)
{
    EXPECT_EQ(ProposedSchemeName(L"Scheme"), L"Scheme-1");
    Stub<IUserSchemeList> schemes;
    data.Give("GetUserSchemeList", schemes);
    schemes.Give("GetCount", 0xFFFFFFFF);
    EXPECT_EQ(ProposedSchemeName(L"Scheme"), L"Scheme-1");
}

TEST(PresetText, ShowsTheNarrowNameAsWideText)
{
    EXPECT_EQ(PresetText("ABCD", L"Preset"), L"\x4241\x4443(Preset)");
    EXPECT_EQ(PresetText("ABC", L"\x9884\x8BBE"), L"\x4241\x0043(\x9884\x8BBE)");
    EXPECT_EQ(PresetText("", L"Preset"), L"(Preset)");
    EXPECT_EQ(PresetText("AB", L""), L"\x4241()");
    EXPECT_EQ(PresetText(nullptr, L"Preset"), L"(null)(Preset)");
}
} // namespace
