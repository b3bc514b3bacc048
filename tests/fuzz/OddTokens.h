#pragma once

#include "tests/fuzz/Random.h"

#include <string>

// Something that a machine file has seldom or never: limits of numbers, ill-formed text, deep nesting.
const std::string& OddToken(Random& random);
