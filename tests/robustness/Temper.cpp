#include "tests/robustness/Temper.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <sstream>

namespace
{
constexpr unsigned kThousand = 1000;
// In the order of the faults.
constexpr FaultCounts kMostInAThousand = {300, 100, 500, 1000, 200, 20, 1000, 5, 200};
constexpr const char* kFaultNames[kFaultKinds] = {
    "null",      "another object",        "text",         "number",         "count",
    "exception", "messages while saving", "lost objects", "ignored changes"};
constexpr std::uint32_t kLongestText = 5000;
// More rows than any list has, few enough to be listed in no time.
constexpr std::uint32_t kManyRows = 300;
} // namespace

Temper::Temper(unsigned seed) : m_chance(seed)
{
    constexpr unsigned quietCalls[] = {0, 0, 200, 2000, 8000};
    m_quietCalls = m_chance.OneOf(quietCalls);
    for (std::size_t kind = 0; kind < kFaultKinds; ++kind)
        m_frequencies[kind] = Frequency(kMostInAThousand[kind]);
}

// Half of the hosts do not have the fault; of the others most have it seldom, so that an editor gets far.
unsigned Temper::Frequency(unsigned atMost)
{
    if (m_chance.Below(2) == 0)
        return 0;
    const unsigned divisors[] = {1, 10, 100};
    return std::max(1u, atMost / divisors[m_chance.Below(3)]);
}

bool Temper::Happens(Fault fault)
{
    const auto kind = static_cast<std::size_t>(fault);
    const unsigned frequency = m_frequencies[kind];
    const bool happens = frequency > 0 && m_calls > m_quietCalls && m_chance.Below(kThousand) < frequency;
    m_happened[kind] += happens;
    return happens;
}

std::uint32_t Temper::Count(std::uint32_t sound)
{
    const std::uint32_t counts[] = {0,         sound - 1,   sound + 1,   m_chance.Below(20u), m_chance.Below(kManyRows),
                                    1'000'001, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFEu,         0xFFFFFFFFu};
    return m_chance.OneOf(counts);
}

std::uint64_t Temper::Number()
{
    constexpr std::int64_t numbers[] = {0,   -1,  -2,   1,    2,     100,   127,   128,   200,        255,
                                        256, 999, 1000, 1001, 32767, 32768, 65535, 65536, 0x7FFFFFFF, -0x7FFFFFFF - 1};
    const std::size_t chosen = m_chance.Below(2 * std::size(numbers));
    return chosen < std::size(numbers) ? static_cast<std::uint64_t>(numbers[chosen]) : m_chance.Bits();
}

float Temper::Float()
{
    using Limits = std::numeric_limits<float>;
    const float floats[] = {Limits::quiet_NaN(),
                            Limits::infinity(),
                            -Limits::infinity(),
                            Limits::max(),
                            Limits::lowest(),
                            Limits::denorm_min(),
                            -0.0f,
                            1e-30f};
    return m_chance.OneOf(floats);
}

// Any bytes but zero: most are no text of any code page.
std::string Temper::Text()
{
    const std::uint32_t lengths[] = {0, 1, 2, 59, 60, 61, 62, 63, 64, 255, 259, 260, 261, 1023, 1024};
    const std::size_t chosen = m_chance.Below(2 * std::size(lengths));
    std::string text(chosen < std::size(lengths) ? lengths[chosen] : m_chance.Below(kLongestText + 1), '\0');
    const bool isPercent = m_chance.Below(8) == 0;
    for (char& character : text)
        character = isPercent ? "%sn\\"[m_chance.Below(4)] : static_cast<char>(1 + m_chance.Below(255));
    return text;
}

std::string Temper::Describe() const
{
    std::ostringstream text;
    text << "in a thousand calls after the first " << m_quietCalls << ":";
    for (std::size_t kind = 0; kind < kFaultKinds; ++kind)
        text << ' ' << kFaultNames[kind] << ' ' << m_frequencies[kind] << (kind + 1 < kFaultKinds ? "," : "");
    return text.str();
}
