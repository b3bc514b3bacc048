// Under Wine only: these names need characters of two bytes that are not 0, which the native conversion does not make.
#include "dialogs/data/SchemeNames.h"
#include "tests/support/ThreadLocale.h"

#include <gtest/gtest.h>
#include <string>

namespace
{
constexpr LCID kEnglish = 0x0409; // code page 1252
constexpr LCID kChinese = 0x0804; // code page 936

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

// The name of a scheme in a configuration that is named by so many euro signs, U+20AC.
std::string NameOfEuros(int count, int schemeId)
{
    const ThreadLocale english(kEnglish);
    return NewSchemeName(Repeated("\x80", count).c_str(), schemeId);
}

TEST(NewSchemeNameOfTheSystem, HasBothBytesOfACharacter)
{
    const ThreadLocale chinese(kChinese);
    EXPECT_EQ(NewSchemeName("\xB4\xF2\xD3\xA1", 4), "\x53\x62\x70\x53-5");
    EXPECT_EQ(NewSchemeName("\xB4\xF2"
                            "A"
                            "\xB4\xF2",
                            4),
              "\x53\x62"
              "A-5");
}

TEST(NewSchemeNameOfTheSystem, IsCutAtSixtyTwoBytes)
{
    EXPECT_EQ(NameOfEuros(30, 4), Repeated("\xAC\x20", 30) + "-5");
    EXPECT_EQ(NameOfEuros(30, 41), Repeated("\xAC\x20", 30) + "-4");
    EXPECT_EQ(NameOfEuros(31, 4), Repeated("\xAC\x20", 31));
    EXPECT_EQ(NameOfEuros(40, 4), Repeated("\xAC\x20", 31));
}
} // namespace
