#include "dialogs/data/SchemeIds.h"

#include <climits>
#include <gtest/gtest.h>

namespace
{
struct IdCase
{
    int id;
    bool isFactory;
    bool isUser;
};

constexpr IdCase kIds[] = {
    {INT_MIN, false, false}, {NO_SCHEME, false, false}, {0, true, false},    {1, true, false},
    {999, true, false},      {1000, false, true},       {1001, false, true}, {65535, false, true},
    {65536, false, true},    {INT_MAX, false, true},
};
} // namespace

TEST(SchemeIds, NameASchemeOfEitherListOrNone)
{
    for (const IdCase& each : kIds)
    {
        EXPECT_EQ(IsFactorySchemeId(each.id), each.isFactory) << each.id;
        EXPECT_EQ(IsUserSchemeId(each.id), each.isUser) << each.id;
    }
}

TEST(SchemeIds, OfUserSchemesStartBehindTheFactorySchemes)
{
    EXPECT_EQ(UserSchemeId(0), 1000);
    EXPECT_EQ(UserSchemeId(7), 1007);
    EXPECT_EQ(UserSchemeIndex(1000), 0);
    EXPECT_EQ(UserSchemeIndex(1007), 7);
}

TEST(SchemeIds, OfOthersHaveNoUserIndex)
{
    EXPECT_LT(UserSchemeIndex(999), 0);
    EXPECT_LT(UserSchemeIndex(0), 0);
    EXPECT_LT(UserSchemeIndex(NO_SCHEME), 0);
}
