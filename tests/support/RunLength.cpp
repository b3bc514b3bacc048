#include "tests/support/RunLength.h"

#include <cstdlib>

unsigned RunCount(unsigned usual, unsigned inLongRun)
{
    return std::getenv("QUORVANE_LONG") ? inLongRun : usual;
}

unsigned FirstSeed()
{
    const char* const seed = std::getenv("QUORVANE_SEED");
    return seed ? static_cast<unsigned>(std::strtoul(seed, nullptr, 10)) : 1;
}
