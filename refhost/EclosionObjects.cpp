#include "refhost/EclosionObjects.h"

namespace refhost
{

EclosionModeObject::EclosionModeObject(HostContext& context, const std::string& place, const EclosionMode& mode)
    : HostObject(context, "IEclosionMode", place), m_elements(context, place)
{
    for (const EclosionElement& element : mode.elements)
        m_elements.Add(element);
}

EclosionMode EclosionModeObject::Values() const
{
    EclosionMode values;
    for (const auto& element : m_elements)
        values.elements.push_back(element->Values());
    return values;
}

void EclosionModeObject::MarkRemoved()
{
    HostObject::MarkRemoved();
    for (const auto& element : m_elements)
        element->MarkRemoved();
}

std::uint32_t EclosionModeObject::GetElementCount()
{
    return Get("GetElementCount", m_elements.Count());
}

IEclosionElement* EclosionModeObject::AddElement()
{
    return Change("AddElement") ? &m_elements.Add(EclosionElement()) : nullptr;
}

IEclosionElement* EclosionModeObject::GetElement(std::uint32_t index)
{
    return Read("GetElement", index) ? m_elements.At(index) : nullptr;
}

void EclosionModeObject::DeleteElement(std::uint32_t index)
{
    Change("DeleteElement", index);
    m_elements.Remove(index);
}

CustomEclosionObject::CustomEclosionObject(HostContext& context, const std::string& place,
                                           const CustomEclosion& eclosion)
    : HostObject(context, "ICustomEclosion", place), m_eclosion(eclosion), m_modes(context, place)
{
    for (const EclosionMode& mode : eclosion.modes)
        m_modes.Add(mode);
    m_eclosion.modes.clear();
}

CustomEclosion CustomEclosionObject::Values() const
{
    CustomEclosion values = m_eclosion;
    for (const auto& mode : m_modes)
        values.modes.push_back(mode->Values());
    return values;
}

std::int32_t CustomEclosionObject::GetCurrentMode()
{
    return Get("GetCurrentMode", m_eclosion.currentMode);
}

void CustomEclosionObject::SetCurrentMode(std::int32_t index)
{
    Set("SetCurrentMode", m_eclosion.currentMode, index);
}

std::uint8_t CustomEclosionObject::IsLocked()
{
    return Get("IsLocked", m_eclosion.locked);
}

void CustomEclosionObject::SetLocked(std::int32_t locked)
{
    Set("SetLocked", m_eclosion.locked, locked);
}

std::int32_t CustomEclosionObject::GetRange()
{
    return Get("GetRange", m_eclosion.range);
}

void CustomEclosionObject::SetRange(std::int32_t range)
{
    Set("SetRange", m_eclosion.range, range);
}

std::uint32_t CustomEclosionObject::GetModeCount()
{
    return Get("GetModeCount", m_modes.Count());
}

IEclosionMode* CustomEclosionObject::AddMode()
{
    return Change("AddMode") ? &m_modes.Add(EclosionMode()) : nullptr;
}

IEclosionMode* CustomEclosionObject::GetMode(std::uint32_t index)
{
    return Read("GetMode", index) ? m_modes.At(index) : nullptr;
}

void CustomEclosionObject::DeleteMode(std::uint32_t index)
{
    Change("DeleteMode", index);
    m_modes.Remove(index);
}

CustomEclosionSetObject::CustomEclosionSetObject(HostContext& context, const CustomEclosionSet& set)
    : HostObject(context, "ICustomEclosionSet"), m_currentIndex(set.currentIndex), m_definitions(context, std::string())
{
    for (const CustomEclosion& definition : set.definitions)
        m_definitions.Add(definition);
}

CustomEclosionSet CustomEclosionSetObject::Values() const
{
    CustomEclosionSet values;
    values.currentIndex = m_currentIndex;
    for (const auto& definition : m_definitions)
        values.definitions.push_back(definition->Values());
    return values;
}

std::int32_t CustomEclosionSetObject::GetCurrentIndex()
{
    return Get("GetCurrentIndex", m_currentIndex);
}

void CustomEclosionSetObject::SetCurrentIndex(std::int32_t index)
{
    Set("SetCurrentIndex", m_currentIndex, index);
}

std::uint32_t CustomEclosionSetObject::GetCount()
{
    return Get("GetCount", m_definitions.Count());
}

ICustomEclosion* CustomEclosionSetObject::AddEclosion()
{
    return Change("AddEclosion") ? &m_definitions.Add(CustomEclosion()) : nullptr;
}

ICustomEclosion* CustomEclosionSetObject::GetEclosion(std::uint32_t index)
{
    return Read("GetEclosion", index) ? m_definitions.At(index) : nullptr;
}

} // namespace refhost
