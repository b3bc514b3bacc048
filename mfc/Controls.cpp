#include <afxwin.h>

namespace
{
LPARAM TextParam(LPCTSTR lpsz)
{
    return reinterpret_cast<LPARAM>(lpsz ? lpsz : L"");
}

// Some systems keep the old selection when asked for a row that does not exist.
int SelectRow(const CWnd& wnd, UINT nSetMessage, int nCount, int nSelect)
{
    const int nRow = nSelect >= 0 && nSelect < nCount ? nSelect : -1;
    return static_cast<int>(wnd.SendMessage(nSetMessage, static_cast<WPARAM>(nRow)));
}

CString RowText(const CWnd& wnd, UINT nLengthMessage, UINT nTextMessage, int nIndex)
{
    const LRESULT nLength = wnd.SendMessage(nLengthMessage, static_cast<WPARAM>(nIndex));
    if (nLength < 0)
        return CString();
    std::wstring buffer(static_cast<size_t>(nLength) + 1, L'\0');
    wnd.SendMessage(nTextMessage, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(buffer.data()));
    return CString(buffer.c_str());
}
} // namespace

int CListBox::SetCurSel(int nSelect)
{
    return SelectRow(*this, LB_SETCURSEL, GetCount(), nSelect);
}

int CListBox::AddString(LPCTSTR lpszItem)
{
    return static_cast<int>(SendMessage(LB_ADDSTRING, 0, TextParam(lpszItem)));
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem)
{
    return static_cast<int>(SendMessage(LB_INSERTSTRING, static_cast<WPARAM>(nIndex), TextParam(lpszItem)));
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    rString = RowText(*this, LB_GETTEXTLEN, LB_GETTEXT, nIndex);
}

int CComboBox::SetCurSel(int nSelect)
{
    return SelectRow(*this, CB_SETCURSEL, GetCount(), nSelect);
}

int CComboBox::AddString(LPCTSTR lpszString)
{
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, TextParam(lpszString)));
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    rString = RowText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, nIndex);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    const COLORREF clrOld = ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, clrOld);
}
