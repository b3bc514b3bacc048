#pragma once

#include "tests/support/ImportHook.h"

#include <cstddef>

// While it lives, counts what a module allocates by itself and has not freed yet. One at a time; what the module
// allocated before does not count.
class LibraryHeap
{
public:
    explicit LibraryHeap(HMODULE module);
    ~LibraryHeap();
    LibraryHeap(const LibraryHeap&) = delete;
    LibraryHeap& operator=(const LibraryHeap&) = delete;

    std::size_t Blocks() const;
    std::size_t Bytes() const;

private:
    ImportHook m_malloc;
    ImportHook m_calloc;
    ImportHook m_realloc;
    ImportHook m_free;
};
