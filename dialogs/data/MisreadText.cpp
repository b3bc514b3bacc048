#include "dialogs/data/MisreadText.h"

std::wstring NarrowReadAsWide(const char* narrow)
{
    if (!narrow)
        return L"(null)";
    std::wstring text;
    while (*narrow)
    {
        const auto low = static_cast<unsigned char>(*narrow++);
        const auto high = static_cast<unsigned char>(*narrow ? *narrow++ : '\0');
        text.push_back(static_cast<wchar_t>(high << 8 | low));
    }
    return text;
}

std::string WideReadAsNarrow(const wchar_t* wide)
{
    if (!wide)
        return "(null)";
    std::string text;
    for (; (*wide & 0xFF) != 0; ++wide)
    {
        text.push_back(static_cast<char>(*wide & 0xFF));
        if (*wide >> 8 == 0)
            break;
        text.push_back(static_cast<char>(*wide >> 8));
    }
    return text;
}
