#include "tests/support/FaultReport.h"

#include <cstdio>
#include <windows.h>

namespace
{
// Of the process: each module that was built with this file has a handler of its own.
constexpr wchar_t kAllowed[] = L"QUORVANE_FAULTS_ALLOWED";

bool AreAllowed()
{
    return GetEnvironmentVariableW(kAllowed, nullptr, 0) != 0;
}

constexpr DWORD kFaults[] = {EXCEPTION_ACCESS_VIOLATION,    EXCEPTION_DATATYPE_MISALIGNMENT,
                             EXCEPTION_ILLEGAL_INSTRUCTION, EXCEPTION_INT_DIVIDE_BY_ZERO,
                             EXCEPTION_PRIV_INSTRUCTION,    EXCEPTION_STACK_OVERFLOW};

bool IsFault(DWORD code)
{
    for (const DWORD fault : kFaults)
        if (code == fault)
            return true;
    return false;
}

// Null for an address in no module: a call through a bad pointer leads there.
HMODULE ModuleAt(const void* address)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<const wchar_t*>(address), &module);
    return module;
}

// The system's libraries try out addresses and catch what comes of it.
bool IsOurs(HMODULE module)
{
    return !module || module == GetModuleHandleW(nullptr) || module == GetModuleHandleW(L"Quorvane.dll") ||
           module == GetModuleHandleW(L"MsAbiHost.dll") || module == GetModuleHandleW(L"msvcrt.dll");
}

// Reserved and not committed: what nobody touches but by mistake.
bool TouchesGuardedPage(const EXCEPTION_RECORD& record)
{
    MEMORY_BASIC_INFORMATION page = {};
    return record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION &&
           VirtualQuery(reinterpret_cast<const void*>(record.ExceptionInformation[1]), &page, sizeof page) &&
           page.State == MEM_RESERVE;
}

// What was tried at the address.
const char* Access(const EXCEPTION_RECORD& record)
{
    switch (record.ExceptionInformation[0])
    {
    case EXCEPTION_READ_FAULT:
        return "reading";
    case EXCEPTION_WRITE_FAULT:
        return "writing";
    default:
        return "executing";
    }
}

void Print(const EXCEPTION_RECORD& record, HMODULE module)
{
    wchar_t name[MAX_PATH] = L"no module";
    if (module)
        GetModuleFileNameW(module, name, MAX_PATH);
    std::printf("Fault %08lx at offset %llx of %ls", record.ExceptionCode,
                static_cast<unsigned long long>(reinterpret_cast<ULONG_PTR>(record.ExceptionAddress) -
                                                reinterpret_cast<ULONG_PTR>(module)),
                name);
    if (record.ExceptionCode == EXCEPTION_ACCESS_VIOLATION)
        std::printf(", %s address %llx", Access(record),
                    static_cast<unsigned long long>(record.ExceptionInformation[1]));
    std::printf("\n");
    std::fflush(stdout);
}

// The one that the system starts for a program that crashes: it prints a back trace and ends the program. It wants to
// be told again what happened.
void CallDebugger(EXCEPTION_POINTERS* fault)
{
    using RaiseFunction = LONG(NTAPI*)(EXCEPTION_RECORD*, CONTEXT*, BOOLEAN isFirstChance);
    const auto raise = reinterpret_cast<RaiseFunction>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtRaiseException")));
    UnhandledExceptionFilter(fault);
    if (raise)
        raise(fault->ExceptionRecord, fault->ContextRecord, FALSE);
}

LONG CALLBACK Consider(EXCEPTION_POINTERS* fault)
{
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    if (!IsFault(record.ExceptionCode) || AreAllowed())
        return EXCEPTION_CONTINUE_SEARCH;
    const HMODULE module = ModuleAt(record.ExceptionAddress);
    if (!IsOurs(module) && !TouchesGuardedPage(record))
        return EXCEPTION_CONTINUE_SEARCH;
    Print(record, module);
    if (!(GetErrorMode() & SEM_NOGPFAULTERRORBOX))
        CallDebugger(fault);
    TerminateProcess(GetCurrentProcess(), kFaultExitCode);
    return EXCEPTION_CONTINUE_SEARCH;
}
} // namespace

AllowedFaults::AllowedFaults()
{
    SetEnvironmentVariableW(kAllowed, L"1");
}

AllowedFaults::~AllowedFaults()
{
    SetEnvironmentVariableW(kAllowed, nullptr);
}

void EndOnFaults()
{
    AddVectoredExceptionHandler(TRUE, Consider);
}
