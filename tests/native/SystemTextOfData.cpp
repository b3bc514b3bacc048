#include "dialogs/data/HostText.h"

// The thread's ANSI code page is western here, with one character for every byte but 0x81, which stands for nothing.
// Wide characters beyond it have no narrow form.
namespace
{
constexpr unsigned char NO_CHARACTER = 0x81;
} // namespace

std::optional<std::wstring> WideText(const char* narrow)
{
    if (!narrow)
        return std::nullopt;
    std::wstring text;
    for (; *narrow; ++narrow)
    {
        const auto byte = static_cast<unsigned char>(*narrow);
        if (byte == NO_CHARACTER)
            return std::nullopt;
        text.push_back(byte);
    }
    return text;
}

std::optional<std::string> NarrowText(const wchar_t* wide)
{
    if (!wide)
        return std::nullopt;
    std::string text;
    for (; *wide; ++wide)
    {
        if (*wide > 0xFF || *wide == NO_CHARACTER)
            return std::nullopt;
        text.push_back(static_cast<char>(*wide));
    }
    return text;
}
