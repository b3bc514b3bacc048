#pragma once

#include <string>

// What became of a program from the tests' folder that was run to its end.
struct ChildRun
{
    unsigned long exitCode;
    std::string output; // both standard streams
};

// Throws std::runtime_error where it cannot be started.
ChildRun RunChild(const std::wstring& program, const std::wstring& arguments);
