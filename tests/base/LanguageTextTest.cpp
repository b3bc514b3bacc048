#include "dialogs/base/LanguageText.h"

#include "tests/base/LanguageCases.h"
#include "tests/support/Utf16.h"

#include <gtest/gtest.h>

namespace
{
class LanguageTextCase : public testing::TestWithParam<LanguageCase>
{
};

TEST_P(LanguageTextCase, IsLookedUp)
{
    const LanguageCase& c = GetParam();
    EXPECT_EQ(CLanguageText(c.file).GetText(c.section, c.key, c.defaultText), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Named, LanguageTextCase, testing::ValuesIn(LanguageCases()),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(LanguageText, OfNoFileGivesDefaults)
{
    EXPECT_EQ(CLanguageText().GetText(L"S", L"k", L"DEF"), L"DEF");
}

TEST(LanguageText, WithHalfACharacterAtItsEndLosesIt)
{
    EXPECT_EQ(CLanguageText(Utf16(L"[S]\r\nk=v") + "x").GetText(L"S", L"k", L"DEF"), L"v");
}

TEST(LineBreaks, StandForBackslashN)
{
    EXPECT_EQ(ExpandLineBreaks(L"one\\ntwo"), L"one\r\ntwo");
    EXPECT_EQ(ExpandLineBreaks(L"\\n\\n"), L"\r\n\r\n");
    EXPECT_EQ(ExpandLineBreaks(L"a\\\\nb"), L"a\\\r\nb");
}

TEST(LineBreaks, LeaveOtherTextAlone)
{
    EXPECT_EQ(ExpandLineBreaks(L""), L"");
    EXPECT_EQ(ExpandLineBreaks(L"n\\N\\t\\"), L"n\\N\\t\\");
    EXPECT_EQ(ExpandLineBreaks(L"a\nb"), L"a\nb");
}
} // namespace
