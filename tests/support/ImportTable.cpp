#include "tests/support/ImportTable.h"

namespace
{
template <class T>
const T* At(HMODULE module, ULONG_PTR offset)
{
    return reinterpret_cast<const T*>(reinterpret_cast<const char*>(module) + offset);
}

const IMAGE_IMPORT_DESCRIPTOR* FirstLibrary(HMODULE module)
{
    const auto* dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = At<IMAGE_NT_HEADERS>(module, static_cast<DWORD>(dos->e_lfanew));
    return At<IMAGE_IMPORT_DESCRIPTOR>(
        module, headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
}
} // namespace

void ForEachImport(HMODULE module, const std::function<void(const Import&)>& visit)
{
    for (const auto* library = FirstLibrary(module); library->Name; ++library)
    {
        const auto* name = At<IMAGE_THUNK_DATA>(module, library->OriginalFirstThunk);
        const auto* slot = At<IMAGE_THUNK_DATA>(module, library->FirstThunk);
        for (; name->u1.AddressOfData; ++name, ++slot)
            if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                visit({At<char>(module, library->Name), At<IMAGE_IMPORT_BY_NAME>(module, name->u1.AddressOfData)->Name,
                       reinterpret_cast<ULONG_PTR*>(const_cast<IMAGE_THUNK_DATA*>(slot))});
    }
}

void StoreInSlot(ULONG_PTR* slot, ULONG_PTR address)
{
    DWORD protection = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = address;
    VirtualProtect(slot, sizeof *slot, protection, &protection);
}
