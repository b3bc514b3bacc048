#pragma once

#include "refhost/Machine.h"

#include <string>

// The first value in which the machines differ, with its place and both values; empty where they are the same.
std::string FirstDifference(const refhost::Machine& expected, const refhost::Machine& actual);
