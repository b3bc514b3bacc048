// What the single exchange and validation routines read and write.
#include "ExchangeDialog.h"
#include "MessageBoxes.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace
{
using namespace test;

enum Id : WORD
{
    edit = 101,
    checkBox = 102,
    threeState = 103,
    firstRadio = 110,
    secondRadio,
    thirdRadio,
    betweenButton,
    nextGroup,
    cutFirst = 120,
    cutLabel,
    cutSecond
};

constexpr DWORD editStyle = WS_VISIBLE | WS_BORDER | WS_TABSTOP;
constexpr DWORD radioStyle = WS_VISIBLE | BS_AUTORADIOBUTTON;

const DialogTemplate dialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 200, 150,
                                    {{L"EDIT", L"", editStyle | ES_AUTOHSCROLL, 5, 5, 50, 12, edit},
                                     {L"BUTTON", L"", WS_VISIBLE | BS_AUTOCHECKBOX, 5, 20, 50, 12, checkBox},
                                     {L"BUTTON", L"", WS_VISIBLE | BS_AUTO3STATE, 5, 35, 50, 12, threeState},
                                     {L"BUTTON", L"", radioStyle | WS_GROUP, 5, 50, 50, 12, firstRadio},
                                     {L"STATIC", L"between", WS_VISIBLE, 60, 50, 50, 12, 0xFFFF},
                                     {L"BUTTON", L"", WS_VISIBLE, 60, 65, 50, 12, betweenButton},
                                     {L"BUTTON", L"", BS_AUTORADIOBUTTON, 5, 65, 50, 12, secondRadio},
                                     {L"BUTTON", L"", radioStyle, 5, 80, 50, 12, thirdRadio},
                                     {L"BUTTON", L"", radioStyle | WS_GROUP, 5, 95, 50, 12, nextGroup},
                                     {L"BUTTON", L"", radioStyle | WS_GROUP, 5, 110, 50, 12, cutFirst},
                                     {L"STATIC", L"ends it", WS_VISIBLE | WS_GROUP, 60, 110, 50, 12, cutLabel},
                                     {L"BUTTON", L"", radioStyle, 5, 125, 50, 12, cutSecond}});

class ExchangeValues : public testing::Test
{
protected:
    void SetUp() override { dialog.Create(dialogTemplate); }

    template <typename Statement>
    BOOL Run(BOOL save, Statement statement)
    {
        dialog.exchange = statement;
        return dialog.UpdateData(save);
    }

    template <typename Value>
    BOOL Exchange(BOOL save, Value& value)
    {
        return Run(save, [&](CDataExchange* pDX) { DDX_Text(pDX, edit, value); });
    }

    template <typename Value>
    std::wstring Shown(Value value)
    {
        EXPECT_TRUE(Exchange(FALSE, value));
        return dialog.Text(edit);
    }

    LRESULT State(int id) const { return dialog.GetDlgItem(id)->SendMessage(BM_GETCHECK); }

    ExchangeDialog dialog;
};

// Whole numbers

struct IntCase
{
    LPCTSTR text;
    int value;
};

class AcceptedInt : public ExchangeValues, public testing::WithParamInterface<IntCase>
{
};

TEST_P(AcceptedInt, IsRead)
{
    int value = -77;
    dialog.SetText(edit, GetParam().text);
    EXPECT_TRUE(Exchange(TRUE, value));
    EXPECT_EQ(GetParam().value, value);
}

INSTANTIATE_TEST_SUITE_P(Texts, AcceptedInt,
                         testing::Values(IntCase{L"0", 0}, IntCase{L"42", 42}, IntCase{L"-42", -42}, IntCase{L"+5", 5},
                                         IntCase{L"-0", 0}, IntCase{L"  7", 7}, IntCase{L"7 \t ", 7},
                                         IntCase{L"010", 10}, IntCase{L"2147483647", INT_MAX},
                                         IntCase{L"-2147483648", INT_MIN}, IntCase{L"2147483648", INT_MAX},
                                         IntCase{L"-99999999999999999999", INT_MIN},
                                         IntCase{L"99999999999999999999", INT_MAX}));

