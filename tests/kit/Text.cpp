#include "tests/kit/Text.h"

#include <windows.h>

// The system puts a sign in the place of what is no UTF-8.
std::string AsUtf8(const std::string& bytes)
{
    const auto count = static_cast<int>(bytes.size());
    std::wstring wide(bytes.size(), L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), count, wide.data(), count);
    wide.resize(static_cast<std::size_t>(length));
    return Utf8Of(wide);
}

std::string Utf8Of(const std::wstring& text)
{
    const auto count = static_cast<int>(text.size());
    std::string utf8(3 * text.size(), '\0');
    const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), count, utf8.data(), 3 * count, nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(length));
    return utf8;
}

namespace
{
std::string HtmlOf(char c)
{
    switch (c)
    {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    default:
        // HTML has no place for what controls a terminal.
        return std::string(1, (c >= 0 && c < ' ' && c != '\n' && c != '\t') ? ' ' : c);
    }
}

// Of up to three bytes; what is missing is told by signs of equality.
std::string Base64OfGroup(std::string_view bytes)
{
    constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    unsigned group = 0;
    for (std::size_t i = 0; i < 3; ++i)
        group = group << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0u);
    std::string text;
    for (unsigned i = 0; i < 4; ++i)
        text += i <= bytes.size() ? digits[group >> (18 - 6 * i) & 63] : '=';
    return text;
}
} // namespace

std::string HtmlOf(std::string_view text)
{
    std::string html;
    for (const char c : text)
        html += HtmlOf(c);
    return html;
}

std::string Base64Of(std::string_view bytes)
{
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3)
        text += Base64OfGroup(bytes.substr(i, 3));
    return text;
}

bool Matches(std::string_view text, std::string_view pattern)
{
    if (pattern.empty())
        return text.empty();
    if (pattern[0] == '*')
        return Matches(text, pattern.substr(1)) || (!text.empty() && Matches(text.substr(1), pattern));
    return !text.empty() && (pattern[0] == '?' || pattern[0] == text[0]) && Matches(text.substr(1), pattern.substr(1));
}
