#include "dialogs/base/CodePage.h"

#include <cstring>
#include <cwchar>
#include <windows.h>

wchar_t* ToWide(const char* pszNarrow, wchar_t* pszTarget, int nTargetChars)
{
    if (!pszNarrow || !pszTarget || nTargetChars < 1)
        return nullptr;
    pszTarget[0] = L'\0';
    if (MultiByteToWideChar(CP_THREAD_ACP, 0, pszNarrow, -1, pszTarget, nTargetChars) > 0)
        return pszTarget;
    pszTarget[0] = L'\0';
    return nullptr;
}

char* ToNarrow(const wchar_t* pszWide, char* pszTarget, int nTargetBytes)
{
    if (!pszWide || !pszTarget || nTargetBytes < 1)
        return nullptr;
    pszTarget[0] = '\0';
    if (WideCharToMultiByte(CP_THREAD_ACP, 0, pszWide, -1, pszTarget, nTargetBytes, nullptr, nullptr) > 0)
        return pszTarget;
    pszTarget[0] = '\0';
    return nullptr;
}

std::optional<std::wstring> WideText(const char* pszNarrow)
{
    const size_t length = pszNarrow ? std::strlen(pszNarrow) : 0;
    if (!pszNarrow || !IsConvertibleLength(length))
        return std::nullopt;
    std::wstring text(length + 1, L'\0');
    if (!ToWide(pszNarrow, text.data(), static_cast<int>(text.size())))
        return std::nullopt;
    text.resize(std::wcslen(text.c_str()));
    return text;
}

std::optional<std::string> NarrowText(const wchar_t* pszWide)
{
    const size_t length = pszWide ? std::wcslen(pszWide) : 0;
    if (!pszWide || !IsConvertibleLength(length))
        return std::nullopt;
    std::string text(2 * (length + 1), '\0');
    // The largest target has one byte more than a count can say; no text needs that byte.
    const size_t bytes = text.size() > 0x7FFFFFFF ? 0x7FFFFFFF : text.size();
    if (!ToNarrow(pszWide, text.data(), static_cast<int>(bytes)))
        return std::nullopt;
    text.resize(std::strlen(text.c_str()));
    return text;
}
