#pragma once

#include <cstdint>

// The eclosion (feathering) of a scheme.

// Of default and custom ranges.
constexpr int MAX_ECLOSION_RANGE = 200;

// The entry of the host's table of types that stands for the custom one.
constexpr int CUSTOM_ECLOSION_TYPE = 19;

// The list of levels shows Super before Custom, the stored codes have Custom at 4 and Super at 5.
constexpr int LEVEL_ROW_CUSTOM = 5;

constexpr int LevelRowOfCode(int code)
{
    return code == 4 ? 5 : code == 5 ? 4 : code;
}

// No selection (-1) is stored as 255.
constexpr std::uint8_t LevelCodeOfRow(int row)
{
    return static_cast<std::uint8_t>(LevelRowOfCode(row));
}
