#include "refhost/PrintConfigObject.h"

namespace refhost
{

PrintConfigObject::PrintConfigObject(HostContext& context, const std::string& place, const PrintConfig& config)
    : HostObject(context, "IPrintConfig", place), m_config(config), m_modes(context, place)
{
    for (const PrintMode& mode : config.modes)
        m_modes.Add(mode);
    m_config.modes.clear();
}

PrintConfig PrintConfigObject::Values() const
{
    PrintConfig values = m_config;
    for (const auto& mode : m_modes)
        values.modes.push_back(mode->Values());
    return values;
}

void PrintConfigObject::MarkRemoved()
{
    HostObject::MarkRemoved();
    for (const auto& mode : m_modes)
        mode->MarkRemoved();
}

void PrintConfigObject::SetName(const char* name)
{
    SetText("SetName", m_config.name, name);
}

void PrintConfigObject::SetXResolution(std::int32_t dpi)
{
    Set("SetXResolution", m_config.xResolution, dpi);
}

void PrintConfigObject::SetYResolution(std::int32_t dpi)
{
    Set("SetYResolution", m_config.yResolution, dpi);
}

void PrintConfigObject::SetColorCount(std::int32_t count)
{
    Set("SetColorCount", m_config.colorCount, count);
}

void PrintConfigObject::SetDotBits(std::int32_t bits)
{
    Set("SetDotBits", m_config.dotBits, bits);
}

void PrintConfigObject::SetEnabled(std::int32_t enabled)
{
    Set("SetEnabled", m_config.enabled, enabled);
}

const char* PrintConfigObject::GetName()
{
    return GetText("GetName", m_config.name);
}

std::uint16_t PrintConfigObject::GetXResolution()
{
    return Get("GetXResolution", m_config.xResolution);
}

std::uint16_t PrintConfigObject::GetYResolution()
{
    return Get("GetYResolution", m_config.yResolution);
}

std::uint8_t PrintConfigObject::GetColorCount()
{
    return Get("GetColorCount", m_config.colorCount);
}

std::uint8_t PrintConfigObject::GetDotBits()
{
    return Get("GetDotBits", m_config.dotBits);
}

std::int32_t PrintConfigObject::GetEnabled()
{
    return Get("GetEnabled", m_config.enabled);
}

std::uint32_t PrintConfigObject::GetModeCount()
{
    return Get("GetModeCount", m_modes.Count());
}

IPrintMode* PrintConfigObject::GetMode(std::uint32_t index)
{
    return Read("GetMode", index) ? m_modes.At(index) : nullptr;
}

IPrintMode* PrintConfigObject::AddMode()
{
    return Change("AddMode") ? &m_modes.Add(PrintMode()) : nullptr;
}

void PrintConfigObject::RemoveMode(std::uint32_t index)
{
    Change("RemoveMode", index);
    m_modes.Remove(index);
}

} // namespace refhost
