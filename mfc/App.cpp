#include "AfxState.h"
#include "DisabledWindows.h"

#include <string>

extern "C" IMAGE_DOS_HEADER __ImageBase;

AfxState& AfxGetState()
{
    static AfxState state = [] {
        AfxState initial;
        initial.resources = AfxGetInstanceHandle();
        // So that entering a scope needs no memory.
        initial.undos.reserve(64);
        initial.disabledWindows.reserve(64);
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

namespace
{
HWND LastPopUpOf(HWND window)
{
    return ::GetLastActivePopup(::GetAncestor(window, GA_ROOT));
}

// For a thread that has no active window, because the operator works in another program, say.
HWND OwnerOfAnInactiveThread()
{
    HWND window = AfxFindVisibleWindow();
    if (!window)
        return nullptr;
    HWND main = ::GetAncestor(window, GA_ROOTOWNER);
    return LastPopUpOf(::IsWindowVisible(main) ? main : window);
}
} // namespace

HWND AfxGetModalOwner(CWnd* parent)
{
    const AfxState& state = AfxGetState();
    if (parent && parent->m_hWnd)
        return LastPopUpOf(parent->m_hWnd);
    if (!state.modalDialogs.empty())
        return state.modalDialogs.back();
    HWND active = ::GetActiveWindow();
    return active ? LastPopUpOf(active) : OwnerOfAnInactiveThread();
}

// The owner is left to the system, which enables what it has disabled itself before the box is destroyed.
int AfxMessageBox(const wchar_t* text, UINT type)
{
    const UINT icon = (type & MB_ICONMASK) ? 0 : MB_ICONEXCLAMATION;
    const CWinApp* app = AfxGetApp();
    HWND owner = AfxGetModalOwner(nullptr);
    const CDisabledWindows others(AfxEnabledWindows(owner));
    return ::MessageBox(owner, text, app ? app->m_pszAppName : L"", type | icon);
}

CWaitCursor::CWaitCursor() : m_end(&CWaitCursor::End)
{
    AfxState& state = AfxGetState();
    if (state.waitCursors++ == 0)
        state.cursorBeforeWait = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
}

void CWaitCursor::End()
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
