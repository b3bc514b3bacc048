#include "refhost/program/LanguageFolders.h"

#include <algorithm>
#include <filesystem>

namespace refhost
{

std::vector<std::wstring> LanguagesIn(const std::wstring& languageDir)
{
    std::vector<std::wstring> tags;
    std::error_code ignored; // a folder that is not there has no languages
    for (const auto& entry : std::filesystem::directory_iterator(languageDir, ignored))
        if (entry.is_directory(ignored))
            tags.push_back(entry.path().filename().wstring());
    std::sort(tags.begin(), tags.end());
    return tags;
}

} // namespace refhost
