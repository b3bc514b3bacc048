// A machine's data as a JSON file.
#pragma once

#include <string>
#include <string_view>

#include "refhost/Machine.h"
#include "refhost/MachineFileError.h"

namespace refhost
{

/// Throws MachineFileError, whose text names the file and the place in it (line and column, or the value). The file
/// is only read.
Machine LoadMachine(const std::wstring& path);

/// Throws MachineFileError; the old file is untouched then.
void SaveMachine(const Machine& machine, const std::wstring& path);

/// The same without a file.
Machine ParseMachine(std::string_view text);
std::string FormatMachine(const Machine& machine);

} // namespace refhost
