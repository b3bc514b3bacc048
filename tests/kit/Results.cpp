#include "tests/kit/Results.h"

void Count(const ProgramResult& program, Counts& counts)
{
    for (const TestResult& test : program.tests)
        switch (test.outcome)
        {
        case Outcome::Passed:
            ++counts.passed;
            break;
        case Outcome::Failed:
            ++counts.failed;
            break;
        case Outcome::Skipped:
            ++counts.skipped;
            break;
        }
}

std::string TextOf(const Counts& counts)
{
    return std::to_string(counts.passed) + " passed, " + std::to_string(counts.failed) + " failed, " +
           std::to_string(counts.skipped) + " skipped";
}
