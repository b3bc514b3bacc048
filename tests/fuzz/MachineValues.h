#pragma once

#include <string>

#include "refhost/Machine.h"

// Every value of a machine in a text of its own form, bit for bit: two machines are the same when these texts are.
std::string MachineValues(const refhost::Machine& machine);
