#include "dialogs/base/LanguageText.h"

#include "dialogs/base/SystemText.h"

#include <algorithm>
#include <unordered_set>

namespace
{
constexpr size_t MAX_TEXT_CHARS = 1023;
// The end-of-file mark of old text files is a blank too.
constexpr std::wstring_view BLANKS = L" \t\n\v\f\r\x1A";

std::wstring_view TrimLeft(std::wstring_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(BLANKS), text.size()));
    return text;
}

std::wstring_view Trim(std::wstring_view text)
{
    text = TrimLeft(text);
    return text.substr(0, text.find_last_not_of(BLANKS) + 1);
}

std::wstring_view CutAtNul(std::wstring_view text)
{
    return text.substr(0, text.find(L'\0'));
}

std::wstring_view NameOf(std::wstring_view text)
{
    return CutAtNul(Trim(text));
}

// No line of a file holds the character between the two, so neither name can be taken for a part of the other.
std::wstring JoinNames(std::wstring_view section, std::wstring_view key)
{
    section = NameOf(section);
    key = NameOf(key);
    std::wstring joined;
    joined.reserve(section.size() + 1 + key.size());
    joined.append(section).append(1, L'\n').append(key);
    std::transform(joined.begin(), joined.end(), joined.begin(),
                   [](wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; });
    return joined;
}

std::wstring DecodeUtf16(std::string_view bytes, size_t lowByte)
{
    std::wstring text(bytes.size() / 2, L'\0');
    for (size_t i = 0; i < text.size(); ++i)
    {
        const auto low = static_cast<unsigned char>(bytes[2 * i + lowByte]);
        const auto high = static_cast<unsigned char>(bytes[2 * i + 1 - lowByte]);
        text[i] = static_cast<wchar_t>(high << 8 | low);
    }
    return text;
}

std::wstring Decode(std::string_view bytes)
{
    if (bytes.substr(0, 2) == "\xFF\xFE")
        return DecodeUtf16(bytes.substr(2), 0);
    if (bytes.substr(0, 2) == "\xFE\xFF")
        return DecodeUtf16(bytes.substr(2), 1);
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF")
        return Utf8ToWide(bytes.substr(3));
    return AnsiToWide(bytes);
}

std::optional<std::wstring_view> SectionName(std::wstring_view line)
{
    const size_t close = line.rfind(L']');
    if (line.front() != L'[' || close == std::wstring_view::npos)
        return std::nullopt;
    return line.substr(1, close - 1);
}

bool IsQuoted(std::wstring_view value)
{
    return value.size() > 1 && (value.front() == L'"' || value.front() == L'\'') && value.front() == value.back();
}

// The system cuts a quoted value before it takes the closing quote off; where the cut has already taken the quote and
// nothing else, it takes the last character instead.
std::wstring CutToBuffer(std::wstring_view value)
{
    if (!IsQuoted(value))
        return std::wstring(value.substr(0, MAX_TEXT_CHARS));
    value.remove_prefix(1);
    std::wstring text(value.substr(0, MAX_TEXT_CHARS));
    if (value.size() <= MAX_TEXT_CHARS + 1)
        text.pop_back();
    return text;
}

// Only blanks go, no tabs, and a first character stays whatever it is.
std::wstring_view TrimDefault(std::wstring_view text)
{
    while (text.size() > 1 && text.back() == L' ')
        text.remove_suffix(1);
    return text;
}
} // namespace

CLanguageText::CLanguageText(std::string_view bytes)
{
    Parse(Decode(bytes));
}

std::wstring CLanguageText::GetText(std::wstring_view section, std::wstring_view key,
                                    std::wstring_view defaultText) const
{
    const std::wstring* value = FindValue(section, key);
    return CutToBuffer(value ? std::wstring_view(*value) : TrimDefault(CutAtNul(defaultText)));
}

// Of sections with one name only the first counts, and of keys with one name the first in it. Lines before any section
// belong to a section with an empty name.
void CLanguageText::Parse(std::wstring_view text)
{
    std::unordered_set<std::wstring> sections = {JoinNames(L"", L"")};
    std::wstring_view section;
    bool isFirstOfName = true;
    while (!text.empty())
    {
        const size_t end = std::min(text.find_first_of(L"\r\n"), text.size());
        const std::wstring_view line = Trim(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty())
            continue;
        if (const auto name = SectionName(line))
        {
            section = *name;
            isFirstOfName = sections.insert(JoinNames(section, L"")).second;
        }
        else if (isFirstOfName)
        {
            const size_t equals = line.find(L'=');
            std::optional<std::wstring> value;
            if (equals != std::wstring_view::npos)
                value = CutAtNul(TrimLeft(line.substr(equals + 1)));
            m_mapValues.try_emplace(JoinNames(section, line.substr(0, equals)), std::move(value));
        }
    }
}

const std::wstring* CLanguageText::FindValue(std::wstring_view section, std::wstring_view key) const
{
    const auto value = m_mapValues.find(JoinNames(section, key));
    return value != m_mapValues.end() && value->second ? &*value->second : nullptr;
}

std::wstring ExpandLineBreaks(std::wstring text)
{
    for (size_t at = text.find(L"\\n"); at != std::wstring::npos; at = text.find(L"\\n", at))
        text.replace(at, 2, L"\r\n");
    return text;
}
