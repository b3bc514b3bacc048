#pragma once

#include <iosfwd>
#include <string>
#include <vector>

// A language file and what one look-up in it gives.
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

// A file with the section "S" and in it the key "k" with that value.
std::string ValueLine(const std::string& value);
