#include "tests/fuzz/MachineValues.h"

#include <array>
#include <type_traits>
#include <vector>

#include "refhost/MachineFields.h"

using namespace refhost;

namespace
{

class ValueText
{
public:
    template <class T>
    void operator()(const char* key, T& value)
    {
        m_text.append(key).append("=");
        Append(value);
    }

    std::string m_text;

private:
    // With its length: no two lists of names read alike.
    void Append(std::string& name) { m_text.append(std::to_string(name.size())).append(":").append(name); }

    void Append(float& value) { m_text.append(reinterpret_cast<const char*>(&value), sizeof value); }

    template <class T>
    std::enable_if_t<std::is_integral_v<T>> Append(const T& value)
    {
        m_text.append(std::to_string(value)).append(";");
    }

    template <class T>
    std::enable_if_t<std::is_class_v<T>> Append(T& record)
    {
        Describe(*this, record);
    }

    void Append(std::vector<bool>& values)
    {
        for (const bool value : values)
            m_text.append(value ? "+" : "-");
    }

    template <class T>
    void Append(std::vector<T>& values)
    {
        AppendList(values);
    }

    template <class T, std::size_t N>
    void Append(std::array<T, N>& values)
    {
        AppendList(values);
    }

    template <class Values>
    void AppendList(Values& values)
    {
        Append(values.size());
        for (auto& value : values)
            Append(value);
    }
};

} // namespace

std::string MachineValues(const Machine& machine)
{
    Machine copy = machine;
    ValueText text;
    Describe(text, copy);
    text("codePage", copy.codePage);
    return text.m_text;
}
