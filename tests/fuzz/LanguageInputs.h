#pragma once

#include <string>
#include <vector>

#include "tests/fuzz/Random.h"

struct LanguageQuestion
{
    std::wstring section;
    std::wstring key;
    std::wstring defaultText;
};

// Language files as they are shipped and as they are generated, and what becomes of them in careless hands.
class LanguageInputs
{
public:
    // `languages` is the folder with the shipped files.
    explicit LanguageInputs(const std::string& languages);

    std::string File(Random& random) const;

    // What to ask such a file for; the same for the same file.
    std::vector<LanguageQuestion> QuestionsFor(const std::string& file) const;

private:
    std::string WholeOrPart(Random& random) const;
    std::string Origin(Random& random) const;

    // Texts of files, and their lines with the line ends.
    std::vector<std::wstring> m_texts;
    std::vector<std::wstring> m_lines;
};
