#include "dialogs/data/HostText.h"

#include "tests/data/Stubs.h"

namespace
{
TEST(HostText, ShowsTheNameOrNothing)
{
    EXPECT_EQ(HostText("Fast 1"), L"Fast 1");
    EXPECT_EQ(HostText(""), L"");
    EXPECT_EQ(HostText(nullptr), L"");
}

TEST(HostTextForFormat, HasAWordForAMissingName)
{
    EXPECT_EQ(HostTextForFormat("Fast 1"), L"Fast 1");
    EXPECT_EQ(HostTextForFormat(""), L"");
    EXPECT_EQ(HostTextForFormat(nullptr), L"(null)");
}

TEST(SetHostName, GivesTheHostANarrowName)
{
    Stub<IPrintMode> mode;
    SetHostName(mode, L"Fast 1");
    SetHostName(mode, L"");
    EXPECT_EQ(mode.Made(), (Calls{"SetName(\"Fast 1\")", "SetName(\"\")"}));
}

TEST(SetHostName, PassesNullOn)
{
    Stub<IUserScheme> scheme;
    SetHostName(scheme, nullptr);
    EXPECT_EQ(scheme.Made(), (Calls{"SetName(null)"}));
}

TEST(IsConvertibleLength, EndsWhereTheTargetCouldNotBeCounted)
{
    EXPECT_TRUE(IsConvertibleLength(0));
    EXPECT_TRUE(IsConvertibleLength(0x3FFFFFFF));
    EXPECT_FALSE(IsConvertibleLength(0x40000000));
}
} // namespace
