#pragma once

#include "refhost/Machine.h"

// The small machine of the scheme editors, with what the print-mode editor asks for besides.
refhost::Machine WholeMachine();
