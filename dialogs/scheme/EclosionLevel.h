#pragma once

#include <cstdint>

// The list shows Super before Custom, the stored codes have Custom at 4 and Super at 5.
constexpr int LEVEL_ROW_CUSTOM = 5;

constexpr int LevelRowOfCode(int nCode)
{
    return nCode == 4 ? 5 : nCode == 5 ? 4 : nCode;
}

// No selection (-1) is stored as 255.
constexpr std::uint8_t LevelCodeOfRow(int nRow)
{
    return static_cast<std::uint8_t>(LevelRowOfCode(nRow));
}
