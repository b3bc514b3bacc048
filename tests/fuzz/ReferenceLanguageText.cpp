#include "tests/fuzz/ReferenceLanguageText.h"

#include "dialogs/base/SystemText.h"

namespace
{
std::wstring Without(const std::wstring& blanks, const std::wstring& text)
{
    std::size_t first = 0;
    std::size_t end = text.size();
    while (first < end && blanks.find(text[first]) != std::wstring::npos)
        ++first;
    while (end > first && blanks.find(text[end - 1]) != std::wstring::npos)
        --end;
    return text.substr(first, end - first);
}

std::wstring BeforeNul(const std::wstring& text)
{
    return text.c_str();
}

// Names differ by more than the case of A to Z.
bool SameName(const std::wstring& a, const std::wstring& b)
{
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

std::wstring FromUtf16(std::string_view bytes, bool lowFirst)
{
    std::wstring text;
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2)
    {
        const unsigned first = static_cast<unsigned char>(bytes[i]);
        const unsigned second = static_cast<unsigned char>(bytes[i + 1]);
        text += static_cast<wchar_t>(lowFirst ? first + 256 * second : 256 * first + second);
    }
    return text;
}

bool IsQuoted(const std::wstring& value)
{
    return value.size() >= 2 && value.front() == value.back() && (value[0] == L'"' || value[0] == L'\'');
}

std::wstring WithoutQuotes(const std::wstring& value)
{
    return IsQuoted(value) ? value.substr(1, value.size() - 2) : value;
}
} // namespace

IniRules WindowsRules()
{
    return {};
}

IniRules OurRules()
{
    IniRules rules = WindowsRules();
    rules.readsUtf8Mark = true;
    return rules;
}

IniRules WineRules()
{
    IniRules rules;
    rules.blanks = rules.askedBlanks = L" \t\n\v\f\r\x1A";
    rules.lastBracketCloses = rules.startsInSection = rules.commentsAreKeys = true;
    rules.defaultLosesQuotes = rules.cutsBeforeClosingQuote = true;
    rules.readsHighByteFirst = rules.readsUtf8Mark = true;
    return rules;
}

ReferenceLanguageText::ReferenceLanguageText(std::string_view bytes, IniRules rules) : m_rules(std::move(rules))
{
    AddLines(Decoded(bytes));
}

std::wstring ReferenceLanguageText::GetText(const std::wstring& section, const std::wstring& key,
                                            const std::wstring& defaultText) const
{
    bool inSection = m_rules.startsInSection && IsAsked(L"", section);
    for (const Line& line : m_lines)
    {
        if (line.kind == Line::Kind::Section)
        {
            if (inSection)
                break;
            inSection = IsAsked(line.name, section);
        }
        else if (inSection && IsAsked(line.name, key))
        {
            if (!line.hasValue)
                break;
            return Buffered(line.value);
        }
    }
    return DefaultOf(BeforeNul(defaultText));
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

std::wstring ReferenceLanguageText::Decoded(std::string_view bytes) const
{
    if (StartsWith(bytes, "\xFF\xFE"))
        return FromUtf16(bytes, true);
    if (StartsWith(bytes, "\xFE\xFF"))
        return m_rules.readsHighByteFirst ? FromUtf16(bytes, false) : std::wstring();
    if (m_rules.readsUtf8Mark && StartsWith(bytes, "\xEF\xBB\xBF"))
        return Utf8ToWide(bytes.substr(3));
    return AnsiToWide(bytes);
}

void ReferenceLanguageText::AddLines(const std::wstring& text)
{
    std::wstring line;
    for (std::size_t i = 0; i <= text.size(); ++i)
    {
        if (i < text.size() && text[i] != L'\r' && text[i] != L'\n')
        {
            line += text[i];
            continue;
        }
        AddLine(Without(m_rules.blanks, line));
        line.clear();
    }
}

void ReferenceLanguageText::AddLine(const std::wstring& text)
{
    if (text.empty() || (text[0] == L';' && !m_rules.commentsAreKeys))
        return;
    const auto shown = [this](const std::wstring& part) { return BeforeNul(Without(m_rules.blanks, part)); };
    const std::size_t end = EndOfSectionName(text);
    if (end != std::wstring::npos)
        return m_lines.push_back({Line::Kind::Section, shown(text.substr(1, end - 1)), false, {}});
    const std::size_t equals = text.find(L'=');
    if (equals == std::wstring::npos)
        return m_lines.push_back({Line::Kind::Key, shown(text), false, {}});
    m_lines.push_back({Line::Kind::Key, shown(text.substr(0, equals)), true, shown(text.substr(equals + 1))});
}

// npos where the line is no section.
std::size_t ReferenceLanguageText::EndOfSectionName(const std::wstring& line) const
{
    if (line[0] != L'[')
        return std::wstring::npos;
    if (m_rules.lastBracketCloses)
        return line.rfind(L']');
    const std::size_t bracket = line.find(L']');
    return bracket == std::wstring::npos ? line.size() : bracket;
}

bool ReferenceLanguageText::IsAsked(const std::wstring& name, const std::wstring& asked) const
{
    return SameName(name, Without(m_rules.askedBlanks, BeforeNul(asked)));
}

std::wstring ReferenceLanguageText::DefaultOf(const std::wstring& text) const
{
    const std::size_t least = m_rules.defaultLosesQuotes ? 1 : 0;
    std::wstring result = text;
    while (result.size() > least && result.back() == L' ')
        result.pop_back();
    return m_rules.defaultLosesQuotes ? Buffered(result) : result.substr(0, 1023);
}

// A buffer holds 1023 characters. Where the closing quote is taken off after the cut, and stood right behind the last
// character that fits, that character goes instead of it.
std::wstring ReferenceLanguageText::Buffered(const std::wstring& value) const
{
    const std::wstring text = WithoutQuotes(value);
    const bool losesMore = m_rules.cutsBeforeClosingQuote && IsQuoted(value) && text.size() == 1023;
    return text.substr(0, losesMore ? 1022 : 1023);
}
