#pragma once

#include <climits>
#include <iosfwd>
#include <string>
#include <vector>

// A language file and what one look-up in it gives: what Windows gives, where nothing else is listed below.
struct LanguageCase
{
    const char* name;
    std::string file;
    std::wstring expected;
    std::wstring section = L"S";
    std::wstring key = L"k";
    std::wstring defaultText = L"DEF";
};

void PrintTo(const LanguageCase& testCase, std::ostream* out);

const std::vector<LanguageCase>& LanguageCases();

// Versions of Wine, the last one included; Windows is version 0.
struct SystemRange
{
    unsigned first;
    unsigned last;

    bool Have(unsigned version) const { return version >= first && version <= last; }
};

constexpr SystemRange kWindows{0, 0};
constexpr SystemRange kAnyWine{1, UINT_MAX};

// Where the system's own call answers otherwise than the library does.
struct KnownDifference
{
    const char* testCase;
    std::wstring answer;
    SystemRange systems;
};

const std::vector<KnownDifference>& KnownDifferences();

// What the system's own call must give. A listed difference that is gone shows here.
std::wstring AnswerOf(unsigned wineVersion, const LanguageCase& testCase);

// A file with the section "S" and in it the key "k" with that value.
std::string ValueLine(const std::string& value);
