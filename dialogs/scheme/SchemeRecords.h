#pragma once

#include <cstdint>

class IActiveSetup;
class IPrintScheme;
class IUserScheme;

// A scheme id names one scheme of either host list. Negative: none.
constexpr int NO_SCHEME = -1;
// Ids below are indices of factory schemes; a factory scheme with a higher index has no id.
constexpr int FIRST_USER_SCHEME = 1000;

// Values that every scheme record holds.
constexpr std::uint8_t INK_MULTIPLE_COUNT = 16;
constexpr std::uint8_t INK_CUT_COUNT = 32;

// What a parameter table tells. Its entries may be of any shape; the first 32 bits are read.
constexpr std::uint32_t TABLE_WAVEFORM_COUNT = 1015;
constexpr std::uint32_t TABLE_ECLOSION_TYPES = 2055;
constexpr std::uint32_t TABLE_CUSTOM_ECLOSION = 2057;

// All look the record up in the host anew; null when the host has no such list or record.
IPrintScheme* FactorySchemeAt(int nIndex);
IUserScheme* UserSchemeAt(int nIndex);
IPrintScheme* BaseSchemeOf(IUserScheme* pScheme);

// What the machine prints with now; null when the host tells nothing of it.
IActiveSetup* ActiveSetup();

// 0 when there is no such table.
int ParamCount(std::uint32_t nTable);
int ParamValue(std::uint32_t nTable, int nIndex);
