#include "refhost/program/Dialogs.h"

#include "refhost/TextConversion.h"

namespace refhost
{

void CentreOnScreen(HWND window)
{
    RECT area = {};
    RECT frame = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    GetWindowRect(window, &frame);
    const int x = (area.left + area.right - (frame.right - frame.left)) / 2;
    const int y = (area.top + area.bottom - (frame.bottom - frame.top)) / 2;
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

void ReportError(const std::wstring& text)
{
    const std::string line = Utf8FromWide(text) + "\n";
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    MessageBoxW(nullptr, text.c_str(), PROGRAM_TITLE, MB_OK | MB_ICONERROR);
}

} // namespace refhost
