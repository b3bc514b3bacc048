#pragma once

#include "tests/support/Chance.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

enum class Fault
{
    Null,
    AnotherObject,
    Text,
    Number,
    Count,
    Exception,
    Messages, // dispatched while the host saves
    Loss,     // of an object that the library may still show
    IgnoredChange
};
constexpr std::size_t kFaultKinds = 9;
// By kind.
using FaultCounts = std::array<unsigned, kFaultKinds>;

// How a hostile host behaves in one run: which faults it has, how often, and from when on. The seed decides.
class Temper
{
public:
    // A sound host's.
    Temper() = default;
    explicit Temper(unsigned seed);

    // A host that throws across a table can be met only where the unwinder knows the frames of both modules.
    static constexpr bool kCanThrow = sizeof(void*) == 8;

    // One call more. Until the quiet calls at the beginning are over, every chance fails.
    void CountCall() { ++m_calls; }

    bool GivesNull() { return Happens(Fault::Null); }
    bool GivesAnotherObject() { return Happens(Fault::AnotherObject); }
    bool GivesText() { return Happens(Fault::Text); }
    bool GivesNumber() { return Happens(Fault::Number); }
    bool GivesCount() { return Happens(Fault::Count); }
    bool Throws() { return kCanThrow && Happens(Fault::Exception); }
    bool DispatchesMessages() { return Happens(Fault::Messages); }
    bool LosesObjects() { return Happens(Fault::Loss); }
    bool IgnoresChange() { return Happens(Fault::IgnoredChange); }

    std::uint32_t Count(std::uint32_t sound);
    std::uint64_t Number();
    float Float();
    std::string Text();
    std::uint32_t Bits() { return m_chance.Bits(); }
    // Which of so many.
    std::uint32_t Below(std::uint32_t count) { return m_chance.Below(count); }

    std::string Describe() const;
    // How often each fault has happened.
    const FaultCounts& Happened() const { return m_happened; }

private:
    // In a thousand calls.
    unsigned Frequency(unsigned atMost);
    bool Happens(Fault fault);

    Chance m_chance{0};
    unsigned m_calls = 0;
    unsigned m_quietCalls = 0;
    FaultCounts m_frequencies{};
    FaultCounts m_happened{};
};
