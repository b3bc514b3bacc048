#pragma once

#include "tests/support/TempFolder.h"

#include <string>

// A language folder of one test's own. As long as nothing was written into it, it is one without a language file.
class LanguageFolder
{
public:
    const std::wstring& Path() const { return m_folder.Path(); }
    std::wstring FilePath() const { return Path() + L"\\Quorvane.ini"; }

    // The lines of the section of the print-mode editor, without its heading.
    void WriteTexts(const std::wstring& lines);
    void WriteBytes(std::string_view bytes) { m_folder.Write(L"Quorvane.ini", bytes); }

private:
    TempFolder m_folder;
};
