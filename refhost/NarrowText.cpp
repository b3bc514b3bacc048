#include "refhost/NarrowText.h"

#include "refhost/TextConversion.h"

namespace refhost
{
namespace
{

struct CodePageLocale
{
    std::uint32_t codePage;
    std::uint32_t locale;
};

constexpr CodePageLocale LOCALES[] = {
    {874, 0x041E},  {932, 0x0411},  {936, 0x0804},  {949, 0x0412},  {950, 0x0404},  {1250, 0x0405}, {1251, 0x0419},
    {1252, 0x0409}, {1253, 0x0408}, {1254, 0x041F}, {1255, 0x040D}, {1256, 0x0401}, {1257, 0x0427}, {1258, 0x042A},
};

} // namespace

std::optional<std::uint32_t> LocaleOfCodePage(std::uint32_t codePage)
{
    for (const CodePageLocale& entry : LOCALES)
        if (entry.codePage == codePage)
            return entry.locale;
    return std::nullopt;
}

std::optional<std::string> NarrowFromUtf8(std::string_view utf8, std::uint32_t codePage)
{
    return NarrowFromWide(WideFromUtf8(utf8), codePage);
}

std::optional<std::string> Utf8FromNarrow(std::string_view narrow, std::uint32_t codePage)
{
    const auto wide = WideFromNarrow(narrow, codePage);
    if (!wide)
        return std::nullopt;
    std::string utf8 = Utf8FromWide(*wide);
    // Some byte sequences are accepted by the system and yet do not come back: they must survive a save, too.
    if (NarrowFromUtf8(utf8, codePage) != std::string(narrow))
        return std::nullopt;
    return utf8;
}

} // namespace refhost