class RefusedInt : public ExchangeValues, public testing::WithParamInterface<LPCTSTR>
{
};

TEST_P(RefusedInt, PromptsAndLeavesTheMember)
{
    int value = -77;
    dialog.SetText(edit, GetParam());
    const MessageBoxes boxes;
    EXPECT_FALSE(Exchange(TRUE, value));
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_EQ(-77, value);
}

INSTANTIATE_TEST_SUITE_P(Texts, RefusedInt,
                         testing::Values(L"", L"   ", L"abc", L"1.5", L"12abc", L"abc12", L"1 2", L"--1", L"+-1", L"-",
                                         L"- 1", L"0x10", L"1e3", L"1,000"));

TEST_F(ExchangeValues, IntIsShownInDecimal)
{
    EXPECT_EQ(L"0", Shown(0));
    EXPECT_EQ(L"-2147483648", Shown(INT_MIN));
    EXPECT_EQ(L"2147483647", Shown(INT_MAX));
}

// Numbers with decimals

struct FloatCase
{
    LPCTSTR text;
    float value;
};

class AcceptedFloat : public ExchangeValues, public testing::WithParamInterface<FloatCase>
{
};

TEST_P(AcceptedFloat, IsRead)
{
    float value = -77;
    dialog.SetText(edit, GetParam().text);
    EXPECT_TRUE(Exchange(TRUE, value));
    EXPECT_EQ(GetParam().value, value);
}

INSTANTIATE_TEST_SUITE_P(Texts, AcceptedFloat,
                         testing::Values(FloatCase{L"0", 0}, FloatCase{L"1.5", 1.5f}, FloatCase{L"-1.5", -1.5f},
                                         FloatCase{L"+.5", 0.5f}, FloatCase{L"5.", 5}, FloatCase{L" 0.1 ", 0.1f},
                                         FloatCase{L"1e3", 1000}, FloatCase{L"1E-2", 0.01f}, FloatCase{L"1e+006", 1e6f},
                                         FloatCase{L"16777217", 16777216}));

class RefusedFloat : public ExchangeValues, public testing::WithParamInterface<LPCTSTR>
{
};

TEST_P(RefusedFloat, PromptsAndLeavesTheMember)
{
    float value = -77;
    dialog.SetText(edit, GetParam());
    const MessageBoxes boxes;
    EXPECT_FALSE(Exchange(TRUE, value));
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_EQ(-77, value);
}

INSTANTIATE_TEST_SUITE_P(Texts, RefusedFloat,
                         testing::Values(L"", L"  ", L"abc", L",5", L"1,5", L"1.5mm", L"1.5.1", L"1 2", L".", L"e5",
                                         L"1e", L"nan", L"inf", L"-infinity", L"0x1p3", L"1e999"));

TEST_F(ExchangeValues, FloatIsShownWithSixSignificantDigits)
{
    EXPECT_EQ(L"1.5", Shown(1.5f));
    EXPECT_EQ(L"2", Shown(2.0f));
    EXPECT_EQ(L"0.1", Shown(0.1f));
    EXPECT_EQ(L"123457", Shown(123456.7f));
    EXPECT_EQ(L"-0.333333", Shown(-1.0f / 3));
}

TEST_F(ExchangeValues, FloatIsShownWithThreeExponentDigits)
{
    EXPECT_EQ(L"999999", Shown(999999.0f));
    EXPECT_EQ(L"1e+006", Shown(1e6f));
    EXPECT_EQ(L"0.0001", Shown(0.0001f));
    EXPECT_EQ(L"1e-005", Shown(0.00001f));
}

// Texts

