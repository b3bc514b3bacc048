#include "host/Quorvane.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

// A host looks the exports up by name and calls them through these types.
static_assert(std::is_same_v<decltype(&NewInterface), NewInterfaceFunction>);
static_assert(std::is_same_v<decltype(&ReleaseInterface), ReleaseInterfaceFunction>);

/// One pointer to the table and nothing else: what every compiler for Windows makes of a class with virtual operations.
template <typename... Interfaces>
void ExpectOnlyATable()
{
    static_assert(((sizeof(Interfaces) == sizeof(void*)) && ...));
    static_assert((!std::has_virtual_destructor_v<Interfaces> && ...));
}

TEST(Interfaces, AreATableAndNothingElse)
{
    ExpectOnlyATable<IQuorvane, IHostData, IHostControl, IConfigList, IPrintConfig, IPrintMode, IFactorySchemeList,
                     IUserSchemeList, IPrintScheme, IUserScheme, ISchemeParams>();
    ExpectOnlyATable<ILayoutList, ILayout, IHeadLayoutList, IHeadLayout, IDataMode, IXResolutionList, IXResolution,
                     IInkGroupTable, IInkGroup, IInkChannelTable, IInkChannel, IChannelList, IChannelSetup,
                     IMaterialList, IMaterial, IDeviceState, IActiveSetup, IParamTable>();
    ExpectOnlyATable<ICustomEclosionSet, ICustomEclosion, IEclosionMode, IEclosionElement>();
}

} // namespace
