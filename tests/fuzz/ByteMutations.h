#pragma once

#include <string>
#include <string_view>

#include "tests/fuzz/Random.h"

// What happens to a file at the hands of broken programs and disks: one change that knows nothing of the format.
void MutateBytes(std::string& bytes, std::string_view other, Random& random);
