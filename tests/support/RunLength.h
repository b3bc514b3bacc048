#pragma once

#include <string>

// How often a seeded test repeats itself, and from which seed on: ./test.sh --long and --seed decide.

// The second number in a long run.
unsigned RunCount(unsigned usual, unsigned inLongRun);

// 1 where nobody asked for another one, so that a usual run is the same every time.
unsigned FirstSeed();

// What repeats the run of one seed; the filter names the test.
std::string CommandToRepeat(unsigned seed, const std::string& filter);
