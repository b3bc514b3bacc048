#include "tables/Forwarding.h"
#include "tables/Positions.h"
#include "tests/host/RawTable.h"
#include "tests/host/Samples.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace
{

using Calls = std::vector<std::string>;

// Writes each call down and answers with the sample of its position.
class Recorder
{
public:
    explicit Recorder(Calls& calls) : m_calls(&calls) {}

    template <class Interface, class Result, class... Arguments>
    Result Pass(const tables::Operation& operation, Interface*, Result (Interface::*)(Arguments...),
                Arguments... arguments)
    {
        m_calls->push_back(std::string(operation.interfaceName) + "." + CallText(operation.name, arguments...));
        return Sample<Result>(operation.position);
    }

private:
    Calls* m_calls;
};

// What a host may be: operations of its own stand behind those of the interface.
template <class Interface>
class Stub final : public tables::CForwarding<Interface, Recorder>
{
public:
    explicit Stub(Calls& calls) : tables::CForwarding<Interface, Recorder>(nullptr, Recorder(calls)), m_calls(calls) {}

    virtual void PastTheEnd() { m_calls.push_back("PastTheEnd"); }

private:
    Calls& m_calls;
};

// Visits one object's table position by position.
class PositionCheck
{
public:
    PositionCheck(const char* interfaceName, void* object, Calls& calls)
        : m_interfaceName(interfaceName), m_object(object), m_calls(calls)
    {
    }

    template <typename Result, typename... Arguments>
    void Used(unsigned position, const char* name)
    {
        CallWithSamples<Result, Arguments...>(position, name, std::index_sequence_for<Arguments...>());
        m_end = position + 1;
    }

    void Reserved(unsigned position)
    {
        ExpectOnly(position, Calls());
        m_end = position + 1;
    }

    void ExpectEnd() { ExpectOnly(m_end, {"PastTheEnd"}); }

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
        EXPECT_EQ(std::exchange(m_calls, {}), Calls{m_interfaceName + "." + CallText(name, arguments...)});
    }

    void ExpectOnly(unsigned position, const Calls& expected)
    {
        SCOPED_TRACE("position " + std::to_string(position));
        CallPosition<void>(m_object, position);
        EXPECT_EQ(std::exchange(m_calls, {}), expected);
    }

    std::string m_interfaceName;
    void* m_object;
    Calls& m_calls;
    unsigned m_end = 0;
};

template <class Interface>
void ExpectPositions(const char* name)
{
    Calls calls;
    Stub<Interface> stub(calls);
    PositionCheck check(name, static_cast<Interface*>(&stub), calls);
    tables::Positions<Interface>::Visit(check);
    check.ExpectEnd();
}

#define POSITION_TEST(interface_)                                                                                      \
    TEST(Positions, interface_)                                                                                        \
    {                                                                                                                  \
        ExpectPositions<interface_>(#interface_);                                                                      \
    }
HOST_INTERFACES(POSITION_TEST)

} // namespace
