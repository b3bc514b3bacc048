#include "AfxState.h"
#include "CaughtException.h"
#include "ScopedValue.h"

namespace
{
bool IsNotification(UINT message)
{
    return message == WM_COMMAND || message == WM_NOTIFY;
}
} // namespace

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (!pWnd)
        return ::DefWindowProc(hWnd, message, wParam, lParam);
    MSG msg = {};
    msg.hwnd = hWnd;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    const CScopedValue<MSG> current(AfxGetState().current, msg);
    // The system's frames below cannot be unwound: an exception of a host's callback ends here.
    try
    {
        return pWnd->WindowProc(message, wParam, lParam);
    }
    catch (...)
    {
        AfxTraceCaught("the window procedure, message", message);
        return 0;
    }
}

CWnd::~CWnd()
{
    UnsubclassWindow();
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd)
{
    const auto& permanent = AfxGetState().permanent;
    const auto it = permanent.find(hWnd);
    return it == permanent.end() ? nullptr : it->second;
}

CWnd* CWnd::FromHandle(HWND hWnd)
{
    if (!hWnd)
        return nullptr;
    if (CWnd* pWnd = FromHandlePermanent(hWnd))
        return pWnd;
    std::unique_ptr<CWnd>& pTemporary = AfxGetState().temporary[hWnd];
    if (!pTemporary)
        pTemporary = std::make_unique<CWnd>();
    pTemporary->m_hWnd = hWnd;
    return pTemporary.get();
}

CScrollBar* afx::ScrollBarFromHandle(LPARAM lParam)
{
    // Really whatever control sent the message; handlers compare its handle only.
    return reinterpret_cast<CScrollBar*>(CWnd::FromHandle(reinterpret_cast<HWND>(lParam)));
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID)
{
    HWND hWnd =
        ::CreateWindowEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                         rect.bottom - rect.top, pParentWnd ? pParentWnd->m_hWnd : nullptr,
                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), AfxGetInstanceHandle(), nullptr);
    return hWnd && SubclassWindow(hWnd);
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!hWnd || m_hWnd || FromHandlePermanent(hWnd))
        return FALSE;
    m_hWnd = hWnd;
    AfxGetState().permanent[hWnd] = this;
    m_pfnSuper =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    return TRUE;
}

HWND CWnd::UnsubclassWindow()
{
    HWND hWnd = m_hWnd;
    if (hWnd && m_pfnSuper)
    {
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
        AfxGetState().permanent.erase(hWnd);
    }
    m_pfnSuper = nullptr;
    m_hWnd = nullptr;
    return hWnd;
}

BOOL CWnd::DestroyWindow()
{
    return m_hWnd && ::DestroyWindow(m_hWnd);
}

void CWnd::GetWindowText(CString& rString) const
{
    const int nLength = ::GetWindowTextLength(m_hWnd);
    std::wstring buffer(static_cast<size_t>(nLength) + 1, L'\0');
    const int nCopied = ::GetWindowText(m_hWnd, buffer.data(), nLength + 1);
    buffer.resize(static_cast<size_t>(nCopied));
    rString = buffer;
}

// The system walks the children at every question, and some systems ask another process for them: an editor with two
// hundred controls asks hundreds of times at each change. So a child is remembered for as long as it is one.
HWND CWnd::ChildById(int nID) const
{
    HWND& hWnd = m_mapChildren[nID];
    if (!hWnd || ::GetAncestor(hWnd, GA_PARENT) != m_hWnd || ::GetDlgCtrlID(hWnd) != nID)
        hWnd = ::GetDlgItem(m_hWnd, nID);
    return hWnd;
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    AfxState& state = AfxGetState();
    if (!m_hWnd || state.hWndHeld == m_hWnd)
        return FALSE;
    const CScopedValue<HWND> held(state.hWndHeld, m_hWnd);
    CDataExchange dx(this, bSaveAndValidate);
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
    if (AfxGetState().hWndHeld == m_hWnd)
        return true;
    const CWnd* pRoot = FromHandlePermanent(::GetAncestor(m_hWnd, GA_ROOT));
    return pRoot && pRoot->IsEnding();
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (IsNotification(message))
    {
        const HWND hWndFrom =
            message == WM_NOTIFY ? reinterpret_cast<NMHDR*>(lParam)->hwndFrom : reinterpret_cast<HWND>(lParam);
        CWnd* pChild = FromHandlePermanent(hWndFrom);
        if (pChild && pChild != this && pChild->OnChildNotify(message, wParam, lParam, pResult))
            return TRUE;
        if (NotificationsHeld())
            return TRUE;
    }
    if (message == WM_COMMAND)
        return OnCommand(wParam, lParam);
    return DispatchMapped(message, 0, 0, wParam, lParam, pResult);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    const UINT nCode = lParam ? HIWORD(wParam) : 0;
    return DispatchMapped(WM_COMMAND, nCode, LOWORD(wParam), wParam, lParam, &result);
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*)
{
    return FALSE;
}

BOOL CWnd::DispatchMapped(UINT message, UINT nCode, UINT nID, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    for (const AFX_MSGMAP* pMap = GetMessageMap(); pMap; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->nMessage; ++pEntry)
        {
            const UINT nWanted = pEntry->pRegistered ? *pEntry->pRegistered : pEntry->nMessage;
            if (nWanted != message || pEntry->nCode != nCode || pEntry->nID != nID)
                continue;
            *pResult = pEntry->pfnInvoke(*this, wParam, lParam);
            return TRUE;
        }
    return FALSE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_pfnSuper)
        return ::CallWindowProc(m_pfnSuper, m_hWnd, message, wParam, lParam);
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
