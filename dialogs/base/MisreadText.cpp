#include "dialogs/base/MisreadText.h"

std::wstring NarrowReadAsWide(const char* pszNarrow)
{
    if (!pszNarrow)
        return L"(null)";
    std::wstring text;
    while (*pszNarrow)
    {
        const auto low = static_cast<unsigned char>(*pszNarrow++);
        const auto high = static_cast<unsigned char>(*pszNarrow ? *pszNarrow++ : '\0');
        text.push_back(static_cast<wchar_t>(high << 8 | low));
    }
    return text;
}

std::string WideReadAsNarrow(const wchar_t* pszWide)
{
    if (!pszWide)
        return "(null)";
    std::string text;
    for (; (*pszWide & 0xFF) != 0; ++pszWide)
    {
        text.push_back(static_cast<char>(*pszWide & 0xFF));
        if (*pszWide >> 8 == 0)
            break;
        text.push_back(static_cast<char>(*pszWide >> 8));
    }
    return text;
}
