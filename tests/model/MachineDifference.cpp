#include "tests/model/MachineDifference.h"

#include "refhost/MachineFields.h"

#include <charconv>
#include <utility>

namespace
{
using refhost::Describe;

// Everything that a machine holds, one value a line.
class FieldLines
{
public:
    std::vector<std::string> lines;

    template <class T>
    void operator()(const char* key, T& value)
    {
        Put(m_place + "." + key, value);
    }

private:
    template <class T, class = std::enable_if_t<std::is_arithmetic_v<T>>>
    static std::string Text(T value)
    {
        if constexpr (std::is_same_v<T, bool>)
            return value ? "true" : "false";
        char text[32]{};
        if constexpr (std::is_same_v<T, float>)
            std::to_chars(text, text + 31, value);
        else
            std::to_chars(text, text + 31, static_cast<long long>(value));
        return text;
    }

    static std::string Text(const std::string& value)
    {
        std::string text = "\"";
        for (char c : value)
            text += c >= ' ' && c <= '~' ? std::string(1, c) : "\\" + Text(static_cast<unsigned char>(c));
        return text + "\"";
    }

    template <class T>
    void Put(const std::string& place, T& value)
    {
        if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, std::string>)
            lines.push_back(place + " = " + Text(value));
        else
            Within(place, [&] { Describe(*this, value); });
    }

    template <class T>
    void Put(const std::string& place, std::vector<T>& values)
    {
        if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, std::string>)
            PutList(place, values);
        else
        {
            lines.push_back(place + " has " + Text(values.size()));
            for (std::size_t i = 0; i < values.size(); ++i)
                Put(place + "[" + Text(i) + "]", values[i]);
        }
    }

    template <class T, std::size_t N>
    void Put(const std::string& place, std::array<T, N>& values)
    {
        PutList(place, values);
    }

    template <class List>
    void PutList(const std::string& place, const List& values)
    {
        std::string line = place + " =";
        for (const auto& value : values)
            line += " " + Text(value);
        lines.push_back(line);
    }

    template <class Action>
    void Within(const std::string& place, Action action)
    {
        const std::string outer = std::exchange(m_place, place);
        action();
        m_place = outer;
    }

    std::string m_place;
};

std::vector<std::string> LinesOf(refhost::Machine machine)
{
    FieldLines fields;
    Describe(fields, machine);
    return fields.lines;
}
} // namespace

std::string FirstDifference(const refhost::Machine& expected, const refhost::Machine& actual)
{
    const std::vector<std::string> wanted = LinesOf(expected);
    const std::vector<std::string> found = LinesOf(actual);
    for (std::size_t i = 0; i < wanted.size() && i < found.size(); ++i)
        if (wanted[i] != found[i])
            return "the model: " + wanted[i] + "\n the host: " + found[i];
    return wanted.size() == found.size() ? std::string() : "one has more values than the other";
}
