#include "tests/fuzz/ReferenceLanguageText.h"

#include "dialogs/base/SystemText.h"

namespace
{
bool IsBlank(wchar_t c)
{
    return (c >= 9 && c <= 13) || c == 26 || c == 32;
}

std::wstring WithoutBlanks(const std::wstring& text)
{
    std::size_t first = 0;
    std::size_t end = text.size();
    while (first < end && IsBlank(text[first]))
        ++first;
    while (end > first && IsBlank(text[end - 1]))
        --end;
    return text.substr(first, end - first);
}

std::wstring BeforeNul(const std::wstring& text)
{
    return text.c_str();
}

// Names differ by more than the case of A to Z, and by more than the blanks around them.
bool SameName(const std::wstring& one, const std::wstring& other)
{
    const std::wstring a = BeforeNul(WithoutBlanks(one));
    const std::wstring b = BeforeNul(WithoutBlanks(other));
    const auto upper = [](wchar_t c) { return c >= L'a' && c <= L'z' ? c - 32 : static_cast<int>(c); };
    bool same = a.size() == b.size();
    for (std::size_t i = 0; same && i < a.size(); ++i)
        same = upper(a[i]) == upper(b[i]);
    return same;
}

bool StartsWith(std::string_view bytes, std::string_view mark)
{
    return bytes.size() >= mark.size() && bytes.compare(0, mark.size(), mark) == 0;
}

std::wstring Decoded(std::string_view bytes)
{
    const bool lowFirst = StartsWith(bytes, "\xFF\xFE");
    if (!lowFirst && !StartsWith(bytes, "\xFE\xFF"))
        return StartsWith(bytes, "\xEF\xBB\xBF") ? Utf8ToWide(bytes.substr(3)) : AnsiToWide(bytes);
    std::wstring text;
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2)
    {
        const unsigned first = static_cast<unsigned char>(bytes[i]);
        const unsigned second = static_cast<unsigned char>(bytes[i + 1]);
        text += static_cast<wchar_t>(lowFirst ? first + 256 * second : 256 * first + second);
    }
    return text;
}

// A buffer holds 1023 characters. The closing quote is taken off after the cut; where it stood right behind the last
// character that fits, that character goes instead of it.
std::wstring Buffered(const std::wstring& value)
{
    const std::size_t last = value.size() - 1;
    const bool quoted = value.size() >= 2 && value[0] == value[last] && (value[0] == L'"' || value[0] == L'\'');
    if (!quoted)
        return value.substr(0, 1023);
    const std::wstring inner = value.substr(1, last - 1);
    return inner.substr(0, inner.size() == 1023 ? 1022 : 1023);
}

std::wstring DefaultOf(const std::wstring& text)
{
    std::wstring result = BeforeNul(text);
    while (result.size() > 1 && result.back() == L' ')
        result.pop_back();
    return result;
}
} // namespace

ReferenceLanguageText::ReferenceLanguageText(std::string_view bytes) : m_lines(LinesOf(Decoded(bytes))) {}

std::wstring ReferenceLanguageText::GetText(const std::wstring& section, const std::wstring& key,
                                            const std::wstring& defaultText) const
{
    bool inSection = SameName(section, L"");
    for (const Line& line : m_lines)
    {
        if (line.kind == Line::Kind::Section)
        {
            if (inSection)
                break;
            inSection = SameName(line.name, section);
        }
        else if (inSection && SameName(line.name, key))
        {
            if (!line.hasValue)
                break;
            return Buffered(line.value);
        }
    }
    return Buffered(DefaultOf(defaultText));
}

std::vector<std::pair<std::wstring, std::wstring>> ReferenceLanguageText::Keys() const
{
    std::vector<std::pair<std::wstring, std::wstring>> keys;
    std::wstring section;
    for (const Line& line : m_lines)
    {
        if (line.kind == Line::Kind::Section)
            section = line.name;
        else
            keys.emplace_back(section, line.name);
    }
    return keys;
}

std::vector<ReferenceLanguageText::Line> ReferenceLanguageText::LinesOf(const std::wstring& text)
{
    std::vector<Line> lines;
    std::wstring line;
    for (std::size_t i = 0; i <= text.size(); ++i)
    {
        if (i < text.size() && text[i] != L'\r' && text[i] != L'\n')
        {
            line += text[i];
            continue;
        }
        if (!WithoutBlanks(line).empty())
            lines.push_back(LineOf(WithoutBlanks(line)));
        line.clear();
    }
    return lines;
}

ReferenceLanguageText::Line ReferenceLanguageText::LineOf(const std::wstring& text)
{
    const std::size_t bracket = text.find_last_of(L']');
    if (text[0] == L'[' && bracket != std::wstring::npos)
        return {Line::Kind::Section, text.substr(1, bracket - 1), false, {}};
    const std::size_t equals = text.find(L'=');
    if (equals == std::wstring::npos)
        return {Line::Kind::Key, text, false, {}};
    return {Line::Kind::Key, text.substr(0, equals), true, BeforeNul(WithoutBlanks(text.substr(equals + 1)))};
}
