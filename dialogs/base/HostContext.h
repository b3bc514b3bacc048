#pragma once

#include "dialogs/base/LanguageFile.h"

#include <cstdint>
#include <string>

class IHostControl;
class IHostData;

// What one editor run shares with all its dialogs. The entry points fill it before a dialog opens; it stays until the
// next run replaces it. Used on the host's user-interface thread only.
struct HostContext
{
    IHostData* pData = nullptr;
    IHostControl* pControl = nullptr;
    std::wstring strLanguageFile;
    CLanguageFile languageFile;
    std::int32_t nMeasurementUnit = 0;
};

HostContext& GetHostContext();

// Reads the language file of that folder (null counts as empty, a trailing backslash may be missing) and the
// measurement unit of the project settings in the folder of the host's executable.
void SetLanguageFile(const wchar_t* pszLanguageDir, const wchar_t* pszFileName);

// The text of a key, with its line breaks, as a control shows it. The key "IDC_STATIC" is the unit's word where a unit
// is set, whatever section the dialog has.
std::wstring LookUpText(const std::wstring& strSection, const std::wstring& strKey, const std::wstring& strDefault);
