#pragma once

// The one table of what a host offers: every operation that the library may call, by its position.

struct Position
{
    unsigned number;
    const char* name;
    // The result and then the arguments, a letter each: v nothing, p object, a storage of the caller, t text, f float,
    // i and u 32 bits with and without sign, w 16 bits, s and c 8 bits with and without sign, b a boolean of one byte,
    // e a clean 0 or 1 in 32 bits.
    const char* signature;
};

constexpr unsigned kMaxPositions = 72;

struct InterfaceTable
{
    const char* name;
    const Position* positions;
    unsigned positionCount;
    // The compiler's own table of the host's class.
    void* const* operations;
    unsigned calls[kMaxPositions];
};

enum class InterfaceId
{
    FactorySchemeList,
    UserSchemeList,
    ActiveSetup,
    ChannelList,
    ChannelSetup,
    ConfigList,
    CustomEclosion,
    CustomEclosionSet,
    DataMode,
    DeviceState,
    EclosionElement,
    EclosionMode,
    HeadLayout,
    HeadLayoutList,
    HostControl,
    HostData,
    InkChannel,
    InkChannelTable,
    InkGroup,
    InkGroupTable,
    Layout,
    LayoutList,
    Material,
    MaterialList,
    ParamTable,
    PrintConfig,
    PrintMode,
    PrintScheme,
    SchemeParams,
    UserScheme,
    XResolution,
    XResolutionList,
    Count
};

InterfaceTable& TableOf(InterfaceId interface_);
