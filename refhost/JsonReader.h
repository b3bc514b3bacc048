// Reads values out of JSON and says where one is wrong.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include <nlohmann/json.hpp>

namespace refhost
{

using Json = nlohmann::ordered_json;

// One JSON object of a machine file. Each member must be there, of the right kind and within its range, and no
// member may be left over: an unknown one would be lost at the next save. Throws CMachineFileError with the place.
class CJsonReader
{
public:
    // `place` names the object in messages, e.g. "configurations[2]"; it is empty for the whole file. Names are
    // converted to `codePage`.
    CJsonReader(const Json& object, std::string place, std::uint32_t codePage);

    template <class T>
    void operator()(const char* key, T& value)
    {
        Read(Member(key), PlaceOf(key), value);
    }

    void RefuseUnknownMembers() const;

private:
    const Json& Member(const char* key);
    std::string PlaceOf(const std::string& key) const;

    void Read(const Json& json, const std::string& place, bool& value) const;
    void Read(const Json& json, const std::string& place, float& value) const;
    void Read(const Json& json, const std::string& place, std::string& name) const;

    template <class T>
    std::enable_if_t<std::is_integral_v<T>> Read(const Json& json, const std::string& place, T& value) const
    {
        value = static_cast<T>(WholeNumber(json, place, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    }

    template <class T>
    std::enable_if_t<std::is_class_v<T>> Read(const Json& json, const std::string& place, T& record) const
    {
        CJsonReader reader(json, place, m_nCodePage);
        Describe(reader, record);
        reader.RefuseUnknownMembers();
    }

    template <class T>
    void Read(const Json& json, const std::string& place, std::vector<T>& values) const
    {
        const std::size_t count = ArrayLength(json, place);
        values.clear();
        for (std::size_t i = 0; i < count; ++i)
        {
            T item{};
            Read(json[i], ItemPlace(place, i), item);
            values.push_back(std::move(item));
        }
    }

    template <class T, std::size_t N>
    void Read(const Json& json, const std::string& place, std::array<T, N>& values) const
    {
        RequireLength(json, place, N);
        for (std::size_t i = 0; i < N; ++i)
            Read(json[i], ItemPlace(place, i), values[i]);
    }

    static std::string ItemPlace(const std::string& place, std::size_t index);
    static std::int64_t WholeNumber(const Json& json, const std::string& place, std::int64_t lowest,
                                    std::int64_t highest);
    static std::size_t ArrayLength(const Json& json, const std::string& place);
    static void RequireLength(const Json& json, const std::string& place, std::size_t length);

    const Json& m_object;
    std::string m_strPlace;
    std::uint32_t m_nCodePage;
    std::set<std::string> m_setKnown;
};

} // namespace refhost
