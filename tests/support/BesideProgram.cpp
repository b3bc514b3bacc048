#include "tests/support/BesideProgram.h"

#include <windows.h>

std::wstring BesideProgram(const std::wstring& name)
{
    wchar_t path[MAX_PATH + 1]{};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program(path);
    return program.substr(0, program.rfind(L'\\') + 1) + name;
}
