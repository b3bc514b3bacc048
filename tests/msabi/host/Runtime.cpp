#include "tests/msabi/host/Runtime.h"

#include "tests/msabi/host/Report.h"

extern "C"
{
    __declspec(dllimport) void* __stdcall HeapCreate(unsigned long options, size_t initial, size_t maximum);
    __declspec(dllimport) void* __stdcall HeapAlloc(void* heap, unsigned long flags, size_t bytes);
    __declspec(dllimport) int __stdcall HeapFree(void* heap, unsigned long flags, void* block);
    __declspec(dllimport) int __stdcall HeapValidate(void* heap, unsigned long flags, const void* block);

    // The compiler asks for it where floats are used.
    int _fltused = 1;
}

namespace
{
constexpr unsigned long kZeroed = 8;

unsigned g_deletes = 0;

void* Heap()
{
    static void* heap = nullptr;
    if (!heap)
        heap = HeapCreate(0, 0, 0);
    return heap;
}
} // namespace

void* Allocate(size_t bytes)
{
    return HeapAlloc(Heap(), kZeroed, bytes);
}

void Free(void* block)
{
    if (!block)
        return;
    if (HeapValidate(Heap(), 0, block))
        HeapFree(Heap(), 0, block);
    else
        ReportFault("a block of another heap was given to the host's");
}

unsigned Deletes()
{
    return g_deletes;
}

void ForgetDeletes()
{
    g_deletes = 0;
}

void* operator new(size_t bytes)
{
    return Allocate(bytes);
}

void operator delete(void* block) noexcept
{
    ++g_deletes;
    Free(block);
}

void operator delete(void* block, size_t) noexcept
{
    operator delete(block);
}
