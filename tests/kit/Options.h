#pragma once

#include <optional>
#include <string>
#include <vector>

struct Options
{
    std::string filter = "*";
    unsigned timeoutSeconds = 1800; // for a program; only one that hangs takes that long
    bool probe = false;             // only tells by the exit code that programs of this kind can be started
};

// None for arguments that nobody knows.
std::optional<Options> OptionsOf(const std::vector<std::string>& arguments);
