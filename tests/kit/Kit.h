#pragma once

#include "tests/kit/TestPrograms.h"

#include <functional>

// What the system started this program with --probe ends with where it can run programs of its kind.
constexpr unsigned long kProbeExitCode = 42;

// Every program of the kit: a folder for each architecture, with the names of its programs in tests.list.
class Kit
{
public:
    explicit Kit(const Options& options);

    // Prints on the way how far it is, and hands over all results so far after each program.
    void Run(const std::function<void(const std::vector<ProgramResult>&)>& tell);
    static std::wstring PathOf(const std::wstring& name);

private:
    struct Part
    {
        std::string arch;
        std::vector<std::string> programs;
        std::string reason; // why the system cannot run them
    };

    static Part PartOf(const std::string& arch);
    ProgramResult ResultOf(const Part& part, const std::string& program);

    TestPrograms m_programs;
};
