#include "refhost/Excerpt.h"

#include <algorithm>

#include "refhost/TextConversion.h"

namespace refhost
{
namespace
{

// Of the text that fits, without a part of a character at its end.
std::size_t CutLength(std::string_view text, std::size_t longest)
{
    std::size_t length = longest;
    while (length > 0 && (text[length] & 0xC0) == 0x80)
        --length;
    return length;
}

} // namespace

std::string Excerpt(std::string_view text, std::size_t longest)
{
    const bool fits = text.size() <= longest;
    std::string excerpt = Utf8FromWide(WideFromUtf8(text.substr(0, fits ? text.size() : CutLength(text, longest))));
    const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
    std::replace_if(excerpt.begin(), excerpt.end(), isControl, ' ');
    return fits ? excerpt : excerpt + "...";
}

} // namespace refhost
