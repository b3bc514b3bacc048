#include "dialogs/base/SystemText.h"

#include "tests/native/Utf.h"

// The system's ANSI code page is western here, with one character for every byte.
std::wstring AnsiToWide(std::string_view bytes)
{
    std::wstring text;
    for (char c : bytes)
        text.push_back(static_cast<unsigned char>(c));
    return text;
}

std::wstring Utf8ToWide(std::string_view bytes)
{
    return Utf16FromUtf8(bytes);
}
