#pragma once

#include <cstdlib>
#include <windows.h>

// The number before the first dot; 0 on Windows.
inline unsigned WineVersion()
{
    using GetVersion = const char*(CDECL*)();
    const auto getVersion = reinterpret_cast<GetVersion>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version")));
    return getVersion ? static_cast<unsigned>(std::strtoul(getVersion(), nullptr, 10)) : 0;
}
