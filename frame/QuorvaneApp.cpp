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

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID)
{
    return reason != DLL_PROCESS_ATTACH || theApp.InitInstance();
}
