#include "dialogs/base/HostContext.h"

#include <windows.h>

namespace
{
std::wstring LanguageFilePath(const wchar_t* languageDir, const wchar_t* fileName)
{
    std::wstring path(languageDir ? languageDir : L"");
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

HostContext& GetHostContext()
{
    static HostContext context;
    return context;
}

void SetLanguageFile(const wchar_t* pszLanguageDir, const wchar_t* pszFileName)
{
    HostContext& context = GetHostContext();
    context.strLanguageFile = LanguageFilePath(pszLanguageDir, pszFileName);
    context.languageFile = CLanguageFile(context.strLanguageFile);
    context.nMeasurementUnit = ReadMeasurementUnit();
}

std::wstring LookUpText(const std::wstring& strSection, const std::wstring& strKey, const std::wstring& strDefault)
{
    const HostContext& context = GetHostContext();
    const bool isUnitWord = strKey == L"IDC_STATIC" && context.nMeasurementUnit != 0;
    return ExpandLineBreaks(
        context.languageFile.GetText(isUnitWord ? L"MeasureWords" : strSection, strKey, strDefault));
}
