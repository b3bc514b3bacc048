#pragma once

#include "refhost/Machine.h"

#include <string>
#include <vector>

// What the machines of the tests are made of.

// Without any list entry.
refhost::Machine EmptyMachine();

refhost::PrintConfig Config(const std::string& name, const std::vector<std::string>& modes = {});
refhost::FactoryScheme FactorySchemeOf(int config);
refhost::UserScheme UserSchemeOf(int config);
