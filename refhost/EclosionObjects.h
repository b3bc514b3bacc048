// The custom feathering definitions: a set of definitions, each with modes, each with elements.
#pragma once

#include "host/ICustomEclosion.h"
#include "host/ICustomEclosionSet.h"
#include "host/IEclosionElement.h"
#include "host/IEclosionMode.h"
#include "refhost/HostItems.h"
#include "refhost/Machine.h"

namespace refhost
{

class EclosionElementObject : public IEclosionElement
{
public:
    explicit EclosionElementObject(const EclosionElement& element) : m_element(element) {}

    const EclosionElement& Values() const { return m_element; }

    std::uint8_t GetWidth() override { return m_element.width; }
    void SetWidth(std::int32_t width) override { m_element.width = static_cast<std::uint8_t>(width); }
    std::uint8_t GetHeight() override { return m_element.height; }
    void SetHeight(std::int32_t height) override { m_element.height = static_cast<std::uint8_t>(height); }

private:
    EclosionElement m_element;
};

class EclosionModeObject : public IEclosionMode
{
public:
    explicit EclosionModeObject(const EclosionMode& mode);

    EclosionMode Values() const;

    std::uint32_t GetElementCount() override;
    IEclosionElement* AddElement() override;
    IEclosionElement* GetElement(std::uint32_t index) override;
    void DeleteElement(std::uint32_t index) override;

private:
    HostItems<EclosionElementObject> m_elements;
};

class CustomEclosionObject : public ICustomEclosion
{
public:
    explicit CustomEclosionObject(const CustomEclosion& eclosion);

    CustomEclosion Values() const;

    std::int32_t GetCurrentMode() override;
    void SetCurrentMode(std::int32_t index) override;
    std::uint8_t IsLocked() override;
    void SetLocked(std::int32_t locked) override;
    std::int32_t GetRange() override;
    void SetRange(std::int32_t range) override;
    std::uint32_t GetModeCount() override;
    IEclosionMode* AddMode() override;
    IEclosionMode* GetMode(std::uint32_t index) override;
    void DeleteMode(std::uint32_t index) override;

private:
    CustomEclosion m_eclosion; // its modes lie in m_modes
    HostItems<EclosionModeObject> m_modes;
};

class CustomEclosionSetObject : public ICustomEclosionSet
{
public:
    explicit CustomEclosionSetObject(const CustomEclosionSet& set);

    CustomEclosionSet Values() const;

    std::int32_t GetCurrentIndex() override;
    void SetCurrentIndex(std::int32_t index) override;
    std::uint32_t GetCount() override;
    ICustomEclosion* AddEclosion() override;
    ICustomEclosion* GetEclosion(std::uint32_t index) override;

private:
    std::int32_t m_nCurrentIndex;
    HostItems<CustomEclosionObject> m_definitions;
};

} // namespace refhost
