#include "ExchangeDialog.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

constexpr WORD kSingleId = 101;
constexpr WORD kMultipleId = 102;
constexpr DWORD kListStyle = WS_VISIBLE | WS_VSCROLL | LBS_NOTIFY;

const DialogTemplate kDialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 200, 60,
                                     {{L"LISTBOX", L"", kListStyle, 5, 5, 80, 50, kSingleId},
                                      {L"LISTBOX", L"", kListStyle | LBS_EXTENDEDSEL, 95, 5, 80, 50, kMultipleId}});

class ListBox : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(kDialogTemplate);
        list.SubclassWindow(dialog.Item(kSingleId));
        multiple.SubclassWindow(dialog.Item(kMultipleId));
        for (const wchar_t* const text : {L"a", L"b", L"c"})
        {
            list.AddString(text);
            multiple.AddString(text);
        }
        PumpMessages();
        dialog.notifications.clear();
    }

    POINT RowCentre(int row) const
    {
        RECT rect;
        EXPECT_NE(LB_ERR, list.GetItemRect(row, &rect));
        return Centre(rect);
    }

    std::vector<int> CodesOfTheList() const
    {
        std::vector<int> codes;
        for (const Notification& notification : dialog.notifications)
            if (notification.code == LBN_SELCHANGE || notification.code == LBN_DBLCLK)
                codes.push_back(notification.code);
        return codes;
    }

    CListBox list;
    CListBox multiple;
    ExchangeDialog dialog;
};

TEST_F(ListBox, InsertsBeforeARow)
{
    EXPECT_EQ(1, list.InsertString(1, L"new"));
    EXPECT_EQ(3, list.InsertString(3, nullptr));
    CString text;
    list.GetText(1, text);
    EXPECT_STREQ(L"new", text);
    list.GetText(3, text);
    EXPECT_STREQ(L"", text);
}

TEST_F(ListBox, InsertingAboveMovesTheSelectionAlong)
{
    list.SetCurSel(1);
    list.InsertString(0, L"new");
    EXPECT_EQ(2, list.GetCurSel());
}

TEST_F(ListBox, DeletingTheSelectedRowLeavesNoSelection)
{
    list.SetCurSel(1);
    EXPECT_EQ(2, list.DeleteString(1));
    EXPECT_EQ(-1, list.GetCurSel());
    EXPECT_EQ(LB_ERR, list.DeleteString(2));
}

TEST_F(ListBox, ClickTellsOfTheSelectionEvenOfTheSelectedRow)
{
    Click(list.m_hWnd, RowCentre(1));
    EXPECT_EQ(1, list.GetCurSel());
    Click(list.m_hWnd, RowCentre(1));
    EXPECT_EQ((std::vector<int>{LBN_SELCHANGE, LBN_SELCHANGE}), CodesOfTheList());
}

TEST_F(ListBox, DoubleClickTellsOfTheSelectionFirst)
{
    DoubleClick(list.m_hWnd, RowCentre(2));
    EXPECT_EQ(2, list.GetCurSel());
    EXPECT_EQ((std::vector<int>{LBN_SELCHANGE, LBN_DBLCLK}), CodesOfTheList());
}

TEST_F(ListBox, RightClickSelectsNothing)
{
    const POINT point = RowCentre(1);
    list.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
    list.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(-1, list.GetCurSel());
}

TEST_F(ListBox, RowsHaveOneHeightAboveOneAnother)
{
    RECT first;
    RECT second;
    ASSERT_NE(LB_ERR, list.GetItemRect(0, &first));
    ASSERT_NE(LB_ERR, list.GetItemRect(1, &second));
    EXPECT_GT(first.bottom, first.top);
    EXPECT_EQ(first.bottom, second.top);
    EXPECT_EQ(first.bottom - first.top, second.bottom - second.top);
}

TEST_F(ListBox, ScrolledRowsLieAboveTheClientArea)
{
    for (int i = 0; i < 100; ++i)
        list.AddString(L"more");
    list.SetCurSel(102);
    EXPECT_GT(list.GetScrollPos(SB_VERT), 0);
    RECT rect;
    list.GetItemRect(0, &rect);
    EXPECT_LT(rect.top, 0);
    EXPECT_EQ(-rect.top, list.GetScrollPos(SB_VERT) * (rect.bottom - rect.top));
}

TEST_F(ListBox, ScrollPositionIsOldWhileRedrawIsOff)
{
    list.SetRedraw(FALSE);
    for (int i = 0; i < 100; ++i)
        list.AddString(L"more");
    list.SetCurSel(102);
    EXPECT_EQ(0, list.GetScrollPos(SB_VERT));
    list.SetRedraw(TRUE);
    EXPECT_GT(list.GetScrollPos(SB_VERT), 0);
}

TEST_F(ListBox, SingleSelectionHasNoSelectedItems)
{
    int rows[3];
    EXPECT_EQ(LB_ERR, list.GetSelCount());
    EXPECT_EQ(LB_ERR, list.GetSelItems(3, rows));
}

TEST_F(ListBox, MultipleSelectionGivesTheRowsInAscendingOrder)
{
    int rows[3] = {-7, -7, -7};
    EXPECT_EQ(0, multiple.GetSelCount());
    multiple.SendMessage(LB_SETSEL, TRUE, 2);
    multiple.SendMessage(LB_SETSEL, TRUE, 0);
    EXPECT_EQ(2, multiple.GetSelCount());
    EXPECT_EQ(2, multiple.GetSelItems(3, rows));
    EXPECT_EQ(0, rows[0]);
    EXPECT_EQ(2, rows[1]);
    EXPECT_EQ(1, multiple.GetSelItems(1, rows));
}

TEST_F(ListBox, MultipleSelectionRefusesACurrentRow)
{
    EXPECT_EQ(LB_ERR, multiple.SetCurSel(1));
    EXPECT_EQ(0, multiple.GetSelCount());
}
} // namespace
