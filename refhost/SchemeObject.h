#pragma once

#include "host/IPrintScheme.h"
#include "host/IUserScheme.h"
#include "refhost/HostObject.h"
#include "refhost/Machine.h"
#include "refhost/SchemeParamsObject.h"

namespace refhost
{

/// The operations that factory and user schemes have in common. The two interfaces are unrelated tables, so the
/// interface is a parameter.
template <class Interface, class Scheme>
class SchemeObject : public Interface, public HostObject
{
public:
    SchemeObject(HostContext& context, const char* interfaceName, const std::string& place, const Scheme& scheme)
        : HostObject(context, interfaceName, place), m_scheme(scheme), m_params(context, place, m_scheme)
    {
    }

    const Scheme& Values() const { return m_scheme; }

    void MarkRemoved() override
    {
        HostObject::MarkRemoved();
        m_params.MarkRemoved();
    }

    ISchemeParams* GetParams() override { return Read("GetParams") ? &m_params : nullptr; }

    void SetName(const char* name) override { SetText("SetName", m_scheme.name, name); }
    const char* GetName() override { return GetText("GetName", m_scheme.name); }

    void SetConfigIndex(std::uint8_t value) override { Set("SetConfigIndex", m_scheme.configIndex, value); }
    void SetDotMode(std::uint8_t value) override { Set("SetDotMode", m_scheme.dotMode, value); }
    void SetDefaultRangeSS(std::uint8_t value) override { Set("SetDefaultRangeSS", m_scheme.defaultRangeSS, value); }
    void SetDefaultRangeS(std::uint8_t value) override { Set("SetDefaultRangeS", m_scheme.defaultRangeS, value); }
    void SetDefaultRangeM(std::uint8_t value) override { Set("SetDefaultRangeM", m_scheme.defaultRangeM, value); }
    void SetDefaultRangeL(std::uint8_t value) override { Set("SetDefaultRangeL", m_scheme.defaultRangeL, value); }
    void SetEclosionType(std::uint8_t value) override { Set("SetEclosionType", m_scheme.eclosionType, value); }
    void SetCustomEclosionId(std::uint32_t value) override
    {
        Set("SetCustomEclosionId", m_scheme.customEclosionId, value);
    }
    void SetEclosionLevel(std::uint8_t value) override { Set("SetEclosionLevel", m_scheme.eclosionLevel, value); }
    void SetCustomRange(std::uint8_t value) override { Set("SetCustomRange", m_scheme.customRange, value); }
    void SetHeadEclosionType(std::uint8_t value) override
    {
        Set("SetHeadEclosionType", m_scheme.headEclosionType, value);
    }
    void SetLampLL(std::uint8_t value) override { Set("SetLampLL", m_scheme.lampLL, value); }
    void SetLampLR(std::uint8_t value) override { Set("SetLampLR", m_scheme.lampLR, value); }
    void SetLampRL(std::uint8_t value) override { Set("SetLampRL", m_scheme.lampRL, value); }
    void SetLampRR(std::uint8_t value) override { Set("SetLampRR", m_scheme.lampRR, value); }
    void SetSpeed(std::uint8_t value) override { Set("SetSpeed", m_scheme.speed, value); }
    void SetDirection(std::uint8_t value) override { Set("SetDirection", m_scheme.direction, value); }
    void SetMaterial(std::uint8_t value) override { Set("SetMaterial", m_scheme.material, value); }
    void SetChannel(std::uint8_t value) override { Set("SetChannel", m_scheme.channel, value); }

    std::uint8_t GetConfigIndex() override { return Get("GetConfigIndex", m_scheme.configIndex); }
    std::uint8_t GetDotMode() override { return Get("GetDotMode", m_scheme.dotMode); }
    std::uint8_t GetDefaultRangeSS() override { return Get("GetDefaultRangeSS", m_scheme.defaultRangeSS); }
    std::uint8_t GetDefaultRangeS() override { return Get("GetDefaultRangeS", m_scheme.defaultRangeS); }
    std::uint8_t GetDefaultRangeM() override { return Get("GetDefaultRangeM", m_scheme.defaultRangeM); }
    std::uint8_t GetDefaultRangeL() override { return Get("GetDefaultRangeL", m_scheme.defaultRangeL); }
    std::uint8_t GetEclosionType() override { return Get("GetEclosionType", m_scheme.eclosionType); }
    std::uint32_t GetCustomEclosionId() override { return Get("GetCustomEclosionId", m_scheme.customEclosionId); }
    std::uint8_t GetEclosionLevel() override { return Get("GetEclosionLevel", m_scheme.eclosionLevel); }
    std::uint8_t GetCustomRange() override { return Get("GetCustomRange", m_scheme.customRange); }
    std::uint8_t GetHeadEclosionType() override { return Get("GetHeadEclosionType", m_scheme.headEclosionType); }
    std::uint8_t GetLampLL() override { return Get("GetLampLL", m_scheme.lampLL); }
    std::uint8_t GetLampLR() override { return Get("GetLampLR", m_scheme.lampLR); }
    std::uint8_t GetLampRL() override { return Get("GetLampRL", m_scheme.lampRL); }
    std::uint8_t GetLampRR() override { return Get("GetLampRR", m_scheme.lampRR); }
    std::int8_t GetSpeed() override { return Get("GetSpeed", m_scheme.speed); }
    std::int8_t GetDirection() override { return Get("GetDirection", m_scheme.direction); }
    std::int8_t GetMaterial() override { return Get("GetMaterial", m_scheme.material); }
    std::uint8_t GetChannel() override { return Get("GetChannel", m_scheme.channel); }

