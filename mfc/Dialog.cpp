#include "AfxState.h"
#include "CaughtException.h"
#include "DisabledWindows.h"

#include <utility>

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace
{
// What a modal dialog disables. Its owner may be hidden.
std::vector<HWND> WindowsBehind(HWND owner)
{
    std::vector<HWND> windows = AfxEnabledWindows(owner);
    if (owner && ::IsWindowEnabled(owner))
        windows.push_back(owner);
    return windows;
}

class CRunningDialog
{
public:
    explicit CRunningDialog(HWND window) : m_end(&CRunningDialog::End) { AfxGetState().modalDialogs.push_back(window); }

private:
    static void End()
    {
        AfxState& state = AfxGetState();
        state.modalDialogs.pop_back();
        if (state.modalDialogs.empty())
            state.temporary.clear();
    }

    CUndo m_end;
};

// The windows from the message's target up to the innermost modal dialog; none when the target lies outside of it.
// A pop-up's parent is its owner, so an unbounded walk would reach the dialogs below.
std::vector<HWND> PreTranslationRoad(HWND target)
{
    const std::vector<HWND>& dialogs = AfxGetState().modalDialogs;
    std::vector<HWND> road;
    for (HWND window = target; window; window = ::GetParent(window))
    {
        road.push_back(window);
        if (!dialogs.empty() && window == dialogs.back())
            return road;
    }
    return {};
}

bool PreTranslate(MSG& msg)
{
    for (HWND window : PreTranslationRoad(msg.hwnd))
    {
        CWnd* object = CWnd::FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(&msg))
            return true;
    }
    return false;
}

// The dialog manager has the filters asked again. While an object of this class lives, they do not hear of it: the
// newest hook is asked first, and it keeps the one message to itself.
class CAskedFilters
{
public:
    explicit CAskedFilters(const MSG& msg) : m_remove(&CAskedFilters::Remove)
    {
        Remove();
        AfxState& state = AfxGetState();
        state.filtered = msg;
        state.filterHook = ::SetWindowsHookEx(WH_MSGFILTER, &Keep, nullptr, ::GetCurrentThreadId());
    }

private:
    static void Remove()
    {
        if (HHOOK hook = std::exchange(AfxGetState().filterHook, nullptr))
            ::UnhookWindowsHookEx(hook);
    }

    // Handling the message may begin another loop, so the hook goes as soon as it has done its work.
    static LRESULT CALLBACK Keep(int code, WPARAM wParam, LPARAM lParam)
    {
        const MSG& msg = *reinterpret_cast<const MSG*>(lParam);
        const MSG& asked = AfxGetState().filtered;
        const bool isSame = msg.hwnd == asked.hwnd && msg.message == asked.message && msg.wParam == asked.wParam &&
                            msg.lParam == asked.lParam && msg.time == asked.time;
        if (code != MSGF_DIALOGBOX || !isSame)
            return ::CallNextHookEx(nullptr, code, wParam, lParam);
        Remove();
        return FALSE;
    }

    CUndo m_remove;
};

bool HandleAsDialog(HWND dialog, MSG* message)
{
    const CAskedFilters asked(*message);
    return ::IsDialogMessage(dialog, message) != FALSE;
}
} // namespace

CDialog::~CDialog()
{
    DestroyWindow();
}

HWND CDialog::CreateIndirect(UINT templateId, HWND parent)
{
    HINSTANCE module = AfxGetResourceHandle();
    HRSRC resource = ::FindResource(module, MAKEINTRESOURCE(templateId), RT_DIALOG);
    HGLOBAL dialogTemplate = resource ? ::LoadResource(module, resource) : nullptr;
    if (!dialogTemplate)
        return nullptr;
    const INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    return ::CreateDialogIndirectParam(module, static_cast<LPCDLGTEMPLATE>(::LockResource(dialogTemplate)), parent,
                                       &CDialog::DialogProc, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK CDialog::DialogProc(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE; // the object has seen the message already; the rest is the system's
    return reinterpret_cast<CDialog*>(lParam)->InitDialog(window);
}

INT_PTR CDialog::InitDialog(HWND window)
{
    SubclassWindow(window);
    try
    {
        return OnInitDialog();
    }
    catch (...)
    {
        AfxTraceCaught("the initialisation of dialog", m_nTemplateId);
        EndDialog(-1);
        return FALSE;
    }
}

BOOL CDialog::Create(UINT templateId, CWnd* parent)
{
    return CreateIndirect(templateId, parent ? parent->m_hWnd : nullptr) != nullptr;
}

INT_PTR CDialog::DoModal()
{
    HWND owner = AfxGetModalOwner(m_pParent);
    CDisabledWindows disabled(WindowsBehind(owner));
    m_bModal = true;
    m_bRunning = true;
    m_nModalResult = -1;
    if (!CreateIndirect(m_nTemplateId, owner))
    {
        m_bModal = m_bRunning = false;
        return -1;
    }
    const int result = RunModalLoop(owner);
    m_bRunning = false;
    const bool wasActive = m_hWnd && ::GetActiveWindow() == m_hWnd;
    disabled.Enable();
    DestroyWindow();
    if (wasActive && ::IsWindow(owner))
        ::SetActiveWindow(owner);
    m_bModal = false;
    return result;
}

int CDialog::RunModalLoop(HWND owner)
{
    const CRunningDialog running(m_hWnd);
    const MSG current = AfxGetState().current;
    if (m_bRunning)
        ShowWindow(SW_SHOWNORMAL);
    bool tellIdle = true;
    while (m_bRunning && m_hWnd)
    {
        MSG msg;
        const bool idle = !::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE);
        if (idle && tellIdle && ::IsWindow(owner))
            ::SendMessage(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
        tellIdle = !idle;
        if (m_bRunning && !PumpMessage())
            return -1;
        AfxUndoCutScopes();
        AfxGetState().current = current;
    }
    return m_hWnd ? m_nModalResult : -1;
}

bool CDialog::PumpMessage()
{
    MSG msg;
    if (::GetMessage(&msg, nullptr, 0, 0) <= 0)
    {
        ::PostQuitMessage(static_cast<int>(msg.wParam)); // for the loop around this one
        return false;
    }
    AfxUndoCutScopes(); // a sent message may have been handled meanwhile
    if (!::CallMsgFilter(&msg, MSGF_DIALOGBOX) && !PreTranslate(msg))
    {
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    return true;
}

void CDialog::EndDialog(int result)
{
    if (!m_bRunning)
        return;
    m_nModalResult = result;
    m_bRunning = false;
    PostMessage(WM_NULL); // the loop may be waiting while this runs in a sent message
}

BOOL CDialog::PreTranslateMessage(MSG* message)
{
    return m_bModal && AfxIsInput(message->message) && HandleAsDialog(m_hWnd, message);
}

BOOL CDialog::OnInitDialog()
{
    if (!UpdateData(FALSE))
    {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

void CDialog::OnOK()
{
    if (m_bModal && UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

void CDialog::PostNcDestroy()
{
    if (m_bRunning)
        ::PostThreadMessage(::GetCurrentThreadId(), WM_NULL, 0, 0); // the loop may be waiting here too
}
