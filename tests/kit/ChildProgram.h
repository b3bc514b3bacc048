#pragma once

#include <string>

struct ChildEnd
{
    unsigned long startError = 0; // of the system, where it did not start
    unsigned long exitCode = 0;
    bool hung = false;
};

// Runs a program in the folder that it lies in, with an empty input. What it prints goes into a file. After the time it
// is ended, with every program that it has started.
ChildEnd RunToEnd(const std::wstring& program, const std::wstring& arguments, const std::wstring& log,
                  unsigned timeoutSeconds);
