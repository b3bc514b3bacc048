#pragma once

#include "ISchemeList.h"

#include <cstdint>

class IChannelList;
class IConfigList;
class ICustomEclosionSet;
class IDeviceState;
class IHeadLayoutList;
class IInkChannelTable;
class IInkGroupTable;
class ILayoutList;
class IMaterialList;
class IParamTable;
class IPrintConfig;
class IXResolutionList;

/// The host's parameter database, and the way to every other host object. A host passes one object of this interface to
/// every editor operation. It holds lists that the editors change (configurations, schemes, custom eclosion
/// definitions) and machine data that they only read (layouts, heads, inks, channels, materials, tables).
///
/// Order of calls: any. The editors ask for an object each time they need it. So keep these operations cheap, and
/// return the same object until the data changes. All calls are made on the thread that called the editor operation,
/// while that operation runs.
///
/// The host owns every object. An object lives until the editor operation returns, or until the operator removes it.
/// The library frees nothing of the host's; what CreateConfig made it returns to DestroyConfig. A null list counts as
/// an empty one.
class IHostData
{
public:
    virtual void Reserved0() {}  // 0
    virtual void Reserved1() {}  // 1
    virtual void Reserved2() {}  // 2
    virtual void Reserved3() {}  // 3
    virtual void Reserved4() {}  // 4
    virtual void Reserved5() {}  // 5
    virtual void Reserved6() {}  // 6
    virtual void Reserved7() {}  // 7
    virtual void Reserved8() {}  // 8
    virtual void Reserved9() {}  // 9
    virtual void Reserved10() {} // 10
    virtual void Reserved11() {} // 11
    virtual void Reserved12() {} // 12
    virtual void Reserved13() {} // 13

    /// The print-head layouts that the machine knows. May be null.
    virtual ILayoutList* GetLayoutList() = 0; // 14

    /// The heads of all layouts, with their data processing modes. May be null.
    virtual IHeadLayoutList* GetHeadLayoutList() = 0; // 15

    virtual void Reserved16() {} // 16
    virtual void Reserved17() {} // 17
    virtual void Reserved18() {} // 18

    /// The colour channel set-ups that a scheme can choose from. May be null.
    virtual IChannelList* GetChannelList() = 0; // 19

    /// The ink channels of the machine, by layout. May be null.
    virtual IInkChannelTable* GetInkChannels() = 0; // 20

    /// The horizontal resolutions that a print mode can choose from. May be null.
    virtual IXResolutionList* GetXResolutionList() = 0; // 21

    virtual void Reserved22() {} // 22

    /// The ink groups: groups of ink channels that are fed and compensated together. May be null.
    virtual IInkGroupTable* GetInkGroups() = 0; // 23

    virtual void Reserved24() {} // 24
    virtual void Reserved25() {} // 25
    virtual void Reserved26() {} // 26
    virtual void Reserved27() {} // 27
    virtual void Reserved28() {} // 28
    virtual void Reserved29() {} // 29
    virtual void Reserved30() {} // 30

    /// The print configurations. May be null.
    virtual IConfigList* GetConfigList() = 0; // 31

    /// The factory print schemes of all configurations, in one list. May be null.
    virtual IFactorySchemeList* GetFactorySchemeList() = 0; // 32

    virtual void Reserved33() {} // 33
    virtual void Reserved34() {} // 34

    /// The user print schemes of all configurations, in one list. May be null.
    virtual IUserSchemeList* GetUserSchemeList() = 0; // 35

    virtual void Reserved36() {} // 36
    virtual void Reserved37() {} // 37
    virtual void Reserved38() {} // 38

    /// The print materials. May be null.
    virtual IMaterialList* GetMaterialList() = 0; // 39

    /// The custom eclosion definitions. May be null.
    virtual ICustomEclosionSet* GetCustomEclosionSet() = 0; // 40

    /// The machine's present state. May be null; the editors then offer no materials and no channel set-ups.
    virtual IDeviceState* GetDeviceState() = 0; // 41

    virtual void Reserved42() {} // 42
    virtual void Reserved43() {} // 43
    virtual void Reserved44() {} // 44
    virtual void Reserved45() {} // 45

    /// A table of host options by id, or null if the host has no such table. The library asks for three:
    /// - 1015: entry 0 is the number of waveforms, a 32-bit integer. Below 1, only "unlimited" is offered.
    /// - 2055: eclosion types, one entry each. Type i is offered if entry i is not 0.
    /// - 2057: the custom eclosion level is offered if entry 0 is not 0.
    virtual IParamTable* GetParamTable(std::uint32_t tableId) = 0; // 46

    virtual void Reserved47() {} // 47
    virtual void Reserved48() {} // 48
    virtual void Reserved49() {} // 49
    virtual void Reserved50() {} // 50
    virtual void Reserved51() {} // 51
    virtual void Reserved52() {} // 52
    virtual void Reserved53() {} // 53
    virtual void Reserved54() {} // 54
    virtual void Reserved55() {} // 55
    virtual void Reserved56() {} // 56
    virtual void Reserved57() {} // 57
    virtual void Reserved58() {} // 58
    virtual void Reserved59() {} // 59

    /// Creates a configuration that is in no list, for the operator's "add configuration". The library fills it through
    /// its setters, passes it to IConfigList::AddConfig and gives it back through DestroyConfig, whether AddConfig took
    /// it or not. Null ends the action silently.
    virtual IPrintConfig* CreateConfig() = 0; // 60

    virtual void Reserved61() {} // 61
    virtual void Reserved62() {} // 62
    virtual void Reserved63() {} // 63
    virtual void Reserved64() {} // 64
    virtual void Reserved65() {} // 65
    virtual void Reserved66() {} // 66

    /// Frees a configuration of CreateConfig. Called exactly once for each one, before the editor goes on. The library
    /// never uses the pointer again.
    virtual void DestroyConfig(IPrintConfig* config) = 0; // 67

protected:
    ~IHostData() = default;
};
