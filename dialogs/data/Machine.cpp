#include "dialogs/data/Machine.h"

#include "host/IDeviceState.h"
#include "host/IParamTable.h"

#include <algorithm>
#include <cstring>

namespace
{
constexpr std::uint32_t TABLE_WAVEFORM_COUNT = 1015;
constexpr std::uint32_t TABLE_ECLOSION_TYPES = 2055;
constexpr std::uint32_t TABLE_CUSTOM_LEVEL = 2057;

// What a machine counts by an option is cut to what can be: these are values, not lists to walk. 255 stands for no
// type.
constexpr int MAX_WAVEFORMS = 1024;
constexpr int MAX_TYPES = 255;

// Only the host knows the size of an entry. The first 32 bits are read.
constexpr std::size_t ENTRY_BYTES = 256;

// 0 when there is no such table or entry.
std::int32_t TableValue(std::uint32_t table, int index)
{
    IParamTable* paramTable = HostData().GetParamTable(table);
    if (!paramTable)
        return 0;
    alignas(void*) unsigned char entry[ENTRY_BYTES] = {};
    paramTable->GetEntry(entry, static_cast<std::uint32_t>(index));
    std::int32_t value;
    std::memcpy(&value, entry, sizeof(value));
    return value;
}
} // namespace

IActiveSetup* ActiveSetup()
{
    IDeviceState* state = HostData().GetDeviceState();
    return state ? state->GetActiveSetup() : nullptr;
}

int WaveformCount()
{
    return std::clamp(TableValue(TABLE_WAVEFORM_COUNT, 0), 0, MAX_WAVEFORMS);
}

bool OffersCustomLevel()
{
    return TableValue(TABLE_CUSTOM_LEVEL, 0) != 0;
}

bool OffersEclosionType(int type)
{
    return TableValue(TABLE_ECLOSION_TYPES, type) != 0;
}

int EclosionTypeCount()
{
    IParamTable* table = HostData().GetParamTable(TABLE_ECLOSION_TYPES);
    return table ? std::clamp(table->GetCount(), 0, MAX_TYPES) : 0;
}
