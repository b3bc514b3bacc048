#include "frame/QuorvaneApp.h"

namespace
{
CQuorvaneApp theApp;
} // namespace

BOOL CQuorvaneApp::InitInstance()
{
    CWinApp::InitInstance();
    return TRUE;
}

// Threads that end are not kept from the library (DisableThreadLibraryCalls): the run-time library then frees the
// record of exceptions of a thread that an editor ran on.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID)
{
    return reason != DLL_PROCESS_ATTACH || theApp.InitInstance();
}
