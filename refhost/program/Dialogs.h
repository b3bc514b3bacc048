#pragma once

#include <windows.h>

#include <string>

namespace refhost
{

inline constexpr const wchar_t* PROGRAM_TITLE = L"Quorvane Host";

void CentreOnScreen(HWND window);

// Says what is wrong on standard error, for scripts, and in a message box, for a person.
void ReportError(const std::wstring& text);

} // namespace refhost
