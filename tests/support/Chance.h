#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <random>

// The same choices for the same seed, in every build.
class Chance
{
public:
    explicit Chance(unsigned seed) : m_engine(seed) {}

    std::uint32_t Bits() { return static_cast<std::uint32_t>(m_engine()); }
    // 0 to count - 1; 0 where there is nothing to choose from.
    template <class Count>
    Count Below(Count count)
    {
        return count == 0 ? count : static_cast<Count>(Bits() % static_cast<std::uint32_t>(count));
    }
    int Between(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
    bool OneIn(unsigned count) { return Below(count) == 0; }

    template <class Value>
    Value OneOf(std::initializer_list<Value> values)
    {
        return values.begin()[Below(values.size())];
    }
    template <class Values>
    const auto& OneOf(const Values& values)
    {
        return values[Below(std::size(values))];
    }

private:
    std::mt19937 m_engine;
};
