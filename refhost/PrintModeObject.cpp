#include "refhost/PrintModeObject.h"

#include <cmath>

#include "refhost/GivenName.h"

namespace refhost
{
namespace
{

// No machine has more groups or heads; an index beyond (-1 of an empty selection, say) names nothing.
constexpr std::uint32_t MOST_ROWS = 65536;

template <class T>
T ValueAt(const std::vector<T>& values, std::uint32_t index, T missing)
{
    return index < values.size() ? values[index] : missing;
}

template <class T>
void PutAt(std::vector<T>& values, std::uint32_t index, T value, T missing)
{
    if (index >= MOST_ROWS)
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

CPrintModeObject::CPrintModeObject(const PrintMode& mode) : m_mode(mode) {}

void CPrintModeObject::SetName(const char* name)
{
    m_mode.name = GivenName(name);
}

void CPrintModeObject::SetPassCount(std::int32_t count)
{
    m_mode.passCount = static_cast<std::uint16_t>(count);
}

void CPrintModeObject::SetDisabled(std::int32_t disabled)
{
    m_mode.disabled = disabled != 0;
}

void CPrintModeObject::SetXResolutionIndex(std::int32_t index)
{
    m_mode.xResolutionIndex = index;
}

void CPrintModeObject::SetHeadDataMode(std::uint8_t dataMode, std::uint32_t row)
{
    PutAt(m_mode.headDataModes, row, dataMode, NO_DATA_MODE);
}

void CPrintModeObject::SetSmallDotCompensation(float value, std::uint32_t group)
{
    PutCompensation(m_mode.smallDotCompensation, group, value);
}

void CPrintModeObject::SetMediumDotCompensation(float value, std::uint32_t group)
{
    PutCompensation(m_mode.mediumDotCompensation, group, value);
}

void CPrintModeObject::SetLargeDotCompensation(float value, std::uint32_t group)
{
    PutCompensation(m_mode.largeDotCompensation, group, value);
}

void CPrintModeObject::SetFrontCompensation(std::int32_t enabled, std::uint32_t group)
{
    PutAt(m_mode.frontCompensation, group, enabled != 0, false);
}

void CPrintModeObject::SetBackCompensation(std::int32_t enabled, std::uint32_t group)
{
    PutAt(m_mode.backCompensation, group, enabled != 0, false);
}

void CPrintModeObject::SetResident(std::uint8_t resident)
{
    m_mode.resident = resident;
}

const char* CPrintModeObject::GetName()
{
    return m_mode.name.c_str();
}

std::uint16_t CPrintModeObject::GetPassCount()
{
    return m_mode.passCount;
}

std::uint8_t CPrintModeObject::GetDisabled()
{
    return m_mode.disabled;
}

std::int32_t CPrintModeObject::GetXResolutionIndex()
{
    return m_mode.xResolutionIndex;
}

std::uint8_t CPrintModeObject::GetHeadDataMode(std::uint32_t row)
{
    return ValueAt(m_mode.headDataModes, row, NO_DATA_MODE);
}

float CPrintModeObject::GetSmallDotCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.smallDotCompensation, group, 0.0f);
}

float CPrintModeObject::GetMediumDotCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.mediumDotCompensation, group, 0.0f);
}

float CPrintModeObject::GetLargeDotCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.largeDotCompensation, group, 0.0f);
}

std::uint8_t CPrintModeObject::GetFrontCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.frontCompensation, group, false);
}

std::uint8_t CPrintModeObject::GetBackCompensation(std::uint32_t group)
{
    return ValueAt(m_mode.backCompensation, group, false);
}

std::uint8_t CPrintModeObject::GetResident()
{
    return m_mode.resident;
}

} // namespace refhost
