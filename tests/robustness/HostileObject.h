#pragma once

#include "host/Quorvane.h"
#include "tests/host/RawTable.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <type_traits>

class GuardedText;
class HostileHost;

// A host object as the library sees it: nothing but a table of operations. Each of them asks the hostile host what
// becomes of the call to the sound object behind it.
struct HostileObject
{
    HostileObject(void* const* operations, HostileHost& owner, void* object);
    ~HostileObject();

    template <class Interface>
    Interface* As()
    {
        return reinterpret_cast<Interface*>(this);
    }

    void* const* table; // must be first
    HostileHost& host;
    void* sound;
    std::unique_ptr<GuardedText> text; // the name that was given out last
};

// What the library may call, interface by interface.
template <class Interface>
struct OperationsOf;

// As a result lies in its register: what is narrower than the register has something else above it.
template <class Result>
using RegisterOf = std::conditional_t<std::is_integral_v<Result>, std::uintptr_t, Result>;

template <auto kOperation, class = decltype(kOperation)>
struct HostileOperation;

constexpr std::size_t kTableSize = 80;

// An operation's position in its table. GCC's pointer to a virtual member is one more than the offset there.
template <class Operation>
std::size_t PositionOf(Operation operation)
{
    static_assert(sizeof(operation) >= sizeof(std::uintptr_t));
    std::uintptr_t word;
    std::memcpy(&word, &operation, sizeof(word));
    return (word - 1) / sizeof(void*);
}

template <auto... kOperations>
struct Operations
{
    static void* const* Table()
    {
        static const auto table = [] {
            std::array<void*, kTableSize> positions;
            positions.fill(reinterpret_cast<void*>(&NotForTheLibrary));
            ((positions[PositionOf(kOperations)] = reinterpret_cast<void*>(&HostileOperation<kOperations>::Call)), ...);
            return positions;
        }();
        return table.data();
    }

private:
    static void NotForTheLibrary() { __builtin_trap(); }
};

template <>
struct OperationsOf<IActiveSetup>
    : Operations<&IActiveSetup::GetId, &IActiveSetup::GetGroupCount, &IActiveSetup::GetGroupId>
{
};

template <>
struct OperationsOf<IChannelList> : Operations<&IChannelList::GetCount, &IChannelList::GetAt>
{
};

template <>
struct OperationsOf<IChannelSetup> : Operations<&IChannelSetup::GetName, &IChannelSetup::FindSetup>
{
};

template <>
struct OperationsOf<IConfigList>
    : Operations<&IConfigList::GetCount, &IConfigList::GetAt, &IConfigList::AddConfig, &IConfigList::RemoveAt>
{
};

template <>
struct OperationsOf<ICustomEclosion>
    : Operations<&ICustomEclosion::GetCurrentMode, &ICustomEclosion::SetCurrentMode, &ICustomEclosion::IsLocked,
                 &ICustomEclosion::SetLocked, &ICustomEclosion::GetRange, &ICustomEclosion::SetRange,
                 &ICustomEclosion::GetModeCount, &ICustomEclosion::AddMode, &ICustomEclosion::GetMode,
                 &ICustomEclosion::DeleteMode>
{
};

template <>
struct OperationsOf<ICustomEclosionSet>
    : Operations<&ICustomEclosionSet::GetCurrentIndex, &ICustomEclosionSet::SetCurrentIndex,
                 &ICustomEclosionSet::GetCount, &ICustomEclosionSet::AddEclosion, &ICustomEclosionSet::GetEclosion>
{
};

template <>
struct OperationsOf<IDataMode> : Operations<&IDataMode::GetName>
{
};

template <>
struct OperationsOf<IDeviceState> : Operations<&IDeviceState::GetActiveSetup>
{
};

template <>
struct OperationsOf<IEclosionElement> : Operations<&IEclosionElement::GetWidth, &IEclosionElement::SetWidth,
                                                   &IEclosionElement::GetHeight, &IEclosionElement::SetHeight>
{
};

template <>
struct OperationsOf<IEclosionMode> : Operations<&IEclosionMode::GetElementCount, &IEclosionMode::AddElement,
                                                &IEclosionMode::GetElement, &IEclosionMode::DeleteElement>
{
};

template <>
struct OperationsOf<IHeadLayout> : Operations<&IHeadLayout::GetName, &IHeadLayout::GetId, &IHeadLayout::GetLayoutId,
                                              &IHeadLayout::GetDataModeCount, &IHeadLayout::GetDataMode>
{
};

template <>
struct OperationsOf<IHeadLayoutList> : Operations<&IHeadLayoutList::GetCount, &IHeadLayoutList::GetAt,
                                                  &IHeadLayoutList::FindById, &IHeadLayoutList::IndexOfId>
{
};

template <>
struct OperationsOf<IHostControl> : Operations<&IHostControl::SaveParameters, &IHostControl::SaveCustomEclosionSet>
{
};

