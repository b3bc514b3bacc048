#include "AfxState.h"
#include "CaughtException.h"
#include "ScopedValue.h"

#include <utility>

namespace
{
bool IsNotification(UINT message)
{
    return message == WM_COMMAND || message == WM_NOTIFY;
}
} // namespace

// The system's frames below cannot be unwound: an exception of a host's callback ends here.
LRESULT AfxCallObject(CWnd& object, const MSG& msg)
{
    try
    {
        return object.WindowProc(msg.message, msg.wParam, msg.lParam);
    }
    catch (...)
    {
        AfxTraceCaught("the window procedure, message", msg.message);
        return 0;
    }
}

LRESULT CALLBACK AfxWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    AfxUndoCutScopes(); // the object may have been in one of them
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (!object)
        return ::DefWindowProc(window, message, wParam, lParam);
    MSG msg = {};
    msg.hwnd = window;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    const MSG outer = std::exchange(AfxGetState().current, msg);
    const LRESULT result = AfxCallObject(*object, msg);
    AfxGetState().current = outer;
    return result;
}

CWnd::~CWnd()
{
    UnsubclassWindow();
}

CWnd* CWnd::FromHandlePermanent(HWND window)
{
    const auto& permanent = AfxGetState().permanent;
    const auto it = permanent.find(window);
    return it == permanent.end() ? nullptr : it->second.object;
}

CWnd* CWnd::FromHandle(HWND window)
{
    if (!window)
        return nullptr;
    if (CWnd* object = FromHandlePermanent(window))
        return object;
    std::unique_ptr<CWnd>& temporary = AfxGetState().temporary[window];
    if (!temporary)
        temporary = std::make_unique<CWnd>();
    temporary->m_hWnd = window;
    return temporary.get();
}

CScrollBar* afx::ScrollBarFromHandle(LPARAM lParam)
{
    // Really whatever control sent the message; handlers compare its handle only.
    return reinterpret_cast<CScrollBar*>(CWnd::FromHandle(reinterpret_cast<HWND>(lParam)));
}

BOOL CWnd::CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* windowName, DWORD style, const RECT& rect,
                    CWnd* parent, UINT id)
{
    HWND window = ::CreateWindowEx(exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left,
                                   rect.bottom - rect.top, parent ? parent->m_hWnd : nullptr,
                                   reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), AfxGetInstanceHandle(), nullptr);
    return window && SubclassWindow(window);
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!window || m_hWnd || FromHandlePermanent(window))
        return FALSE;
    m_hWnd = window;
    AttachedObject& attached = AfxGetState().permanent[window];
    attached.object = this;
    m_pSuper = attached.super =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    return TRUE;
}

void CWnd::Detach(HWND window)
{
    auto& permanent = AfxGetState().permanent;
    const auto it = permanent.find(window);
    if (it == permanent.end())
        return;
    ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(it->second.super));
    permanent.erase(it);
}

HWND CWnd::UnsubclassWindow()
{
    HWND window = m_hWnd;
    if (window && m_pSuper)
        Detach(window);
    m_pSuper = nullptr;
    m_hWnd = nullptr;
    return window;
}

BOOL CWnd::DestroyWindow()
{
    return m_hWnd && ::DestroyWindow(m_hWnd);
}

void CWnd::GetWindowText(CString& text) const
{
    const int length = ::GetWindowTextLength(m_hWnd);
    std::wstring buffer(static_cast<size_t>(length) + 1, L'\0');
    const int copied = ::GetWindowText(m_hWnd, buffer.data(), length + 1);
    buffer.resize(static_cast<size_t>(copied));
    text = buffer;
}

// The system walks the children at every question, and some systems ask another process for them: an editor with two
// hundred controls asks hundreds of times at each change. So a child is remembered for as long as it is one.
HWND CWnd::ChildById(int id) const
{
    HWND& window = m_mapChildren[id];
    if (!window || ::GetAncestor(window, GA_PARENT) != m_hWnd || ::GetDlgCtrlID(window) != id)
        window = ::GetDlgItem(m_hWnd, id);
    return window;
}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    AfxState& state = AfxGetState();
    if (!m_hWnd || state.heldWindow == m_hWnd)
        return FALSE;
    const CScopedValue<HWND> held(state.heldWindow, m_hWnd);
    CDataExchange dx(this, saveAndValidate);
    try
    {
        DoDataExchange(&dx);
        return TRUE;
    }
    catch (const CUserException&)
    {
        return FALSE;
    }
    catch (const CNotSupportedException&)
    {
        return FALSE;
    }
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (message == WM_NCDESTROY)
    {
        result = DefWindowProc(message, wParam, lParam);
        UnsubclassWindow();
        PostNcDestroy();
        return result;
    }
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

bool CWnd::NotificationsHeld() const
{
    if (AfxGetState().heldWindow == m_hWnd)
        return true;
    const CWnd* root = FromHandlePermanent(::GetAncestor(m_hWnd, GA_ROOT));
    return root && root->IsEnding();
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (IsNotification(message))
    {
        const HWND sender =
            message == WM_NOTIFY ? reinterpret_cast<NMHDR*>(lParam)->hwndFrom : reinterpret_cast<HWND>(lParam);
        CWnd* child = FromHandlePermanent(sender);
        if (child && child != this && child->OnChildNotify(message, wParam, lParam, result))
            return TRUE;
        if (NotificationsHeld())
            return TRUE;
    }
    if (message == WM_COMMAND)
        return OnCommand(wParam, lParam);
    return DispatchMapped(message, 0, 0, wParam, lParam, result);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    const UINT code = lParam ? HIWORD(wParam) : 0;
    return DispatchMapped(WM_COMMAND, code, LOWORD(wParam), wParam, lParam, &result);
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*)
{
    return FALSE;
}

BOOL CWnd::DispatchMapped(UINT message, UINT code, UINT id, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map; map = map->baseMap ? map->baseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* entry = map->entries; entry->message; ++entry)
        {
            const UINT wanted = entry->registered ? *entry->registered : entry->message;
            if (wanted == 0 || wanted != message || entry->code != code || entry->id != id)
                continue;
            *result = entry->invoke(*this, wParam, lParam);
            return TRUE;
        }
    return FALSE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_pSuper)
        return ::CallWindowProc(m_pSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

void CWnd::PostNcDestroy() {}

LRESULT CWnd::Default()
{
    const MSG msg = AfxGetState().current;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar*)
{
    Default();
}

void CWnd::OnSize(UINT, int, int)
{
    Default();
}

const AFX_MSGMAP* CWnd::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CWnd::GetMessageMap() const
{
    return GetThisMessageMap();
}
