#include "tests/editors/StoredScheme.h"

namespace
{
int Byte(int value)
{
    return value & 0xFF;
}
} // namespace

std::string StoredValues::Call(const std::string& operation, const std::string& arguments) const
{
    return m_object + "." + operation + "(" + arguments + ")";
}

std::string StoredValues::Call(const std::string& operation, int argument) const
{
    return Call(operation, std::to_string(argument));
}

Calls StoredValues::General() const
{
    return {Call("SetName", "\"" + m_values.name + "\""), Call("SetSpeed", Byte(m_values.speed)),
            Call("SetDirection", Byte(m_values.direction)), Call("SetMaterial", Byte(m_values.material))};
}

StoredScheme::StoredScheme(const std::string& place, const refhost::FactoryScheme& values)
    : StoredValues("IPrintScheme[" + place + "]", values), m_values(values)
{
}

Calls StoredScheme::Common() const
{
    return General() + Calls{Call("SetEnabled", m_values.enabled),   Call("SetWaitStepStop", m_values.waitStepStop),
                             Call("SetWave", m_values.wave),         Call("SetChannel", m_values.channel),
                             Call("SetLayoutId", m_values.layoutId), Call("SetHeadId", m_values.headId)};
}

Calls StoredScheme::Mode() const
{
    return {Call("SetModeIndex", m_values.modeIndex)};
}

Calls StoredValues::Eclosion() const
{
    return {Call("SetEclosionType", m_values.eclosionType),        Call("SetEclosionLevel", m_values.eclosionLevel),
            Call("SetCustomRange", m_values.customRange),          Call("SetDefaultRangeSS", m_values.defaultRangeSS),
            Call("SetDefaultRangeS", m_values.defaultRangeS),      Call("SetDefaultRangeM", m_values.defaultRangeM),
            Call("SetDefaultRangeL", m_values.defaultRangeL),      Call("SetDotMode", m_values.dotMode),
            Call("SetHeadEclosionType", m_values.headEclosionType)};
}

Calls StoredValues::InkMultiples() const
{
    Calls calls;
    for (std::size_t color : {3, 2, 1, 0})
        calls.push_back(
            Call("SetInkMultiple", std::to_string(m_values.inkMultiple[color]) + ", " + std::to_string(color)));
    return calls;
}

Calls StoredValues::InkCuts() const
{
    Calls calls;
    for (std::size_t color : {7, 7, 8, 8, 9})
        calls.push_back(Call("SetInkCut", std::to_string(m_values.inkCut[color]) + ", " + std::to_string(color)));
    return calls;
}

Calls StoredValues::Lamps() const
{
    return {Call("SetLampLL", m_values.lampLL), Call("SetLampLR", m_values.lampLR), Call("SetLampRL", m_values.lampRL),
            Call("SetLampRR", m_values.lampRR)};
}

Calls StoredScheme::SmallFormat() const
{
    return {Call("SetSmallFormatMode", m_values.smallFormatMode),
            Call("SetSmallFormatOffset", m_values.smallFormatOffset)};
}

StoredScheme::operator Calls() const
{
    return Common() + Mode() + Eclosion() + InkMultiples() + InkCuts() + Lamps() + SmallFormat();
}
