#include "tests/msabi/host/Positions.h"

namespace
{
constexpr unsigned kInterfaceCount = static_cast<unsigned>(InterfaceId::Count);

struct Tables
{
    InterfaceTable of[kInterfaceCount];
};

constexpr Tables MakeTables()
{
    Tables tables{};
    for (unsigned i = 0; i < kInterfaceCount; ++i)
    {
        const tables::Signatures& signatures = tables::SIGNATURES[i];
        tables.of[i] = {signatures.interfaceName, signatures.positions, signatures.positionCount, nullptr, {}};
    }
    return tables;
}

Tables g_tables = MakeTables();

struct TruthArgument
{
    InterfaceId interface_;
    unsigned number;
};

constexpr TruthArgument kTruthArguments[] = {
    {InterfaceId::PrintConfig, 7},    // SetEnabled
    {InterfaceId::PrintMode, 5},      // SetDisabled
    {InterfaceId::PrintMode, 18},     // SetFrontCompensation
    {InterfaceId::PrintMode, 19},     // SetBackCompensation
    {InterfaceId::CustomEclosion, 7}, // SetLocked
};
} // namespace

InterfaceTable& TableOf(InterfaceId interface_)
{
    return g_tables.of[static_cast<unsigned>(interface_)];
}

bool TakesTruth(const InterfaceTable& table, const Position& position)
{
    for (const TruthArgument& argument : kTruthArguments)
        if (&table == &TableOf(argument.interface_) && position.number == argument.number)
            return true;
    return false;
}
