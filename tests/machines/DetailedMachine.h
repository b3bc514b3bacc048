#pragma once

#include <string>

#include "refhost/Machine.h"

// Two configurations with two modes and one mode, two schemes of each kind, something in every list.
refhost::Machine DetailedMachine();

// Its file, with the text that stands once in it replaced.
std::string DetailedMachineFileWith(const std::string& text, const std::string& replacement);
