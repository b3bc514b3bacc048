#include "refhost/Excerpt.h"

#include <gtest/gtest.h>

using namespace refhost;

TEST(Excerpt, OfAShortTextIsTheText)
{
    EXPECT_EQ(Excerpt("", 4), "");
    EXPECT_EQ(Excerpt("abcd", 4), "abcd");
    EXPECT_EQ(Excerpt("a\xE5\x85\xA8", 4), "a\xE5\x85\xA8");
}

TEST(Excerpt, OfALongTextEndsInDots)
{
    EXPECT_EQ(Excerpt("abcde", 4), "abcd...");
    EXPECT_EQ(Excerpt("abcde", 0), "...");
}

TEST(Excerpt, CutsNoCharacter)
{
    EXPECT_EQ(Excerpt("ab\xE5\x85\xA8", 4), "ab...");
    EXPECT_EQ(Excerpt("ab\xE5\x85\xA8", 3), "ab...");
    EXPECT_EQ(Excerpt("\xF0\x9F\x96\xA8\xF0\x9F\x96\xA8", 7), "\xF0\x9F\x96\xA8...");
}

TEST(Excerpt, ReplacesWhatIsNoText)
{
    EXPECT_EQ(Excerpt("a\xC3(", 4), "a\xEF\xBF\xBD(");
    EXPECT_EQ(Excerpt(std::string("a\0b\n\x7F\xC3\xA9", 7), 9), "a b  \xC3\xA9");
}
