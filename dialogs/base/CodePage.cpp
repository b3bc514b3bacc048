#include "dialogs/base/CodePage.h"

#include "dialogs/data/HostText.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <cwchar>
#include <windows.h>

static_assert(THREAD_CODE_PAGE == CP_THREAD_ACP);

namespace
{
std::optional<std::string> NarrowTextWithin(const wchar_t* wide, std::size_t bytes, unsigned codePage)
{
    std::string text(bytes, '\0');
    // The largest target has one byte more than a count can say; no text needs that byte.
    const std::size_t room = std::min<std::size_t>(bytes, INT_MAX);
    if (!ToNarrow(wide, text.data(), static_cast<int>(room), codePage))
        return std::nullopt;
    text.resize(std::strlen(text.c_str()));
    return text;
}
} // namespace

wchar_t* ToWide(const char* narrow, wchar_t* target, int targetChars, unsigned codePage)
{
    if (!narrow || !target || targetChars < 1)
        return nullptr;
    target[0] = L'\0';
    if (MultiByteToWideChar(codePage, 0, narrow, -1, target, targetChars) > 0)
        return target;
    target[0] = L'\0';
    return nullptr;
}

char* ToNarrow(const wchar_t* wide, char* target, int targetBytes, unsigned codePage)
{
    if (!wide || !target || targetBytes < 1)
        return nullptr;
    target[0] = '\0';
    if (WideCharToMultiByte(codePage, 0, wide, -1, target, targetBytes, nullptr, nullptr) > 0)
        return target;
    target[0] = '\0';
    return nullptr;
}

// One character more than the source has bytes is always enough.
std::optional<std::wstring> WideTextOf(const char* narrow, unsigned codePage)
{
    const std::size_t length = narrow ? std::strlen(narrow) : 0;
    if (!narrow || !IsConvertibleLength(length))
        return std::nullopt;
    std::wstring text(length + 1, L'\0');
    if (!ToWide(narrow, text.data(), static_cast<int>(text.size()), codePage))
        return std::nullopt;
    text.resize(std::wcslen(text.c_str()));
    return text;
}

// Two bytes for each character and the terminator hold a text in every code page but UTF-8, which may need three.
std::optional<std::string> NarrowTextOf(const wchar_t* wide, unsigned codePage)
{
    const std::size_t length = wide ? std::wcslen(wide) : 0;
    if (!wide || !IsConvertibleLength(length))
        return std::nullopt;
    if (auto text = NarrowTextWithin(wide, 2 * (length + 1), codePage))
        return text;
    const int bytes = WideCharToMultiByte(codePage, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    return bytes > 0 ? NarrowTextWithin(wide, static_cast<std::size_t>(bytes), codePage) : std::nullopt;
}

std::optional<std::wstring> WideText(const char* narrow)
{
    return WideTextOf(narrow, THREAD_CODE_PAGE);
}

std::optional<std::string> NarrowText(const wchar_t* wide)
{
    return NarrowTextOf(wide, THREAD_CODE_PAGE);
}
