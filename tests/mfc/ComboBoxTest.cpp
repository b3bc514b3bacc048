#include "ExchangeDialog.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

constexpr WORD kComboId = 101;

const DialogTemplate kDialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 150, 100,
                                     {{L"COMBOBOX", L"", WS_VISIBLE | CBS_DROPDOWNLIST, 5, 5, 100, 80, kComboId}});

class ComboBox : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(kDialogTemplate);
        combo.SubclassWindow(dialog.Item(kComboId));
        for (const wchar_t* const text : {L"1", L"2", L"12", L"Pass", L"pass"})
            combo.AddString(text);
        dialog.notifications.clear();
    }

    CComboBox combo;
    ExchangeDialog dialog;
};

TEST_F(ComboBox, FindsAWholeTextWithoutCase)
{
    EXPECT_EQ(2, combo.FindStringExact(-1, L"12"));
    EXPECT_EQ(3, combo.FindStringExact(-1, L"PASS"));
    EXPECT_EQ(CB_ERR, combo.FindStringExact(-1, L"pas"));
}

TEST_F(ComboBox, FindBeginsAfterTheRowAndWraps)
{
    EXPECT_EQ(4, combo.FindStringExact(3, L"pass"));
    EXPECT_EQ(3, combo.FindStringExact(4, L"pass"));
    EXPECT_EQ(0, combo.FindStringExact(0, L"1"));
}

TEST_F(ComboBox, SelectsTheNextRowWithThePrefix)
{
    EXPECT_EQ(0, combo.SelectString(-1, L"1"));
    EXPECT_EQ(2, combo.SelectString(0, L"1"));
    EXPECT_EQ(2, combo.GetCurSel());
    EXPECT_EQ(3, combo.SelectString(-1, L"PA"));
}

TEST_F(ComboBox, SelectionStaysWhenThePrefixIsNotFound)
{
    combo.SetCurSel(1);
    EXPECT_EQ(CB_ERR, combo.SelectString(-1, L"absent"));
    EXPECT_EQ(1, combo.GetCurSel());
}

TEST_F(ComboBox, FindingAndSelectingTellNothing)
{
    combo.FindStringExact(-1, L"12");
    combo.SelectString(-1, L"12");
    EXPECT_TRUE(dialog.notifications.empty());
}
} // namespace
