#include "tests/checked/GuardedHeap.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace
{
// 16 GiB of addresses.
constexpr std::size_t kPageCount = std::size_t{1} << 22;
// Each live block takes two of the 65530 mappings that Linux gives a process, and two modules have such a heap.
constexpr std::size_t kMostLiveBlocks = 14000;
constexpr int kRubbish = 0xcd;

class Lock
{
public:
    explicit Lock(SRWLOCK& lock) : m_lock(lock) { AcquireSRWLockExclusive(&m_lock); }
    ~Lock() { ReleaseSRWLockExclusive(&m_lock); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    SRWLOCK& m_lock;
};

void* Reserve(std::size_t size, DWORD how, DWORD protection)
{
    void* const memory = VirtualAlloc(nullptr, size, how, protection);
    if (!memory)
        ReportHeapFault("no address space for a guarded heap", memory);
    return memory;
}
} // namespace

void ReportHeapFault(const char* what, const void* block)
{
    std::printf("Heap fault: %s, block %p\n", what, block);
    std::fflush(stdout);
    __builtin_trap();
}

GuardedHeap::GuardedHeap()
    : m_pages(static_cast<char*>(Reserve(kPageCount * kPageSize, MEM_RESERVE, PAGE_NOACCESS))),
      m_blocks(static_cast<Block*>(Reserve(kPageCount * sizeof(Block), MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE)))
{
}

bool GuardedHeap::Owns(const void* address) const
{
    return address >= m_pages && address < m_pages + kPageCount * kPageSize;
}

// The first page of as many free ones in a row; kPageCount where there are none.
std::size_t GuardedHeap::FindPages(std::size_t count)
{
    std::size_t seen = 0;
    std::size_t free = 0;
    std::size_t page = m_next;
    while (free < count && seen <= kPageCount)
    {
        const std::size_t step = m_blocks[page].isLive ? m_blocks[page].pages + std::size_t{1} : 1;
        free = m_blocks[page].isLive ? 0 : free + 1;
        seen += step;
        page += step;
        if (page == kPageCount && free < count)
            page = free = 0;
    }
    return free < count ? kPageCount : page - count;
}

void* GuardedHeap::Allocate(std::size_t size)
{
    const Lock lock(m_lock);
    const std::size_t pages = (size + kPageSize - 1) / kPageSize;
    if (m_liveCount >= kMostLiveBlocks || pages >= kPageCount / 2)
        return nullptr;
    const std::size_t first = FindPages(pages + 1);
    if (first == kPageCount)
        return nullptr;
    if (pages > 0 && !VirtualAlloc(PageAt(first), pages * kPageSize, MEM_COMMIT, PAGE_READWRITE))
        return nullptr;
    std::memset(PageAt(first), kRubbish, pages * kPageSize);
    m_blocks[first] = {static_cast<std::uint32_t>(pages), true, size};
    m_next = (first + pages + 1) % kPageCount;
    ++m_liveCount;
    return Start(first);
}

std::size_t GuardedHeap::LivePageOf(void* block) const
{
    // A block without bytes starts on its guard page, which is its first one; any other on its first page.
    const std::size_t page = static_cast<std::size_t>(static_cast<char*>(block) - m_pages) / kPageSize;
    if (!m_blocks[page].isLive || Start(page) != block)
        ReportHeapFault("freed or resized where no live block starts", block);
    return page;
}

std::size_t GuardedHeap::SizeOf(void* block)
{
    const Lock lock(m_lock);
    return m_blocks[LivePageOf(block)].size;
}

void GuardedHeap::Free(void* block)
{
    const Lock lock(m_lock);
    const std::size_t page = LivePageOf(block);
    const char* const start = static_cast<char*>(block);
    if (std::any_of(static_cast<const char*>(PageAt(page)), start,
                    [](char byte) { return static_cast<unsigned char>(byte) != kRubbish; }))
        ReportHeapFault("written in front of it", block);
    if (m_blocks[page].pages > 0)
        VirtualFree(PageAt(page), m_blocks[page].pages * kPageSize, MEM_DECOMMIT);
    m_blocks[page].isLive = false;
    --m_liveCount;
}
