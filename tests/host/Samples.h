#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <type_traits>

// Values that show a wrong width, a wrong sign or two exchanged arguments: the highest bit of every width is set, and
// neighbouring seeds differ in every byte.
template <typename Value>
Value Sample(unsigned seed)
{
    if constexpr (std::is_void_v<Value>)
        return;
    else if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<Value>(static_cast<std::uintptr_t>(0x10000u + 16u * seed));
    else if constexpr (std::is_floating_point_v<Value>)
        return static_cast<Value>(seed) + Value{0.375};
    else
        return static_cast<Value>(0xF1F1F1F1u - 0x01010101u * (seed % 64u));
}

template <typename Value>
void Describe(std::ostream& stream, Value value)
{
    if constexpr (std::is_pointer_v<Value>)
        stream << static_cast<const void*>(value);
    else
        stream << +value;
}

// One call as text: each argument follows a blank.
template <typename... Arguments>
std::string CallText(const char* name, Arguments... arguments)
{
    std::ostringstream stream;
    stream << name;
    (Describe(stream << ' ', arguments), ...);
    return stream.str();
}
