#pragma once

#include "tests/support/Chance.h"

#include <cstdint>
#include <string>

// How a hostile host behaves in one run: which faults it has, how often, and from when on. The seed decides.
class Temper
{
public:
    // A sound host's.
    Temper() = default;
    explicit Temper(unsigned seed);

    // A host that throws across a table can be met only where the unwinder knows the frames of both modules.
#if defined(__i386__)
    static constexpr bool kCanThrow = false;
#else
    static constexpr bool kCanThrow = true;
#endif

    // One call more. Until the quiet calls at the beginning are over, every chance fails.
    void CountCall()
    {
        ++m_calls;
    }

    bool GivesNull()
    {
        return Happens(m_nulls);
    }
    bool GivesAnotherObject()
    {
        return Happens(m_strangers);
    }
    bool GivesText()
    {
        return Happens(m_texts);
    }
    bool GivesNumber()
    {
        return Happens(m_numbers);
    }
    bool GivesCount()
    {
        return Happens(m_counts);
    }
    bool Throws()
    {
        return kCanThrow && Happens(m_throws);
    }
    bool DispatchesMessages()
    {
        return Happens(m_messages);
    }
    bool LosesObjects()
    {
        return Happens(m_losses);
    }
    bool IgnoresChange()
    {
        return Happens(m_ignored);
    }

    std::uint32_t Count(std::uint32_t sound);
    std::uint64_t Number();
    float Float();
    std::string Text();
    std::uint32_t Bits()
    {
        return m_chance.Bits();
    }
    // Which of so many.
    std::uint32_t Below(std::uint32_t count)
    {
        return m_chance.Below(count);
    }

    std::string Describe() const;

private:
    // In a thousand calls.
    unsigned Frequency(unsigned atMost);
    bool Happens(unsigned frequency);

    Chance m_chance{0};
    unsigned m_calls = 0;
    unsigned m_quietCalls = 0;
    unsigned m_nulls = 0, m_strangers = 0, m_texts = 0, m_numbers = 0, m_counts = 0;
    unsigned m_throws = 0, m_messages = 0, m_losses = 0, m_ignored = 0;
};
