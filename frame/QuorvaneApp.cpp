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

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD dwReason, LPVOID)
{
    return dwReason != DLL_PROCESS_ATTACH || theApp.InitInstance();
}
