#include "dialogs/base/LanguageText.h"

#include "dialogs/base/SystemText.h"

#include <algorithm>
#include <unordered_set>

namespace
{
constexpr size_t MAX_TEXT_CHARS = 1023;
// Of the file. In what is asked for, only spaces are.
constexpr std::wstring_view BLANKS = L" \t\v";
constexpr std::wstring_view SPACES = L" ";

std::wstring_view TrimRight(std::wstring_view text, std::wstring_view blanks)
{
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::wstring_view Trim(std::wstring_view text, std::wstring_view blanks)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return TrimRight(text, blanks);
}

std::wstring_view CutAtNul(std::wstring_view text)
{
    return text.substr(0, text.find(L'\0'));
}

std::wstring_view TextInFile(std::wstring_view text)
{
    return CutAtNul(Trim(text, BLANKS));
}

std::wstring_view AskedName(std::wstring_view text)
{
    return Trim(CutAtNul(text), SPACES);
}

// No name in a file holds the character between the two, so neither can be taken for a part of the other.
std::wstring JoinNames(std::wstring_view section, std::wstring_view key)
{
    std::wstring joined;
    joined.reserve(section.size() + 1 + key.size());
    joined.append(section).append(1, L'\n').append(key);
    std::transform(joined.begin(), joined.end(), joined.begin(),
                   [](wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; });
    return joined;
}

std::wstring DecodeUtf16(std::string_view bytes)
{
    std::wstring text(bytes.size() / 2, L'\0');
    for (size_t i = 0; i < text.size(); ++i)
    {
        const auto low = static_cast<unsigned char>(bytes[2 * i]);
        const auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
        text[i] = static_cast<wchar_t>(high << 8 | low);
    }
    return text;
}

std::wstring Decode(std::string_view bytes)
{
    if (bytes.substr(0, 2) == "\xFF\xFE")
        return DecodeUtf16(bytes.substr(2));
    if (bytes.substr(0, 2) == "\xFE\xFF") // Windows finds nothing in UTF-16 with the high byte first
        return {};
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF")
        return Utf8ToWide(bytes.substr(3));
    return AnsiToWide(bytes);
}

// Up to the first closing bracket; where there is none, to the end of the line.
std::optional<std::wstring_view> SectionName(std::wstring_view line)
{
    if (line.front() != L'[')
        return std::nullopt;
    line.remove_prefix(1);
    return TextInFile(line.substr(0, line.find(L']')));
}

bool IsQuoted(std::wstring_view value)
{
    return value.size() > 1 && (value.front() == L'"' || value.front() == L'\'') && value.front() == value.back();
}

std::wstring_view WithoutQuotes(std::wstring_view value)
{
    return IsQuoted(value) ? value.substr(1, value.size() - 2) : value;
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
    const std::wstring_view text = value ? std::wstring_view(*value) : TrimRight(CutAtNul(defaultText), SPACES);
    return std::wstring(text.substr(0, MAX_TEXT_CHARS));
}

// Of sections with one name only the first counts, and of keys with one name the first in it. Lines before any section
// belong to none.
void CLanguageText::Parse(std::wstring_view text)
{
    std::unordered_set<std::wstring> sections;
    std::wstring_view section;
    bool isFirstOfName = false;
    while (!text.empty())
    {
        const size_t end = std::min(text.find_first_of(L"\r\n"), text.size());
        const std::wstring_view line = Trim(text.substr(0, end), BLANKS);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty() || line.front() == L';')
            continue;
        if (const auto name = SectionName(line))
        {
            section = *name;
            isFirstOfName = sections.insert(JoinNames(section, L"")).second;
        }
        else if (isFirstOfName)
        {
            AddKey(section, line);
        }
    }
}

void CLanguageText::AddKey(std::wstring_view section, std::wstring_view line)
{
    const size_t equals = line.find(L'=');
    std::optional<std::wstring> value;
    if (equals != std::wstring_view::npos)
        value = WithoutQuotes(TextInFile(line.substr(equals + 1)));
    m_mapValues.try_emplace(JoinNames(section, TextInFile(line.substr(0, equals))), std::move(value));
}

const std::wstring* CLanguageText::FindValue(std::wstring_view section, std::wstring_view key) const
{
    const auto value = m_mapValues.find(JoinNames(AskedName(section), AskedName(key)));
    return value != m_mapValues.end() && value->second ? &*value->second : nullptr;
}

std::wstring ExpandLineBreaks(std::wstring text)
{
    for (size_t at = text.find(L"\\n"); at != std::wstring::npos; at = text.find(L"\\n", at))
        text.replace(at, 2, L"\r\n");
    return text;
}
