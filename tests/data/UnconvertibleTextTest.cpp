// Natively only: the western code page of the system converts every byte, and puts a question mark for a character that
// it does not have. Other code pages of the system refuse bytes, but not every machine has them.
#include "dialogs/data/Configs.h"
#include "dialogs/data/HostText.h"
#include "dialogs/data/SchemeNames.h"
#include "tests/data/Stubs.h"

namespace
{
constexpr char kNoText[] = "A\x81";
constexpr wchar_t kNoName[] = L"A\x4E00";

TEST(UnconvertibleText, IsShownAsAMissingOne)
{
    EXPECT_EQ(HostText(kNoText), L"");
    EXPECT_EQ(HostTextForFormat(kNoText), L"(null)");
}

TEST(UnconvertibleText, IsGivenToTheHostAsNull)
{
    Stub<IPrintScheme> scheme;
    SetHostName(scheme, kNoName);
    EXPECT_EQ(scheme.Made(), (Calls{"SetName(null)"}));
}

TEST(UnconvertibleText, OfAConfigurationLeavesItsValues)
{
    Stub<IPrintConfig> config;
    config.Give("GetName", kNoText);
    config.Give("GetXResolution", 720);
    EXPECT_EQ(ConfigName(config), L"[720X0][0C][0b]");
    EXPECT_EQ(ReadConfig(config).name, L"");
}

TEST(UnconvertibleText, OfAConfigurationIsGivenBackAsNull)
{
    Stub<IPrintConfig> config;
    ConfigValues values;
    values.name = kNoName;
    WriteConfig(config, values);
    EXPECT_EQ(config.Made().back(), "SetName(null)");
}

TEST(UnconvertibleText, NamesANewSchemeAsAMissingOneDoes)
{
    EXPECT_EQ(NewSchemeName(kNoText, 4), NewSchemeName(nullptr, 4));
}
} // namespace
