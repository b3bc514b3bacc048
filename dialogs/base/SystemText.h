#pragma once

#include <string>
#include <string_view>

// What the system makes of the narrow text of a file. Bytes that stand for nothing become replacement characters.
std::wstring AnsiToWide(std::string_view bytes);
std::wstring Utf8ToWide(std::string_view bytes);
