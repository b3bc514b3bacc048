#include "tests/loggedhost/CallText.h"

#include <charconv>

namespace
{
std::string HexText(unsigned char byte)
{
    static const char digits[] = "0123456789ABCDEF";
    return {'\\', 'x', digits[byte / 16], digits[byte % 16]};
}
} // namespace

std::string ArgumentText(float value)
{
    char text[32] = {};
    std::to_chars(text, text + sizeof text - 1, value);
    return text;
}

std::string ArgumentText(const char* text)
{
    if (!text)
        return "null";
    std::string quoted = "\"";
    for (; *text; ++text)
    {
        const bool isPrintable = *text >= 0x20 && *text < 0x7F;
        quoted += isPrintable ? std::string(1, *text) : HexText(static_cast<unsigned char>(*text));
    }
    return quoted + "\"";
}

std::string ListText(const std::vector<std::string>& arguments)
{
    std::string list;
    for (const std::string& argument : arguments)
        if (!argument.empty())
            list += (list.empty() ? "" : ", ") + argument;
    return list;
}
