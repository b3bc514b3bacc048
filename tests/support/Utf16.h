#pragma once

#include <string>
#include <string_view>

// The bytes of a text file.
std::string Utf16(std::wstring_view text, bool withMark = true, bool highByteFirst = false);
