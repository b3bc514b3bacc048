#pragma once

#include <cstdint>
#include <random>
#include <vector>

// The same choices for the same seed, in every build.
class Chance
{
public:
    explicit Chance(unsigned seed) : m_engine(seed) {}

    // 0 to count - 1.
    int Below(int count) { return static_cast<int>(m_engine() % static_cast<std::uint32_t>(count)); }
    int Between(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
    bool OneIn(int count) { return Below(count) == 0; }

    template <class T>
    const T& OneOf(const std::vector<T>& values)
    {
        return values[static_cast<std::size_t>(Below(static_cast<int>(values.size())))];
    }

private:
    std::mt19937 m_engine;
};
