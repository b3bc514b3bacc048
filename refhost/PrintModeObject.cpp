#include "refhost/PrintModeObject.h"

#include <cmath>

namespace refhost
{
namespace
{

// No machine has more groups or heads; an index beyond (-1 of an empty selection, say) names nothing.
constexpr std::uint32_t kMostRows = 65536;

template <class T>
T ValueAt(const std::vector<T>& values, std::uint32_t index, T missing)
{
    return index < values.size() ? values[index] : missing;
}

template <class T>
void PutAt(std::vector<T>& values, std::uint32_t index, T value, T missing)
{
    if (index >= kMostRows)
        return;
    if (index >= values.size())
        values.resize(index + 1, missing);
    values[index] = value;
}

void PutCompensation(std::vector<float>& values, std::uint32_t group, float value)
{
    if (std::isfinite(value)) // anything else has no place in a machine file
        PutAt(values, group, value, 0.0f);
}

} // namespace

PrintModeObject::PrintModeObject(HostContext& context, const std::string& place, const PrintMode& mode)
    : HostObject(context, "IPrintMode", place), m_mode(mode)
{
}

void PrintModeObject::SetName(const char* name)
{
    SetText("SetName", m_mode.name, name);
}

void PrintModeObject::SetPassCount(std::int32_t count)
{
    Set("SetPassCount", m_mode.passCount, count);
}

void PrintModeObject::SetDisabled(std::int32_t disabled)
{
    Set("SetDisabled", m_mode.disabled, disabled);
}

void PrintModeObject::SetXResolutionIndex(std::int32_t index)
{
    Set("SetXResolutionIndex", m_mode.xResolutionIndex, index);
}

void PrintModeObject::SetHeadDataMode(std::uint8_t dataMode, std::uint32_t row)
{
    Change("SetHeadDataMode", dataMode, row);
    PutAt(m_mode.headDataModes, row, dataMode, kNoDataMode);
}

void PrintModeObject::SetSmallDotCompensation(float value, std::uint32_t group)
{
    Change("SetSmallDotCompensation", value, group);
    PutCompensation(m_mode.smallDotCompensation, group, value);
}

void PrintModeObject::SetMediumDotCompensation(float value, std::uint32_t group)
{
    Change("SetMediumDotCompensation", value, group);
    PutCompensation(m_mode.mediumDotCompensation, group, value);
}

void PrintModeObject::SetLargeDotCompensation(float value, std::uint32_t group)
{
    Change("SetLargeDotCompensation", value, group);
    PutCompensation(m_mode.largeDotCompensation, group, value);
}

void PrintModeObject::SetFrontCompensation(std::int32_t enabled, std::uint32_t group)
{
    Change("SetFrontCompensation", enabled, group);
    PutAt(m_mode.frontCompensation, group, enabled != 0, false);
}

void PrintModeObject::SetBackCompensation(std::int32_t enabled, std::uint32_t group)
{
    Change("SetBackCompensation", enabled, group);
    PutAt(m_mode.backCompensation, group, enabled != 0, false);
}

void PrintModeObject::SetResident(std::uint8_t resident)
{
    Set("SetResident", m_mode.resident, resident);
}

const char* PrintModeObject::GetName()
{
    return GetText("GetName", m_mode.name);
}

std::uint16_t PrintModeObject::GetPassCount()
{
    return Get("GetPassCount", m_mode.passCount);
}

std::uint8_t PrintModeObject::GetDisabled()
{
    return Get("GetDisabled", m_mode.disabled);
}

std::int32_t PrintModeObject::GetXResolutionIndex()
{
    return Get("GetXResolutionIndex", m_mode.xResolutionIndex);
}

std::uint8_t PrintModeObject::GetHeadDataMode(std::uint32_t row)
{
    Read("GetHeadDataMode", row);
    return ValueAt(m_mode.headDataModes, row, kNoDataMode);
}

float PrintModeObject::GetSmallDotCompensation(std::uint32_t group)
{
    Read("GetSmallDotCompensation", group);
    return ValueAt(m_mode.smallDotCompensation, group, 0.0f);
}

float PrintModeObject::GetMediumDotCompensation(std::uint32_t group)
{
    Read("GetMediumDotCompensation", group);
    return ValueAt(m_mode.mediumDotCompensation, group, 0.0f);
}

float PrintModeObject::GetLargeDotCompensation(std::uint32_t group)
{
    Read("GetLargeDotCompensation", group);
    return ValueAt(m_mode.largeDotCompensation, group, 0.0f);
}

std::uint8_t PrintModeObject::GetFrontCompensation(std::uint32_t group)
{
    Read("GetFrontCompensation", group);
    return ValueAt(m_mode.frontCompensation, group, false);
}

std::uint8_t PrintModeObject::GetBackCompensation(std::uint32_t group)
{
    Read("GetBackCompensation", group);
    return ValueAt(m_mode.backCompensation, group, false);
}

std::uint8_t PrintModeObject::GetResident()
{
    return Get("GetResident", m_mode.resident);
}

} // namespace refhost
