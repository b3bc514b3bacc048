#include "refhost/JsonWriter.h"

#include <charconv>
#include <cstdlib>

#include "refhost/NarrowText.h"

namespace refhost
{
namespace
{

constexpr std::size_t LINE_LENGTH = 100;

std::string HexOfBytes(const std::string& bytes)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string hex;
    for (char c : bytes)
    {
        const auto byte = static_cast<unsigned char>(c);
        hex += hex.empty() ? "" : " ";
        hex += digits[byte / 16];
        hex += digits[byte % 16];
    }
    return hex;
}

bool IsListOfScalars(const Json& json)
{
    for (const Json& item : json)
        if (item.is_structured())
            return false;
    return json.is_array();
}

std::string KeyText(const std::string& key)
{
    return Json(key).dump() + ": ";
}

std::string OneLine(const Json& json)
{
    if (!json.is_structured())
        return json.dump();
    std::string text;
    for (const auto& member : json.items())
    {
        text += text.empty() ? "" : ", ";
        text += (json.is_object() ? KeyText(member.key()) : std::string()) + OneLine(member.value());
    }
    return json.is_object() ? "{" + text + "}" : "[" + text + "]";
}

std::string Format(const Json& json, const std::string& indent)
{
    std::string line = OneLine(json);
    if (!json.is_structured() || IsListOfScalars(json) || indent.size() + line.size() <= LINE_LENGTH)
        return line;
    const std::string deeper = indent + "  ";
    std::string text;
    for (const auto& member : json.items())
    {
        text += text.empty() ? "\n" : ",\n";
        text += deeper + (json.is_object() ? KeyText(member.key()) : std::string()) + Format(member.value(), deeper);
    }
    text += "\n" + indent;
    return json.is_object() ? "{" + text + "}" : "[" + text + "]";
}

} // namespace

CJsonWriter::CJsonWriter(std::uint32_t codePage) : m_nCodePage(codePage) {}

Json CJsonWriter::Write(float value) const
{
    // Through the shortest text that names this float: a float widened to double would show as 0.10000000149.
    char text[32] = {};
    std::to_chars(text, text + sizeof text - 1, value);
    return std::strtod(text, nullptr);
}

Json CJsonWriter::Write(std::string& name) const
{
    if (const auto utf8 = Utf8FromNarrow(name, m_nCodePage))
        return *utf8;
    return Json{{"bytes", HexOfBytes(name)}};
}

std::string FormatJson(const Json& json)
{
    return Format(json, std::string()) + "\n";
}

} // namespace refhost
