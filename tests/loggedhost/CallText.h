#pragma once

#include <string>
#include <type_traits>
#include <vector>

// How the call log writes an argument.
template <class Value>
std::enable_if_t<std::is_integral_v<Value>, std::string> ArgumentText(Value value)
{
    return std::to_string(value);
}
std::string ArgumentText(float value);
std::string ArgumentText(const char* text);

// Storage for a result is no argument.
inline std::string ArgumentText(const void*)
{
    return std::string();
}

// Separated by commas.
std::string ListText(const std::vector<std::string>& arguments);
