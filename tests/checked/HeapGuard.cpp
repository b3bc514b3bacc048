// Linked into a module, this leads its allocations to a guarded heap, from before its first constructor on. What it or
// the C library allocated elsewhere goes back there. Faults end the program.
#include "tests/checked/GuardedHeap.h"
#include "tests/support/FaultReport.h"
#include "tests/support/ImportHook.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <malloc.h>
#include <new>

namespace
{
using AllocateFunction = void* (*)(std::size_t);
using ResizeFunction = void* (*)(void*, std::size_t);
using FreeFunction = void (*)(void*);

GuardedHeap* heap;
AllocateFunction allocateElsewhere;
ResizeFunction resizeElsewhere;
FreeFunction freeElsewhere;

void* Allocate(std::size_t size)
{
    void* const block = heap->Allocate(size);
    return block ? block : allocateElsewhere(size);
}

void* AllocateZeroed(std::size_t count, std::size_t size)
{
    if (size && count > SIZE_MAX / size)
        return nullptr;
    void* const block = Allocate(count * size);
    return block ? std::memset(block, 0, count * size) : nullptr;
}

// A block of another module's guarded heap, too, is none of the C library's.
void RequireElsewhere(void* block)
{
    if (!HeapValidate(reinterpret_cast<HANDLE>(_get_heap_handle()), 0, block))
        ReportHeapFault("freed or resized by a module that did not allocate it", block);
}

void Free(void* block)
{
    if (!block)
        return;
    if (heap->Owns(block))
        return heap->Free(block);
    RequireElsewhere(block);
    freeElsewhere(block);
}

void* Resize(void* block, std::size_t size)
{
    if (!block)
        return Allocate(size);
    if (!heap->Owns(block))
    {
        RequireElsewhere(block);
        return resizeElsewhere(block, size);
    }
    void* const moved = size ? Allocate(size) : nullptr;
    if (moved)
        std::memcpy(moved, block, std::min(size, heap->SizeOf(block)));
    if (moved || !size)
        Free(block);
    return moved;
}

// The hooks stay for as long as the module does: what it frees last is freed after its destructors.
template <class Function>
Function Lead(HMODULE module, const char* name, Function replacement, void* memory)
{
    return (new (memory) ImportHook(module, name, reinterpret_cast<const void*>(replacement)))->Original<Function>();
}

template <class T>
struct alignas(T) Room
{
    char bytes[sizeof(T)];
};

HMODULE ThisModule()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&heap), &module);
    return module;
}

__attribute__((constructor(101))) void GuardThisModule()
{
    EndOnFaults();
    static Room<GuardedHeap> heapRoom;
    static Room<ImportHook> hookRooms[4];
    heap = new (&heapRoom) GuardedHeap;
    const HMODULE module = ThisModule();
    freeElsewhere = Lead(module, "free", Free, &hookRooms[0]);
    resizeElsewhere = Lead(module, "realloc", Resize, &hookRooms[1]);
    Lead(module, "calloc", AllocateZeroed, &hookRooms[2]);
    allocateElsewhere = Lead(module, "malloc", Allocate, &hookRooms[3]);
}
} // namespace
