// What list boxes and combo boxes have in common.
#include "ExchangeDialog.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

constexpr WORD kListId = 101;

template <typename List>
struct Kind;
template <>
struct Kind<CListBox>
{
    static constexpr auto name = L"LISTBOX";
    static constexpr DWORD style = LBS_NOTIFY;
    static void GetText(const CListBox& list, int row, CString& text) { list.GetText(row, text); }
};
template <>
struct Kind<CComboBox>
{
    static constexpr auto name = L"COMBOBOX";
    static constexpr DWORD style = CBS_DROPDOWNLIST;
    static void GetText(const CComboBox& list, int row, CString& text) { list.GetLBText(row, text); }
};

template <typename List>
class RowList : public testing::Test
{
protected:
    void SetUp() override
    {
        const DialogTemplate dialogTemplate(
            WS_POPUP | WS_VISIBLE | WS_CAPTION, 150, 100,
            {{Kind<List>::name, L"", Kind<List>::style | WS_VISIBLE, 5, 5, 100, 80, kListId}});
        dialog.Create(dialogTemplate);
        list.SubclassWindow(dialog.Item(kListId));
        for (const wchar_t* const text : {L"zinc", L"Amber", L"amber"})
            list.AddString(text);
        dialog.notifications.clear();
    }

    std::wstring Row(int row) const
    {
        CString text(L"untouched");
        Kind<List>::GetText(list, row, text);
        return text.GetString();
    }

    List list;
    ExchangeDialog dialog;
};

using Kinds = testing::Types<CListBox, CComboBox>;
TYPED_TEST_SUITE(RowList, Kinds);

TYPED_TEST(RowList, KeepsTheOrderOfAdding)
{
    EXPECT_EQ(3, this->list.GetCount());
    EXPECT_EQ(L"zinc", this->Row(0));
    EXPECT_EQ(L"Amber", this->Row(1));
    EXPECT_EQ(L"amber", this->Row(2));
}

TYPED_TEST(RowList, AddGivesTheRow)
{
    EXPECT_EQ(3, this->list.AddString(L"black"));
}

TYPED_TEST(RowList, NullTextIsAnEmptyLine)
{
    EXPECT_EQ(3, this->list.AddString(nullptr));
    EXPECT_EQ(L"", this->Row(3));
}

TYPED_TEST(RowList, GivesLongTextsWhole)
{
    const std::wstring text(10'000, L'x');
    this->list.AddString(text.c_str());
    EXPECT_EQ(text, this->Row(3));
}

TYPED_TEST(RowList, TextOfARowOutsideIsEmpty)
{
    EXPECT_EQ(L"", this->Row(-1));
    EXPECT_EQ(L"", this->Row(3));
}

TYPED_TEST(RowList, HasNoSelectionAtFirst)
{
    EXPECT_EQ(-1, this->list.GetCurSel());
}

TYPED_TEST(RowList, SelectsARow)
{
    EXPECT_EQ(1, this->list.SetCurSel(1));
    EXPECT_EQ(1, this->list.GetCurSel());
}

TYPED_TEST(RowList, SelectingOutsideClearsTheSelection)
{
    for (const int row : {-1, -2, 3, 1000})
    {
        this->list.SetCurSel(1);
        EXPECT_EQ(-1, this->list.SetCurSel(row)) << row;
        EXPECT_EQ(-1, this->list.GetCurSel()) << row;
    }
}

TYPED_TEST(RowList, KeepsDataPerRow)
{
    const auto pointer = reinterpret_cast<DWORD_PTR>(this);
    EXPECT_NE(-1, this->list.SetItemData(0, pointer));
    EXPECT_NE(-1, this->list.SetItemData(1, static_cast<DWORD_PTR>(static_cast<INT_PTR>(-1))));
    EXPECT_EQ(pointer, this->list.GetItemData(0));
    EXPECT_EQ(-1, static_cast<int>(this->list.GetItemData(1)));
    EXPECT_EQ(0u, this->list.GetItemData(2));
}

TYPED_TEST(RowList, DataOfARowOutsideIsMinusOne)
{
    EXPECT_EQ(-1, static_cast<int>(this->list.GetItemData(-1)));
    EXPECT_EQ(-1, static_cast<int>(this->list.GetItemData(3)));
}

TYPED_TEST(RowList, ResetEmptiesIt)
{
    this->list.SetCurSel(0);
    this->list.ResetContent();
    EXPECT_EQ(0, this->list.GetCount());
    EXPECT_EQ(-1, this->list.GetCurSel());
}

TYPED_TEST(RowList, TellsNothingOfTheProgramsChanges)
{
    this->list.SetCurSel(2);
    this->list.AddString(L"black");
    this->list.SetCurSel(99);
    this->list.ResetContent();
    EXPECT_TRUE(this->dialog.notifications.empty());
}

TYPED_TEST(RowList, TellsOfAChoiceByKeyboard)
{
    this->list.SetFocus();
    this->list.SetCurSel(0);
    this->dialog.notifications.clear();
    this->list.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(1, this->list.GetCurSel());
    int changes = 0;
    for (const Notification& notification : this->dialog.notifications)
        changes += notification == Notification{kListId, LBN_SELCHANGE};
    EXPECT_EQ(1, changes);
}
static_assert(LBN_SELCHANGE == CBN_SELCHANGE);
} // namespace
