#pragma once

#include <string>
#include <vector>

enum class Outcome
{
    Passed,
    Failed,
    Skipped
};

struct TestResult
{
    std::string name;
    Outcome outcome;
    std::string text;    // why, for what has not passed
    std::string picture; // the bytes of a PNG file; empty where there is none
};

struct ProgramResult
{
    std::string arch;
    std::string name;
    std::vector<TestResult> tests;
};

struct Counts
{
    int passed = 0;
    int failed = 0;
    int skipped = 0;
};

void Count(const ProgramResult& program, Counts& counts);
// "N passed, N failed, N skipped"
std::string TextOf(const Counts& counts);
