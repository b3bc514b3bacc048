#include "refhost/TextConversion.h"

#include <windows.h>

namespace refhost
{
namespace
{

std::wstring Widen(std::string_view text, UINT codePage, DWORD flags)
{
    const int length = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(codePage, flags, text.data(), length, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(codePage, flags, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrow(std::wstring_view text, UINT codePage, DWORD flags, BOOL* lost)
{
    const int length = static_cast<int>(text.size());
    std::string narrow(
        static_cast<std::size_t>(WideCharToMultiByte(codePage, flags, text.data(), length, nullptr, 0, nullptr, lost)),
        '\0');
    WideCharToMultiByte(codePage, flags, text.data(), length, narrow.data(), static_cast<int>(narrow.size()), nullptr,
                        lost);
    return narrow;
}

} // namespace

std::optional<std::wstring> WideFromNarrow(std::string_view narrow, std::uint32_t codePage)
{
    std::wstring wide = Widen(narrow, codePage, MB_ERR_INVALID_CHARS);
    if (wide.empty() && !narrow.empty())
        return std::nullopt;
    return wide;
}

std::optional<std::string> NarrowFromWide(std::wstring_view wide, std::uint32_t codePage)
{
    BOOL lost = FALSE;
    std::string narrow = Narrow(wide, codePage, WC_NO_BEST_FIT_CHARS, &lost);
    if (lost)
        return std::nullopt;
    return narrow;
}

std::wstring WideFromUtf8(std::string_view utf8)
{
    return Widen(utf8, CP_UTF8, 0);
}

std::string Utf8FromWide(std::wstring_view wide)
{
    return Narrow(wide, CP_UTF8, 0, nullptr);
}

} // namespace refhost
