#pragma once

#include <string>

// The number in decimal digits. std::to_wstring gives the same, but brings the whole of the C library's wide formatting
// into the DLL.
inline std::wstring NumberText(int number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}
