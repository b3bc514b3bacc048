#include "refhost/EclosionObjects.h"

namespace refhost
{

CEclosionModeObject::CEclosionModeObject(const EclosionMode& mode) : m_elements(mode.elements) {}

EclosionMode CEclosionModeObject::Values() const
{
    return EclosionMode{m_elements.Values()};
}

std::uint32_t CEclosionModeObject::GetElementCount()
{
    return m_elements.Count();
}

IEclosionElement* CEclosionModeObject::AddElement()
{
    return &m_elements.Add(EclosionElement());
}

IEclosionElement* CEclosionModeObject::GetElement(std::uint32_t index)
{
    return m_elements.At(index);
}

void CEclosionModeObject::DeleteElement(std::uint32_t index)
{
    m_elements.Remove(index);
}

CCustomEclosionObject::CCustomEclosionObject(const CustomEclosion& eclosion)
    : m_eclosion(eclosion), m_modes(eclosion.modes)
{
    m_eclosion.modes.clear();
}

CustomEclosion CCustomEclosionObject::Values() const
{
    CustomEclosion values = m_eclosion;
    values.modes = m_modes.Values();
    return values;
}

std::int32_t CCustomEclosionObject::GetCurrentMode()
{
    return m_eclosion.currentMode;
}

void CCustomEclosionObject::SetCurrentMode(std::int32_t index)
{
    m_eclosion.currentMode = index;
}

std::uint8_t CCustomEclosionObject::IsLocked()
{
    return m_eclosion.locked;
}

void CCustomEclosionObject::SetLocked(std::int32_t locked)
{
    m_eclosion.locked = locked != 0;
}

std::int32_t CCustomEclosionObject::GetRange()
{
    return m_eclosion.range;
}

void CCustomEclosionObject::SetRange(std::int32_t range)
{
    m_eclosion.range = range;
}

std::uint32_t CCustomEclosionObject::GetModeCount()
{
    return m_modes.Count();
}

IEclosionMode* CCustomEclosionObject::AddMode()
{
    return &m_modes.Add(EclosionMode());
}

IEclosionMode* CCustomEclosionObject::GetMode(std::uint32_t index)
{
    return m_modes.At(index);
}

void CCustomEclosionObject::DeleteMode(std::uint32_t index)
{
    m_modes.Remove(index);
}

CCustomEclosionSetObject::CCustomEclosionSetObject(const CustomEclosionSet& set)
    : m_nCurrentIndex(set.currentIndex), m_definitions(set.definitions)
{
}

CustomEclosionSet CCustomEclosionSetObject::Values() const
{
    return CustomEclosionSet{m_nCurrentIndex, m_definitions.Values()};
}

std::int32_t CCustomEclosionSetObject::GetCurrentIndex()
{
    return m_nCurrentIndex;
}

void CCustomEclosionSetObject::SetCurrentIndex(std::int32_t index)
{
    m_nCurrentIndex = index;
}

std::uint32_t CCustomEclosionSetObject::GetCount()
{
    return m_definitions.Count();
}

ICustomEclosion* CCustomEclosionSetObject::AddEclosion()
{
    return &m_definitions.Add(CustomEclosion());
}

ICustomEclosion* CCustomEclosionSetObject::GetEclosion(std::uint32_t index)
{
    return m_definitions.At(index);
}

} // namespace refhost
