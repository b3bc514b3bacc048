#pragma once

#include <functional>
#include <windows.h>

// One function that a module imports by its name.
struct Import
{
    const char* library;
    const char* function;
    ULONG_PTR* slot; // where the module finds its address
};

// The start-up code of the module need not have run yet.
void ForEachImport(HMODULE module, const std::function<void(const Import&)>& visit);

// The module's imports may be read-only by now.
void StoreInSlot(ULONG_PTR* slot, ULONG_PTR address);
