#include "dialogs/base/Language.h"

#include "dialogs/base/LanguageFile.h"

#include <windows.h>

namespace
{
struct Language
{
    std::wstring path;
    CLanguageFile file;
    std::int32_t measurementUnit = 0;
};

Language& CurrentLanguage()
{
    static Language language;
    return language;
}

std::wstring PathInFolder(const wchar_t* folder, const wchar_t* fileName)
{
    std::wstring path(folder ? folder : L"");
    if (path.empty() || path.back() != L'\\')
        path += L'\\';
    return path + (fileName ? fileName : L"");
}

// The folder of the host's executable with its trailing backslash.
std::wstring ExecutableFolder()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.rfind(L'\\') + 1);
}

std::int32_t ReadMeasurementUnit()
{
    // Hosts know the settings file by a path of at most 259 characters; a longer one is cut and names no file.
    const std::wstring path = (ExecutableFolder() + L"Project.ini").substr(0, MAX_PATH - 1);
    return static_cast<std::int32_t>(GetPrivateProfileIntW(L"UNIT", L"MEASUREMENT_UNIT", 0, path.c_str()));
}
} // namespace

void SetLanguageFile(const wchar_t* languageDir, const wchar_t* fileName)
{
    Language& language = CurrentLanguage();
    language.path = PathInFolder(languageDir, fileName);
    language.file = CLanguageFile(language.path);
    language.measurementUnit = ReadMeasurementUnit();
}

const std::wstring& LanguageFilePath()
{
    return CurrentLanguage().path;
}

std::int32_t MeasurementUnit()
{
    return CurrentLanguage().measurementUnit;
}

std::wstring LookUpText(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText)
{
    const Language& language = CurrentLanguage();
    const bool isUnitWord = key == L"IDC_STATIC" && language.measurementUnit != 0;
    return ExpandLineBreaks(language.file.GetText(isUnitWord ? L"MeasureWords" : section, key, defaultText));
}
