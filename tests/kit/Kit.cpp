#include "tests/kit/Kit.h"

#include "tests/kit/ChildProgram.h"
#include "tests/support/BesideProgram.h"
#include "tests/support/FileContent.h"
#include "tests/support/WineVersion.h"

#include <cstdio>
#include <iterator>
#include <sstream>

namespace
{
std::wstring Widened(const std::string& name)
{
    return {name.begin(), name.end()};
}

// Empty where the kit has no such part.
std::vector<std::string> ProgramsIn(const std::wstring& list)
{
    if (GetFileAttributesW(list.c_str()) == INVALID_FILE_ATTRIBUTES)
        return {};
    std::istringstream words(ContentOf(list));
    return {std::istream_iterator<std::string>(words), {}};
}

SkipList SkipsOfThisSystem()
{
    return {ContentOf(Kit::PathOf(L"windows-skips.txt")), WineVersion() > 0 ? "wine" : "windows"};
}

// Some systems start programs for another kind of processor to no avail, others do not start them.
std::string WhyNotRun(const std::string& arch)
{
    constexpr unsigned seconds = 60;
    const ChildEnd probe = RunToEnd(Kit::PathOf(Widened(arch) + L"\\RunTests.exe"), L"--probe", L"NUL", seconds);
    if (probe.startError != 0)
        return "this system does not start " + arch + " programs (error " + std::to_string(probe.startError) + ")";
    return probe.exitCode == kProbeExitCode ? "" : "this system cannot run " + arch + " programs";
}
} // namespace

std::wstring Kit::PathOf(const std::wstring& name)
{
    const std::wstring folder = BesideProgram(L""); // with a backslash behind it
    return folder.substr(0, folder.rfind(L'\\', folder.size() - 2) + 1) + name;
}

Kit::Kit(const Options& options) : m_programs(options, SkipsOfThisSystem()) {}

Kit::Part Kit::PartOf(const std::string& arch)
{
    Part part = {arch, ProgramsIn(PathOf(Widened(arch) + L"\\tests.list")), {}};
    if (!part.programs.empty())
        part.reason = WhyNotRun(arch);
    return part;
}

ProgramResult Kit::ResultOf(const Part& part, const std::string& program)
{
    ProgramResult result = {part.arch, program, {}};
    if (part.reason.empty())
        result.tests = m_programs.Run(PathOf(Widened(part.arch + "\\" + program + ".exe")));
    else
        result.tests = {{"(all of its tests)", Outcome::Skipped, part.reason, {}}};
    return result;
}

void Kit::Run(const std::function<void(const std::vector<ProgramResult>&)>& tell)
{
    const Part parts[] = {PartOf("x64"), PartOf("x86")};
    const std::size_t count = parts[0].programs.size() + parts[1].programs.size();
    std::vector<ProgramResult> results;
    Counts counts;
    for (const Part& part : parts)
        for (const std::string& program : part.programs)
        {
            std::printf("[%d of %d] %s %s ... ", static_cast<int>(results.size()) + 1, static_cast<int>(count),
                        part.arch.c_str(), program.c_str());
            results.push_back(ResultOf(part, program));
            Count(results.back(), counts);
            std::printf("%s so far\n", TextOf(counts).c_str());
            tell(results);
        }
}
