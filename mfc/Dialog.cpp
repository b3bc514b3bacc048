#include "AfxState.h"
#include "CaughtException.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace
{
// Keeps the owner of a modal dialog disabled; gives it back before the dialog's window dies, because the system looks
// for the next window to activate while the dialog is being destroyed.
class DisabledOwner
{
public:
    explicit DisabledOwner(HWND hWnd) : m_hWnd(hWnd && ::IsWindowEnabled(hWnd) ? hWnd : nullptr)
    {
        if (m_hWnd)
            ::EnableWindow(m_hWnd, FALSE);
    }
    ~DisabledOwner() { Enable(); }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

    void Enable()
    {
        if (m_hWnd)
            ::EnableWindow(m_hWnd, TRUE);
        m_hWnd = nullptr;
    }

private:
    HWND m_hWnd;
};

class RunningDialog
{
public:
    explicit RunningDialog(HWND hWnd) { AfxGetState().modalDialogs.push_back(hWnd); }
    ~RunningDialog()
    {
        AfxState& state = AfxGetState();
        state.modalDialogs.pop_back();
        if (state.modalDialogs.empty())
            state.temporary.clear();
    }
    RunningDialog(const RunningDialog&) = delete;
    RunningDialog& operator=(const RunningDialog&) = delete;
};

// The windows from the message's target up to the innermost modal dialog; none when the target lies outside of it.
// A pop-up's parent is its owner, so an unbounded walk would reach the dialogs below.
std::vector<HWND> PreTranslationRoad(HWND hWndTarget)
{
    const std::vector<HWND>& dialogs = AfxGetState().modalDialogs;
    std::vector<HWND> road;
    for (HWND hWnd = hWndTarget; hWnd; hWnd = ::GetParent(hWnd))
    {
        road.push_back(hWnd);
        if (!dialogs.empty() && hWnd == dialogs.back())
            return road;
    }
    return {};
}

bool PreTranslate(MSG& msg)
{
    for (HWND hWnd : PreTranslationRoad(msg.hwnd))
    {
        CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
        if (pWnd && pWnd->PreTranslateMessage(&msg))
            return true;
    }
    return false;
}
} // namespace

CDialog::~CDialog()
{
    DestroyWindow();
}

HWND CDialog::CreateIndirect(UINT nIDTemplate, HWND hWndParent)
{
    HINSTANCE hModule = AfxGetResourceHandle();
    HRSRC hResource = ::FindResource(hModule, MAKEINTRESOURCE(nIDTemplate), RT_DIALOG);
    HGLOBAL hTemplate = hResource ? ::LoadResource(hModule, hResource) : nullptr;
    if (!hTemplate)
        return nullptr;
    const INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    return ::CreateDialogIndirectParam(hModule, static_cast<LPCDLGTEMPLATE>(::LockResource(hTemplate)), hWndParent,
                                       &CDialog::DialogProc, reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK CDialog::DialogProc(HWND hWnd, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE; // the object has seen the message already; the rest is the system's
    return reinterpret_cast<CDialog*>(lParam)->InitDialog(hWnd);
}

INT_PTR CDialog::InitDialog(HWND hWnd)
{
    SubclassWindow(hWnd);
    try
    {
        return OnInitDialog();
    }
    catch (...)
    {
        AfxTraceCaught("the initialisation of dialog", m_nIDTemplate);
        EndDialog(-1);
        return FALSE;
    }
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return CreateIndirect(nIDTemplate, pParentWnd ? pParentWnd->m_hWnd : nullptr) != nullptr;
}

INT_PTR CDialog::DoModal()
{
    HWND hWndOwner = AfxGetModalOwner(m_pParentWnd);
    DisabledOwner owner(hWndOwner);
    m_bModal = true;
    m_bRunning = true;
    m_nModalResult = -1;
    if (!CreateIndirect(m_nIDTemplate, hWndOwner))
    {
        m_bModal = m_bRunning = false;
        return -1;
    }
    const int nResult = RunModalLoop(hWndOwner);
    m_bRunning = false;
    const bool bWasActive = m_hWnd && ::GetActiveWindow() == m_hWnd;
    owner.Enable();
    DestroyWindow();
    if (bWasActive && ::IsWindow(hWndOwner))
        ::SetActiveWindow(hWndOwner);
    m_bModal = false;
    return nResult;
}

int CDialog::RunModalLoop(HWND hWndOwner)
{
    const RunningDialog running(m_hWnd);
    if (m_bRunning)
        ShowWindow(SW_SHOWNORMAL);
    bool bTellIdle = true;
    while (m_bRunning && m_hWnd)
    {
        MSG msg;
        const bool bIdle = !::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE);
        if (bIdle && bTellIdle && ::IsWindow(hWndOwner))
            ::SendMessage(hWndOwner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
        bTellIdle = !bIdle;
        if (m_bRunning && !PumpMessage())
            return -1;
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
    if (!PreTranslate(msg))
    {
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    return true;
}

void CDialog::EndDialog(int nResult)
{
    if (!m_bRunning)
        return;
    m_nModalResult = nResult;
    m_bRunning = false;
    PostMessage(WM_NULL); // the loop may be waiting while this runs in a sent message
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    return m_bModal && AfxIsInput(pMsg->message) && ::IsDialogMessage(m_hWnd, pMsg);
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
