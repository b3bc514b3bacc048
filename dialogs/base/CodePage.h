#pragma once

#include <cstddef>
#include <optional>
#include <string>

// Texts cross the host boundary as narrow strings in the ANSI code page of the thread; windows show wide ones.

// Both return the target, or null when a pointer is null or the text cannot be converted; the target then is empty.
wchar_t* ToWide(const char* pszNarrow, wchar_t* pszTarget, int nTargetChars);
char* ToNarrow(const wchar_t* pszWide, char* pszTarget, int nTargetBytes);

// The same with a target sized from the source: one character more than its bytes, or two bytes for every character
// and the terminator. Nothing when the source is null, too long or does not fit.
std::optional<std::wstring> WideText(const char* pszNarrow);
std::optional<std::string> NarrowText(const wchar_t* pszWide);

// Longer sources would overflow the target's size.
constexpr bool IsConvertibleLength(std::size_t nLength)
{
    return nLength < 0x40000000;
}
