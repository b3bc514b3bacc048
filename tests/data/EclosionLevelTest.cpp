#include "dialogs/data/EclosionLevel.h"

#include <gtest/gtest.h>

namespace
{
struct LevelCase
{
    int row;
    std::uint8_t code;
};

// The levels in the order of their rows. Super and Custom stand in the other order than their codes.
constexpr LevelCase kLevels[] = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 5}, {5, 4}};
} // namespace

TEST(EclosionLevel, HasARowForEachCode)
{
    for (const LevelCase& level : kLevels)
        EXPECT_EQ(LevelRowOfCode(level.code), level.row) << level.row;
}

TEST(EclosionLevel, HasACodeForEachRow)
{
    for (const LevelCase& level : kLevels)
        EXPECT_EQ(LevelCodeOfRow(level.row), level.code) << level.row;
}

TEST(EclosionLevel, IsCustomInTheLastRow)
{
    EXPECT_EQ(LevelRowOfCode(4), LEVEL_ROW_CUSTOM);
    EXPECT_EQ(LevelCodeOfRow(LEVEL_ROW_CUSTOM), 4);
}

TEST(EclosionLevel, BeyondTheRowsKeepsItsCode)
{
    EXPECT_EQ(LevelRowOfCode(6), 6);
    EXPECT_EQ(LevelRowOfCode(255), 255);
}

TEST(EclosionLevel, WithoutASelectionIsStoredAs255)
{
    EXPECT_EQ(LevelCodeOfRow(-1), 255);
}

TEST(Eclosion, HasTheLimitsAndTheTypeOfTheHost)
{
    EXPECT_EQ(MAX_ECLOSION_RANGE, 200);
    EXPECT_EQ(CUSTOM_ECLOSION_TYPE, 19);
}
