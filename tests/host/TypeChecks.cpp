#include "tables/Positions.h"

#include <type_traits>

namespace
{

// A host looks the exports up by name and calls them through these types.
static_assert(std::is_same_v<decltype(&NewInterface), NewInterfaceFunction>);
static_assert(std::is_same_v<decltype(&ReleaseInterface), ReleaseInterfaceFunction>);

// One pointer to the table and nothing else: what every compiler for Windows makes of a class with virtual operations.
#define EXPECT_ONLY_A_TABLE(interface_)                                                                                \
    static_assert(sizeof(interface_) == sizeof(void*));                                                                \
    static_assert(!std::has_virtual_destructor_v<interface_>);
HOST_INTERFACES(EXPECT_ONLY_A_TABLE)

} // namespace
