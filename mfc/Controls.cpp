#include <afxwin.h>

namespace
{
LPARAM TextParam(const wchar_t* text)
{
    return reinterpret_cast<LPARAM>(text ? text : L"");
}

// Some systems keep the old selection when asked for a row that does not exist.
int SelectRow(const CWnd& wnd, UINT setMessage, int count, int wanted)
{
    const int row = wanted >= 0 && wanted < count ? wanted : -1;
    return static_cast<int>(wnd.SendMessage(setMessage, static_cast<WPARAM>(row)));
}

CString RowText(const CWnd& wnd, UINT lengthMessage, UINT textMessage, int index)
{
    const LRESULT length = wnd.SendMessage(lengthMessage, static_cast<WPARAM>(index));
    if (length < 0)
        return {};
    std::wstring buffer(static_cast<size_t>(length) + 1, L'\0');
    wnd.SendMessage(textMessage, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer.data()));
    return buffer.c_str();
}
} // namespace

int CListBox::SetCurSel(int row)
{
    return SelectRow(*this, LB_SETCURSEL, GetCount(), row);
}

int CListBox::AddString(const wchar_t* text)
{
    return static_cast<int>(SendMessage(LB_ADDSTRING, 0, TextParam(text)));
}

int CListBox::InsertString(int index, const wchar_t* text)
{
    return static_cast<int>(SendMessage(LB_INSERTSTRING, static_cast<WPARAM>(index), TextParam(text)));
}

void CListBox::GetText(int index, CString& text) const
{
    text = RowText(*this, LB_GETTEXTLEN, LB_GETTEXT, index);
}

int CComboBox::SetCurSel(int row)
{
    return SelectRow(*this, CB_SETCURSEL, GetCount(), row);
}

int CComboBox::AddString(const wchar_t* text)
{
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, TextParam(text)));
}

void CComboBox::GetLBText(int index, CString& text) const
{
    text = RowText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index);
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF colour)
{
    const COLORREF old = ::SetBkColor(m_hDC, colour);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, old);
}
