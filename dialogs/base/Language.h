#pragma once

#include <cstdint>
#include <string>

// The language of the editor operation that runs: set once when it begins, kept until the next one.

// Reads the language file of that folder (null counts as empty, a trailing backslash may be missing) and the
// measurement unit of the project settings in the folder of the host's executable.
void SetLanguageFile(const wchar_t* languageDir, const wchar_t* fileName);

// The full path of the file; empty before the first SetLanguageFile.
const std::wstring& LanguageFilePath();
// 0 where the project settings name none.
std::int32_t MeasurementUnit();

// The text of a key, with its line breaks, as a control shows it. The key "IDC_STATIC" is the unit's word where a unit
// is set, whatever section the dialog has.
std::wstring LookUpText(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText);
