#pragma once

#include <random>
#include <string>
#include <vector>

enum class IniEncoding
{
    Ansi,
    Utf8,
    Utf8WithMark,
    Utf16WithMark,
    Utf16HighByteFirst,
    Utf16WithoutMark,
    Junk
};

// Writes language files as careless hands and broken programs do. One seed always gives the same file.
class IniGenerator
{
public:
    explicit IniGenerator(unsigned seed) : m_random(seed) {}

    std::string File(IniEncoding encoding);

    // What to ask the file for: names that lie in it often, with odd blanks and case.
    std::wstring QueryName();
    std::wstring Default();

private:
    std::size_t Below(std::size_t limit) { return m_random() % limit; }
    const std::wstring& Pick(const std::vector<std::wstring>& choices) { return choices[Below(choices.size())]; }

    std::wstring Text();
    std::wstring Line();
    std::wstring Gap();
    std::wstring Value();
    std::wstring LongValue();
    std::wstring Characters(std::size_t limit, std::size_t characters);
    std::string Junk();

    std::mt19937 m_random;
};
