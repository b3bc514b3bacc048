#include "refhost/EclosionObjects.h"

namespace refhost
{

EclosionModeObject::EclosionModeObject(const EclosionMode& mode) : m_elements(mode.elements) {}

EclosionMode EclosionModeObject::Values() const
{
    return EclosionMode{m_elements.Values()};
}

std::uint32_t EclosionModeObject::GetElementCount()
{
    return m_elements.Count();
}

IEclosionElement* EclosionModeObject::AddElement()
{
    return &m_elements.Add(EclosionElement());
}

IEclosionElement* EclosionModeObject::GetElement(std::uint32_t index)
{
    return m_elements.At(index);
}

void EclosionModeObject::DeleteElement(std::uint32_t index)
{
    m_elements.Remove(index);
}

CustomEclosionObject::CustomEclosionObject(const CustomEclosion& eclosion)
    : m_eclosion(eclosion), m_modes(eclosion.modes)
{
    m_eclosion.modes.clear();
}

CustomEclosion CustomEclosionObject::Values() const
{
    CustomEclosion values = m_eclosion;
    values.modes = m_modes.Values();
    return values;
}

std::int32_t CustomEclosionObject::GetCurrentMode()
{
    return m_eclosion.currentMode;
}

void CustomEclosionObject::SetCurrentMode(std::int32_t index)
{
    m_eclosion.currentMode = index;
}

std::uint8_t CustomEclosionObject::IsLocked()
{
    return m_eclosion.locked;
}

void CustomEclosionObject::SetLocked(std::int32_t locked)
{
    m_eclosion.locked = locked != 0;
}

std::int32_t CustomEclosionObject::GetRange()
{
    return m_eclosion.range;
}

void CustomEclosionObject::SetRange(std::int32_t range)
{
    m_eclosion.range = range;
}

std::uint32_t CustomEclosionObject::GetModeCount()
{
    return m_modes.Count();
}

IEclosionMode* CustomEclosionObject::AddMode()
{
    return &m_modes.Add(EclosionMode());
}

IEclosionMode* CustomEclosionObject::GetMode(std::uint32_t index)
{
    return m_modes.At(index);
}

void CustomEclosionObject::DeleteMode(std::uint32_t index)
{
    m_modes.Remove(index);
}

CustomEclosionSetObject::CustomEclosionSetObject(const CustomEclosionSet& set)
    : m_nCurrentIndex(set.currentIndex), m_definitions(set.definitions)
{
}

CustomEclosionSet CustomEclosionSetObject::Values() const
{
    return CustomEclosionSet{m_nCurrentIndex, m_definitions.Values()};
}

std::int32_t CustomEclosionSetObject::GetCurrentIndex()
{
    return m_nCurrentIndex;
}

void CustomEclosionSetObject::SetCurrentIndex(std::int32_t index)
{
    m_nCurrentIndex = index;
}

std::uint32_t CustomEclosionSetObject::GetCount()
{
    return m_definitions.Count();
}

ICustomEclosion* CustomEclosionSetObject::AddEclosion()
{
    return &m_definitions.Add(CustomEclosion());
}

ICustomEclosion* CustomEclosionSetObject::GetEclosion(std::uint32_t index)
{
    return m_definitions.At(index);
}

} // namespace refhost
