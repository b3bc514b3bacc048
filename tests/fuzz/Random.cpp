#include "tests/fuzz/Random.h"

// A counter whose bits are mixed (multiply and shift) until each depends on all.
std::uint64_t Random::Next()
{
    m_state += 0x9E3779B97F4A7C15;
    std::uint64_t mixed = m_state;
    mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EB;
    return mixed ^ mixed >> 31;
}
