#include "refhost/PrintConfigObject.h"

#include "refhost/GivenName.h"

namespace refhost
{

CPrintConfigObject::CPrintConfigObject(const PrintConfig& config) : m_config(config), m_modes(config.modes)
{
    m_config.modes.clear();
}

PrintConfig CPrintConfigObject::Values() const
{
    PrintConfig values = m_config;
    values.modes = m_modes.Values();
    return values;
}

void CPrintConfigObject::SetName(const char* name)
{
    m_config.name = GivenName(name);
}

void CPrintConfigObject::SetXResolution(std::int32_t dpi)
{
    m_config.xResolution = static_cast<std::uint16_t>(dpi);
}

void CPrintConfigObject::SetYResolution(std::int32_t dpi)
{
    m_config.yResolution = static_cast<std::uint16_t>(dpi);
}

void CPrintConfigObject::SetColorCount(std::int32_t count)
{
    m_config.colorCount = static_cast<std::uint8_t>(count);
}

void CPrintConfigObject::SetDotBits(std::int32_t bits)
{
    m_config.dotBits = static_cast<std::uint8_t>(bits);
}

void CPrintConfigObject::SetEnabled(std::int32_t enabled)
{
    m_config.enabled = enabled != 0;
}

const char* CPrintConfigObject::GetName()
{
    return m_config.name.c_str();
}

std::uint16_t CPrintConfigObject::GetXResolution()
{
    return m_config.xResolution;
}

std::uint16_t CPrintConfigObject::GetYResolution()
{
    return m_config.yResolution;
}

std::uint8_t CPrintConfigObject::GetColorCount()
{
    return m_config.colorCount;
}

std::uint8_t CPrintConfigObject::GetDotBits()
{
    return m_config.dotBits;
}

std::int32_t CPrintConfigObject::GetEnabled()
{
    return m_config.enabled;
}

std::uint32_t CPrintConfigObject::GetModeCount()
{
    return m_modes.Count();
}

IPrintMode* CPrintConfigObject::GetMode(std::uint32_t index)
{
    return m_modes.At(index);
}

IPrintMode* CPrintConfigObject::AddMode()
{
    return &m_modes.Add(PrintMode());
}

void CPrintConfigObject::RemoveMode(std::uint32_t index)
{
    m_modes.Remove(index);
}

} // namespace refhost
