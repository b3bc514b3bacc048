#include "refhost/PrintModeObject.h"

#include <cmath>

#include "refhost/GivenName.h"

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

PrintModeObject::PrintModeObject(const PrintMode& mode) : m_mode(mode) {}

void PrintModeObject::SetName(const char* name)
{
    m_mode.name = GivenName(name);
}

void PrintModeObject::SetPassCount(std::int32_t count)
{
    m_mode.passCount = static_cast<std::uint16_t>(count);
}

void PrintModeObject::SetDisabled(std::int32_t disabled)
{
    m_mode.disabled = disabled != 0;
}

void PrintModeObject::SetXResolutionIndex(std::int32_t index)
{
    m_mode.xResolutionIndex = index;
}

void PrintModeObject::SetHeadDataMode(std::uint8_t dataMode, std::uint32_t row)
{
    PutAt(m_mode.headDataModes, row, dataMode, kNoDataMode);
}

void PrintModeObject::SetSmallDotCompensation(float value, std::uint32_t group)
{
    PutCompensation(m_mode.smallDotCompensation, group, value);
}

void PrintModeObject::SetMediumDotCompensation(float value, std::uint32_t group)
{
    PutCompensation(m_mode.mediumDotCompensation, group, value);
}

void PrintModeObject::SetLargeDotCompensation(float value, std::uint32_t group)
{
    PutCompensation(m_mode.largeDotCompensation, group, value);
}

void PrintModeObject::SetFrontCompensation(std::int32_t enabled, std::uint32_t group)
{
    PutAt(m_mode.frontCompensation, group, enabled != 0, false);
}

void PrintModeObject::SetBackCompensation(std::int32_t enabled, std::uint32_t group)
{
    PutAt(m_mode.backCompensation, group, enabled != 0, false);
}

void PrintModeObject::SetResident(std::uint8_t resident)
{
    m_mode.resident = resident;
}

const char* PrintModeObject::GetName()
{
    return m_mode.name.c_str();
}

std::uint16_t PrintModeObject::GetPassCount()
{
    return m_mode.passCount;
}

std::uint8_t PrintModeObject::GetDisabled()
{
    return m_mode.disabled;
}

std::int32_t PrintModeObject::GetXResolutionIndex()
{
    return m_mode.xResolutionIndex;
}

std::uint8_t PrintModeObject::GetHeadDataMode(std::uint32_t row)
{
    return ValueAt(m_mode.headDataModes, row, kNoDataMode);
}

float PrintModeObject::GetSmallDotCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.smallDotCompensation, group, 0.0f);
}

float PrintModeObject::GetMediumDotCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.mediumDotCompensation, group, 0.0f);
}

float PrintModeObject::GetLargeDotCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.largeDotCompensation, group, 0.0f);
}

std::uint8_t PrintModeObject::GetFrontCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.frontCompensation, group, false);
}

std::uint8_t PrintModeObject::GetBackCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.backCompensation, group, false);
}

std::uint8_t PrintModeObject::GetResident()
{
    return m_mode.resident;
}

} // namespace refhost
