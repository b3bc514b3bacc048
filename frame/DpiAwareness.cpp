#include "frame/DpiAwareness.h"

namespace
{
// The system's names for these are DPI_AWARENESS_CONTEXT_SYSTEM_AWARE and DPI_AWARENESS_PER_MONITOR_AWARE. Headers for
// Windows 7 do not have them.
const HANDLE SYSTEM_AWARE = reinterpret_cast<HANDLE>(-2);
constexpr int PER_MONITOR_AWARE = 2;

template <class Function>
Function SystemFunction(const char* name)
{
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandle(L"user32.dll"), name)));
}

HANDLE SetContextOfThread(HANDLE context)
{
    const auto set = SystemFunction<HANDLE(WINAPI*)(HANDLE)>("SetThreadDpiAwarenessContext");
    return set ? set(context) : nullptr;
}

bool IsThreadPerMonitorAware()
{
    const auto get = SystemFunction<HANDLE(WINAPI*)()>("GetThreadDpiAwarenessContext");
    const auto awarenessOf = SystemFunction<int(WINAPI*)(HANDLE)>("GetAwarenessFromDpiAwarenessContext");
    return get && awarenessOf && awarenessOf(get()) == PER_MONITOR_AWARE;
}
} // namespace

CDpiAwareness::CDpiAwareness()
{
    if (!IsThreadPerMonitorAware())
        return;
    if (const HANDLE old = SetContextOfThread(SYSTEM_AWARE))
        m_restore.emplace([old] { SetContextOfThread(old); });
}
