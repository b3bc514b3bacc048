#include "tests/robustness/Resources.h"

#include "tests/support/WineVersion.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <vector>
#include <windows.h>
#include <winternl.h>

extern "C" PVOID NTAPI RtlGetCurrentPeb();

// Wine gives 0 for GetGuiResources and GetProcessHandleCount, so there the objects are counted where it keeps them:
// GDI's in the table that a process shares with the system, handles in the system's list of all, menus by asking.
namespace
{
bool IsWine()
{
    static const bool isWine = WineVersion() > 0;
    return isWine;
}

#if defined(_WIN64)
constexpr std::size_t kGdiTableInPeb = 0xF8;
#else
constexpr std::size_t kGdiTableInPeb = 0x94;
#endif

constexpr int kGdiHandles = 0x4000;

struct GdiEntry
{
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t generation;
    std::uint8_t type; // 0 while the entry is free
    std::uint8_t flags;
    std::uint64_t userPointer;
};
static_assert(sizeof(GdiEntry) == 24);

long CountGdiObjectsOfWine()
{
    const auto* peb = reinterpret_cast<const char*>(RtlGetCurrentPeb());
    const auto* table = *reinterpret_cast<GdiEntry* const*>(peb + kGdiTableInPeb);
    long count = 0;
    for (int i = 0; table && i < kGdiHandles; ++i)
        count += table[i].type != 0;
    return count;
}

long CountGdiObjects()
{
    return IsWine() ? CountGdiObjectsOfWine() : static_cast<long>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
}

BOOL CALLBACK CountOne(HWND, LPARAM count)
{
    ++*reinterpret_cast<long*>(count);
    return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND window, LPARAM count)
{
    EnumChildWindows(window, &CountOne, count);
    return CountOne(window, count);
}

long CountWindows()
{
    long count = 0;
    EnumThreadWindows(GetCurrentThreadId(), &CountWithChildren, reinterpret_cast<LPARAM>(&count));
    for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
        if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId())
            CountWithChildren(window, reinterpret_cast<LPARAM>(&count));
    return count;
}

long CountMenusOfWine()
{
    constexpr UINT_PTR first = 0x20, last = 0xFFEE; // of user handles, without their upper halves
    long count = 0;
    for (UINT_PTR handle = first; handle <= last; handle += 2)
        count += IsMenu(reinterpret_cast<HMENU>(handle)) != FALSE;
    return count;
}

// Windows counts menus together with all that belongs to windows: hooks, cursors, tables of keys.
long CountMenus(long windows)
{
    return IsWine() ? CountMenusOfWine()
                    : static_cast<long>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) - windows;
}

struct SystemHandle
{
    ULONG process;
    BYTE type;
    BYTE flags;
    USHORT value;
    void* object;
    ULONG access;
};

long CountHandlesOfWine()
{
    constexpr auto allHandles = static_cast<SYSTEM_INFORMATION_CLASS>(16);
    std::vector<std::uintptr_t> buffer(0x40000);
    const auto bytes = static_cast<ULONG>(buffer.size() * sizeof(buffer[0]));
    if (NtQuerySystemInformation(allHandles, buffer.data(), bytes, nullptr) != 0)
        throw std::runtime_error("the system does not list its handles");
    const ULONG all = *reinterpret_cast<const ULONG*>(buffer.data());
    const auto* handles = reinterpret_cast<const SystemHandle*>(buffer.data() + 1);
    long count = 0;
    for (ULONG i = 0; i < all; ++i)
        count += handles[i].process == GetCurrentProcessId();
    return count;
}

long CountHandles()
{
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return IsWine() ? CountHandlesOfWine() : static_cast<long>(count);
}

// A walk over Wine's heap meets a whole group of small blocks as one block: 31 of one size, each behind its header.
struct SmallBlock
{
    std::uint16_t size; // with this header, in units of two pointers
    std::uint16_t number;
    std::uint16_t unused;
    std::uint8_t type;
    std::uint8_t flags;
};
static_assert(sizeof(SmallBlock) == 8);

constexpr std::size_t kGroupHeader = sizeof(void*) == 8 ? 24 : 16;
constexpr std::size_t kBlocksInGroup = 31;
constexpr std::uint8_t kUsed = 'u', kFree = 'F';

// 1 for any block that is no group.
long CountBlocksIn(const PROCESS_HEAP_ENTRY& entry)
{
    if (entry.cbData < kGroupHeader + sizeof(SmallBlock))
        return 1;
    const char* const start = static_cast<const char*>(entry.lpData) + kGroupHeader;
    const auto& first = *reinterpret_cast<const SmallBlock*>(start);
    const std::size_t size = first.size * 2 * sizeof(void*);
    if (size == 0 || (entry.cbData - kGroupHeader) / size != kBlocksInGroup)
        return 1;
    long used = 0;
    for (std::size_t i = 0; i < kBlocksInGroup; ++i)
    {
        const auto& block = *reinterpret_cast<const SmallBlock*>(start + i * size);
        if (block.size != first.size || (block.type != kUsed && block.type != kFree))
            return 1;
        used += block.type == kUsed;
    }
    return used;
}

long CountHeapBlocks()
{
    const HANDLE heap = GetProcessHeap();
    PROCESS_HEAP_ENTRY entry{};
    long count = 0;
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            count += IsWine() ? CountBlocksIn(entry) : 1;
    HeapUnlock(heap);
    return count;
}
} // namespace

Resources Resources::Held()
{
    const long windows = CountWindows();
    return {CountGdiObjects(), windows, CountMenus(windows), CountHandles(), CountHeapBlocks()};
}

Resources Least(const Resources& left, const Resources& right)
{
    return {std::min(left.gdiObjects, right.gdiObjects), std::min(left.windows, right.windows),
            std::min(left.menus, right.menus), std::min(left.handles, right.handles),
            std::min(left.heapBlocks, right.heapBlocks)};
}

Resources operator-(const Resources& left, const Resources& right)
{
    return {left.gdiObjects - right.gdiObjects, left.windows - right.windows, left.menus - right.menus,
            left.handles - right.handles, left.heapBlocks - right.heapBlocks};
}

std::ostream& operator<<(std::ostream& stream, const Resources& resources)
{
    return stream << resources.gdiObjects << " GDI objects, " << resources.windows << " windows, " << resources.menus
                  << " menus, " << resources.handles << " handles, " << resources.heapBlocks << " heap blocks";
}
