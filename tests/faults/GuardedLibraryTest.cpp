// The nets are under Quorvane.dll, too, not only under the test programs.
#include "tests/support/Library.h"

#include <gtest/gtest.h>

namespace
{
DWORD StateOf(const void* address)
{
    MEMORY_BASIC_INFORMATION page = {};
    VirtualQuery(address, &page, sizeof page);
    return page.State;
}
} // namespace

TEST(GuardedLibrary, PlacesItsBlocksAgainstInaccessiblePages)
{
    constexpr std::uintptr_t pageSize = 4096;
    const Library::Interface object = Library::Loaded().NewInterface();
    const auto page = reinterpret_cast<std::uintptr_t>(object.get()) / pageSize * pageSize;
    EXPECT_EQ(StateOf(object.get()), DWORD{MEM_COMMIT});
    EXPECT_EQ(StateOf(reinterpret_cast<const void*>(page + pageSize)), DWORD{MEM_RESERVE});
}

TEST(GuardedLibrary, TakesFreedBlocksAway)
{
    Library::Interface object = Library::Loaded().NewInterface();
    const void* const address = object.get();
    object.reset();
    EXPECT_EQ(StateOf(address), DWORD{MEM_RESERVE});
}