TEST_F(ExchangeValues, TextIsCopiedWholeAndUntrimmed)
{
    const std::wstring longText = L"  " + std::wstring(9'996, L'x') + L"\u6253 ";
    EXPECT_EQ(longText, Shown(CString(longText)));
    CString value;
    EXPECT_TRUE(Exchange(TRUE, value));
    EXPECT_EQ(longText, value.GetString());
}

TEST_F(ExchangeValues, EmptyTextIsAccepted)
{
    CString value(L"before");
    EXPECT_TRUE(Exchange(TRUE, value));
    EXPECT_TRUE(value.IsEmpty());
}

TEST_F(ExchangeValues, EqualTextIsNotSetAgain)
{
    CString value(L"caret");
    Shown(value);
    ::SendMessage(dialog.Item(edit), EM_SETSEL, 2, 3);
    Shown(value);
    EXPECT_EQ(MAKELRESULT(2, 3), ::SendMessage(dialog.Item(edit), EM_GETSEL, 0, 0));
}

// Length and range

class MaxChars : public ExchangeValues
{
protected:
    BOOL ExchangeName(BOOL save)
    {
        return Run(save, [this](CDataExchange* pDX) {
            DDX_Text(pDX, edit, name);
            DDV_MaxChars(pDX, name, 5);
        });
    }

    void Type(LPCTSTR text)
    {
        for (; *text; ++text)
            ::SendMessage(dialog.Item(edit), WM_CHAR, *text, 1);
    }

    CString name;
};

TEST_F(MaxChars, LimitsWhatCanBeTyped)
{
    ExchangeName(FALSE);
    Type(L"1234567");
    EXPECT_EQ(L"12345", dialog.Text(edit));
}

TEST_F(MaxChars, ShowsALongerTextWholeAndRefusesToSaveIt)
{
    name = L"longer name";
    const MessageBoxes boxes;
    EXPECT_TRUE(ExchangeName(FALSE));
    EXPECT_EQ(L"longer name", dialog.Text(edit));
    EXPECT_FALSE(ExchangeName(TRUE));
    ASSERT_EQ(1u, boxes.Count());
    EXPECT_NE(std::wstring::npos, boxes.Shown()[0].text.find(L"5"));
    EXPECT_EQ(dialog.Item(edit), ::GetFocus());
}

TEST_F(MaxChars, AcceptsTheLongestText)
{
    dialog.SetText(edit, L"12345");
    EXPECT_TRUE(ExchangeName(TRUE));
    EXPECT_STREQ(L"12345", name);
}

class MinMaxInt : public ExchangeValues
{
protected:
    BOOL ExchangeNumber(BOOL save)
    {
        return Run(save, [this](CDataExchange* pDX) {
            DDX_Text(pDX, edit, number);
            DDV_MinMaxInt(pDX, number, -3, 200);
        });
    }

    int number = 0;
};

TEST_F(MinMaxInt, IncludesItsBounds)
{
    for (const LPCTSTR text : {L"-3", L"0", L"200"})
    {
        dialog.SetText(edit, text);
        EXPECT_TRUE(ExchangeNumber(TRUE)) << text;
    }
}

TEST_F(MinMaxInt, RefusesWhatLiesOutsideAndNamesTheBounds)
{
    for (const LPCTSTR text : {L"-4", L"201"})
    {
        dialog.SetText(edit, text);
        const MessageBoxes boxes;
        EXPECT_FALSE(ExchangeNumber(TRUE)) << text;
        ASSERT_EQ(1u, boxes.Count());
        EXPECT_NE(std::wstring::npos, boxes.Shown()[0].text.find(L"-3")) << boxes.Shown()[0].text;
        EXPECT_NE(std::wstring::npos, boxes.Shown()[0].text.find(L"200")) << boxes.Shown()[0].text;
    }
}

TEST_F(MinMaxInt, ShowsAValueOutsideAndRefusesItAtTheNextSave)
{
    number = 250;
    const MessageBoxes boxes;
    EXPECT_TRUE(ExchangeNumber(FALSE));
    EXPECT_EQ(L"250", dialog.Text(edit));
    EXPECT_FALSE(ExchangeNumber(TRUE));
    EXPECT_EQ(1u, boxes.Count());
}

// Check boxes and radio buttons

TEST_F(ExchangeValues, CheckGoesBothWays)
{
    for (int value : {1, 0})
    {
        EXPECT_TRUE(Run(FALSE, [&](CDataExchange* pDX) { DDX_Check(pDX, checkBox, value); }));
        EXPECT_EQ(value, State(checkBox));
        int read = -1;
        EXPECT_TRUE(Run(TRUE, [&](CDataExchange* pDX) { DDX_Check(pDX, checkBox, read); }));
        EXPECT_EQ(value, read);
    }
}

TEST_F(ExchangeValues, CheckKnowsTheThirdState)
{
    int value = 2;
    EXPECT_TRUE(Run(FALSE, [&](CDataExchange* pDX) { DDX_Check(pDX, threeState, value); }));
    EXPECT_EQ(BST_INDETERMINATE, State(threeState));
}

TEST_F(ExchangeValues, CheckOutOfRangeIsUnchecked)
{
    for (int value : {-1, 3, 256})
    {
        dialog.GetDlgItem(threeState)->SendMessage(BM_SETCHECK, BST_CHECKED);
        EXPECT_TRUE(Run(FALSE, [&](CDataExchange* pDX) { DDX_Check(pDX, threeState, value); }));
        EXPECT_EQ(BST_UNCHECKED, State(threeState)) << value;
    }
}

class Radio : public ExchangeValues
{
protected:
    BOOL Load(Id first, int value)
    {
        return Run(FALSE, [&](CDataExchange* pDX) { DDX_Radio(pDX, first, value); });
    }

    int Save(Id first)
    {
        int value = -77;
        EXPECT_TRUE(Run(TRUE, [&](CDataExchange* pDX) { DDX_Radio(pDX, first, value); }));
        return value;
    }

    std::vector<LRESULT> States() const { return {State(firstRadio), State(secondRadio), State(thirdRadio)}; }
};

TEST_F(Radio, LoadChecksOneAndUnchecksTheRest)
{
    EXPECT_TRUE(Load(firstRadio, 0));
    EXPECT_EQ((std::vector<LRESULT>{1, 0, 0}), States());
    EXPECT_TRUE(Load(firstRadio, 2));
    EXPECT_EQ((std::vector<LRESULT>{0, 0, 1}), States());
}

TEST_F(Radio, CountsHiddenButtonsAndSkipsOtherControls)
{
    EXPECT_TRUE(Load(firstRadio, 1));
    EXPECT_EQ((std::vector<LRESULT>{0, 1, 0}), States());
    EXPECT_EQ(1, Save(firstRadio));
}

TEST_F(Radio, LoadOfAValueOutsideChecksNone)
{
    for (const int value : {-1, 3})
    {
        Load(firstRadio, 0);
        EXPECT_TRUE(Load(firstRadio, value));
        EXPECT_EQ((std::vector<LRESULT>{0, 0, 0}), States()) << value;
    }
}

TEST_F(Radio, SaveGivesTheIndexOfTheCheckedOne)
{
    EXPECT_EQ(-1, Save(firstRadio));
    dialog.GetDlgItem(thirdRadio)->SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(2, Save(firstRadio));
}

TEST_F(Radio, EndsBeforeTheNextGroup)
{
    dialog.GetDlgItem(nextGroup)->SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(-1, Save(firstRadio));
    Load(firstRadio, 0);
    EXPECT_EQ(BST_CHECKED, State(nextGroup));
}

TEST_F(Radio, LabelThatStartsAGroupEndsIt)
{
    dialog.GetDlgItem(cutSecond)->SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(-1, Save(cutFirst));
}

TEST_F(Radio, ExchangeTellsNothing)
{
    dialog.notifications.clear();
    Load(firstRadio, 1);
    Save(firstRadio);
    EXPECT_TRUE(dialog.notifications.empty());
}

// Parsing alone

TEST(ParseFloat, KeepsTheValueOfARefusedText)
{
    float value = 3;
    EXPECT_FALSE(afx::ParseFloat(L"3.4.5", value));
    EXPECT_EQ(3, value);
}

TEST(ParseFloat, TakesTheLargestFloatAndRefusesMore)
{
    float value = 0;
    EXPECT_TRUE(afx::ParseFloat(L"3.4028234e38", value));
    EXPECT_TRUE(std::isfinite(value));
    EXPECT_FALSE(afx::ParseFloat(L"3.5e38", value));
}
} // namespace
