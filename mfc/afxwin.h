// Windows, dialogs, the system's plain controls, menus, the application object and the resource handle.
// Supported: what the members below say, over plain Win32. One user-interface thread a process uses them.
// Not supported: documents, views, command routing between windows, idle processing, serialisation, DLGINIT data.
// Differs: a dialog with WS_CHILD never runs IsDialogMessage and its default OK and Cancel do nothing, so Enter and
// Esc in a tab page act on the modal dialog; notifications that arrive after EndDialog are dropped.
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <commctrl.h>

#include <afxdd_.h>
#include <afxmsg_.h>
#include <afxstr.h>

#include <unordered_map>

class CMenu;

class CWnd
{
public:
    CWnd() = default;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
    virtual ~CWnd();

    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return m_hWnd; }

    // FromHandle makes a temporary object for a window that has none, valid until the last modal loop ends.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd);

    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID);
    BOOL SubclassWindow(HWND hWnd);
    HWND UnsubclassWindow();
    virtual BOOL DestroyWindow();

    CWnd* GetDlgItem(int nID) const { return FromHandle(ChildById(nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ChildById(nID); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE)); }

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }

    void SetWindowText(LPCTSTR lpszString) { ::SetWindowText(m_hWnd, lpszString); }
    void GetWindowText(CString& rString) const;
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }

    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void ScreenToClient(LPRECT lpRect) const { ::MapWindowPoints(HWND_DESKTOP, m_hWnd, PointsOf(lpRect), 2); }
    void ClientToScreen(LPRECT lpRect) const { ::MapWindowPoints(m_hWnd, HWND_DESKTOP, PointsOf(lpRect), 2); }
    void MoveWindow(const RECT& rc, BOOL bRepaint = TRUE)
    {
        ::MoveWindow(m_hWnd, rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, bRepaint);
    }

    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    BOOL RedrawWindow(LPCRECT lpRect = nullptr, UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE)
    {
        return ::RedrawWindow(m_hWnd, lpRect, nullptr, flags);
    }
    void SetRedraw(BOOL bRedraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(bRedraw)); }
    int GetScrollPos(int nBar) const { return ::GetScrollPos(m_hWnd, nBar); }

    // TRUE: from the controls to the members, validating; FALSE: from the members to the controls. Returns FALSE when
    // a check refused a value or there is no window. The window's own control notifications are held back meanwhile.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    virtual BOOL PreTranslateMessage(MSG* pMsg);

protected:
    friend class CDialog;
    friend LRESULT CALLBACK AfxWndProc(HWND, UINT, WPARAM, LPARAM);

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // Offers a notification to the control that sent it before its parent's map; TRUE ends the matter.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void PostNcDestroy();
    // TRUE once the modal dialog around this window was told to end.
    virtual bool IsEnding() const { return false; }

    // Whether this window is told nothing by its controls: its dialog has been told to end, or shows a prompt.
    bool NotificationsHeld() const;

    // Default processing of the message being handled.
    LRESULT Default();

    void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void OnSize(UINT nType, int cx, int cy);

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

private:
    static LPPOINT PointsOf(LPRECT lpRect) { return reinterpret_cast<LPPOINT>(lpRect); }
    HWND ChildById(int nID) const;
    BOOL DispatchMapped(UINT message, UINT nCode, UINT nID, WPARAM wParam, LPARAM lParam, LRESULT* pResult);

    mutable std::unordered_map<int, HWND> m_mapChildren; // as last found
    WNDPROC m_pfnSuper = nullptr;                        // the procedure that the window had before it was subclassed
};

class CDialog : public CWnd
{
public:
    // The template is looked up when the dialog runs, under the resource handle that is current then.
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr)
        : m_nIDTemplate(nIDTemplate), m_pParentWnd(pParentWnd)
    {
    }
    ~CDialog() override;

    // The value given to EndDialog; -1 when the dialog could not be created or died with its owner.
    virtual INT_PTR DoModal();
    // A modeless dialog; with a WS_CHILD template a child of pParentWnd.
    BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    void EndDialog(int nResult);

    void GotoDlgCtrl(CWnd* pWndCtrl) { SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE); }

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    virtual BOOL OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    bool IsEnding() const override { return m_bModal && !m_bRunning; }
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()

