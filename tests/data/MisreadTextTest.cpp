#include "dialogs/data/MisreadText.h"

#include <gtest/gtest.h>

namespace
{
TEST(NarrowReadAsWide, MakesACharacterOfTwoBytes)
{
    EXPECT_EQ(NarrowReadAsWide("ABCD"), L"\x4241\x4443");
    EXPECT_EQ(NarrowReadAsWide("\xB4\xF2"), L"\xF2B4");
}

TEST(NarrowReadAsWide, LeavesAnOddLastByteAlone)
{
    EXPECT_EQ(NarrowReadAsWide("A"), L"A");
    EXPECT_EQ(NarrowReadAsWide("ABC"), L"\x4241\x0043");
    EXPECT_EQ(NarrowReadAsWide("AB\xE9"), L"\x4241\x00E9");
}

TEST(NarrowReadAsWide, TakesEmptyAndNull)
{
    EXPECT_EQ(NarrowReadAsWide(""), L"");
    EXPECT_EQ(NarrowReadAsWide(nullptr), L"(null)");
}

TEST(WideReadAsNarrow, StopsAtTheFirstZeroByte)
{
    EXPECT_EQ(WideReadAsNarrow(L"720X600"), "7");
    EXPECT_EQ(WideReadAsNarrow(L"\x6253\x5370X600"), "\x53\x62\x70\x53X");
    EXPECT_EQ(WideReadAsNarrow(L"\x6253\x5300X"), "\x53\x62");
}

TEST(WideReadAsNarrow, TakesEmptyAndNull)
{
    EXPECT_EQ(WideReadAsNarrow(L""), "");
    EXPECT_EQ(WideReadAsNarrow(nullptr), "(null)");
}

} // namespace
