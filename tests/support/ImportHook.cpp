#include "tests/support/ImportHook.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace
{
template <class T>
const T* At(HMODULE module, DWORD offset)
{
    return reinterpret_cast<const T*>(reinterpret_cast<const char*>(module) + offset);
}

const IMAGE_IMPORT_DESCRIPTOR* Imports(HMODULE module)
{
    const auto* dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = At<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    return At<IMAGE_IMPORT_DESCRIPTOR>(
        module, headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
}

// Null where the library is not the one that the function comes from.
ULONG_PTR* FindSlot(HMODULE module, const IMAGE_IMPORT_DESCRIPTOR& library, const char* function)
{
    const auto* names = At<IMAGE_THUNK_DATA>(module, library.OriginalFirstThunk);
    const auto* slots = At<IMAGE_THUNK_DATA>(module, library.FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++slots)
    {
        if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
            continue;
        const auto* name = At<IMAGE_IMPORT_BY_NAME>(module, static_cast<DWORD>(names->u1.AddressOfData));
        if (std::strcmp(name->Name, function) == 0)
            return reinterpret_cast<ULONG_PTR*>(const_cast<IMAGE_THUNK_DATA*>(slots));
    }
    return nullptr;
}

ULONG_PTR* FindSlot(HMODULE module, const char* function)
{
    for (const auto* library = Imports(module); library->Name; ++library)
        if (ULONG_PTR* slot = FindSlot(module, *library, function))
            return slot;
    throw std::runtime_error(std::string("the module does not import ") + function);
}

void Store(ULONG_PTR* slot, ULONG_PTR address)
{
    DWORD protection = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = address;
    VirtualProtect(slot, sizeof *slot, protection, &protection);
}
} // namespace

ImportHook::ImportHook(HMODULE module, const char* function, const void* replacement)
    : m_slot(FindSlot(module, function)), m_original(*m_slot)
{
    Store(m_slot, reinterpret_cast<ULONG_PTR>(replacement));
}

ImportHook::~ImportHook()
{
    Store(m_slot, m_original);
}
