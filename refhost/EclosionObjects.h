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

class CEclosionElementObject final : public IEclosionElement
{
public:
    explicit CEclosionElementObject(const EclosionElement& element) : m_element(element) {}

    const EclosionElement& Values() const { return m_element; }

    std::uint8_t GetWidth() override { return m_element.width; }
    void SetWidth(std::int32_t width) override { m_element.width = static_cast<std::uint8_t>(width); }
    std::uint8_t GetHeight() override { return m_element.height; }
    void SetHeight(std::int32_t height) override { m_element.height = static_cast<std::uint8_t>(height); }

private:
    EclosionElement m_element;
};

class CEclosionModeObject final : public IEclosionMode
{
public:
    explicit CEclosionModeObject(const EclosionMode& mode);

    EclosionMode Values() const;

    std::uint32_t GetElementCount() override;
    IEclosionElement* AddElement() override;
    IEclosionElement* GetElement(std::uint32_t index) override;
    void DeleteElement(std::uint32_t index) override;

private:
    CHostItems<CEclosionElementObject> m_elements;
};

class CCustomEclosionObject final : public ICustomEclosion
{
public:
    explicit CCustomEclosionObject(const CustomEclosion& eclosion);

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
    CHostItems<CEclosionModeObject> m_modes;
};

class CCustomEclosionSetObject final : public ICustomEclosionSet
{
public:
    explicit CCustomEclosionSetObject(const CustomEclosionSet& set);

    CustomEclosionSet Values() const;

    std::int32_t GetCurrentIndex() override;
    void SetCurrentIndex(std::int32_t index) override;
    std::uint32_t GetCount() override;
    ICustomEclosion* AddEclosion() override;
    ICustomEclosion* GetEclosion(std::uint32_t index) override;

private:
    std::int32_t m_nCurrentIndex;
    CHostItems<CCustomEclosionObject> m_definitions;
};

} // namespace refhost