    void SetInkMultiple(std::uint16_t tenths, std::uint8_t colorIndex) override
    {
        Change("SetInkMultiple", tenths, colorIndex);
        PutAt(m_scheme.inkMultiple, colorIndex, tenths);
    }
    void SetInkCut(std::uint16_t percent, std::uint8_t colorIndex) override
    {
        Change("SetInkCut", percent, colorIndex);
        PutAt(m_scheme.inkCut, colorIndex, static_cast<std::uint8_t>(percent));
    }
    std::uint16_t GetInkMultiple(std::uint8_t colorIndex) override
    {
        Read("GetInkMultiple", colorIndex);
        return ValueAt(m_scheme.inkMultiple, colorIndex);
    }
    std::uint8_t GetInkCut(std::uint8_t colorIndex) override
    {
        Read("GetInkCut", colorIndex);
        return ValueAt(m_scheme.inkCut, colorIndex);
    }

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

    SchemeParamsObject m_params;
};

class FactorySchemeObject : public SchemeObject<IPrintScheme, FactoryScheme>
{
public:
    FactorySchemeObject(HostContext& context, const std::string& place, const FactoryScheme& scheme)
        : SchemeObject(context, "IPrintScheme", place, scheme)
    {
    }

    void SetModeIndex(std::uint8_t value) override { Set("SetModeIndex", m_scheme.modeIndex, value); }
    void SetWaitStepStop(std::uint8_t value) override { Set("SetWaitStepStop", m_scheme.waitStepStop, value); }
    void SetWave(std::int32_t value) override { Set("SetWave", m_scheme.wave, value); }
    void SetEnabled(std::uint8_t value) override { Set("SetEnabled", m_scheme.enabled, value); }
    void SetLayoutId(std::uint32_t value) override { Set("SetLayoutId", m_scheme.layoutId, value); }
    void SetHeadId(std::uint8_t value) override { Set("SetHeadId", m_scheme.headId, value); }
    void SetSmallFormatMode(std::uint8_t value) override { Set("SetSmallFormatMode", m_scheme.smallFormatMode, value); }
    void SetSmallFormatOffset(std::uint16_t value) override
    {
        Set("SetSmallFormatOffset", m_scheme.smallFormatOffset, value);
    }

    std::uint8_t GetModeIndex() override { return Get("GetModeIndex", m_scheme.modeIndex); }
    std::uint8_t GetWaitStepStop() override { return Get("GetWaitStepStop", m_scheme.waitStepStop); }
    std::int8_t GetWave() override { return Get("GetWave", m_scheme.wave); }
    std::uint8_t GetEnabled() override { return Get("GetEnabled", m_scheme.enabled); }
    std::uint8_t GetLayoutId() override { return Get("GetLayoutId", m_scheme.layoutId); }
    std::uint8_t GetHeadId() override { return Get("GetHeadId", m_scheme.headId); }
    std::uint8_t GetSmallFormatMode() override { return Get("GetSmallFormatMode", m_scheme.smallFormatMode); }
    std::uint16_t GetSmallFormatOffset() override { return Get("GetSmallFormatOffset", m_scheme.smallFormatOffset); }
};

class UserSchemeObject : public SchemeObject<IUserScheme, UserScheme>
{
public:
    UserSchemeObject(HostContext& context, const std::string& place, const UserScheme& scheme)
        : SchemeObject(context, "IUserScheme", place, scheme)
    {
    }

    void SetBaseScheme(std::int16_t value) override { Set("SetBaseScheme", m_scheme.baseScheme, value); }
    std::uint8_t GetBaseScheme() override { return Get("GetBaseScheme", m_scheme.baseScheme); }
};

} // namespace refhost
