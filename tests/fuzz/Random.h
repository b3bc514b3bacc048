#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

// The same numbers for the same seed everywhere. Far quicker to start than the standard library's generators, and every
// input starts one.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t Next();

    std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(Next() % limit); }
    bool OneIn(std::size_t times) { return Below(times) == 0; }

    template <class Choices>
    const auto& Pick(const Choices& choices)
    {
        return choices[Below(std::size(choices))];
    }

private:
    std::uint64_t m_state;
};
