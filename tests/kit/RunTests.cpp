// Runs the programs of the test kit and writes a report. See docs/windows.md.
#include "tests/kit/Kit.h"
#include "tests/kit/Report.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <windows.h>

namespace
{
constexpr char kUsage[] = "Usage: run.cmd [--filter PATTERN] [--timeout SECONDS]\n"
                          "  --filter PATTERN    run only tests whose full name matches (a GoogleTest filter)\n"
                          "  --timeout SECONDS   end a program that runs longer (default: 1800)\n";

void Write(const std::wstring& path, const std::string& text)
{
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    file << text;
    file.close();
    if (!file)
        throw std::runtime_error("report.html cannot be written: copy the kit to where files can be written");
}

// A program that fails must not ask anybody, and the screen must stay on.
void PrepareSystem()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    SetThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED | ES_DISPLAY_REQUIRED);
}

Counts CountsOf(const std::vector<ProgramResult>& programs)
{
    Counts counts;
    for (const ProgramResult& program : programs)
        Count(program, counts);
    return counts;
}

// After each program: a machine that breaks down has left a report of what came before.
Counts RunAndReport(const Options& options)
{
    std::vector<ProgramResult> all;
    const auto report = [&](Progress progress) {
        Write(Kit::PathOf(L"report.html"), ReportOf(all, CountsOf(all), progress));
    };
    report(Progress::Running); // before hours go by for a report that cannot be written
    Kit(options).Run([&](const std::vector<ProgramResult>& results) {
        all = results;
        report(Progress::Running);
    });
    report(Progress::Ended);
    return CountsOf(all);
}

int RunKit(const Options& options)
{
    PrepareSystem();
    const Counts counts = RunAndReport(options);
    if (counts.passed + counts.failed == 0)
        std::printf("No test was run\n");
    std::printf("The report is in report.html\n%s\n", TextOf(counts).c_str());
    return counts.failed > 0 || counts.passed == 0 ? 1 : 0;
}
} // namespace

int main(int argc, char** argv)
try
{
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    const std::optional<Options> options = OptionsOf({argv + 1, argv + argc});
    if (!options)
        return std::fputs(kUsage, stderr), 2;
    return options->probe ? static_cast<int>(kProbeExitCode) : RunKit(*options);
}
catch (const std::exception& error)
{
    std::fprintf(stderr, "RunTests: %s\n", error.what());
    return 1;
}
