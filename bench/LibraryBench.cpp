#include "bench/LibraryBench.h"

#include "dialogs/base/Language.h"
#include "host/Quorvane.h"

#include <fstream>
#include <psapi.h>
#include <stdexcept>

namespace
{
constexpr double kLookUpTarget = 0.01;
constexpr double kSizeTarget = 600;
constexpr double kKib = 1024;

template <class Function>
Function Export(HMODULE module, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

LoadedLibrary Load()
{
    const HMODULE module = LoadLibraryW((ProgramFolder() + L"Quorvane.dll").c_str());
    if (!module)
        throw std::runtime_error("Quorvane.dll cannot be loaded");
    return {module, Export<NewInterfaceFunction>(module, "NewInterface")()};
}

double TimeLoading()
{
    const double start = Now();
    const LoadedLibrary library = Load();
    const double time = Now() - start;
    Export<ReleaseInterfaceFunction>(library.module, "ReleaseInterface")(library.editors);
    FreeLibrary(library.module);
    return time;
}

double TimeLoadingEmpty()
{
    const double start = Now();
    const HMODULE module = LoadLibraryW((ProgramFolder() + L"bench_empty.dll").c_str());
    if (!module)
        throw std::runtime_error("bench_empty.dll cannot be loaded");
    const double time = Now() - start;
    FreeLibrary(module);
    return time;
}

double FileKib(const std::wstring& path)
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data);
    return data.nFileSizeLow / kKib;
}

std::vector<std::wstring> KeysOf(const std::wstring& section, const std::wstring& path)
{
    std::vector<wchar_t> buffer(65536);
    GetPrivateProfileStringW(section.c_str(), nullptr, L"", buffer.data(), static_cast<DWORD>(buffer.size()),
                             path.c_str());
    std::vector<std::wstring> keys;
    for (const wchar_t* key = buffer.data(); *key; key += keys.back().size() + 1)
        keys.emplace_back(key);
    return keys;
}

std::wstring MakeLanguageFolder(int keys)
{
    const std::wstring folder = ProgramFolder() + L"bench-lang";
    CreateDirectoryW(folder.c_str(), nullptr);
    std::string text = "[S]\r\n";
    for (int key = 0; key < keys; ++key)
        text += "KEY" + std::to_string(key) + "=Text number " + std::to_string(key) + "\r\n";
    std::ofstream((folder + L"\\Quorvane.ini").c_str(), std::ios::binary) << text;
    return folder;
}

// Looks up missing keys: these make the system's call read the whole section.
void GrowLanguage(Report& report)
{
    Growth first{"language: first text, by keys in the file", {}, {}, {}};
    Growth later{"language: every later text, by keys in the file", {}, {}, {}};
    constexpr int kLookUps = 200;
    for (int keys : {10, 100, 1000, 10000})
    {
        const std::wstring folder = MakeLanguageFolder(keys);
        const std::wstring path = folder + L"\\Quorvane.ini";
        Samples firstTimes, laterTimes, systemTimes;
        for (int round = 0; round < 5; ++round)
        {
            wchar_t buffer[1024];
            double start = Now();
            GetPrivateProfileStringW(L"S", L"NO_KEY", L"", buffer, 1024, path.c_str());
            systemTimes.Add(Now() - start);
            start = Now();
            SetLanguageFile(folder.c_str(), L"Quorvane.ini");
            LookUpText(L"S", L"KEY0", L"");
            firstTimes.Add(Now() - start);
            start = Now();
            for (int i = 0; i < kLookUps; ++i)
                LookUpText(L"S", L"KEY" + std::to_wstring(i % keys), L"");
            laterTimes.Add((Now() - start) / kLookUps);
        }
        for (Growth* growth : {&first, &later})
        {
            growth->sizes.push_back(keys);
            growth->baseline.push_back(systemTimes.Median());
        }
        first.subject.push_back(firstTimes.Median());
        later.subject.push_back(laterTimes.Median());
        DeleteFileW(path.c_str());
        RemoveDirectoryW(folder.c_str());
    }
    report.growths.push_back(first);
    report.growths.push_back(later);
}
} // namespace

std::wstring ProgramFolder()
{
    wchar_t path[MAX_PATH + 1]{};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring program(path);
    return program.substr(0, program.rfind(L'\\') + 1);
}

LoadedLibrary MeasureLoading(Report& report, int rounds)
{
    Comparison comparison{"load and NewInterface (baseline: an empty library)"};
    TimeLoading();
    TimeLoadingEmpty();
    for (int round = 0; round < rounds; ++round)
    {
        const double empty = TimeLoadingEmpty();
        comparison.Add(TimeLoading(), empty);
    }
    report.comparisons.push_back(comparison);
    report.values.push_back({"size of Quorvane.dll", FileKib(ProgramFolder() + L"Quorvane.dll"), "KiB", kSizeTarget});
    return Load();
}

void MeasureLanguage(Report& report, int rounds)
{
    const std::wstring section = L"DLG_PRINT_SCHEME";
    const std::wstring folder = ProgramFolder() + L"lang\\en";
    const std::wstring path = folder + L"\\Quorvane.ini";
    const std::vector<std::wstring> keys = KeysOf(section, path);
    if (keys.empty())
        throw std::runtime_error("the language file has no keys");
    Comparison first{"language: first text of a run (baseline: the system's call)"};
    Comparison later{"language: every later text (baseline: the system's call)", kLookUpTarget};
    const auto count = static_cast<double>(keys.size());
    for (int round = 0; round < rounds; ++round)
    {
        wchar_t buffer[1024];
        double start = Now();
        for (const std::wstring& key : keys)
            GetPrivateProfileStringW(section.c_str(), key.c_str(), L"", buffer, 1024, path.c_str());
        const double system = (Now() - start) / count;
        start = Now();
        SetLanguageFile(folder.c_str(), L"Quorvane.ini");
        LookUpText(section, keys.front(), L"");
        first.Add(Now() - start, system);
        start = Now();
        for (const std::wstring& key : keys)
            LookUpText(section, key, L"");
        later.Add((Now() - start) / count, system);
    }
    GrowLanguage(report);
    report.comparisons.push_back(first);
    report.comparisons.push_back(later);
}

void MeasureMemory(Report& report, const std::string& name)
{
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    report.values.push_back({name, static_cast<double>(counters.PeakWorkingSetSize) / kKib, "KiB", 0});
}
