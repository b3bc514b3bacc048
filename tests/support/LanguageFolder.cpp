#include "tests/support/LanguageFolder.h"

#include "tests/support/Utf16.h"

void LanguageFolder::WriteTexts(const std::wstring& lines)
{
    WriteBytes(Utf16(L"[DLG_PRINT_MODE]\r\n" + lines));
}
