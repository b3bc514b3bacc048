#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

// A language file held in memory for one editor run. Reading a text through the system opens and reads the file at
// every call, and an editor asks for hundreds; so the file is read once, on construction, and never again.
//
// GetText answers what GetPrivateProfileStringW answers with a buffer of 1024 characters. Two points where that call
// does not say, or systems differ: names are compared without regard to the case of A to Z, and a file that begins with
// an UTF-8 byte-order mark is read as UTF-8. A path without any backslash or slash is taken from the current folder.
// A file that cannot be read (missing, locked, a folder) is an empty one.
class CLanguageFile
{
public:
    CLanguageFile() = default;
    explicit CLanguageFile(const std::wstring& strPath);

    // The value of the key in the section, or the default text without its trailing blanks. Quotes around either are
    // taken off, and either is cut to 1023 characters.
    std::wstring GetText(std::wstring_view section, std::wstring_view key, std::wstring_view defaultText) const;

private:
    // A key without "=" hides later keys of its name and has no value.
    using Keys = std::unordered_map<std::wstring, std::optional<std::wstring>>;

    void Parse(std::wstring_view text);
    const std::wstring* FindValue(std::wstring_view section, std::wstring_view key) const;

    std::unordered_map<std::wstring, Keys> m_mapSections;
};

// Line breaks are written in a language file as a backslash and an "n"; controls want CR LF.
std::wstring ExpandLineBreaks(std::wstring_view text);
