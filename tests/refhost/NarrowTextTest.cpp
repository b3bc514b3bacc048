#include "refhost/NarrowText.h"

#include <gtest/gtest.h>

using namespace refhost;

namespace
{

constexpr const char* kPrint = "\xE6\x89\x93\xE5\x8D\xB0"; // "print" in Chinese, UTF-8

} // namespace

TEST(NarrowText, ConvertsToTheCodePageAndBack)
{
    EXPECT_EQ(NarrowFromUtf8(kPrint, 936), "\xB4\xF2\xD3\xA1");
    EXPECT_EQ(Utf8FromNarrow("\xB4\xF2\xD3\xA1", 936), kPrint);
    EXPECT_EQ(NarrowFromUtf8("\xC3\xA9", 1252), "\xE9");
    EXPECT_EQ(Utf8FromNarrow("\xE9", 1252), "\xC3\xA9");
    EXPECT_EQ(NarrowFromUtf8("", 936), "");
    EXPECT_EQ(Utf8FromNarrow("", 936), "");
}

TEST(NarrowText, RefusesWhatTheCodePageHasNot)
{
    EXPECT_FALSE(NarrowFromUtf8(kPrint, 1252));
    EXPECT_FALSE(NarrowFromUtf8("\xF0\x9F\x96\xA8", 936));
}

TEST(NarrowText, RefusesBytesThatAreNoText)
{
    EXPECT_FALSE(Utf8FromNarrow("\xB4", 936));
    EXPECT_FALSE(Utf8FromNarrow("\x80\xFF", 936));
}