template <>
struct OperationsOf<IHostData>
    : Operations<&IHostData::GetLayoutList, &IHostData::GetHeadLayoutList, &IHostData::GetChannelList,
                 &IHostData::GetInkChannels, &IHostData::GetXResolutionList, &IHostData::GetInkGroups,
                 &IHostData::GetConfigList, &IHostData::GetFactorySchemeList, &IHostData::GetUserSchemeList,
                 &IHostData::GetMaterialList, &IHostData::GetCustomEclosionSet, &IHostData::GetDeviceState,
                 &IHostData::GetParamTable, &IHostData::CreateConfig, &IHostData::DestroyConfig>
{
};

template <>
struct OperationsOf<IInkChannel> : Operations<&IInkChannel::GetId, &IInkChannel::GetName>
{
};

template <>
struct OperationsOf<IInkChannelTable>
    : Operations<&IInkChannelTable::GetColorIndex, &IInkChannelTable::GetChannelsOfLayout>
{
};

template <>
struct OperationsOf<IInkGroup>
    : Operations<&IInkGroup::GetId, &IInkGroup::GetName, &IInkGroup::GetChannelCount, &IInkGroup::GetChannel>
{
};

template <>
struct OperationsOf<IInkGroupTable> : Operations<&IInkGroupTable::GetCount, &IInkGroupTable::GetAt,
                                                 &IInkGroupTable::GetGroup, &IInkGroupTable::GetColorIndex>
{
};

template <>
struct OperationsOf<ILayout> : Operations<&ILayout::GetName, &ILayout::GetId>
{
};

template <>
struct OperationsOf<ILayoutList> : Operations<&ILayoutList::GetCount, &ILayoutList::GetAt>
{
};

template <>
struct OperationsOf<IMaterial> : Operations<&IMaterial::GetId, &IMaterial::GetName>
{
};

template <>
struct OperationsOf<IMaterialList> : Operations<&IMaterialList::GetCount, &IMaterialList::GetAt>
{
};

template <>
struct OperationsOf<IParamTable> : Operations<&IParamTable::GetCount, &IParamTable::GetEntry>
{
};

template <>
struct OperationsOf<IPrintConfig>
    : Operations<&IPrintConfig::SetName, &IPrintConfig::SetXResolution, &IPrintConfig::SetYResolution,
                 &IPrintConfig::SetColorCount, &IPrintConfig::SetDotBits, &IPrintConfig::SetEnabled,
                 &IPrintConfig::GetName, &IPrintConfig::GetXResolution, &IPrintConfig::GetYResolution,
                 &IPrintConfig::GetColorCount, &IPrintConfig::GetDotBits, &IPrintConfig::GetEnabled,
                 &IPrintConfig::GetModeCount, &IPrintConfig::GetMode, &IPrintConfig::AddMode, &IPrintConfig::RemoveMode>
{
};

template <>
struct OperationsOf<IPrintMode>
    : Operations<&IPrintMode::SetName, &IPrintMode::SetPassCount, &IPrintMode::SetDisabled,
                 &IPrintMode::SetXResolutionIndex, &IPrintMode::SetHeadDataMode, &IPrintMode::SetSmallDotCompensation,
                 &IPrintMode::SetMediumDotCompensation, &IPrintMode::SetLargeDotCompensation,
                 &IPrintMode::SetFrontCompensation, &IPrintMode::SetBackCompensation, &IPrintMode::SetResident,
                 &IPrintMode::GetName, &IPrintMode::GetPassCount, &IPrintMode::GetDisabled,
                 &IPrintMode::GetXResolutionIndex, &IPrintMode::GetHeadDataMode, &IPrintMode::GetSmallDotCompensation,
                 &IPrintMode::GetMediumDotCompensation, &IPrintMode::GetLargeDotCompensation,
                 &IPrintMode::GetFrontCompensation, &IPrintMode::GetBackCompensation, &IPrintMode::GetResident>
{
};

