// A machine's data as the JSON text that a machine file holds.
#pragma once

#include <string>
#include <string_view>

#include "refhost/Machine.h"

namespace refhost
{

// Throws CMachineFileError, whose text names the place (line and column, or the value).
Machine ParseMachine(std::string_view text);
std::string FormatMachine(const Machine& machine);

} // namespace refhost
