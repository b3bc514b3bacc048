#include "tests/support/RunLength.h"

#include <cstdlib>

namespace
{
#if defined(QUORVANE_CHECKED)
constexpr const char* kArch = "x64-checked";
#elif !defined(_WIN32)
constexpr const char* kArch = "native-asan";
#elif defined(_WIN64)
constexpr const char* kArch = "x64";
#else
constexpr const char* kArch = "x86";
#endif
} // namespace

unsigned RunCount(unsigned usual, unsigned inLongRun)
{
#if defined(QUORVANE_CHECKED)
    usual /= 4; // each run takes that much longer, and has been made in full without the checks
#endif
    return std::getenv("QUORVANE_LONG") ? inLongRun : usual;
}

unsigned FirstSeed()
{
    const char* const seed = std::getenv("QUORVANE_SEED");
    return seed ? static_cast<unsigned>(std::strtoul(seed, nullptr, 10)) : 1;
}

std::string CommandToRepeat(unsigned seed, const std::string& filter)
{
    return std::string("./test.sh --arch ") + kArch + " --seed " + std::to_string(seed) + " --filter '" + filter + "'";
}
