#include <windows.h>

#include <commctrl.h>

// Imports from the same system libraries as Quorvane.dll and does nothing. Loading it shows what loading any such
// library costs.
extern "C" __declspec(dllexport) int Nothing()
{
    InitCommonControls();
    return GetSystemMetrics(SM_CXSCREEN) + GetDeviceCaps(nullptr, LOGPIXELSX);
}
