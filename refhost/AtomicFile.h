// Whole files, read and replaced.
#pragma once

#include <string>

namespace refhost
{

// Throws CMachineFileError when the file cannot be read or is far too large to be a machine file.
std::string ReadWholeFile(const std::wstring& path);

// Writes the text to `path` + ".new", has it stored on the disk and puts it in the place of the file. Whatever
// happens, `path` holds the old text or the new one, whole. Throws CMachineFileError; the old file is untouched then
// and nothing is left beside it.
void ReplaceWholeFile(const std::wstring& path, const std::string& text);

} // namespace refhost
