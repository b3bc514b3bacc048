#pragma once

#include "RawTable.h"
#include "Samples.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

/// What a stub's operations do: write down their call and answer with the sample of their position.
class Recorder
{
public:
    std::vector<std::string> TakeCalls() { return std::exchange(m_calls, {}); }

protected:
    template <typename Result, typename... Arguments>
    Result Ran(unsigned position, const char* name, Arguments... arguments)
    {
        m_calls.push_back(CallText(name, arguments...));
        return Sample<Result>(position);
    }

private:
    std::vector<std::string> m_calls;
};

/// Checks one object's table position by position.
class PositionCheck
{
public:
    PositionCheck(void* object, Recorder& recorder) : m_object(object), m_recorder(recorder) {}

    template <typename Result, typename... Arguments>
    void Used(unsigned position, const char* name)
    {
        CallWithSamples<Result, Arguments...>(position, name, std::index_sequence_for<Arguments...>());
        m_used.insert(position);
    }

    /// The used positions are count in number, every other one runs nothing, and the table ends after the last.
    void Complete(std::size_t count)
    {
        EXPECT_EQ(m_used.size(), count);
        const unsigned last = *m_used.rbegin();
        for (unsigned position = 0; position < last; ++position)
        {
            if (m_used.count(position) == 0)
                ExpectReserved(position);
        }
        CallPosition<void>(m_object, last + 1);
        EXPECT_EQ(m_recorder.TakeCalls(), std::vector<std::string>{"PastTheEnd"});
    }

private:
    template <typename Result, typename... Arguments, std::size_t... Indices>
    void CallWithSamples(unsigned position, const char* name, std::index_sequence<Indices...>)
    {
        CallWith<Result>(position, name, Sample<Arguments>(position + 1 + static_cast<unsigned>(Indices))...);
    }

    template <typename Result, typename... Arguments>
    void CallWith(unsigned position, const char* name, Arguments... arguments)
    {
        SCOPED_TRACE("position " + std::to_string(position));
        if constexpr (std::is_void_v<Result>)
            CallPosition<Result>(m_object, position, arguments...);
        else
            EXPECT_EQ(CallText("result", CallPosition<Result>(m_object, position, arguments...)),
                      CallText("result", Sample<Result>(position)));
        EXPECT_EQ(m_recorder.TakeCalls(), std::vector<std::string>{CallText(name, arguments...)});
    }

    void ExpectReserved(unsigned position)
    {
        SCOPED_TRACE("position " + std::to_string(position));
        CallPosition<void>(m_object, position);
        EXPECT_EQ(m_recorder.TakeCalls(), std::vector<std::string>{});
    }

    void* m_object;
    Recorder& m_recorder;
    std::set<unsigned> m_used;
};

// A table of positions is a macro POSITIONS_OF_<interface>(OP0, OP1, OP2, OP3): one row per used position, with the
// number of its arguments in the row's own name. The stub and its check are both made from the same rows, so that the
// compiler compares each row with the header and the test compares it with the table.
#define STUB_OP0(position, result, name)                                                                               \
    result name() override                                                                                             \
    {                                                                                                                  \
        return Ran<result>(position, #name);                                                                           \
    }
#define STUB_OP1(position, result, name, type1)                                                                        \
    result name(type1 a) override                                                                                      \
    {                                                                                                                  \
        return Ran<result>(position, #name, a);                                                                        \
    }
#define STUB_OP2(position, result, name, type1, type2)                                                                 \
    result name(type1 a, type2 b) override                                                                             \
    {                                                                                                                  \
        return Ran<result>(position, #name, a, b);                                                                     \
    }
#define STUB_OP3(position, result, name, type1, type2, type3)                                                          \
    result name(type1 a, type2 b, type3 c) override                                                                    \
    {                                                                                                                  \
        return Ran<result>(position, #name, a, b, c);                                                                  \
    }

#define CHECK_OP0(position, result, name) check.Used<result>(position, #name);
#define CHECK_OP1(position, result, name, type1) check.Used<result, type1>(position, #name);
#define CHECK_OP2(position, result, name, type1, type2) check.Used<result, type1, type2>(position, #name);
#define CHECK_OP3(position, result, name, type1, type2, type3) check.Used<result, type1, type2, type3>(position, #name);

/// The test of one interface. count stands for itself, so that a row lost from the table is noticed too.
#define POSITION_TEST(interface_, count)                                                                               \
    class Stub##interface_ final : public interface_, public Recorder                                                  \
    {                                                                                                                  \
    public:                                                                                                            \
        POSITIONS_OF_##interface_(STUB_OP0, STUB_OP1, STUB_OP2, STUB_OP3) virtual void PastTheEnd()                    \
        {                                                                                                              \
            Ran<void>(0, "PastTheEnd");                                                                                \
        }                                                                                                              \
    };                                                                                                                 \
    TEST(Positions, interface_)                                                                                        \
    {                                                                                                                  \
        Stub##interface_ stub;                                                                                         \
        PositionCheck check(static_cast<interface_*>(&stub), stub);                                                    \
        POSITIONS_OF_##interface_(CHECK_OP0, CHECK_OP1, CHECK_OP2, CHECK_OP3) check.Complete(count);                   \
    }
