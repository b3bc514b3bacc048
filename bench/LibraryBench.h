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

// The program's folder with its trailing backslash.
std::wstring ProgramFolder();

// Loads the library and makes its interface object again and again; to be called before any editor ran, because a run
// keeps the library loaded. It is left loaded.
LoadedLibrary MeasureLoading(Report& report, int rounds);

// Texts of the language file against the system's profile call.
void MeasureLanguage(Report& report, int rounds);

// The most that the whole process has had so far.
void MeasureMemory(Report& report, const std::string& name);
