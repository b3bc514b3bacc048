#pragma once

#include "refhost/Machine.h"

#include <string>
#include <vector>

// Small machines for the tests: only what an editor asks for.

refhost::PrintConfig Config(const std::string& name, const std::vector<std::string>& modes = {});

// "Fast" with the modes "Fast-1" and "Fast-2", "Fine" with "Fine-1", "Draft" without modes.
// Four ink groups, three horizontal resolutions, two head layouts with the ids 10 and 11.
refhost::Machine SmallMachine();

// Without any list entry.
refhost::Machine EmptyMachine();

refhost::FactoryScheme FactorySchemeOf(int config);
refhost::UserScheme UserSchemeOf(int config);