private:
    HWND CreateIndirect(UINT nIDTemplate, HWND hWndParent);
    static INT_PTR CALLBACK DialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR InitDialog(HWND hWnd);
    int RunModalLoop(HWND hWndOwner);
    bool PumpMessage();

    UINT m_nIDTemplate;
    CWnd* m_pParentWnd;
    bool m_bModal = false;
    bool m_bRunning = false;
    int m_nModalResult = -1;
};

class CStatic : public CWnd
{
};

class CScrollBar : public CWnd
{
};

class CButton : public CWnd
{
};

class CEdit : public CWnd
{
};

class CListBox : public CWnd
{
public:
    int GetCount() const { return static_cast<int>(SendMessage(LB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(LB_GETCURSEL)); }
    // An index outside the list clears the selection and gives LB_ERR.
    int SetCurSel(int nSelect);
    int AddString(LPCTSTR lpszItem);
    int InsertString(int nIndex, LPCTSTR lpszItem);
    int DeleteString(UINT nIndex) { return static_cast<int>(SendMessage(LB_DELETESTRING, nIndex)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    void GetText(int nIndex, CString& rString) const;
    DWORD_PTR GetItemData(int nIndex) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return static_cast<int>(
            SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
    }
    int GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return static_cast<int>(
            SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect)));
    }
    int GetSelCount() const { return static_cast<int>(SendMessage(LB_GETSELCOUNT)); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const
    {
        return static_cast<int>(
            SendMessage(LB_GETSELITEMS, static_cast<WPARAM>(nMaxItems), reinterpret_cast<LPARAM>(rgIndex)));
    }
};

class CComboBox : public CWnd
{
public:
    int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    // An index outside the list clears the selection and gives CB_ERR.
    int SetCurSel(int nSelect);
    int AddString(LPCTSTR lpszString);
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    void GetLBText(int nIndex, CString& rString) const;
    DWORD_PTR GetItemData(int nIndex) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return static_cast<int>(
            SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
    }
    // The search begins after nStartAfter (-1: with the first line) and wraps round; case does not count.
    int FindStringExact(int nStartAfter, LPCTSTR lpszFind) const
    {
        return static_cast<int>(
            SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszFind)));
    }
    // Selects the first line that begins with the text; not found: CB_ERR, and the selection stays.
    int SelectString(int nStartAfter, LPCTSTR lpszString)
    {
        return static_cast<int>(
            SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszString)));
    }
};

// Device context; painting one for WM_PAINT below.
class CDC
{
public:
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    HDC m_hDC = nullptr;

    void FillSolidRect(LPCRECT lpRect, COLORREF clr);

protected:
    CDC() = default;
    ~CDC() = default;
};

class CPaintDC : public CDC
{
public:
    explicit CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd) { m_hDC = ::BeginPaint(m_hWnd, &m_ps); }
    ~CPaintDC() { ::EndPaint(m_hWnd, &m_ps); }

private:
    HWND m_hWnd;
    PAINTSTRUCT m_ps{};
};

class CMenu
{
public:
    CMenu() = default;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;
    ~CMenu() { DestroyMenu(); }

    HMENU m_hMenu = nullptr;

    BOOL LoadMenu(UINT nIDResource);
    BOOL DestroyMenu();
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
    {
        return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    // Differs: the plain handle, which belongs to the menu around it.
    HMENU GetSubMenu(int nPos) const { return ::GetSubMenu(m_hMenu, nPos); }
};

// Shows the hourglass while it lives; nested ones count.
class CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

class CWinApp
{
public:
    explicit CWinApp(LPCTSTR lpszAppName);
    virtual ~CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    virtual BOOL InitInstance() { return TRUE; }

    LPCTSTR m_pszAppName; // caption of message boxes
};

CWinApp* AfxGetApp();
HINSTANCE AfxGetInstanceHandle();
// The module that templates and menus are taken from; at first the module that holds this code. Null means what it
// means to the system: the program of the process.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE hInstResource);
// The window class goes when the module that registered it is unloaded.
BOOL AfxRegisterClass(const WNDCLASS* lpWndClass);
int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK);
