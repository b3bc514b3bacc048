#include "dialogs/base/CodePage.h"

#include "dialogs/data/HostText.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <cwchar>
#include <windows.h>

wchar_t* ToWide(const char* narrow, wchar_t* target, int targetChars)
{
    if (!narrow || !target || targetChars < 1)
        return nullptr;
    target[0] = L'\0';
    if (MultiByteToWideChar(CP_THREAD_ACP, 0, narrow, -1, target, targetChars) > 0)
        return target;
    target[0] = L'\0';
    return nullptr;
}

char* ToNarrow(const wchar_t* wide, char* target, int targetBytes)
{
    if (!wide || !target || targetBytes < 1)
        return nullptr;
    target[0] = '\0';
    if (WideCharToMultiByte(CP_THREAD_ACP, 0, wide, -1, target, targetBytes, nullptr, nullptr) > 0)
        return target;
    target[0] = '\0';
    return nullptr;
}

// One character more than the source has bytes is always enough.
std::optional<std::wstring> WideText(const char* narrow)
{
    const std::size_t length = narrow ? std::strlen(narrow) : 0;
    if (!narrow || !IsConvertibleLength(length))
        return std::nullopt;
    std::wstring text(length + 1, L'\0');
    if (!ToWide(narrow, text.data(), static_cast<int>(text.size())))
        return std::nullopt;
    text.resize(std::wcslen(text.c_str()));
    return text;
}

// Two bytes for each character and the terminator: a text that needs more is not converted.
std::optional<std::string> NarrowText(const wchar_t* wide)
{
    const std::size_t length = wide ? std::wcslen(wide) : 0;
    if (!wide || !IsConvertibleLength(length))
        return std::nullopt;
    std::string text(2 * (length + 1), '\0');
    // The largest target has one byte more than a count can say; no text needs that byte.
    const std::size_t bytes = std::min<std::size_t>(text.size(), INT_MAX);
    if (!ToNarrow(wide, text.data(), static_cast<int>(bytes)))
        return std::nullopt;
    text.resize(std::strlen(text.c_str()));
    return text;
}
