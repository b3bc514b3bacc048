#include "tests/support/ImportHook.h"

#include "tests/support/ImportTable.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace
{
ULONG_PTR* FindSlot(HMODULE module, const char* function)
{
    ULONG_PTR* slot = nullptr;
    ForEachImport(module, [&](const Import& import) {
        if (!slot && std::strcmp(import.function, function) == 0)
            slot = import.slot;
    });
    if (!slot)
        throw std::runtime_error(std::string("the module does not import ") + function);
    return slot;
}
} // namespace

ImportHook::ImportHook(HMODULE module, const char* function, const void* replacement)
    : m_slot(FindSlot(module, function)), m_original(*m_slot)
{
    StoreInSlot(m_slot, reinterpret_cast<ULONG_PTR>(replacement));
}

ImportHook::~ImportHook()
{
    StoreInSlot(m_slot, m_original);
}
