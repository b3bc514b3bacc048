#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

// The texts of a language file. A wide character is one unit of UTF-16 here, however wide the compiler makes it.
//
// GetText answers what Windows' GetPrivateProfileStringW answers with a buffer of 1024 characters, on any system, with
// two exceptions: names are compared without regard to the case of A to Z only, as all names here are, and a file that
// begins with an UTF-8 byte-order mark is read as UTF-8.
class CLanguageText
{
public:
    CLanguageText() = default;
    // The bytes of the whole file.
    explicit CLanguageText(std::string_view bytes);

    // The value of the key in the section without its quotes, or the default text without its trailing spaces. Either
    // is cut to 1023 characters.
    std::wstring GetText(std::wstring_view section, std::wstring_view key, std::wstring_view defaultText) const;

private:
    void Parse(std::wstring_view text);
    void AddKey(std::wstring_view section, std::wstring_view line);
    const std::wstring* FindValue(std::wstring_view section, std::wstring_view key) const;

    // By the names of section and key in one. A key without "=" hides later keys of its name and has no value.
    std::unordered_map<std::wstring, std::optional<std::wstring>> m_mapValues;
};

// Line breaks are written in a language file as a backslash and an "n"; controls want CR LF.
std::wstring ExpandLineBreaks(std::wstring text);
