#include <windows.h>

#include <commctrl.h>

// A library that imports from the same system libraries and does nothing: what loading any of its kind costs.
extern "C" __declspec(dllexport) int Nothing()
{
    InitCommonControls();
    return GetSystemMetrics(SM_CXSCREEN) + GetDeviceCaps(nullptr, LOGPIXELSX);
}
