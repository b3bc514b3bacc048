#include "dialogs/data/HostText.h"

std::wstring HostText(const char* narrow)
{
    return WideText(narrow).value_or(std::wstring());
}

std::wstring HostTextForFormat(const char* narrow)
{
    return WideText(narrow).value_or(L"(null)");
}
