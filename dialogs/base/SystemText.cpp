#include "dialogs/base/SystemText.h"

#include <windows.h>

namespace
{
std::wstring Widen(std::string_view bytes, UINT codePage)
{
    const int count = static_cast<int>(bytes.size());
    std::wstring text(static_cast<size_t>(MultiByteToWideChar(codePage, 0, bytes.data(), count, nullptr, 0)), L'\0');
    MultiByteToWideChar(codePage, 0, bytes.data(), count, text.data(), static_cast<int>(text.size()));
    return text;
}
} // namespace

std::wstring AnsiToWide(std::string_view bytes)
{
    return Widen(bytes, CP_ACP);
}

std::wstring Utf8ToWide(std::string_view bytes)
{
    return Widen(bytes, CP_UTF8);
}
