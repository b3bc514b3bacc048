#include "frame/ModalRunner.h"

#include "frame/CommonControls.h"

#include <cwchar>

namespace
{
class CurrentResources
{
public:
    explicit CurrentResources(HINSTANCE hInstance) : m_hOld(AfxGetResourceHandle()) { AfxSetResourceHandle(hInstance); }
    ~CurrentResources() { AfxSetResourceHandle(m_hOld); }
    CurrentResources(const CurrentResources&) = delete;
    CurrentResources& operator=(const CurrentResources&) = delete;

private:
    HINSTANCE m_hOld;
};

// Null when there is no such file: then nothing is found under the null handle either and no dialog comes up.
HINSTANCE LoadBesideHost(LPCTSTR pszFileName)
{
    wchar_t szExecutable[MAX_PATH + 1] = {};
    ::GetModuleFileName(nullptr, szExecutable, MAX_PATH);
    if (wchar_t* pszBackslash = std::wcsrchr(szExecutable, L'\\'))
        *pszBackslash = L'\0';
    CString strPath;
    strPath.Format(L"%s\\%s", szExecutable, pszFileName);
    return ::LoadLibrary(strPath);
}
} // namespace

int RunModal(CDialog* pDialog, LPCTSTR pszLibraryFileName)
{
    if (!pDialog)
        return -1;
    const CCommonControls controls;
    const CurrentResources resources(pszLibraryFileName ? LoadBesideHost(pszLibraryFileName) : AfxGetResourceHandle());
    return static_cast<int>(pDialog->DoModal());
}
