#include "tests/robustness/LibraryHeap.h"

#include <cstdlib>
#include <mutex>
#include <unordered_map>

namespace
{
class Books
{
public:
    void* Add(void* block, std::size_t size)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (block && m_sizes.emplace(block, size).second)
            m_bytes += size;
        return block;
    }

    void Remove(void* block)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = m_sizes.find(block);
        if (found == m_sizes.end())
            return;
        m_bytes -= found->second;
        m_sizes.erase(found);
    }

    void Clear()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_sizes.clear();
        m_bytes = 0;
    }

    std::size_t Blocks() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_sizes.size();
    }

    std::size_t Bytes() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_bytes;
    }

private:
    mutable std::mutex m_mutex;
    std::unordered_map<void*, std::size_t> m_sizes;
    std::size_t m_bytes = 0;
};

Books& TheBooks()
{
    static Books books;
    return books;
}

// What the module called before: its blocks must come from where it frees them once it is no longer counted.
decltype(&std::malloc) originalMalloc;
decltype(&std::calloc) originalCalloc;
decltype(&std::realloc) originalRealloc;
decltype(&std::free) originalFree;

void* CountedMalloc(std::size_t size)
{
    return TheBooks().Add(originalMalloc(size), size);
}

void* CountedCalloc(std::size_t count, std::size_t size)
{
    return TheBooks().Add(originalCalloc(count, size), count * size);
}

// A block that cannot be moved stays, uncounted: there is no memory left for anything then.
void* CountedRealloc(void* block, std::size_t size)
{
    TheBooks().Remove(block);
    return TheBooks().Add(originalRealloc(block, size), size);
}

void CountedFree(void* block)
{
    TheBooks().Remove(block);
    originalFree(block);
}

template <class Function>
const void* Address(Function function)
{
    return reinterpret_cast<const void*>(function);
}
} // namespace

LibraryHeap::LibraryHeap(HMODULE module)
    : m_malloc(module, "malloc", Address(&CountedMalloc)), m_calloc(module, "calloc", Address(&CountedCalloc)),
      m_realloc(module, "realloc", Address(&CountedRealloc)), m_free(module, "free", Address(&CountedFree))
{
    originalMalloc = m_malloc.Original<decltype(originalMalloc)>();
    originalCalloc = m_calloc.Original<decltype(originalCalloc)>();
    originalRealloc = m_realloc.Original<decltype(originalRealloc)>();
    originalFree = m_free.Original<decltype(originalFree)>();
}

LibraryHeap::~LibraryHeap()
{
    TheBooks().Clear();
}

std::size_t LibraryHeap::Blocks() const
{
    return TheBooks().Blocks();
}

std::size_t LibraryHeap::Bytes() const
{
    return TheBooks().Bytes();
}
