#include "tests/support/Controls.h"

#include "tests/support/Operator.h"

#include <algorithm>
#include <commctrl.h>

namespace
{
POINT Centre(const RECT& area)
{
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

template <class Item>
auto ForEachRow(int count, Item item)
{
    std::vector<decltype(item(0))> items;
    for (int i = 0; i < count; ++i)
        items.push_back(item(i));
    return items;
}

Window FirstChild(const Window& parent, const std::wstring& className)
{
    for (const Window& child : parent.Children())
        if (child.ClassName() == className)
            return child;
    throw OperatorFailure("no child window of class " + Utf8(className));
}
} // namespace

int ListBox::RowCount() const
{
    return static_cast<int>(Send(LB_GETCOUNT));
}

std::wstring ListBox::Row(int row) const
{
    std::wstring text(static_cast<std::size_t>(SendIndex(LB_GETTEXTLEN, row)) + 1, L'\0');
    Send(LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

Texts ListBox::Rows() const
{
    return ForEachRow(RowCount(), [this](int row) { return Row(row); });
}

int ListBox::Selected() const
{
    return static_cast<int>(Send(LB_GETCURSEL));
}

void ListBox::ClickRow(int row) const
{
    Op().Click(*this, PointIn(row));
}

void ListBox::DoubleClickRow(int row) const
{
    Op().DoubleClick(*this, PointIn(row));
}

void ListBox::ClickRowAgain(int row) const
{
    Op().ClickAgain(*this, PointIn(row));
}

void ListBox::RightClickRow(int row) const
{
    Op().RightClick(*this, PointIn(row));
}

POINT ListBox::PointIn(int row) const
{
    if (row < 0 || row >= RowCount())
        throw OperatorFailure("the list has no row " + std::to_string(row));
    RECT area{};
    Send(LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
    if (area.top < 0 || area.bottom > ClientArea().bottom)
    {
        SendIndex(LB_SETTOPINDEX, row);
        Send(LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
    }
    return {area.left + 4, (area.top + area.bottom) / 2};
}

int ComboBox::RowCount() const
{
    return static_cast<int>(Send(CB_GETCOUNT));
}

Texts ComboBox::Rows() const
{
    return ForEachRow(RowCount(), [this](int row) {
        std::wstring text(static_cast<std::size_t>(SendIndex(CB_GETLBTEXTLEN, row)) + 1, L'\0');
        Send(CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        return text;
    });
}

int ComboBox::Selected() const
{
    return static_cast<int>(Send(CB_GETCURSEL));
}

std::wstring ComboBox::SelectedText() const
{
    return Selected() == kNone ? std::wstring() : Rows()[static_cast<std::size_t>(Selected())];
}

bool ComboBox::IsDropped() const
{
    return Send(CB_GETDROPPEDSTATE) != 0;
}

int ComboBox::RowWithData(int data) const
{
    for (int row = 0; row < RowCount(); ++row)
        if (SendIndex(CB_GETITEMDATA, row) == data)
            return row;
    return kNone;
}

void ComboBox::Pick(int row) const
{
    Click();
    if (!IsDropped())
        throw OperatorFailure("the list of combo box " + std::to_string(Id()) + " did not open");
    List().ClickRow(row);
}

ListBox ComboBox::List() const
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(Handle(), &info);
    return ListBox(Op(), info.hwndList);
}

bool EditField::IsAllSelected() const
{
    DWORD start = 0;
    DWORD end = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return start == 0 && end == Text().size() && end > 0;
}

void EditField::Type(const std::wstring& text) const
{
    Click();
    Send(EM_SETSEL, 0, -1);
    if (text.empty())
        Op().Key(VK_DELETE);
    Op().TypeCharacters(text);
}

bool CheckBox::IsChecked() const
{
    return Send(BM_GETCHECK) == BST_CHECKED;
}

int Trackbar::Position() const
{
    return static_cast<int>(Send(TBM_GETPOS));
}

int Trackbar::Lowest() const
{
    return static_cast<int>(Send(TBM_GETRANGEMIN));
}

int Trackbar::Highest() const
{
    return static_cast<int>(Send(TBM_GETRANGEMAX));
}

void Trackbar::Press(int virtualKey) const
{
    Op().MoveFocus(*this);
    Op().Key(virtualKey);
}

void Trackbar::Track(int position) const
{
    MoveThumb(position, TB_THUMBTRACK);
}

void Trackbar::LetGo(int position) const
{
    MoveThumb(position, TB_THUMBPOSITION);
    MoveThumb(position, TB_ENDTRACK);
}

void Trackbar::MoveThumb(int position, int scrollCode) const
{
    Op().MoveFocus(*this);
    Send(TBM_SETPOS, TRUE, position);
    SendMessageW(Parent().Handle(), WM_HSCROLL, MAKEWPARAM(scrollCode, scrollCode == TB_ENDTRACK ? 0 : position),
                 reinterpret_cast<LPARAM>(Handle()));
}

Texts TabStrip::Labels() const
{
    return ForEachRow(static_cast<int>(Send(TCM_GETITEMCOUNT)), [this](int tab) {
        wchar_t text[256]{};
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 256;
        Send(TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
        return std::wstring(text);
    });
}

int TabStrip::Selected() const
{
    return static_cast<int>(Send(TCM_GETCURSEL));
}

void TabStrip::ClickTab(int tab) const
{
    Op().Click(*this, PointIn(tab));
}

POINT TabStrip::PointIn(int tab) const
{
    RECT area{};
    if (!Send(TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&area)))
        throw OperatorFailure("there is no tab " + std::to_string(tab));
    return Centre(area);
}

Window TabStrip::VisiblePage() const
{
    for (const Window& child : Children())
        if (child.IsVisible() && child.ClassName() == L"#32770")
            return child;
    throw OperatorFailure("no page is to be seen");
}

Texts PropertyGrid::ColumnTitles() const
{
    const HWND header = FirstChild(*this, L"SysHeader32").Handle();
    const auto count = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    return ForEachRow(count, [header](int column) {
        wchar_t text[256]{};
        HDITEMW item{};
        item.mask = HDI_TEXT;
        item.pszText = text;
        item.cchTextMax = 256;
        SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
        return std::wstring(text);
    });
}

ListBox PropertyGrid::List() const
{
    return ListBox(Op(), FirstChild(*this, L"ListBox").Handle());
}

int PropertyGrid::RowCount() const
{
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE;
    GetScrollInfo(Handle(), SB_VERT, &info);
    if (info.nMax > 0)
        return info.nMax + 1;
    // The scroll bar tells no row from one row; only a row has a list to open.
    const ListBox list = OpenList(0);
    if (!list.IsVisible())
        return 0;
    Op().Key(VK_ESCAPE);
    return 1;
}

ListBox PropertyGrid::OpenRow(int row) const
{
    const ListBox list = OpenList(row);
    if (!list.IsVisible())
        throw OperatorFailure("the grid opens no list for row " + std::to_string(row));
    return list;
}

ListBox PropertyGrid::OpenList(int row) const
{
    const RECT area = ClientArea();
    Op().Click(*this, {area.right / 4, area.bottom - 2}); // below the names, no row's value
    Op().Key(VK_HOME);
    for (int i = 0; i < row; ++i)
        Op().Key(VK_DOWN);
    Op().Key(VK_F4);
    return List();
}

Texts PropertyGrid::Options(int row) const
{
    const ListBox list = OpenRow(row);
    const Texts options = list.Rows();
    Op().Key(VK_ESCAPE);
    return options;
}

std::wstring PropertyGrid::Value(int row) const
{
    const ListBox list = OpenRow(row);
    const std::wstring value = list.Selected() == kNone ? std::wstring() : list.Row(list.Selected());
    Op().Key(VK_ESCAPE);
    return value;
}

Texts PropertyGrid::Values() const
{
    return ForEachRow(RowCount(), [this](int row) { return Value(row); });
}

void PropertyGrid::Choose(int row, const std::wstring& option) const
{
    const ListBox list = OpenRow(row);
    const Texts options = list.Rows();
    const auto found = std::find(options.begin(), options.end(), option);
    if (found == options.end())
        throw OperatorFailure("row " + std::to_string(row) + " offers no \"" + Utf8(option) + "\"");
    list.ClickRow(static_cast<int>(found - options.begin()));
}
