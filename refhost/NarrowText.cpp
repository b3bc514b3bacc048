#include "refhost/NarrowText.h"

#include <windows.h>

namespace refhost
{
namespace
{

struct CodePageLocale
{
    std::uint32_t codePage;
    std::uint32_t locale;
};

constexpr CodePageLocale kLocales[] = {
    {874, 0x041E},  {932, 0x0411},  {936, 0x0804},  {949, 0x0412},  {950, 0x0404},  {1250, 0x0405}, {1251, 0x0419},
    {1252, 0x0409}, {1253, 0x0408}, {1254, 0x041F}, {1255, 0x040D}, {1256, 0x0401}, {1257, 0x0427}, {1258, 0x042A},
};

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

std::optional<std::uint32_t> LocaleOfCodePage(std::uint32_t codePage)
{
    for (const CodePageLocale& entry : kLocales)
        if (entry.codePage == codePage)
            return entry.locale;
    return std::nullopt;
}

std::optional<std::string> NarrowFromUtf8(std::string_view utf8, std::uint32_t codePage)
{
    BOOL lost = FALSE;
    std::string narrow = Narrow(WideFromUtf8(utf8), codePage, WC_NO_BEST_FIT_CHARS, &lost);
    if (lost)
        return std::nullopt;
    return narrow;
}

std::optional<std::string> Utf8FromNarrow(std::string_view narrow, std::uint32_t codePage)
{
    const std::string utf8 = Utf8FromWide(Widen(narrow, codePage, MB_ERR_INVALID_CHARS));
    // Some byte sequences are accepted by the system and yet do not come back: they must survive a save, too.
    if (NarrowFromUtf8(utf8, codePage) != std::string(narrow))
        return std::nullopt;
    return utf8;
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
