// The compiler's start-up code for x86 looks for libgcc_s_dw2-1.dll in the process. A host has it as soon as one of its
// plug-ins was linked with the shared run-time library. The start-up code would then register this module's unwind
// tables there, but this module unwinds with its own copy, which would find none: its first exception would end the
// process.
#if defined(__i386__)
#include <cstring>
#include <windows.h>

namespace
{
HMODULE WINAPI GetModuleHandleButOfSharedRuntime(const char* name)
{
    HMODULE module = nullptr;
    if (name && std::strcmp(name, "libgcc_s_dw2-1.dll") == 0)
        return nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, name, &module);
    return module;
}
} // namespace

// Stands where the linker would put the pointer that the system fills in.
extern "C" decltype(&::GetModuleHandleA) const importOfGetModuleHandleA asm("__imp__GetModuleHandleA@4");
decltype(&::GetModuleHandleA) const importOfGetModuleHandleA = &GetModuleHandleButOfSharedRuntime;
#endif
