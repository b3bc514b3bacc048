#include "refhost/JsonReader.h"

#include <algorithm>

#include "refhost/Excerpt.h"
#include "refhost/MachineFileError.h"
#include "refhost/NarrowText.h"

namespace refhost
{
namespace
{

constexpr std::size_t LONGEST_SHOWN = 40;

[[noreturn]] void Refuse(const std::string& place, const std::string& reason)
{
    throw CMachineFileError(place.empty() ? reason : place + ": " + reason);
}

// What a message shows of a value that may be a whole document.
std::string Shown(const Json& json)
{
    const std::string text = json.dump(-1, ' ', false, Json::error_handler_t::replace);
    return text.size() <= LONGEST_SHOWN ? text : std::string("this ") + json.type_name();
}

// "C3 28" or "C328".
std::string BytesOfHex(const std::string& hex, const std::string& place)
{
    static const std::string digits = "0123456789ABCDEF";
    std::string nibbles;
    for (char c : hex)
        if (c != ' ')
            nibbles.push_back(c);
    std::string bytes;
    for (std::size_t i = 0; i < nibbles.size(); i += 2)
    {
        const std::size_t high = digits.find(nibbles[i]);
        const std::size_t low = i + 1 < nibbles.size() ? digits.find(nibbles[i + 1]) : std::string::npos;
        if (high == std::string::npos || low == std::string::npos)
            Refuse(place,
                   "\"" + Excerpt(hex, LONGEST_SHOWN) + "\" is no list of bytes in pairs of the digits 0-9 and A-F");
        bytes.push_back(static_cast<char>(high * 16 + low));
    }
    return bytes;
}

} // namespace

CJsonReader::CJsonReader(const Json& object, std::string place, std::uint32_t codePage)
    : m_object(object), m_strPlace(std::move(place)), m_nCodePage(codePage)
{
    if (!object.is_object())
        Refuse(m_strPlace, Shown(object) + " is no object");
}

void CJsonReader::RefuseUnknownMembers() const
{
    for (const auto& member : m_object.items())
        if (m_setKnown.count(member.key()) == 0)
            Refuse(PlaceOf(member.key().empty() ? "\"\"" : Excerpt(member.key(), LONGEST_SHOWN)),
                   "a machine file has no such value here");
}

const Json& CJsonReader::Member(const char* key)
{
    m_setKnown.insert(key);
    const auto found = m_object.find(key);
    if (found == m_object.end())
        Refuse(PlaceOf(key), "is missing");
    return *found;
}

std::string CJsonReader::PlaceOf(const std::string& key) const
{
    return m_strPlace.empty() ? key : m_strPlace + "." + key;
}

void CJsonReader::Read(const Json& json, const std::string& place, bool& value) const
{
    if (!json.is_boolean())
        Refuse(place, Shown(json) + " is neither true nor false");
    value = json.get<bool>();
}

void CJsonReader::Read(const Json& json, const std::string& place, float& value) const
{
    constexpr double GREATEST = std::numeric_limits<float>::max();
    constexpr double LIMIT = 3.4028235e38; // the shortest text of the greatest float lies above it
    if (!json.is_number() || !(json.get<double>() >= -LIMIT && json.get<double>() <= LIMIT))
        Refuse(place, Shown(json) + " is no number that fits 32 bits");
    value = static_cast<float>(std::clamp(json.get<double>(), -GREATEST, GREATEST));
}

void CJsonReader::Read(const Json& json, const std::string& place, std::string& name) const
{
    if (json.is_object() && json.size() == 1 && json.contains("bytes") && json["bytes"].is_string())
        name = BytesOfHex(json["bytes"].get<std::string>(), place);
    else if (!json.is_string())
        Refuse(place, Shown(json) + " is no text");
    else if (const auto narrow = NarrowFromUtf8(json.get<std::string>(), m_nCodePage))
        name = *narrow;
    else
        Refuse(place, Shown(json) + " cannot be written in code page " + std::to_string(m_nCodePage));
    if (name.find('\0') != std::string::npos)
        Refuse(place, "a name cannot hold a zero character");
}

std::string CJsonReader::ItemPlace(const std::string& place, std::size_t index)
{
    return place + "[" + std::to_string(index) + "]";
}

std::int64_t CJsonReader::WholeNumber(const Json& json, const std::string& place, std::int64_t lowest,
                                      std::int64_t highest)
{
    const bool fits = json.is_number_unsigned() ? json.get<std::uint64_t>() <= static_cast<std::uint64_t>(highest)
                                                : json.is_number_integer() && json.get<std::int64_t>() >= lowest;
    if (!fits)
        Refuse(place,
               Shown(json) + " is no whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
    return json.get<std::int64_t>();
}

std::size_t CJsonReader::ArrayLength(const Json& json, const std::string& place)
{
    if (!json.is_array())
        Refuse(place, Shown(json) + " is no list");
    return json.size();
}

void CJsonReader::RequireLength(const Json& json, const std::string& place, std::size_t length)
{
    if (ArrayLength(json, place) != length)
        Refuse(place, "has " + std::to_string(json.size()) + " values, but " + std::to_string(length) + " are needed");
}

} // namespace refhost
