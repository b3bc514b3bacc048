#pragma once

#include <string>
#include <vector>

namespace refhost
{

// The names of the folders in `languageDir`, sorted: one per language.
std::vector<std::wstring> LanguagesIn(const std::wstring& languageDir);

} // namespace refhost
