#include "tests/native/Utf.h"

#include <cstdint>

namespace
{
constexpr std::uint32_t kReplacement = 0xFFFD;

// What the byte that leads a sequence says of it.
struct Lead
{
    std::size_t following;
    std::uint32_t bits;
    // Of the first byte that follows; overlong forms, halves of pairs and characters beyond the last are outside.
    unsigned char lowest = 0x80;
    unsigned char highest = 0xBF;
};

bool IsLead(unsigned char byte)
{
    return byte < 0x80 || (byte >= 0xC2 && byte <= 0xF4);
}

Lead LeadOf(unsigned char byte)
{
    if (byte < 0x80)
        return {0, byte};
    if (byte < 0xE0)
        return {1, byte & 0x1Fu};
    const auto lowest = static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : byte == 0xF0 ? 0x90 : 0x80);
    const auto highest = static_cast<unsigned char>(byte == 0xED ? 0x9F : byte == 0xF4 ? 0x8F : 0xBF);
    if (byte < 0xF0)
        return {2, byte & 0x0Fu, lowest, highest};
    return {3, byte & 0x07u, lowest, highest};
}

// Takes one character, or the part of one that can be told, off the front.
std::uint32_t TakeCharacter(std::string_view& utf8)
{
    const auto first = static_cast<unsigned char>(utf8.front());
    utf8.remove_prefix(1);
    if (!IsLead(first))
        return kReplacement;
    Lead lead = LeadOf(first);
    for (; lead.following > 0; --lead.following)
    {
        const auto byte = static_cast<unsigned char>(utf8.empty() ? '\0' : utf8.front());
        if (byte < lead.lowest || byte > lead.highest)
            return kReplacement;
        utf8.remove_prefix(1);
        lead.bits = lead.bits << 6 | (byte & 0x3Fu);
        lead.lowest = 0x80;
        lead.highest = 0xBF;
    }
    return lead.bits;
}

void AppendUtf8(std::string& utf8, std::uint32_t character)
{
    const auto follow = [&](unsigned shift) { utf8 += static_cast<char>(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80)
    {
        utf8 += static_cast<char>(character);
    }
    else if (character < 0x800)
    {
        utf8 += static_cast<char>(0xC0 | character >> 6);
        follow(0);
    }
    else if (character < 0x10000)
    {
        utf8 += static_cast<char>(0xE0 | character >> 12);
        follow(6);
        follow(0);
    }
    else
    {
        utf8 += static_cast<char>(0xF0 | character >> 18);
        follow(12);
        follow(6);
        follow(0);
    }
}

bool IsHigh(std::uint32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLow(std::uint32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}
} // namespace

std::wstring Utf16FromUtf8(std::string_view utf8)
{
    std::wstring utf16;
    while (!utf8.empty())
    {
        const std::uint32_t character = TakeCharacter(utf8);
        if (character >= 0x10000)
            utf16.push_back(static_cast<wchar_t>(0xD7C0 + (character >> 10)));
        utf16.push_back(static_cast<wchar_t>(character < 0x10000 ? character : 0xDC00 | (character & 0x3FF)));
    }
    return utf16;
}

std::string Utf8FromUtf16(std::wstring_view utf16)
{
    std::string utf8;
    for (std::size_t i = 0; i < utf16.size(); ++i)
    {
        const auto unit = static_cast<std::uint32_t>(utf16[i]);
        if (IsHigh(unit) && i + 1 < utf16.size() && IsLow(static_cast<std::uint32_t>(utf16[i + 1])))
            AppendUtf8(utf8, ((unit - 0xD7C0) << 10) + (static_cast<std::uint32_t>(utf16[++i]) & 0x3FF));
        else
            AppendUtf8(utf8, IsHigh(unit) || IsLow(unit) ? kReplacement : unit);
    }
    return utf8;
}
