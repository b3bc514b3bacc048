#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Where systems read the same file differently.
struct IniRules
{
    // Around what the file holds, and around what is asked for.
    std::wstring blanks = L" \t\v";
    std::wstring askedBlanks = L" ";
    // Otherwise the first bracket closes a section's name, and a name without one ends with its line.
    bool lastBracketCloses = false;
    // Lines before the first section are in one whose name is empty.
    bool startsInSection = false;
    bool commentsAreKeys = false;
    // A default text loses quotes, but never its first character.
    bool defaultLosesQuotes = false;
    // A quoted value is cut before its closing quote is taken off.
    bool cutsBeforeClosingQuote = false;
    bool readsHighByteFirst = false;
    bool readsUtf8Mark = false;
};

IniRules WindowsRules();
IniRules WineRules();
// Those of Windows, and a file may begin with an UTF-8 byte-order mark.
IniRules OurRules();

// A second reader of language texts, to hold the first against: it keeps the lines and searches them anew for every
// question, as slowly and as plainly as the rules are said.
class ReferenceLanguageText
{
public:
    explicit ReferenceLanguageText(std::string_view bytes, IniRules rules = OurRules());

    std::wstring GetText(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText) const;

    // Every key of the file with its section, in the order of the lines.
    std::vector<std::pair<std::wstring, std::wstring>> Keys() const;

private:
    struct Line
    {
        enum class Kind
        {
            Section,
            Key
        } kind;
        std::wstring name;
        bool hasValue = false;
        std::wstring value;
    };

    std::wstring Decoded(std::string_view bytes) const;
    void AddLines(const std::wstring& text);
    void AddLine(const std::wstring& text);
    std::size_t EndOfSectionName(const std::wstring& line) const;
    bool IsAsked(const std::wstring& name, const std::wstring& asked) const;
    std::wstring DefaultOf(const std::wstring& text) const;
    std::wstring Buffered(const std::wstring& value) const;

    IniRules m_rules;
    std::vector<Line> m_lines;
};
