#include <afxpropertygridctrl.h>

#include "AfxState.h"

#include <imm.h>
#include <windowsx.h>

#include <algorithm>
#include <cassert>

UINT AFX_WM_PROPERTY_CHANGED = 0;

namespace
{
const wchar_t CLASS_NAME[] = L"AfxPropertyGrid";

enum ChildId : UINT
{
    ID_HEADER = 1,
    ID_DROP_DOWN
};

CGdiObjectOwner CreateBold(HFONT font)
{
    LOGFONT look;
    ::GetObject(font, sizeof(look), &look);
    look.lfWeight = FW_BOLD;
    return CGdiObjectOwner(::CreateFontIndirect(&look));
}

int HeaderHeight(const CWnd& header, RECT client)
{
    if (!(header.GetStyle() & WS_VISIBLE))
        return 0;
    WINDOWPOS pos = {};
    HDLAYOUT layout = {&client, &pos};
    header.SendMessage(HDM_LAYOUT, 0, reinterpret_cast<LPARAM>(&layout));
    return pos.cy;
}

COLORREF CustomOrSystem(COLORREF colour, int systemColour)
{
    return colour == static_cast<COLORREF>(-1) ? ::GetSysColor(systemColour) : colour;
}

void InsertColumn(const CWnd& header, WPARAM column)
{
    wchar_t noText[] = L""; // a column inserted without any text never draws one
    HDITEM item = {};
    item.mask = HDI_FORMAT | HDI_WIDTH | HDI_TEXT;
    item.fmt = HDF_LEFT | HDF_STRING;
    item.pszText = noText;
    header.SendMessage(HDM_INSERTITEM, column, reinterpret_cast<LPARAM>(&item));
}

void SetColumnText(const CWnd& header, WPARAM column, const wchar_t* text)
{
    HDITEM item = {};
    item.mask = HDI_TEXT;
    item.pszText = const_cast<wchar_t*>(text);
    header.SendMessage(HDM_SETITEM, column, reinterpret_cast<LPARAM>(&item));
}

void SetColumnWidth(const CWnd& header, WPARAM column, int width)
{
    HDITEM item = {};
    item.mask = HDI_WIDTH;
    item.cxy = width;
    header.SendMessage(HDM_SETITEM, column, reinterpret_cast<LPARAM>(&item));
}
} // namespace

BEGIN_MESSAGE_MAP(CMFCPropertyGridCtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_MESSAGE(WM_ERASEBKGND, &CMFCPropertyGridCtrl::OnEraseBkgnd)
    ON_MESSAGE(WM_SETFONT, &CMFCPropertyGridCtrl::OnSetFont)
    ON_MESSAGE(WM_GETFONT, &CMFCPropertyGridCtrl::OnGetFont)
    ON_MESSAGE(WM_ENABLE, &CMFCPropertyGridCtrl::OnEnable)
    ON_MESSAGE(WM_SETFOCUS, &CMFCPropertyGridCtrl::OnSetFocus)
    ON_MESSAGE(WM_KILLFOCUS, &CMFCPropertyGridCtrl::OnKillFocus)
    ON_MESSAGE(WM_GETDLGCODE, &CMFCPropertyGridCtrl::OnGetDlgCode)
    ON_MESSAGE(WM_KEYDOWN, &CMFCPropertyGridCtrl::OnKeyDown)
    ON_MESSAGE(WM_SYSKEYDOWN, &CMFCPropertyGridCtrl::OnSysKeyDown)
    ON_MESSAGE(WM_LBUTTONDOWN, &CMFCPropertyGridCtrl::OnLButtonDown)
    ON_MESSAGE(WM_LBUTTONDBLCLK, &CMFCPropertyGridCtrl::OnLButtonDblClk)
    ON_MESSAGE(WM_MOUSEWHEEL, &CMFCPropertyGridCtrl::OnMouseWheel)
    ON_MESSAGE(WM_VSCROLL, &CMFCPropertyGridCtrl::OnVScroll)
    ON_MESSAGE(WM_NOTIFY, &CMFCPropertyGridCtrl::OnNotify)
END_MESSAGE_MAP()

CMFCPropertyGridCtrl::~CMFCPropertyGridCtrl()
{
    DestroyWindow();
}

BOOL CMFCPropertyGridCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    AFX_WM_PROPERTY_CHANGED = ::RegisterWindowMessage(L"AFX_WM_PROPERTY_CHANGED");
    WNDCLASS windowClass = {};
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = &::DefWindowProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = CLASS_NAME;
    if (!AfxRegisterClass(&windowClass))
        return FALSE;
    if (!CreateEx(0, CLASS_NAME, nullptr, style | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, rect, parent, id))
        return FALSE;
    ::ImmAssociateContext(m_hWnd, nullptr); // keys choose here; nothing is written
    m_look.enabled = IsWindowEnabled();
    CreateChildren();
    const auto font = reinterpret_cast<HFONT>(parent->SendMessage(WM_GETFONT));
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font : ::GetStockObject(DEFAULT_GUI_FONT)));
    return TRUE;
}

