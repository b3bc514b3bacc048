#pragma once

#include "bench/Report.h"
#include "host/IQuorvane.h"

#include <string>
#include <windows.h>

struct LoadedLibrary
{
    HMODULE module;
    IQuorvane* editors;
};

// The program's folder, with a trailing backslash.
std::wstring ProgramFolder();

// Loads the library and creates its interface object repeatedly. Call it before any editor runs, because a run keeps
// the library loaded. The library stays loaded afterwards.
LoadedLibrary MeasureLoading(Report& report, int rounds);

// Measures texts of the language file against the system's profile call.
void MeasureLanguage(Report& report, int rounds);

// Measures the peak memory of the whole process so far.
void MeasureMemory(Report& report, const std::string& name);
