#include "PropertyGridDropDown.h"

#include "GdiObjects.h"
#include "ScopedValue.h"

#include <algorithm>

BEGIN_MESSAGE_MAP(CPropertyGridDropDown, CListBox)
    ON_MESSAGE(WM_GETDLGCODE, &CPropertyGridDropDown::OnGetDlgCode)
    ON_MESSAGE(WM_KEYDOWN, &CPropertyGridDropDown::OnKeyDown)
    ON_MESSAGE(WM_SYSKEYDOWN, &CPropertyGridDropDown::OnSysKeyDown)
    ON_MESSAGE(WM_CHAR, &CPropertyGridDropDown::OnTyped)
    ON_MESSAGE(WM_KILLFOCUS, &CPropertyGridDropDown::OnKillFocus)
END_MESSAGE_MAP()

BOOL CPropertyGridDropDown::Create(CWnd* grid, UINT id, std::function<void(const CString&)> accepted)
{
    m_accepted = std::move(accepted);
    const DWORD style =
        WS_CHILD | WS_BORDER | WS_VSCROLL | WS_CLIPSIBLINGS | LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT;
    return CreateEx(0, WC_LISTBOX, nullptr, style, RECT{}, grid, id);
}

void CPropertyGridDropDown::Open(const RECT& cell, const RECT& bounds, const std::vector<CString>& options,
                                 const CString& current)
{
    Fill(options, current);
    const RECT rect = Place(cell, bounds);
    ::SetWindowPos(m_hWnd, HWND_TOP, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                   SWP_SHOWWINDOW);
    SetCurSel(GetCurSel()); // now that the height is known, scrolls the current line into view
    SetFocus();
}

void CPropertyGridDropDown::Fill(const std::vector<CString>& options, const CString& current)
{
    ResetContent();
    for (const CString& option : options)
        AddString(option);
    const auto it = std::find(options.begin(), options.end(), current);
    SetCurSel(it == options.end() ? -1 : static_cast<int>(it - options.begin()));
}

int CPropertyGridDropDown::WidestLine() const
{
    const CTextMeasure measure(m_hWnd, reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    int widest = 0;
    for (int i = 0; i < GetCount(); ++i)
    {
        CString line;
        GetText(i, line);
        widest = std::max(widest, measure.Width(line));
    }
    return widest;
}

RECT CPropertyGridDropDown::Place(const RECT& cell, const RECT& bounds) const
{
    const int line = static_cast<int>(SendMessage(LB_GETITEMHEIGHT));
    const int borders = 2 * ::GetSystemMetrics(SM_CYBORDER);
    const int wanted = GetCount() * line + borders;
    const int belowCell = bounds.bottom - cell.bottom;
    const int above = cell.top - bounds.top;
    const bool below = wanted <= belowCell || belowCell >= above;
    const int room = std::max(below ? belowCell : above, line + borders);
    // Whole lines only: a cut line looks like a fault.
    const int height = wanted <= room ? wanted : (room - borders) / line * line + borders;
    const int margins = 4 * ::GetSystemMetrics(SM_CXEDGE) + ::GetSystemMetrics(SM_CXVSCROLL);
    const LONG left = std::max(bounds.left, std::min(cell.left, cell.right - WidestLine() - margins));
    const LONG top = below ? cell.bottom : cell.top - height;
    return {left, top, cell.right, top + height};
}

void CPropertyGridDropDown::Close()
{
    if (!IsOpen())
        return;
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    if (::GetFocus() == m_hWnd)
        GetParent()->SetFocus();
    ShowWindow(SW_HIDE);
}

void CPropertyGridDropDown::Accept()
{
    if (!IsOpen())
        return;
    const int line = GetCurSel();
    CString text;
    GetText(line, text);
    Close();
    if (line >= 0)
        m_accepted(text);
}

BOOL CPropertyGridDropDown::OnChildNotify(UINT message, WPARAM wParam, LPARAM, LRESULT*)
{
    if (message == WM_COMMAND && HIWORD(wParam) == LBN_SELCHANGE && !m_bByKey)
        Accept();
    return TRUE;
}

LRESULT CPropertyGridDropDown::OnGetDlgCode(WPARAM, LPARAM)
{
    return DLGC_WANTALLKEYS;
}

LRESULT CPropertyGridDropDown::OnKeyDown(WPARAM wParam, LPARAM lParam)
{
    switch (wParam)
    {
    case VK_RETURN:
    case VK_F4:
        Accept();
        return 0;
    case VK_ESCAPE:
        Close();
        return 0;
    case VK_TAB:
        Close();
        GetParent()->PostMessage(WM_KEYDOWN, VK_TAB); // the grid is the tab stop, the way on begins there
        return 0;
    default:
        return OnTyped(wParam, lParam);
    }
}

LRESULT CPropertyGridDropDown::OnSysKeyDown(WPARAM wParam, LPARAM)
{
    if (wParam != VK_UP && wParam != VK_DOWN)
        return Default();
    Accept();
    return 0;
}

LRESULT CPropertyGridDropDown::OnTyped(WPARAM, LPARAM)
{
    const CScopedValue<bool> byKey(m_bByKey, true);
    return Default();
}

LRESULT CPropertyGridDropDown::OnKillFocus(WPARAM, LPARAM)
{
    const LRESULT result = Default();
    Close();
    GetParent()->Invalidate(FALSE); // the grid's selected row shows whether the focus is in the grid
    return result;
}
