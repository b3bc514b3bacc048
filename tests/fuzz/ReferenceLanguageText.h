#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A second reader of language texts, to hold the first against: it keeps the lines and searches them anew for every
// question, as slowly and as plainly as the rules are said.
class ReferenceLanguageText
{
public:
    explicit ReferenceLanguageText(std::string_view bytes);

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

    static std::vector<Line> LinesOf(const std::wstring& text);
    static Line LineOf(const std::wstring& text);

    std::vector<Line> m_lines;
};
