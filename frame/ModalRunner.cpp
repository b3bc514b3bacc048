#include "frame/ModalRunner.h"

#include "frame/CommonControls.h"
#include "frame/DpiAwareness.h"

#include <cwchar>
#include <string>

namespace
{
class CCurrentResources
{
public:
    explicit CCurrentResources(HINSTANCE module)
        : m_restore([old = AfxGetResourceHandle()] { AfxSetResourceHandle(old); })
    {
        AfxSetResourceHandle(module);
    }

private:
    CUndo m_restore;
};

// Null if there is no such file. Then nothing is found under the null handle either, and no dialog appears.
HINSTANCE LoadBesideHost(const wchar_t* fileName)
{
    wchar_t executable[MAX_PATH + 1] = {};
    ::GetModuleFileName(nullptr, executable, MAX_PATH);
    if (wchar_t* backslash = std::wcsrchr(executable, L'\\'))
        *backslash = L'\0';
    return ::LoadLibrary((std::wstring(executable) + L"\\" + fileName).c_str());
}
} // namespace

int RunModal(CDialog* dialog, const wchar_t* libraryFileName)
{
    if (!dialog)
        return -1;
    const CCommonControls controls;
    const CDpiAwareness awareness;
    const CCurrentResources resources(libraryFileName ? LoadBesideHost(libraryFileName) : AfxGetResourceHandle());
    return static_cast<int>(dialog->DoModal());
}
