#include "dialogs/data/NumberText.h"

#include <climits>
#include <gtest/gtest.h>

TEST(NumberText, IsInDecimalDigits)
{
    EXPECT_EQ(NumberText(0), L"0");
    EXPECT_EQ(NumberText(70000), L"70000");
    EXPECT_EQ(NumberText(-1), L"-1");
    EXPECT_EQ(NumberText(INT_MAX), L"2147483647");
    EXPECT_EQ(NumberText(INT_MIN), L"-2147483648");
}
