#include "dialogs/base/LanguageText.h"

#include "tests/base/LanguageCases.h"
#include "tests/support/Utf16.h"

#include <algorithm>
#include <cstring>
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

TEST(KnownDifferences, AreThoseOfACase)
{
    const auto& cases = LanguageCases();
    for (const KnownDifference& difference : KnownDifferences())
    {
        const auto isMeant = [&](const LanguageCase& c) { return std::strcmp(c.name, difference.testCase) == 0; };
        const auto found = std::find_if(cases.begin(), cases.end(), isMeant);
        ASSERT_NE(found, cases.end()) << difference.testCase;
        EXPECT_NE(found->expected, difference.answer) << difference.testCase;
    }
}

TEST(KnownDifferences, AreOfTheListedSystemsOnly)
{
    const LanguageCase ofWine{"BeforeAnySection", "", L"Windows"};
    const LanguageCase ofWindows{"Utf8WithMark", "", L"the library"};
    EXPECT_EQ(AnswerOf(0, ofWine), L"Windows");
    EXPECT_EQ(AnswerOf(8, ofWine), L"v");
    EXPECT_EQ(AnswerOf(0, ofWindows), L"DEF");
    EXPECT_EQ(AnswerOf(8, ofWindows), L"the library");
}

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
