#pragma once

#include <string>
#include <string_view>

// Wide characters hold units of UTF-16, as under Windows. What is no text becomes replacement characters.
std::wstring Utf16FromUtf8(std::string_view utf8);
std::string Utf8FromUtf16(std::wstring_view utf16);
