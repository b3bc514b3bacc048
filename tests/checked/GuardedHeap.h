#pragma once

#include <cstddef>
#include <cstdint>
#include <windows.h>

// Ends the program.
[[noreturn]] void ReportHeapFault(const char* what, const void* block);

// A heap that places every block against an inaccessible page, so that a step past its end faults there and then, and
// takes a freed block's pages away, so that any later use faults, too. Addresses are handed out round and round: a
// freed one comes back only after all others. The memory of new blocks is filled with rubbish.
class GuardedHeap
{
public:
    GuardedHeap();

    // Null when there are more live blocks than the system can keep guard pages for, or no memory.
    void* Allocate(std::size_t size);
    // Ends the program for anything but a live block of this heap, and where something was written in front of it.
    void Free(void* block);
    std::size_t SizeOf(void* block);
    bool Owns(const void* address) const;

private:
    // Of the block that starts on a page; no page of a block without bytes is accessible.
    struct Block
    {
        std::uint32_t pages;
        bool isLive;
        std::size_t size;
    };

    std::size_t FindPages(std::size_t count);
    char* PageAt(std::size_t page) const { return m_pages + page * kPageSize; }
    // Aligned to the largest power of two that divides the size: no type can ask for more.
    char* Start(std::size_t page) const { return PageAt(page + m_blocks[page].pages) - m_blocks[page].size; }
    std::size_t LivePageOf(void* block) const;

    static constexpr std::size_t kPageSize = 4096;

    SRWLOCK m_lock = SRWLOCK_INIT;
    char* m_pages;
    Block* m_blocks;
    std::size_t m_next = 0;
    std::size_t m_liveCount = 0;
};
