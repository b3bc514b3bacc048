// Host objects that a test makes up.
#pragma once

#include "dialogs/data/HostRun.h"
#include "tables/Forwarding.h"

#include <any>
#include <cstddef>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

using Calls = std::vector<std::string>;

// What a stub answers, and how it was called: "GetAt(2)", "SetName("A")". An answer is given for one call, or by its
// name for all of that name. Whatever nothing was given for answers 0 or null.
class Answers
{
public:
    void Give(const std::string& call, const std::any& answer) { m_mapAnswers[call] = answer; }
    const Calls& Made() const { return m_vecCalls; }

    template <class Interface, class Result, class... Arguments>
    Result Pass(const tables::Operation& operation, Interface*, Result (Interface::*)(Arguments...),
                Arguments... arguments)
    {
        m_vecCalls.push_back(operation.name + InBrackets(arguments...));
        if constexpr (!std::is_void_v<Result>)
            return AnswerTo<Result>(operation.name, m_vecCalls.back());
    }

private:
    static std::string Text(const char* text) { return text ? "\"" + std::string(text) + "\"" : "null"; }
    static std::string Text(const void* object) { return object ? "object" : "null"; }
    template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number>>>
    static std::string Text(Number number)
    {
        return std::to_string(number);
    }

    template <class... Arguments>
    static std::string InBrackets(Arguments... arguments)
    {
        std::string list;
        ((list += (list.empty() ? "" : ", ") + Text(arguments)), ...);
        return "(" + list + ")";
    }

    template <class Result>
    Result AnswerTo(const std::string& name, const std::string& call) const
    {
        const auto ofCall = m_mapAnswers.find(call);
        const auto answer = ofCall != m_mapAnswers.end() ? ofCall : m_mapAnswers.find(name);
        return answer != m_mapAnswers.end() ? As<Result>(answer->second) : Result();
    }

    template <class Result>
    static Result As(const std::any& answer)
    {
        if constexpr (std::is_same_v<Result, const char*>)
            return std::any_cast<const std::string&>(answer).c_str();
        else if constexpr (std::is_pointer_v<Result>)
            return std::any_cast<Result>(answer);
        else
            return static_cast<Result>(std::any_cast<long long>(answer));
    }

    std::map<std::string, std::any> m_mapAnswers;
    Calls m_vecCalls;
};

template <class Interface>
class Stub final : public tables::CForwarding<Interface, Answers>
{
public:
    Stub() : tables::CForwarding<Interface, Answers>(nullptr, Answers()) {}

    template <class Number, class = std::enable_if_t<std::is_integral_v<Number>>>
    void Give(const std::string& call, Number number)
    {
        this->GetHook().Give(call, static_cast<long long>(number));
    }
    void Give(const std::string& call, const char* text) { this->GetHook().Give(call, std::string(text)); }
    template <class Item>
    void Give(const std::string& call, Item* object)
    {
        this->GetHook().Give(call, object);
    }
    template <class Item>
    void Give(const std::string& call, Stub<Item>& object)
    {
        Give(call, static_cast<Item*>(&object));
    }

    // A list of these items, which may be null.
    template <class Item>
    void Hold(std::initializer_list<Stub<Item>*> items, const std::string& at = "GetAt",
              const std::string& count = "GetCount")
    {
        Give(count, items.size());
        std::size_t index = 0;
        for (Stub<Item>* item : items)
            Give(at + "(" + std::to_string(index++) + ")", static_cast<Item*>(item));
    }

    const Calls& Made() { return this->GetHook().Made(); }

    // Those whose names begin so.
    Calls Made(const std::string& start)
    {
        Calls found;
        for (const std::string& call : Made())
            if (call.compare(0, start.size(), start) == 0)
                found.push_back(call);
        return found;
    }
};

// A test over a host that has nothing but what the test gives it.
class OverStubs : public testing::Test
{
protected:
    OverStubs() { SetHost(data, control); }

    Stub<IHostData> data;
    Stub<IHostControl> control;
};
