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

#include "Undo.h"

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
    static CWnd* FromHandle(HWND window);
    static CWnd* FromHandlePermanent(HWND window);

    BOOL CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* windowName, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id);
    BOOL SubclassWindow(HWND window);
    HWND UnsubclassWindow();
    // Takes a window from its object without touching the object, which may exist no longer.
    static void Detach(HWND window);
    virtual BOOL DestroyWindow();

    CWnd* GetDlgItem(int id) const { return FromHandle(ChildById(id)); }
    void GetDlgItem(int id, HWND* window) const { *window = ChildById(id); }
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

    void SetWindowText(const wchar_t* text) { ::SetWindowText(m_hWnd, text); }
    void GetWindowText(CString& text) const;
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }

    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void ScreenToClient(LPRECT rect) const { ::MapWindowPoints(HWND_DESKTOP, m_hWnd, PointsOf(rect), 2); }
    void ClientToScreen(LPRECT rect) const { ::MapWindowPoints(m_hWnd, HWND_DESKTOP, PointsOf(rect), 2); }
    void MoveWindow(const RECT& rc, BOOL repaint = TRUE)
    {
        ::MoveWindow(m_hWnd, rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, repaint);
    }

    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE)
    {
        return ::RedrawWindow(m_hWnd, rect, nullptr, flags);
    }
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }
    int GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }

    // TRUE: from the controls to the members, validating; FALSE: from the members to the controls. Returns FALSE when
    // a check refused a value or there is no window. The window's own control notifications are held back meanwhile.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    virtual BOOL PreTranslateMessage(MSG* message);

protected:
    friend class CDialog;
    friend LRESULT AfxCallObject(CWnd&, const MSG&);

    virtual void DoDataExchange(CDataExchange* exchange);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // Offers a notification to the control that sent it before its parent's map; TRUE ends the matter.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void PostNcDestroy();
    // TRUE once the modal dialog around this window was told to end.
    virtual bool IsEnding() const { return false; }

    // Whether this window is told nothing by its controls: its dialog has been told to end, or shows a prompt.
    bool NotificationsHeld() const;

    // Default processing of the message being handled.
    LRESULT Default();

    void OnHScroll(UINT code, UINT pos, CScrollBar* scrollBar);
    void OnSize(UINT type, int cx, int cy);

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

private:
    static LPPOINT PointsOf(LPRECT rect) { return reinterpret_cast<LPPOINT>(rect); }
    HWND ChildById(int id) const;
    BOOL DispatchMapped(UINT message, UINT code, UINT id, WPARAM wParam, LPARAM lParam, LRESULT* result);

    mutable std::unordered_map<int, HWND> m_mapChildren; // as last found
    WNDPROC m_pSuper = nullptr;                          // the procedure that the window had before it was subclassed
};

class CDialog : public CWnd
{
public:
    // The template is looked up when the dialog runs, under the resource handle that is current then.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr) : m_nTemplateId(templateId), m_pParent(parent) {}
    CDialog(const CDialog&) = delete;
    CDialog& operator=(const CDialog&) = delete;
    ~CDialog() override;

    // The value given to EndDialog; -1 when the dialog could not be created or died with its owner.
    virtual INT_PTR DoModal();
    // A modeless dialog; with a WS_CHILD template a child of parent.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    void EndDialog(int result);

    void GotoDlgCtrl(CWnd* control) { SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control->m_hWnd), TRUE); }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    virtual BOOL OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    bool IsEnding() const override { return m_bModal && !m_bRunning; }
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()

private:
    HWND CreateIndirect(UINT templateId, HWND parent);
    static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR InitDialog(HWND window);
    int RunModalLoop(HWND owner);
    bool PumpMessage();

    UINT m_nTemplateId;
    CWnd* m_pParent;
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
    int SetCurSel(int row);
    int AddString(const wchar_t* text);
    int InsertString(int index, const wchar_t* text);
    int DeleteString(UINT index) { return static_cast<int>(SendMessage(LB_DELETESTRING, index)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    void GetText(int index, CString& text) const;
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return static_cast<int>(SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
    }
    int GetItemRect(int index, LPRECT rect) const
    {
        return static_cast<int>(
            SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(rect)));
    }
    int GetSelCount() const { return static_cast<int>(SendMessage(LB_GETSELCOUNT)); }
    int GetSelItems(int maxItems, LPINT indices) const
    {
        return static_cast<int>(
            SendMessage(LB_GETSELITEMS, static_cast<WPARAM>(maxItems), reinterpret_cast<LPARAM>(indices)));
    }
};

class CComboBox : public CWnd
{
public:
    int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    // An index outside the list clears the selection and gives CB_ERR.
    int SetCurSel(int row);
    int AddString(const wchar_t* text);
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    void GetLBText(int index, CString& text) const;
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return static_cast<int>(SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(index), static_cast<LPARAM>(data)));
    }
    // The search begins after startAfter (-1: with the first line) and wraps round; case does not count.
    int FindStringExact(int startAfter, const wchar_t* text) const
    {
        return static_cast<int>(
            SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
    }
    // Selects the first line that begins with the text; not found: CB_ERR, and the selection stays.
    int SelectString(int startAfter, const wchar_t* text)
    {
        return static_cast<int>(
            SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(startAfter), reinterpret_cast<LPARAM>(text)));
    }
};

// Device context; painting one for WM_PAINT below.
class CDC
{
public:
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    HDC m_hDC = nullptr;

    void FillSolidRect(LPCRECT rect, COLORREF colour);

protected:
    CDC() = default;
    ~CDC() = default;
};

class CPaintDC : public CDC
{
public:
    explicit CPaintDC(CWnd* window) : m_hWnd(window->m_hWnd) { m_hDC = ::BeginPaint(m_hWnd, &m_paint); }
    CPaintDC(const CPaintDC&) = delete;
    CPaintDC& operator=(const CPaintDC&) = delete;
    ~CPaintDC() { ::EndPaint(m_hWnd, &m_paint); }

private:
    HWND m_hWnd;
    PAINTSTRUCT m_paint{};
};

class CMenu
{
public:
    CMenu() = default;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;
    ~CMenu() { DestroyMenu(); }

    HMENU m_hMenu = nullptr;

    BOOL LoadMenu(UINT resourceId);
    BOOL DestroyMenu();
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR newId, const wchar_t* text)
    {
        return ::ModifyMenu(m_hMenu, position, flags, newId, text);
    }
    // Differs: the plain handle, which belongs to the menu around it.
    HMENU GetSubMenu(int pos) const { return ::GetSubMenu(m_hMenu, pos); }
};

// Shows the hourglass while it lives; nested ones count.
class CWaitCursor
{
public:
    CWaitCursor();

private:
    static void End();

    CUndo m_end;
};

class CWinApp
{
public:
    explicit CWinApp(const wchar_t* appName);
    virtual ~CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    virtual BOOL InitInstance() { return TRUE; }

    const wchar_t* m_pszAppName; // caption of message boxes
};

CWinApp* AfxGetApp();
HINSTANCE AfxGetInstanceHandle();
// The module that templates and menus are taken from; at first the module that holds this code. Null means what it
// means to the system: the program of the process.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE module);
// The window class goes when the module that registered it is unloaded.
BOOL AfxRegisterClass(const WNDCLASS* windowClass);
int AfxMessageBox(const wchar_t* text, UINT type = MB_OK);