void CMFCPropertyGridCtrl::CreateChildren()
{
    const INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_LISTVIEW_CLASSES}; // the header's set
    ::InitCommonControlsEx(&controls);
    m_header.CreateEx(0, WC_HEADER, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | HDS_HORZ | HDS_FULLDRAG, RECT{},
                      this, ID_HEADER);
    InsertColumn(m_header, 0);
    InsertColumn(m_header, 1);
    EnableHeaderCtrl();
    m_dropDown.Create(this, ID_DROP_DOWN, [this](const CString& value) { ChangeValue(value); });
}

void CMFCPropertyGridCtrl::EnableHeaderCtrl(BOOL enable, const wchar_t* leftColumn, const wchar_t* rightColumn)
{
    SetColumnText(m_header, 0, leftColumn);
    SetColumnText(m_header, 1, rightColumn);
    m_header.ShowWindow(enable ? SW_SHOW : SW_HIDE);
    UpdateLayout();
}

void CMFCPropertyGridCtrl::EnableDescriptionArea([[maybe_unused]] BOOL enable)
{
    assert(!enable);
}

void CMFCPropertyGridCtrl::SetAlphabeticMode([[maybe_unused]] BOOL set)
{
    assert(!set);
}

void CMFCPropertyGridCtrl::SetVSDotNetLook(BOOL set)
{
    m_look.hasStrip = set;
    Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::MarkModifiedProperties(BOOL mark, BOOL redraw)
{
    m_look.marksModified = mark;
    if (redraw)
        Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::SetCustomColors(COLORREF background, COLORREF text, COLORREF groupBackground, COLORREF,
                                           COLORREF, COLORREF, COLORREF line)
{
    m_look.background = CustomOrSystem(background, COLOR_WINDOW);
    m_look.text = CustomOrSystem(text, COLOR_WINDOWTEXT);
    m_look.strip = CustomOrSystem(groupBackground, COLOR_BTNFACE);
    m_look.line = CustomOrSystem(line, COLOR_BTNFACE);
    Invalidate(FALSE);
}

int CMFCPropertyGridCtrl::AddProperty(CMFCPropertyGridProperty* property, BOOL redraw, BOOL adjustLayout)
{
    std::unique_ptr<CMFCPropertyGridProperty> owned(property); // also where memory runs out
    property->m_pGrid = this;
    property->SetOriginalValue(property->GetValue());
    m_vecProperties.push_back(std::move(owned));
    m_layout.SetRowCount(GetPropertyCount());
    if (m_hWnd && adjustLayout)
        UpdateScrollBar(FALSE);
    if (m_hWnd && redraw)
        RedrawWindow(nullptr, RDW_INVALIDATE | RDW_FRAME); // the scroll bar once, however many rows are added
    return GetPropertyCount() - 1;
}

void CMFCPropertyGridCtrl::RemoveAll()
{
    m_dropDown.Close();
    m_nSelected = -1;
    m_vecProperties.clear();
    UpdateLayout();
}

void CMFCPropertyGridCtrl::UpdateLayout()
{
    if (!m_hWnd)
        return;
    m_dropDown.Close();
    RECT client;
    GetClientRect(&client);
    m_layout.SetHeaderHeight(HeaderHeight(m_header, client));
    m_layout.SetClient(client.right, client.bottom);
    m_layout.SetRowCount(GetPropertyCount());
    UpdateScrollBar(); // may change the width, and then comes back here through WM_SIZE
    UpdateColumns();
    Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::UpdateScrollBar(BOOL redraw)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = std::max(0, m_layout.RowCount() - 1);
    info.nPage = static_cast<UINT>(m_layout.RowsPerPage());
    info.nPos = m_layout.TopRow();
    ::SetScrollInfo(m_hWnd, SB_VERT, &info, redraw);
}

void CMFCPropertyGridCtrl::UpdateColumns()
{
    m_header.MoveWindow({0, 0, m_layout.Width(), m_layout.HeaderHeight()});
    SetColumnWidth(m_header, 0, m_layout.SplitX());
    SetColumnWidth(m_header, 1, m_layout.Width() - m_layout.SplitX());
}

void CMFCPropertyGridCtrl::ScrollTo(int topRow)
{
    const int oldTop = m_layout.TopRow();
    m_layout.ScrollTo(topRow);
    if (m_layout.TopRow() == oldTop)
        return;
    m_dropDown.Close();
    UpdateScrollBar();
    Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::SelectRow(int row)
{
    m_nSelected = row;
    m_layout.ScrollIntoView(row);
    UpdateScrollBar();
    Invalidate(FALSE);
}

void CMFCPropertyGridCtrl::OpenDropDown()
{
    if (m_nSelected < 0 || GetCurSel()->GetOptions().empty())
        return;
    SelectRow(m_nSelected); // it may have been scrolled away
    m_dropDown.Open(m_layout.ValueRect(m_nSelected), m_layout.RowsRect(), GetCurSel()->GetOptions(),
                    GetCurSel()->GetValue());
}

void CMFCPropertyGridCtrl::StepOption()
{
    const std::vector<CString>& options = GetCurSel()->GetOptions();
    if (options.empty())
        return;
    auto it = std::find(options.begin(), options.end(), GetCurSel()->GetValue());
    if (it != options.end())
        ++it;
    if (it == options.end())
        it = options.begin();
    ChangeValue(CString(*it));
}

void CMFCPropertyGridCtrl::ChangeValue(const CString& value)
{
    CMFCPropertyGridProperty* property = GetCurSel();
    if (!property || property->GetValue() == value)
        return;
    property->SetValue(value);
    OnPropertyChanged(property); // last: the parent may remove the rows
}

void CMFCPropertyGridCtrl::OnPropertyChanged(CMFCPropertyGridProperty* property) const
{
    if (!NotificationsHeld())
        GetParent()->SendMessage(AFX_WM_PROPERTY_CHANGED, static_cast<WPARAM>(GetDlgCtrlID()),
                                 reinterpret_cast<LPARAM>(property));
}

BOOL CMFCPropertyGridCtrl::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (AfxIsInput(message) && !IsWindowEnabled())
        return TRUE; // the system keeps input from a disabled window, other programs need not
    return CWnd::OnWndMsg(message, wParam, lParam, result);
}

void CMFCPropertyGridCtrl::OnPaint()
{
    const CPaintDC dc(this);
    const RECT rows = m_layout.RowsRect();
    const CDrawingBuffer buffer(dc.m_hDC, std::max(1L, rows.right), std::max(1L, rows.bottom));
    DrawRows(buffer.Get());
    ::BitBlt(dc.m_hDC, 0, rows.top, rows.right, rows.bottom - rows.top, buffer.Get(), 0, rows.top, SRCCOPY);
}

void CMFCPropertyGridCtrl::DrawRows(HDC context)
{
    m_look.focused = HasFocus();
    const CPropertyGridPainter painter(context, m_layout, m_look);
    painter.DrawBackground();
    const int end = std::min(m_layout.RowCount(), m_layout.TopRow() + m_layout.RowsPerPage() + 1);
    for (int row = m_layout.TopRow(); row < end; ++row)
        painter.DrawRow(row, *GetProperty(row), row == m_nSelected);
}

void CMFCPropertyGridCtrl::OnSize(UINT, int, int)
{
    UpdateLayout();
}

LRESULT CMFCPropertyGridCtrl::OnEraseBkgnd(WPARAM, LPARAM)
{
    return TRUE; // OnPaint covers everything
}

LRESULT CMFCPropertyGridCtrl::OnSetFont(WPARAM wParam, LPARAM)
{
    m_look.font = reinterpret_cast<HFONT>(wParam);
    m_boldFont = CreateBold(m_look.font);
    m_look.boldFont = static_cast<HFONT>(m_boldFont.get());
    m_header.SendMessage(WM_SETFONT, wParam);
    m_dropDown.SendMessage(WM_SETFONT, wParam);
    const int textHeight = CTextMeasure(m_hWnd, m_look.font).Height();
    m_dropDown.SendMessage(LB_SETITEMHEIGHT, 0, textHeight + ::GetSystemMetrics(SM_CYEDGE));
    m_layout.SetRowHeight(textHeight + 3 * ::GetSystemMetrics(SM_CYEDGE));
    UpdateLayout();
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnGetFont(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(m_look.font);
}

LRESULT CMFCPropertyGridCtrl::OnEnable(WPARAM wParam, LPARAM)
{
    m_dropDown.Close();
    m_look.enabled = wParam != FALSE;
    m_header.EnableWindow(wParam != FALSE);
    Invalidate(FALSE);
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnSetFocus(WPARAM, LPARAM)
{
    if (m_nSelected < 0 && GetPropertyCount() > 0)
        SelectRow(0);
    Invalidate(FALSE);
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnKillFocus(WPARAM, LPARAM)
{
    Invalidate(FALSE);
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnGetDlgCode(WPARAM, LPARAM)
{
    return m_dropDown.IsOpen() ? DLGC_WANTALLKEYS : DLGC_WANTARROWS | DLGC_WANTCHARS;
}

int CMFCPropertyGridCtrl::RowAfterKey(WPARAM key) const
{
    const int page = m_layout.RowsPerPage();
    const int last = GetPropertyCount() - 1;
    const auto limited = [last](int row) { return std::max(0, std::min(row, last)); };
    switch (key)
    {
    case VK_UP:
    case VK_LEFT:
        return limited(m_nSelected - 1);
    case VK_DOWN:
    case VK_RIGHT:
        return limited(m_nSelected + 1);
    case VK_PRIOR:
        return limited(m_nSelected - page);
    case VK_NEXT:
        return limited(m_nSelected + page);
    case VK_HOME:
        return 0;
    case VK_END:
        return last;
    default:
        return m_nSelected;
    }
}

LRESULT CMFCPropertyGridCtrl::OnKeyDown(WPARAM wParam, LPARAM lParam)
{
    if (m_dropDown.IsOpen())
        return m_dropDown.SendMessage(WM_KEYDOWN, wParam, lParam);
    if (m_vecProperties.empty())
        return 0;
    const int row = RowAfterKey(wParam);
    if (row != m_nSelected)
        SelectRow(row);
    if (wParam == VK_F4 || wParam == VK_F2 || wParam == VK_SPACE)
        OpenDropDown();
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnSysKeyDown(WPARAM wParam, LPARAM lParam)
{
    if (wParam != VK_DOWN && wParam != VK_UP)
        return Default();
    if (m_dropDown.IsOpen())
        return m_dropDown.SendMessage(WM_SYSKEYDOWN, wParam, lParam);
    if (wParam == VK_DOWN)
        OpenDropDown();
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnLButtonDown(WPARAM, LPARAM lParam)
{
    const bool wasOpen = m_dropDown.IsOpen();
    const int oldRow = m_nSelected;
    SetFocus(); // closes the list
    const int row = m_layout.RowAt(GET_Y_LPARAM(lParam));
    if (row < 0)
        return 0;
    SelectRow(row);
    const bool inValue = GET_X_LPARAM(lParam) >= m_layout.SplitX();
    if (inValue && !(wasOpen && row == oldRow))
        OpenDropDown();
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnLButtonDblClk(WPARAM, LPARAM lParam)
{
    SetFocus(); // the first click may have opened the list
    const int row = m_layout.RowAt(GET_Y_LPARAM(lParam));
    if (row < 0)
        return 0;
    SelectRow(row);
    StepOption();
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnMouseWheel(WPARAM wParam, LPARAM)
{
    if (m_dropDown.IsOpen())
        return 0; // the list would hang beside its row
    UINT lines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int step = std::min(static_cast<int>(std::min(lines, 1000u)), m_layout.RowsPerPage());
    m_nWheelRest += GET_WHEEL_DELTA_WPARAM(wParam) * step;
    const int rows = m_nWheelRest / WHEEL_DELTA;
    m_nWheelRest -= rows * WHEEL_DELTA;
    ScrollTo(m_layout.TopRow() - rows);
    return 0;
}

int CMFCPropertyGridCtrl::TopRowAfterScroll(WPARAM wParam) const
{
    const int top = m_layout.TopRow();
    switch (LOWORD(wParam))
    {
    case SB_LINEUP:
        return top - 1;
    case SB_LINEDOWN:
        return top + 1;
    case SB_PAGEUP:
        return top - m_layout.RowsPerPage();
    case SB_PAGEDOWN:
        return top + m_layout.RowsPerPage();
    case SB_TOP:
        return 0;
    case SB_BOTTOM:
        return m_layout.RowCount();
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        return ThumbRow(HIWORD(wParam));
    default:
        return top;
    }
}

// The message has room for 16 bits only.
int CMFCPropertyGridCtrl::ThumbRow(int rowInMessage) const
{
    if (m_layout.RowCount() <= 0xFFFF)
        return rowInMessage;
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_TRACKPOS;
    ::GetScrollInfo(m_hWnd, SB_VERT, &info);
    return info.nTrackPos;
}

LRESULT CMFCPropertyGridCtrl::OnVScroll(WPARAM wParam, LPARAM)
{
    ScrollTo(TopRowAfterScroll(wParam));
    return 0;
}

LRESULT CMFCPropertyGridCtrl::OnNotify(WPARAM, LPARAM lParam)
{
    const NMHEADER& header = *reinterpret_cast<const NMHEADER*>(lParam);
    if (header.hdr.hwndFrom != m_header.m_hWnd)
        return 0;
    const bool isWidth =
        (header.hdr.code == HDN_ITEMCHANGING || header.hdr.code == HDN_ITEMCHANGED) && (header.pitem->mask & HDI_WIDTH);
    if (!isWidth)
        return 0;
    // The first column's divider moves within limits; the second column is what the first one leaves.
    const int width = header.pitem->cxy;
    if (header.hdr.code == HDN_ITEMCHANGING)
        return header.iItem == 0 ? !m_layout.IsSplitAllowed(width) : width != m_layout.Width() - m_layout.SplitX();
    if (header.iItem == 0)
    {
        m_layout.SetSplitX(width);
        SetColumnWidth(m_header, 1, m_layout.Width() - width);
        m_dropDown.Close();
        Invalidate(FALSE);
    }
    return 0;
}
