#pragma once

#include <string>
#include <vector>
#include <windows.h>

// The toolchain's shared run-time library, as a host's other plug-ins bring it into the process. Loaded before the
// first test, and left loaded.
std::vector<std::wstring> SharedRuntimeFiles();

// Null where the process does not hold the file.
HMODULE SharedRuntimeModule(const std::wstring& file);
