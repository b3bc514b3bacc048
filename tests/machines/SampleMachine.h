#pragma once

#include "refhost/Machine.h"

// The one that is handed out with the reference host: from its file beside the program.
refhost::Machine SampleMachine();
