#pragma once

#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"
#include "refhost/GivenName.h"
#include "refhost/Machine.h"
#include "refhost/SchemeParamsObject.h"

namespace refhost
{

// The operations that factory and user schemes have in common. The two interfaces are unrelated tables, so the
// interface is a parameter.
template <class Interface, class Scheme>
class CSchemeObject : public Interface
{
public:
    explicit CSchemeObject(const Scheme& scheme) : m_scheme(scheme), m_params(m_scheme) {}

    const Scheme& Values() const { return m_scheme; }

    ISchemeParams* GetParams() override { return &m_params; }

    void SetName(const char* name) override { m_scheme.name = GivenName(name); }
    const char* GetName() override { return m_scheme.name.c_str(); }

    void SetConfigIndex(std::uint8_t value) override { m_scheme.configIndex = value; }
    void SetDotMode(std::uint8_t value) override { m_scheme.dotMode = value; }
    void SetDefaultRangeSS(std::uint8_t value) override { m_scheme.defaultRangeSS = value; }
    void SetDefaultRangeS(std::uint8_t value) override { m_scheme.defaultRangeS = value; }
    void SetDefaultRangeM(std::uint8_t value) override { m_scheme.defaultRangeM = value; }
    void SetDefaultRangeL(std::uint8_t value) override { m_scheme.defaultRangeL = value; }
    void SetEclosionType(std::uint8_t value) override { m_scheme.eclosionType = value; }
    void SetCustomEclosionId(std::uint32_t value) override { m_scheme.customEclosionId = value; }
    void SetEclosionLevel(std::uint8_t value) override { m_scheme.eclosionLevel = value; }
    void SetCustomRange(std::uint8_t value) override { m_scheme.customRange = value; }
    void SetHeadEclosionType(std::uint8_t value) override { m_scheme.headEclosionType = value; }
    void SetLampLL(std::uint8_t value) override { m_scheme.lampLL = value; }
    void SetLampLR(std::uint8_t value) override { m_scheme.lampLR = value; }
    void SetLampRL(std::uint8_t value) override { m_scheme.lampRL = value; }
    void SetLampRR(std::uint8_t value) override { m_scheme.lampRR = value; }
    void SetSpeed(std::uint8_t value) override { m_scheme.speed = static_cast<std::int8_t>(value); }
    void SetDirection(std::uint8_t value) override { m_scheme.direction = static_cast<std::int8_t>(value); }
    void SetMaterial(std::uint8_t value) override { m_scheme.material = static_cast<std::int8_t>(value); }
    void SetChannel(std::uint8_t value) override { m_scheme.channel = value; }

    std::uint8_t GetConfigIndex() override { return m_scheme.configIndex; }
    std::uint8_t GetDotMode() override { return m_scheme.dotMode; }
    std::uint8_t GetDefaultRangeSS() override { return m_scheme.defaultRangeSS; }
    std::uint8_t GetDefaultRangeS() override { return m_scheme.defaultRangeS; }
    std::uint8_t GetDefaultRangeM() override { return m_scheme.defaultRangeM; }
    std::uint8_t GetDefaultRangeL() override { return m_scheme.defaultRangeL; }
    std::uint8_t GetEclosionType() override { return m_scheme.eclosionType; }
    std::uint32_t GetCustomEclosionId() override { return m_scheme.customEclosionId; }
    std::uint8_t GetEclosionLevel() override { return m_scheme.eclosionLevel; }
    std::uint8_t GetCustomRange() override { return m_scheme.customRange; }
    std::uint8_t GetHeadEclosionType() override { return m_scheme.headEclosionType; }
    std::uint8_t GetLampLL() override { return m_scheme.lampLL; }
    std::uint8_t GetLampLR() override { return m_scheme.lampLR; }
    std::uint8_t GetLampRL() override { return m_scheme.lampRL; }
    std::uint8_t GetLampRR() override { return m_scheme.lampRR; }
    std::int8_t GetSpeed() override { return m_scheme.speed; }
    std::int8_t GetDirection() override { return m_scheme.direction; }
    std::int8_t GetMaterial() override { return m_scheme.material; }
    std::uint8_t GetChannel() override { return m_scheme.channel; }

    void SetInkMultiple(std::uint16_t tenths, std::uint8_t colorIndex) override
    {
        PutAt(m_scheme.inkMultiple, colorIndex, tenths);
    }
    void SetInkCut(std::uint16_t percent, std::uint8_t colorIndex) override
    {
        PutAt(m_scheme.inkCut, colorIndex, static_cast<std::uint8_t>(percent));
    }
    std::uint16_t GetInkMultiple(std::uint8_t colorIndex) override { return ValueAt(m_scheme.inkMultiple, colorIndex); }
    std::uint8_t GetInkCut(std::uint8_t colorIndex) override { return ValueAt(m_scheme.inkCut, colorIndex); }

protected:
    Scheme m_scheme;

private:
    // A colour index beyond the values is passed as it is; it names nothing here.
    template <class T, std::size_t N>
    static void PutAt(std::array<T, N>& values, std::uint8_t index, T value)
    {
        if (index < N)
            values[index] = value;
    }

    template <class T, std::size_t N>
    static T ValueAt(const std::array<T, N>& values, std::uint8_t index)
    {
        return index < N ? values[index] : T();
    }

    CSchemeParamsObject m_params;
};

class CFactorySchemeObject final : public CSchemeObject<IPrintScheme, FactoryScheme>
{
public:
    using CSchemeObject::CSchemeObject;

    void SetModeIndex(std::uint8_t value) override { m_scheme.modeIndex = value; }
    void SetWaitStepStop(std::uint8_t value) override { m_scheme.waitStepStop = value; }
    void SetWave(std::int32_t value) override { m_scheme.wave = static_cast<std::int8_t>(value); }
    void SetEnabled(std::uint8_t value) override { m_scheme.enabled = value != 0; }
    void SetLayoutId(std::uint32_t value) override { m_scheme.layoutId = static_cast<std::uint8_t>(value); }
    void SetHeadId(std::uint8_t value) override { m_scheme.headId = value; }
    void SetSmallFormatMode(std::uint8_t value) override { m_scheme.smallFormatMode = value; }
    void SetSmallFormatOffset(std::uint16_t value) override { m_scheme.smallFormatOffset = value; }

    std::uint8_t GetModeIndex() override { return m_scheme.modeIndex; }
    std::uint8_t GetWaitStepStop() override { return m_scheme.waitStepStop; }
    std::int8_t GetWave() override { return m_scheme.wave; }
    std::uint8_t GetEnabled() override { return m_scheme.enabled; }
    std::uint8_t GetLayoutId() override { return m_scheme.layoutId; }
    std::uint8_t GetHeadId() override { return m_scheme.headId; }
    std::uint8_t GetSmallFormatMode() override { return m_scheme.smallFormatMode; }
    std::uint16_t GetSmallFormatOffset() override { return m_scheme.smallFormatOffset; }
};

class CUserSchemeObject final : public CSchemeObject<IUserScheme, UserScheme>
{
public:
    using CSchemeObject::CSchemeObject;

    void SetBaseScheme(std::int16_t value) override { m_scheme.baseScheme = static_cast<std::uint8_t>(value); }
    std::uint8_t GetBaseScheme() override { return m_scheme.baseScheme; }
};

} // namespace refhost
