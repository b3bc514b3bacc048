#pragma once

#include "refhost/Machine.h"
#include "tests/support/Chance.h"

// A small machine with lists of any length, none included, and with values at and beyond the borders of what an editor
// can show. Names are in the machine's code page: Western or Chinese.
refhost::Machine RandomMachine(Chance& chance);