template <>
struct OperationsOf<IPrintScheme>
    : Operations<
          &IPrintScheme::GetParams, &IPrintScheme::SetName, &IPrintScheme::SetConfigIndex, &IPrintScheme::SetModeIndex,
          &IPrintScheme::SetWaitStepStop, &IPrintScheme::SetWave, &IPrintScheme::SetEnabled, &IPrintScheme::SetDotMode,
          &IPrintScheme::SetDefaultRangeSS, &IPrintScheme::SetDefaultRangeS, &IPrintScheme::SetDefaultRangeM,
          &IPrintScheme::SetDefaultRangeL, &IPrintScheme::SetEclosionType, &IPrintScheme::SetCustomEclosionId,
          &IPrintScheme::SetEclosionLevel, &IPrintScheme::SetCustomRange, &IPrintScheme::SetHeadEclosionType,
          &IPrintScheme::SetInkMultiple, &IPrintScheme::SetInkCut, &IPrintScheme::SetLampLL, &IPrintScheme::SetLampLR,
          &IPrintScheme::SetLampRL, &IPrintScheme::SetLampRR, &IPrintScheme::SetSpeed, &IPrintScheme::SetDirection,
          &IPrintScheme::SetMaterial, &IPrintScheme::SetLayoutId, &IPrintScheme::SetHeadId, &IPrintScheme::SetChannel,
          &IPrintScheme::SetSmallFormatMode, &IPrintScheme::SetSmallFormatOffset, &IPrintScheme::GetName,
          &IPrintScheme::GetConfigIndex, &IPrintScheme::GetModeIndex, &IPrintScheme::GetWaitStepStop,
          &IPrintScheme::GetWave, &IPrintScheme::GetEnabled, &IPrintScheme::GetDotMode,
          &IPrintScheme::GetDefaultRangeSS, &IPrintScheme::GetDefaultRangeS, &IPrintScheme::GetDefaultRangeM,
          &IPrintScheme::GetDefaultRangeL, &IPrintScheme::GetEclosionType, &IPrintScheme::GetCustomEclosionId,
          &IPrintScheme::GetEclosionLevel, &IPrintScheme::GetCustomRange, &IPrintScheme::GetHeadEclosionType,
          &IPrintScheme::GetInkMultiple, &IPrintScheme::GetInkCut, &IPrintScheme::GetLampLL, &IPrintScheme::GetLampLR,
          &IPrintScheme::GetLampRL, &IPrintScheme::GetLampRR, &IPrintScheme::GetSpeed, &IPrintScheme::GetDirection,
          &IPrintScheme::GetMaterial, &IPrintScheme::GetLayoutId, &IPrintScheme::GetHeadId, &IPrintScheme::GetChannel,
          &IPrintScheme::GetSmallFormatMode, &IPrintScheme::GetSmallFormatOffset>
{
};

template <>
struct OperationsOf<IFactorySchemeList> : Operations<&IFactorySchemeList::GetCount, &IFactorySchemeList::GetAt,
                                                     &IFactorySchemeList::AddScheme, &IFactorySchemeList::RemoveAt>
{
};

template <>
struct OperationsOf<IUserSchemeList> : Operations<&IUserSchemeList::GetCount, &IUserSchemeList::GetAt,
                                                  &IUserSchemeList::AddScheme, &IUserSchemeList::RemoveAt>
{
};

template <>
struct OperationsOf<ISchemeParams> : Operations<&ISchemeParams::CopyFrom>
{
};

template <>
struct OperationsOf<IUserScheme>
    : Operations<&IUserScheme::GetParams, &IUserScheme::SetName, &IUserScheme::SetConfigIndex,
                 &IUserScheme::SetBaseScheme, &IUserScheme::SetSpeed, &IUserScheme::SetDirection,
                 &IUserScheme::SetMaterial, &IUserScheme::SetDotMode, &IUserScheme::SetDefaultRangeSS,
                 &IUserScheme::SetDefaultRangeS, &IUserScheme::SetDefaultRangeM, &IUserScheme::SetDefaultRangeL,
                 &IUserScheme::SetEclosionType, &IUserScheme::SetCustomEclosionId, &IUserScheme::SetEclosionLevel,
                 &IUserScheme::SetCustomRange, &IUserScheme::SetHeadEclosionType, &IUserScheme::SetInkMultiple,
                 &IUserScheme::SetInkCut, &IUserScheme::SetLampLL, &IUserScheme::SetLampLR, &IUserScheme::SetLampRL,
                 &IUserScheme::SetLampRR, &IUserScheme::SetChannel, &IUserScheme::GetName, &IUserScheme::GetConfigIndex,
                 &IUserScheme::GetBaseScheme, &IUserScheme::GetSpeed, &IUserScheme::GetDirection,
                 &IUserScheme::GetMaterial, &IUserScheme::GetDotMode, &IUserScheme::GetDefaultRangeSS,
                 &IUserScheme::GetDefaultRangeS, &IUserScheme::GetDefaultRangeM, &IUserScheme::GetDefaultRangeL,
                 &IUserScheme::GetEclosionType, &IUserScheme::GetCustomEclosionId, &IUserScheme::GetEclosionLevel,
                 &IUserScheme::GetCustomRange, &IUserScheme::GetHeadEclosionType, &IUserScheme::GetInkMultiple,
                 &IUserScheme::GetInkCut, &IUserScheme::GetLampLL, &IUserScheme::GetLampLR, &IUserScheme::GetLampRL,
                 &IUserScheme::GetLampRR, &IUserScheme::GetChannel>
{
};

template <>
struct OperationsOf<IXResolution> : Operations<&IXResolution::GetName>
{
};

template <>
struct OperationsOf<IXResolutionList> : Operations<&IXResolutionList::GetCount, &IXResolutionList::GetAt>
{
};
