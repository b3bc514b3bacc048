#include "tests/support/Utf16.h"

std::string Utf16(std::wstring_view text, bool withMark, bool highByteFirst)
{
    std::string bytes;
    const auto append = [&](wchar_t c) {
        const char pair[] = {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
        bytes += {pair[highByteFirst ? 1 : 0], pair[highByteFirst ? 0 : 1]};
    };
    if (withMark)
        append(L'\xFEFF');
    for (wchar_t c : text)
        append(c);
    return bytes;
}
