#pragma once

#include <string>
#include <string_view>

// The input that is being tried. A seed is one test case, and stands for many inputs.
struct FuzzInput
{
    const char* kind = "";
    unsigned seed = 0;
    unsigned number = 0;
    std::string_view bytes;

    // Below the folder of the program; the folder exists.
    std::string File() const;
};

// Where a crash finds out what to keep.
FuzzInput& CurrentInput();

// Keeps the current input in its file and returns what to tell: which one it is and how to try it again.
std::string KeepCurrentInput();
