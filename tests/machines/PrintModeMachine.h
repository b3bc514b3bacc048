#pragma once

#include "refhost/Machine.h"

// Only what the print-mode editor asks for.
//
// "Fast" with the modes "Fast-1" and "Fast-2", "Fine" with "Fine-1", "Draft" without modes.
// Four ink groups, three horizontal resolutions, two head layouts with the ids 10 and 11.
refhost::Machine PrintModeMachine();
