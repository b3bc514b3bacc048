#include "refhost/PrintConfigObject.h"

#include "refhost/GivenName.h"

namespace refhost
{

PrintConfigObject::PrintConfigObject(const PrintConfig& config) : m_config(config), m_modes(config.modes)
{
    m_config.modes.clear();
}

PrintConfig PrintConfigObject::Values() const
{
    PrintConfig values = m_config;
    values.modes = m_modes.Values();
    return values;
}

void PrintConfigObject::SetName(const char* name)
{
    m_config.name = GivenName(name);
}

void PrintConfigObject::SetXResolution(std::int32_t dpi)
{
    m_config.xResolution = static_cast<std::uint16_t>(dpi);
}

void PrintConfigObject::SetYResolution(std::int32_t dpi)
{
    m_config.yResolution = static_cast<std::uint16_t>(dpi);
}

void PrintConfigObject::SetColorCount(std::int32_t count)
{
    m_config.colorCount = static_cast<std::uint8_t>(count);
}

void PrintConfigObject::SetDotBits(std::int32_t bits)
{
    m_config.dotBits = static_cast<std::uint8_t>(bits);
}

void PrintConfigObject::SetEnabled(std::int32_t enabled)
{
    m_config.enabled = enabled != 0;
}

const char* PrintConfigObject::GetName()
{
    return m_config.name.c_str();
}

std::uint16_t PrintConfigObject::GetXResolution()
{
    return m_config.xResolution;
}

std::uint16_t PrintConfigObject::GetYResolution()
{
    return m_config.yResolution;
}

std::uint8_t PrintConfigObject::GetColorCount()
{
    return m_config.colorCount;
}

std::uint8_t PrintConfigObject::GetDotBits()
{
    return m_config.dotBits;
}

std::int32_t PrintConfigObject::GetEnabled()
{
    return m_config.enabled;
}

std::uint32_t PrintConfigObject::GetModeCount()
{
    return m_modes.Count();
}

IPrintMode* PrintConfigObject::GetMode(std::uint32_t index)
{
    return m_modes.At(index);
}

IPrintMode* PrintConfigObject::AddMode()
{
    return &m_modes.Add(PrintMode());
}

void PrintConfigObject::RemoveMode(std::uint32_t index)
{
    m_modes.Remove(index);
}

} // namespace refhost
