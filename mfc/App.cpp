#include "AfxState.h"

#include <string>

extern "C" IMAGE_DOS_HEADER __ImageBase;

AfxState& AfxGetState()
{
    static AfxState state = [] {
        AfxState initial;
        initial.hResource = AfxGetInstanceHandle();
        return initial;
    }();
    return state;
}

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_pszAppName(lpszAppName)
{
    AfxGetState().pApp = this;
}

CWinApp::~CWinApp()
{
    AfxGetState().pApp = nullptr;
}

CWinApp* AfxGetApp()
{
    return AfxGetState().pApp;
}

HINSTANCE AfxGetInstanceHandle()
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

HINSTANCE AfxGetResourceHandle()
{
    return AfxGetState().hResource;
}

void AfxSetResourceHandle(HINSTANCE hInstResource)
{
    AfxGetState().hResource = hInstResource;
}

namespace
{
class RegisteredClasses
{
public:
    ~RegisteredClasses()
    {
        for (const std::wstring& strName : m_names)
            ::UnregisterClass(strName.c_str(), AfxGetInstanceHandle());
    }

    void Add(LPCTSTR pszName) { m_names.emplace_back(pszName); }

private:
    std::vector<std::wstring> m_names;
};
} // namespace

BOOL AfxRegisterClass(const WNDCLASS* lpWndClass)
{
    static RegisteredClasses classes;
    WNDCLASS existing;
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing))
        return TRUE;
    if (!::RegisterClass(lpWndClass))
        return FALSE;
    classes.Add(lpWndClass->lpszClassName);
    return TRUE;
}

HWND AfxGetModalOwner(CWnd* pParentWnd)
{
    const AfxState& state = AfxGetState();
    HWND hWnd = pParentWnd ? pParentWnd->m_hWnd : nullptr;
    if (!hWnd && !state.modalDialogs.empty())
        return state.modalDialogs.back();
    if (!hWnd)
        hWnd = ::GetActiveWindow();
    if (!hWnd)
        return nullptr;
    return ::GetLastActivePopup(::GetAncestor(hWnd, GA_ROOT));
}

int AfxMessageBox(LPCTSTR lpszText, UINT nType)
{
    const UINT nIcon = (nType & MB_ICONMASK) ? 0 : MB_ICONEXCLAMATION;
    const CWinApp* pApp = AfxGetApp();
    return ::MessageBox(AfxGetModalOwner(nullptr), lpszText, pApp ? pApp->m_pszAppName : L"", nType | nIcon);
}

CWaitCursor::CWaitCursor()
{
    AfxState& state = AfxGetState();
    if (state.nWaitCursors++ == 0)
        state.hcurBeforeWait = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
}

CWaitCursor::~CWaitCursor()
{
    AfxState& state = AfxGetState();
    if (--state.nWaitCursors == 0)
        ::SetCursor(state.hcurBeforeWait);
}

BOOL CMenu::LoadMenu(UINT nIDResource)
{
    DestroyMenu();
    m_hMenu = ::LoadMenu(AfxGetResourceHandle(), MAKEINTRESOURCE(nIDResource));
    return m_hMenu != nullptr;
}

BOOL CMenu::DestroyMenu()
{
    if (!m_hMenu)
        return FALSE;
    const BOOL bDestroyed = ::DestroyMenu(m_hMenu);
    m_hMenu = nullptr;
    return bDestroyed;
}
