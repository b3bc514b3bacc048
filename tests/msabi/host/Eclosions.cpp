#include "tests/msabi/host/Eclosions.h"

IEclosionElement* EclosionMode::AddElement()
{
    m_elements.Append(Make<EclosionElement>(InterfaceId::EclosionElement, "new element"));
    return m_elements[m_elements.Size() - 1];
}

void CustomEclosion::SetCurrentMode(int index)
{
    Require(index >= 0 && index < 3, "the index is out of range");
    m_currentMode = index;
}

void CustomEclosion::SetRange(int value)
{
    Require(value >= 0 && value <= 200, "the range is out of range");
    range = value;
}

IEclosionMode* CustomEclosion::AddMode()
{
    m_modes.Append(Make<EclosionMode>(InterfaceId::EclosionMode, "new eclosion mode"));
    return m_modes[m_modes.Size() - 1];
}

void CustomEclosionSet::SetCurrentIndex(int index)
{
    Require(index >= 0 && index < static_cast<int>(items.Size()), "the index is out of range");
    currentIndex = index;
}

CustomEclosion* CustomEclosionSet::New(const char* label)
{
    items.Append(Make<CustomEclosion>(InterfaceId::CustomEclosion, label));
    return items[items.Size() - 1];
}
