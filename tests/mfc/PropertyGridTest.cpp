#include "TestWindow.h"
#include "tests/support/ImportHook.h"

#include <afxpropertygridctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

namespace
{
using namespace test;

constexpr WORD kGridId = 25030;
constexpr WORD kEditId = 101;

const DialogTemplate
    kOwnerTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 240, 200,
                   {{L"EDIT", L"outside", WS_VISIBLE | WS_BORDER | WS_TABSTOP, 5, 5, 50, 12, kEditId},
                    {L"BUTTON", L"OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, 60, 5, 40, 14, IDOK}});

// The parent of the grid; records the changes that it is told of and the dialog keys that reached it.
class Owner : public TestDialog
{
public:
    CMFCPropertyGridCtrl grid;
    std::vector<std::wstring> changes;
    WPARAM changedId = 0;
    int dialogCommands = 0;
    bool removesRows = false;

protected:
    LRESULT OnChanged(WPARAM wParam, LPARAM lParam)
    {
        const auto* property = reinterpret_cast<const CMFCPropertyGridProperty*>(lParam);
        changedId = wParam;
        changes.push_back(std::to_wstring(property->GetData()) + L"=" + property->GetValue().GetString());
        if (removesRows)
            grid.RemoveAll();
        return 0;
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        dialogCommands += LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL;
        return TestDialog::OnCommand(wParam, lParam);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Owner, TestDialog)
    ON_REGISTERED_MESSAGE(AFX_WM_PROPERTY_CHANGED, &Owner::OnChanged)
END_MESSAGE_MAP()

using Changes = std::vector<std::wstring>;

class PropertyGrid : public testing::Test
{
protected:
    void SetUp() override
    {
        owner.Create(kOwnerTemplate);
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP;
        ASSERT_TRUE(grid.Create(style, {10, 50, 330, 290}, &owner, kGridId));
        grid.EnableHeaderCtrl(TRUE, L"Head", L"Mode");
        grid.EnableDescriptionArea(FALSE);
        grid.SetVSDotNetLook();
        grid.MarkModifiedProperties(TRUE);
        grid.SetAlphabeticMode(FALSE);
        grid.SetCustomColors(0xE1E1E1, 0, 0xC4C4C4, 0, 0xA8A8A8, 0, 0);
        PumpMessages();
    }

    CMFCPropertyGridProperty* AddRow(DWORD_PTR data, const wchar_t* value = L"No")
    {
        auto* property = new CMFCPropertyGridProperty(L"Row", L"", nullptr, data);
        property->AllowEdit(FALSE);
        for (const wchar_t* option : {L"No", L"Normal", L"Fine"})
            property->AddOption(option);
        property->SetValue(value);
        grid.AddProperty(property);
        return property;
    }
    void AddRows(int count)
    {
        for (int i = 0; i < count; ++i)
            AddRow(static_cast<DWORD_PTR>(i));
    }

    HWND Header() const { return ::FindWindowEx(grid.m_hWnd, nullptr, WC_HEADER, nullptr); }
    HWND List() const { return ::FindWindowEx(grid.m_hWnd, nullptr, WC_LISTBOX, nullptr); }
    bool IsListOpen() const { return ::IsWindowVisible(List()); }
    int ListRow() const { return static_cast<int>(::SendMessage(List(), LB_GETCURSEL, 0, 0)); }
    RECT ListRect() const
    {
        RECT rect;
        ::GetWindowRect(List(), &rect);
        grid.ScreenToClient(&rect);
        return rect;
    }

    RECT ColumnRect(int column) const
    {
        RECT rect;
        ::SendMessage(Header(), HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    // Measured from outside: the row in which a click selects the second property.
    int RowHeight()
    {
        const int top = ColumnRect(0).bottom;
        int y = top;
        while (grid.GetCurSel() != grid.GetProperty(1))
            Click(grid.m_hWnd, {20, ++y});
        return y - top;
    }
    POINT Cell(int column, int visibleRow)
    {
        if (rowHeight == 0)
            rowHeight = RowHeight();
        const RECT header = ColumnRect(column);
        return {(header.left + header.right) / 2, header.bottom + visibleRow * rowHeight + rowHeight / 2};
    }
    int Selected() const { return grid.GetCurSel() ? static_cast<int>(grid.GetCurSel()->GetData()) : -1; }
    int ScrollPos() const { return ::GetScrollPos(grid.m_hWnd, SB_VERT); }

    Owner owner;
    CMFCPropertyGridCtrl& grid = owner.grid;
    int rowHeight = 0;
};

TEST_F(PropertyGrid, HeaderShowsBothTitlesOverTheWholeWidth)
{
    wchar_t text[32] = {};
    HDITEM item = {};
    item.mask = HDI_TEXT;
    item.pszText = text;
    item.cchTextMax = 32;
    ::SendMessage(Header(), HDM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(L"Head", text);
    ::SendMessage(Header(), HDM_GETITEM, 1, reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(L"Mode", text);

    RECT client;
    grid.GetClientRect(&client);
    EXPECT_EQ(client.right, ColumnRect(1).right);
    EXPECT_GT(ColumnRect(0).bottom, 10);
}

TEST_F(PropertyGrid, HeaderCanBeSwitchedOff)
{
    AddRows(2);
    grid.EnableHeaderCtrl(FALSE);
    EXPECT_FALSE(::IsWindowVisible(Header()));
    Click(grid.m_hWnd, {20, 3});
    EXPECT_EQ(0, Selected());
}

TEST_F(PropertyGrid, DividerIsDraggedByMouse)
{
    AddRows(2);
    const RECT before = ColumnRect(0);
    const int y = before.bottom / 2;
    ::SendMessage(Header(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(before.right, y));
    ::SendMessage(Header(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(before.right - 40, y));
    ::SendMessage(Header(), WM_LBUTTONUP, 0, MAKELPARAM(before.right - 40, y));
    EXPECT_EQ(before.right - 40, ColumnRect(0).right);

    RECT client;
    grid.GetClientRect(&client);
    EXPECT_EQ(client.right, ColumnRect(1).right);
    Click(grid.m_hWnd, {before.right - 20, before.bottom + 5}); // was a name, is a value now
    EXPECT_TRUE(IsListOpen());
}

TEST_F(PropertyGrid, DividerStopsBeforeAColumnVanishes)
{
    const int before = ColumnRect(0).right;
    for (const int width : {0, 10000})
    {
        HDITEM item = {};
        item.mask = HDI_WIDTH;
        item.cxy = width;
        ::SendMessage(Header(), HDM_SETITEM, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(before, ColumnRect(0).right);
    }
}

TEST_F(PropertyGrid, ColumnsKeepTheirShareWhenTheGridIsResized)
{
    const int before = ColumnRect(0).right;
    grid.MoveWindow({10, 50, 10 + 162, 290});
    RECT client;
    grid.GetClientRect(&client);
    EXPECT_NEAR(before / 2, ColumnRect(0).right, 2);
    EXPECT_EQ(client.right, ColumnRect(1).right);
}

TEST_F(PropertyGrid, RowsStayInTheOrderInWhichTheyWereAdded)
{
    AddRow(7);
    AddRow(3);
    AddRow(5);
    ASSERT_EQ(3, grid.GetPropertyCount());
    EXPECT_EQ(7u, grid.GetProperty(0)->GetData());
    EXPECT_EQ(3u, grid.GetProperty(1)->GetData());
    EXPECT_EQ(5u, grid.GetProperty(2)->GetData());
}

TEST_F(PropertyGrid, ClickOnANameSelectsTheRowOnly)
{
    AddRows(3);
    Click(grid.m_hWnd, Cell(0, 2));
    EXPECT_EQ(2, Selected());
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
}

TEST_F(PropertyGrid, ClickOnAValueOpensTheOptionsWithTheCurrentOneSelected)
{
    AddRow(0);
    AddRow(1, L"Fine");
    Click(grid.m_hWnd, Cell(1, 1));
    ASSERT_TRUE(IsListOpen());
    EXPECT_EQ(3, ::SendMessage(List(), LB_GETCOUNT, 0, 0));
    EXPECT_EQ(2, ListRow());
    EXPECT_EQ(List(), ::GetFocus());
    const RECT list = ListRect();
    EXPECT_GT(list.top, Cell(1, 1).y);
}

TEST_F(PropertyGrid, SecondClickOnTheValueClosesTheList)
{
    AddRows(2);
    Click(grid.m_hWnd, Cell(1, 0));
    Click(grid.m_hWnd, Cell(1, 0));
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(owner.changes.empty());
}

TEST_F(PropertyGrid, ClickOnALineStoresItAndTellsTheParentOnce)
{
    AddRows(2);
    Click(grid.m_hWnd, Cell(1, 1));
    RECT line;
    ::SendMessage(List(), LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&line));
    Click(List(), Centre(line));
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
    EXPECT_EQ(Changes{L"1=Fine"}, owner.changes);
    EXPECT_EQ(kGridId, owner.changedId);
}

TEST_F(PropertyGrid, ClickOnTheCurrentLineClosesWithoutAChange)
{
    AddRows(2);
    Click(grid.m_hWnd, Cell(1, 1));
    RECT line;
    ::SendMessage(List(), LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&line));
    Click(List(), Centre(line));
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(owner.changes.empty());
}

TEST_F(PropertyGrid, ArrowsPageKeysHomeAndEndMoveBetweenRows)
{
    AddRows(40);
    grid.SetFocus();
    EXPECT_EQ(0, Selected());
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    EXPECT_EQ(2, Selected());
    PressKey(VK_UP);
    EXPECT_EQ(1, Selected());
    PressKey(VK_NEXT);
    const int page = Selected() - 1;
    EXPECT_GT(page, 3);
    PressKey(VK_PRIOR);
    EXPECT_EQ(1, Selected());
    PressKey(VK_END);
    EXPECT_EQ(39, Selected());
    PressKey(VK_DOWN);
    EXPECT_EQ(39, Selected());
    PressKey(VK_HOME);
    EXPECT_EQ(0, Selected());
    PressKey(VK_UP);
    EXPECT_EQ(0, Selected());
}

TEST_F(PropertyGrid, OpensByF4F2SpaceAndAltDown)
{
    AddRows(2);
    grid.SetFocus();
    for (const int key : {VK_F4, VK_F2, VK_SPACE})
    {
        PressKey(grid.m_hWnd, key);
        EXPECT_TRUE(IsListOpen()) << "key " << key;
        PressKey(VK_ESCAPE);
        EXPECT_FALSE(IsListOpen()) << "key " << key;
    }
    PressAltAnd(grid.m_hWnd, VK_DOWN);
    EXPECT_TRUE(IsListOpen());
}

TEST_F(PropertyGrid, ArrowsInTheListChangeNothingUntilEnter)
{
    AddRows(2);
    grid.SetFocus();
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    PressKey(VK_UP);
    EXPECT_EQ(1, ListRow());
    EXPECT_TRUE(IsListOpen());
    EXPECT_TRUE(owner.changes.empty());
    PressKey(VK_RETURN);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(Changes{L"0=Normal"}, owner.changes);
    EXPECT_EQ(0, owner.dialogCommands);
}

TEST_F(PropertyGrid, KeysPostedToTheGridReachTheOpenList)
{
    AddRows(2);
    grid.SetFocus();
    PressKey(grid.m_hWnd, VK_DOWN);
    PressKey(grid.m_hWnd, VK_F4);
    PressKey(grid.m_hWnd, VK_DOWN);
    PressKey(grid.m_hWnd, VK_RETURN);
    EXPECT_EQ(Changes{L"1=Normal"}, owner.changes);
    PressKey(grid.m_hWnd, VK_F4);
    PressKey(grid.m_hWnd, VK_DOWN);
    PressKey(grid.m_hWnd, VK_ESCAPE);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(1u, owner.changes.size());
    EXPECT_EQ(0, owner.dialogCommands);
}

TEST_F(PropertyGrid, LettersInTheListSearchWithoutChoosing)
{
    AddRows(1);
    grid.SetFocus();
    PressKey(VK_F4);
    ::SendMessage(List(), WM_CHAR, L'f', 1);
    EXPECT_EQ(2, ListRow());
    EXPECT_TRUE(IsListOpen());
    EXPECT_TRUE(owner.changes.empty());
}

TEST_F(PropertyGrid, EscapeGivesUpWithoutAChangeAndWithoutClosingTheDialog)
{
    AddRows(2);
    grid.SetFocus();
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    PressKey(VK_ESCAPE);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
    EXPECT_TRUE(owner.changes.empty());
    EXPECT_EQ(0, owner.dialogCommands);
}

TEST_F(PropertyGrid, EnterAndEscapeReachTheDialogWhileTheListIsClosed)
{
    AddRows(2);
    grid.SetFocus();
    PressKey(VK_RETURN);
    PressKey(VK_ESCAPE);
    EXPECT_EQ(2, owner.dialogCommands);
}

TEST_F(PropertyGrid, LosingTheFocusClosesWithoutAChange)
{
    AddRows(2);
    grid.SetFocus();
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    ::SetFocus(owner.Item(kEditId));
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(owner.Item(kEditId), ::GetFocus());
    EXPECT_TRUE(owner.changes.empty());
}

TEST_F(PropertyGrid, TabLeavesTheGridWithTheListOpenOrClosed)
{
    AddRows(2);
    grid.SetFocus();
    PressKey(VK_TAB);
    EXPECT_EQ(owner.Item(kEditId), ::GetFocus());
    PressKey(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
    PressKey(VK_F4);
    PressKey(VK_TAB);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(owner.Item(kEditId), ::GetFocus());
    EXPECT_TRUE(owner.changes.empty());
}

TEST_F(PropertyGrid, F4AndAltUpAcceptTheOpenList)
{
    AddRows(1);
    grid.SetFocus();
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    PressKey(VK_F4);
    PressAltAnd(grid.m_hWnd, VK_DOWN);
    PressKey(VK_DOWN);
    PressAltAnd(List(), VK_UP);
    EXPECT_EQ((Changes{L"0=Normal", L"0=Fine"}), owner.changes);
}

TEST_F(PropertyGrid, DoubleClickTakesTheNextOptionAndWrapsRound)
{
    AddRows(2);
    for (int i = 0; i < 3; ++i)
        DoubleClick(grid.m_hWnd, Cell(i % 2, 1));
    EXPECT_EQ((Changes{L"1=Normal", L"1=Fine", L"1=No"}), owner.changes);
    EXPECT_FALSE(IsListOpen());
}

TEST_F(PropertyGrid, ValueOutsideTheOptionsOpensWithoutASelection)
{
    AddRow(0, L"Unknown");
    grid.SetFocus();
    PressKey(VK_F4);
    EXPECT_EQ(-1, ListRow());
    PressKey(VK_RETURN);
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(owner.changes.empty());
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    EXPECT_EQ(Changes{L"0=No"}, owner.changes);
}

TEST_F(PropertyGrid, RowWithoutOptionsOpensNothing)
{
    grid.AddProperty(new CMFCPropertyGridProperty(L"Fixed", L"text"));
    grid.SetFocus();
    PressKey(VK_F4);
    EXPECT_FALSE(IsListOpen());
    DoubleClick(grid.m_hWnd, {250, ColumnRect(0).bottom + 5});
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(owner.changes.empty());
}

TEST_F(PropertyGrid, DuplicateOptionsGiveOneLine)
{
    CMFCPropertyGridProperty property(L"Row", L"");
    EXPECT_TRUE(property.AddOption(L"Same"));
    EXPECT_FALSE(property.AddOption(L"Same"));
    EXPECT_TRUE(property.AddOption(L"Same", FALSE));
    EXPECT_TRUE(property.AddOption(L"same"));
    EXPECT_EQ(3u, property.GetOptions().size());
}

TEST_F(PropertyGrid, OnlyAChangedValueCountsAsModified)
{
    CMFCPropertyGridProperty* property = AddRow(0, L"Normal");
    EXPECT_FALSE(property->IsModified());
    grid.SetFocus();
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    EXPECT_TRUE(property->IsModified());
    PressKey(VK_F4);
    PressKey(VK_UP);
    PressKey(VK_RETURN);
    EXPECT_FALSE(property->IsModified());
    EXPECT_EQ(2u, owner.changes.size());
}

TEST_F(PropertyGrid, ValueSetByTheProgramTellsNobody)
{
    CMFCPropertyGridProperty* property = AddRow(0);
    property->SetValue(L"Fine");
    EXPECT_EQ(CString(L"Fine"), property->GetValue());
    EXPECT_TRUE(owner.changes.empty());
}

TEST_F(PropertyGrid, ScrollsToRowsThatDoNotFit)
{
    AddRows(40);
    EXPECT_TRUE(grid.GetStyle() & WS_VSCROLL);
    const POINT first = Cell(0, 0);
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(1, ScrollPos());
    Click(grid.m_hWnd, first);
    EXPECT_EQ(1, Selected());
    grid.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_GT(ScrollPos(), 5);
    grid.SendMessage(WM_VSCROLL, SB_BOTTOM);
    const int last = ScrollPos();
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(last, ScrollPos());
    grid.SendMessage(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(0, ScrollPos());
    grid.SendMessage(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(0, ScrollPos());
}

TEST_F(PropertyGrid, ThumbGoesToItsTrackPosition)
{
    AddRows(40);
    const POINT first = Cell(0, 0);
    for (const int code : {SB_THUMBTRACK, SB_THUMBPOSITION})
    {
        const int position = ScrollPos() + 7;
        grid.SendMessage(WM_VSCROLL, MAKEWPARAM(code, position));
        EXPECT_EQ(position, ScrollPos());
        Click(grid.m_hWnd, first);
        EXPECT_EQ(position, Selected());
    }
}

TEST_F(PropertyGrid, WheelScrollsAndCollectsSmallTurns)
{
    AddRows(40);
    grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
    const int notch = ScrollPos();
    EXPECT_GT(notch, 0);
    grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
    EXPECT_EQ(0, ScrollPos());
    for (int i = 0; i < 12; ++i)
        grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA / 12)));
    EXPECT_EQ(notch, ScrollPos());
}

TEST_F(PropertyGrid, ScrollBarIsThereOnlyWhileNeeded)
{
    AddRows(3);
    EXPECT_FALSE(grid.GetStyle() & WS_VSCROLL);
    AddRows(40);
    EXPECT_TRUE(grid.GetStyle() & WS_VSCROLL);
    RECT client;
    grid.GetClientRect(&client);
    EXPECT_EQ(client.right, ColumnRect(1).right);
    grid.RemoveAll();
    EXPECT_FALSE(grid.GetStyle() & WS_VSCROLL);
}

TEST_F(PropertyGrid, ScrollingAndResizingCloseTheList)
{
    AddRows(40);
    grid.SetFocus();
    PressKey(VK_F4);
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_FALSE(IsListOpen());
    PressKey(VK_F4);
    EXPECT_TRUE(IsListOpen());
    grid.MoveWindow({10, 50, 300, 290});
    EXPECT_FALSE(IsListOpen());
}

TEST_F(PropertyGrid, ListAtTheBottomOpensUpwardsInsideTheGrid)
{
    AddRows(40);
    grid.SetFocus();
    PressKey(VK_END);
    PressKey(VK_F4);
    const RECT list = ListRect();
    RECT client;
    grid.GetClientRect(&client);
    EXPECT_GE(list.top, ColumnRect(0).bottom);
    EXPECT_LE(list.bottom, client.bottom);
    EXPECT_EQ(client.right, list.right);
    EXPECT_EQ(3, (list.bottom - list.top) / ::SendMessage(List(), LB_GETITEMHEIGHT, 0, 0));
}

TEST_F(PropertyGrid, ManyOptionsScrollAndShowTheCurrentOne)
{
    auto* property = new CMFCPropertyGridProperty(L"Row", L"Mode 200");
    for (int i = 1; i < 255; ++i)
        property->AddOption((L"Mode " + std::to_wstring(i)).c_str());
    grid.AddProperty(property);
    grid.SetFocus();
    PressKey(VK_F4);
    RECT line;
    RECT client;
    ::SendMessage(List(), LB_GETITEMRECT, 199, reinterpret_cast<LPARAM>(&line));
    ::GetClientRect(List(), &client);
    EXPECT_EQ(199, ListRow());
    EXPECT_GE(line.top, 0);
    EXPECT_LE(line.bottom, client.bottom);
    grid.GetClientRect(&client);
    EXPECT_LE(ListRect().bottom, client.bottom);
}

TEST_F(PropertyGrid, TenThousandRowsCanBeWalkedAndChanged)
{
    AddRows(10000);
    grid.SetFocus();
    PressKey(VK_END);
    EXPECT_EQ(9999, Selected());
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    EXPECT_EQ(Changes{L"9999=Normal"}, owner.changes);
    grid.RemoveAll();
    EXPECT_EQ(0, grid.GetPropertyCount());
}

TEST_F(PropertyGrid, RemoveAllClosesTheListAndKeepsTheFocus)
{
    AddRows(3);
    grid.SetFocus();
    PressKey(VK_F4);
    grid.RemoveAll();
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(nullptr, grid.GetCurSel());
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    EXPECT_FALSE(IsListOpen());
}

TEST_F(PropertyGrid, RowsCanComeAndGoWithoutAWindow)
{
    AddRows(1);
    grid.DestroyWindow();
    AddRows(1);
    EXPECT_EQ(2, grid.GetPropertyCount());
    grid.RemoveAll();
    EXPECT_EQ(0, grid.GetPropertyCount());
}

TEST_F(PropertyGrid, ParentMayRemoveTheRowsInsideTheNotification)
{
    AddRows(3);
    owner.removesRows = true;
    grid.SetFocus();
    PressKey(VK_F4);
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    EXPECT_EQ(Changes{L"0=Normal"}, owner.changes);
    EXPECT_EQ(0, grid.GetPropertyCount());
}

TEST_F(PropertyGrid, DisabledGridIgnoresInput)
{
    AddRows(3);
    const POINT value = Cell(1, 2);
    Click(grid.m_hWnd, Cell(0, 0));
    grid.EnableWindow(FALSE);
    Click(grid.m_hWnd, value);
    DoubleClick(grid.m_hWnd, value);
    PressKey(grid.m_hWnd, VK_DOWN);
    PressKey(grid.m_hWnd, VK_F4);
    EXPECT_EQ(0, Selected());
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(owner.changes.empty());
    grid.EnableWindow(TRUE);
    Click(grid.m_hWnd, value);
    EXPECT_TRUE(IsListOpen());
}

TEST_F(PropertyGrid, DisablingClosesTheList)
{
    AddRows(3);
    grid.SetFocus();
    PressKey(VK_F4);
    grid.EnableWindow(FALSE);
    EXPECT_FALSE(IsListOpen());
}

TEST_F(PropertyGrid, UsesTheDialogsFontAndFollowsAnother)
{
    EXPECT_EQ(owner.SendMessage(WM_GETFONT), grid.SendMessage(WM_GETFONT));
    AddRows(2);
    const int before = Cell(0, 1).y;
    HFONT big = ::CreateFont(-40, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    grid.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(big), TRUE);
    rowHeight = 0;
    Click(grid.m_hWnd, {20, ColumnRect(0).bottom + 1});
    EXPECT_GT(Cell(0, 1).y, before);
    grid.DestroyWindow();
    ::DeleteObject(big);
}

// The low word of a drawing object's handle is its place in the system's table. So many new objects fill every gap, and
// the highest place then tells how many objects there are.
int DrawingObjects()
{
    std::vector<HPEN> pens(4000);
    int highest = 0;
    for (HPEN& pen : pens)
    {
        pen = ::CreatePen(PS_SOLID, 3, RGB(1, 2, 3));
        highest = std::max(highest, static_cast<int>(LOWORD(reinterpret_cast<UINT_PTR>(pen))));
    }
    for (HPEN pen : pens)
        ::DeleteObject(pen);
    return highest;
}

TEST_F(PropertyGrid, PaintingAndChangingFontsLeakNoDrawingObjects)
{
    AddRows(5);
    grid.RedrawWindow();
    const WPARAM font = static_cast<WPARAM>(grid.SendMessage(WM_GETFONT));
    const int before = DrawingObjects();
    for (int i = 0; i < 100; ++i)
    {
        grid.SendMessage(WM_SETFONT, font);
        grid.RedrawWindow();
    }
    EXPECT_LT(DrawingObjects(), before + 50);
}

// Letters choose a row here. No window for the composition of characters may come between.
TEST_F(PropertyGrid, HasNoInputMethod)
{
    EXPECT_NE(::ImmGetContext(owner.Item(kEditId)), nullptr);
    EXPECT_EQ(::ImmGetContext(grid.m_hWnd), nullptr);
}

// The colour of the grid's point, drawn afresh.
class PropertyGridColours : public PropertyGrid
{
protected:
    COLORREF At(int x, int y) const
    {
        grid.RedrawWindow(nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        HDC hdc = ::GetDC(grid.m_hWnd);
        const COLORREF colour = ::GetPixel(hdc, x, y);
        ::ReleaseDC(grid.m_hWnd, hdc);
        return colour;
    }
};

TEST_F(PropertyGridColours, HeaderTitlesAreDrawn)
{
    for (const int column : {0, 1})
    {
        const RECT title = ColumnRect(column);
        const COLORREF background = At(title.right - 10, title.bottom / 2);
        int inked = 0;
        for (int x = title.left + 4; x < title.left + 40; ++x)
            inked += At(x, title.bottom / 2) != background;
        EXPECT_GT(inked, 0) << "column " << column;
    }
}

TEST_F(PropertyGridColours, CustomColoursAreUsed)
{
    AddRows(2);
    const POINT empty = Cell(0, 4);
    EXPECT_EQ(0xE1E1E1u, At(empty.x, empty.y));
    EXPECT_EQ(0xC4C4C4u, At(1, Cell(0, 1).y));                   // the strip
    EXPECT_EQ(0x000000u, At(ColumnRect(0).right, Cell(0, 1).y)); // the line between the columns
}

TEST_F(PropertyGridColours, SelectionShowsWhereTheFocusIs)
{
    AddRows(2);
    const POINT name = Cell(0, 1);
    Click(grid.m_hWnd, name);
    const int x = ColumnRect(0).right - 3;
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), At(x, name.y));
    ::SetFocus(owner.Item(kEditId));
    EXPECT_EQ(0xC4C4C4u, At(x, name.y));
    grid.EnableWindow(FALSE);
    EXPECT_EQ(0xE1E1E1u, At(x, name.y));
}
// Blocks of memory that are in use. One allocation fails where it is told to.
int blocksInUse;
int allocationsToFailure;
decltype(&std::malloc) allocate;
decltype(&std::free) release;

void* Allocate(std::size_t size)
{
    void* block = allocationsToFailure > 0 && --allocationsToFailure == 0 ? nullptr : allocate(size);
    blocksInUse += block ? 1 : 0;
    return block;
}

void Release(void* block)
{
    blocksInUse -= block ? 1 : 0;
    release(block);
}

class MemoryWatch
{
public:
    MemoryWatch()
    {
        blocksInUse = 0;
        allocate = m_malloc.Original<decltype(allocate)>();
        release = m_free.Original<decltype(release)>();
    }

private:
    ImportHook m_malloc{GetModuleHandleW(nullptr), "malloc", reinterpret_cast<const void*>(&Allocate)};
    ImportHook m_free{GetModuleHandleW(nullptr), "free", reinterpret_cast<const void*>(&Release)};
};

// Whether the memory held out.
bool AddLongRow(CMFCPropertyGridCtrl& grid, int failure)
{
    auto* property = new CMFCPropertyGridProperty(L"Row", L"");
    property->SetValue(L"A value that needs memory of its own");
    allocationsToFailure = failure;
    try
    {
        grid.AddProperty(property);
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
    allocationsToFailure = 0;
    return true;
}

// The run-time library keeps some memory from the first exception of a thread on.
void ThrowFirst()
{
    try
    {
        throw std::bad_alloc();
    }
    catch (const std::bad_alloc&)
    {
    }
}

TEST(PropertyGridMemory, IsGivenBackWhereItDoesNotSufficeForARow)
{
    ThrowFirst();
    int failure = 0;
    for (bool added = false; !added;)
    {
        const MemoryWatch watch;
        {
            CMFCPropertyGridCtrl grid;
            added = AddLongRow(grid, ++failure);
            EXPECT_EQ(grid.GetPropertyCount(), added ? 1 : 0);
        }
        EXPECT_EQ(blocksInUse, 0) << "allocation " << failure;
    }
    EXPECT_GT(failure, 2);
}
} // namespace
