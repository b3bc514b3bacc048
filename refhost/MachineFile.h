// A machine's data as a JSON file.
#pragma once

#include <string>

#include "refhost/MachineFileError.h"
#include "refhost/MachineText.h"

namespace refhost
{

// Throws CMachineFileError, whose text names the file and the place in it (line and column, or the value). The file
// is only read.
Machine LoadMachine(const std::wstring& path);

// Throws CMachineFileError; the old file is untouched then.
void SaveMachine(const Machine& machine, const std::wstring& path);

} // namespace refhost
