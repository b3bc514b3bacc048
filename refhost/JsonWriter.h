// Builds the JSON that CJsonReader reads.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "refhost/JsonReader.h"

namespace refhost
{

class CJsonWriter
{
public:
    // Names are converted from `codePage`.
    explicit CJsonWriter(std::uint32_t codePage);

    template <class T>
    void operator()(const char* key, T& value)
    {
        m_object[key] = Write(value);
    }

    const Json& Object() const { return m_object; }

private:
    Json Write(float value) const;
    Json Write(std::string& name) const;

    template <class T>
    std::enable_if_t<std::is_integral_v<T>, Json> Write(T value) const
    {
        return value;
    }

    template <class T>
    std::enable_if_t<std::is_class_v<T>, Json> Write(T& record) const
    {
        CJsonWriter writer(m_nCodePage);
        Describe(writer, record);
        return writer.Object();
    }

    Json Write(std::vector<bool>& values) const { return values; }

    template <class T>
    Json Write(std::vector<T>& values) const
    {
        return List(values);
    }

    template <class T, std::size_t N>
    Json Write(std::array<T, N>& values) const
    {
        return List(values);
    }

    template <class Values>
    Json List(Values& values) const
    {
        Json list = Json::array();
        for (auto& value : values)
            list.push_back(Write(value));
        return list;
    }

    std::uint32_t m_nCodePage;
    Json m_object = Json::object();
};

// The text of a document: one value per line, short lists and objects on one line, so that a change of one value is
// a change of one line.
std::string FormatJson(const Json& json);

} // namespace refhost
