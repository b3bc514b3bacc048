#include "AfxState.h"

#include <string>

extern "C" IMAGE_DOS_HEADER __ImageBase;

AfxState& AfxGetState()
{
    static AfxState state = [] {
        AfxState initial;
        initial.resources = AfxGetInstanceHandle();
        return initial;
    }();
    return state;
}

CWinApp::CWinApp(const wchar_t* appName) : m_pszAppName(appName)
{
    AfxGetState().app = this;
}

CWinApp::~CWinApp()
{
    AfxGetState().app = nullptr;
}

CWinApp* AfxGetApp()
{
    return AfxGetState().app;
}

HINSTANCE AfxGetInstanceHandle()
{
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

HINSTANCE AfxGetResourceHandle()
{
    return AfxGetState().resources;
}

void AfxSetResourceHandle(HINSTANCE module)
{
    AfxGetState().resources = module;
}

namespace
{
class CRegisteredClasses
{
public:
    CRegisteredClasses() = default;
    CRegisteredClasses(const CRegisteredClasses&) = delete;
    CRegisteredClasses& operator=(const CRegisteredClasses&) = delete;
    ~CRegisteredClasses()
    {
        for (const std::wstring& name : m_vecNames)
            ::UnregisterClass(name.c_str(), AfxGetInstanceHandle());
    }

    void Add(const wchar_t* name) { m_vecNames.emplace_back(name); }

private:
    std::vector<std::wstring> m_vecNames;
};
} // namespace

BOOL AfxRegisterClass(const WNDCLASS* windowClass)
{
    static CRegisteredClasses classes;
    WNDCLASS existing;
    if (::GetClassInfo(windowClass->hInstance, windowClass->lpszClassName, &existing))
        return TRUE;
    if (!::RegisterClass(windowClass))
        return FALSE;
    classes.Add(windowClass->lpszClassName);
    return TRUE;
}

HWND AfxGetModalOwner(CWnd* parent)
{
    const AfxState& state = AfxGetState();
    HWND window = parent ? parent->m_hWnd : nullptr;
    if (!window && !state.modalDialogs.empty())
        return state.modalDialogs.back();
    if (!window)
        window = ::GetActiveWindow();
    if (!window)
        return nullptr;
    return ::GetLastActivePopup(::GetAncestor(window, GA_ROOT));
}

int AfxMessageBox(const wchar_t* text, UINT type)
{
    const UINT icon = (type & MB_ICONMASK) ? 0 : MB_ICONEXCLAMATION;
    const CWinApp* app = AfxGetApp();
    return ::MessageBox(AfxGetModalOwner(nullptr), text, app ? app->m_pszAppName : L"", type | icon);
}

CWaitCursor::CWaitCursor()
{
    AfxState& state = AfxGetState();
    if (state.waitCursors++ == 0)
        state.cursorBeforeWait = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
}

CWaitCursor::~CWaitCursor()
{
    AfxState& state = AfxGetState();
    if (--state.waitCursors == 0)
        ::SetCursor(state.cursorBeforeWait);
}

BOOL CMenu::LoadMenu(UINT resourceId)
{
    DestroyMenu();
    m_hMenu = ::LoadMenu(AfxGetResourceHandle(), MAKEINTRESOURCE(resourceId));
    return m_hMenu != nullptr;
}

BOOL CMenu::DestroyMenu()
{
    if (!m_hMenu)
        return FALSE;
    const BOOL destroyed = ::DestroyMenu(m_hMenu);
    m_hMenu = nullptr;
    return destroyed;
}
