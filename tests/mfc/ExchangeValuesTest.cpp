// What the single exchange and validation routines read and write.
#include "ExchangeDialog.h"
#include "MessageBoxes.h"
#include "tests/support/RuntimeLocale.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace
{
using namespace test;

enum Id : WORD
{
    kEdit = 101,
    kCheckBox = 102,
    kThreeState = 103,
    kFirstRadio = 110,
    kSecondRadio,
    kThirdRadio,
    kBetweenButton,
    kNextGroup,
    kCutFirst = 120,
    kCutLabel,
    kCutSecond
};

constexpr DWORD kEditStyle = WS_VISIBLE | WS_BORDER | WS_TABSTOP;
constexpr DWORD kRadioStyle = WS_VISIBLE | BS_AUTORADIOBUTTON;

const DialogTemplate kDialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 200, 150,
                                     {{L"EDIT", L"", kEditStyle | ES_AUTOHSCROLL, 5, 5, 50, 12, kEdit},
                                      {L"BUTTON", L"", WS_VISIBLE | BS_AUTOCHECKBOX, 5, 20, 50, 12, kCheckBox},
                                      {L"BUTTON", L"", WS_VISIBLE | BS_AUTO3STATE, 5, 35, 50, 12, kThreeState},
                                      {L"BUTTON", L"", kRadioStyle | WS_GROUP, 5, 50, 50, 12, kFirstRadio},
                                      {L"STATIC", L"between", WS_VISIBLE, 60, 50, 50, 12, 0xFFFF},
                                      {L"BUTTON", L"", WS_VISIBLE, 60, 65, 50, 12, kBetweenButton},
                                      {L"BUTTON", L"", BS_AUTORADIOBUTTON, 5, 65, 50, 12, kSecondRadio},
                                      {L"BUTTON", L"", kRadioStyle, 5, 80, 50, 12, kThirdRadio},
                                      {L"BUTTON", L"", kRadioStyle | WS_GROUP, 5, 95, 50, 12, kNextGroup},
                                      {L"BUTTON", L"", kRadioStyle | WS_GROUP, 5, 110, 50, 12, kCutFirst},
                                      {L"STATIC", L"ends it", WS_VISIBLE | WS_GROUP, 60, 110, 50, 12, kCutLabel},
                                      {L"BUTTON", L"", kRadioStyle, 5, 125, 50, 12, kCutSecond}});

class ExchangeValues : public testing::Test
{
protected:
    void SetUp() override { dialog.Create(kDialogTemplate); }

    template <typename Statement>
    BOOL Run(BOOL save, Statement statement)
    {
        dialog.exchange = statement;
        return dialog.UpdateData(save);
    }

    template <typename Value>
    BOOL Exchange(BOOL save, Value& value)
    {
        return Run(save, [&](CDataExchange* dx) { DDX_Text(dx, kEdit, value); });
    }

    template <typename Value>
    std::wstring Shown(Value value)
    {
        EXPECT_TRUE(Exchange(FALSE, value));
        return dialog.Text(kEdit);
    }

    LRESULT State(int id) const { return dialog.GetDlgItem(id)->SendMessage(BM_GETCHECK); }

    ExchangeDialog dialog;
};

// Whole numbers

struct IntCase
{
    const wchar_t* text;
    int value;
};

class AcceptedInt : public ExchangeValues, public testing::WithParamInterface<IntCase>
{
};

TEST_P(AcceptedInt, IsRead)
{
    int value = -77;
    dialog.SetText(kEdit, GetParam().text);
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

class RefusedInt : public ExchangeValues, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(RefusedInt, PromptsAndLeavesTheMember)
{
    int value = -77;
    dialog.SetText(kEdit, GetParam());
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
    const wchar_t* text;
    float value;
};

class AcceptedFloat : public ExchangeValues, public testing::WithParamInterface<FloatCase>
{
};

TEST_P(AcceptedFloat, IsRead)
{
    float value = -77;
    dialog.SetText(kEdit, GetParam().text);
    EXPECT_TRUE(Exchange(TRUE, value));
    EXPECT_EQ(GetParam().value, value);
}

INSTANTIATE_TEST_SUITE_P(Texts, AcceptedFloat,
                         testing::Values(FloatCase{L"0", 0}, FloatCase{L"1.5", 1.5f}, FloatCase{L"-1.5", -1.5f},
                                         FloatCase{L"+.5", 0.5f}, FloatCase{L"5.", 5}, FloatCase{L" 0.1 ", 0.1f},
                                         FloatCase{L"1e3", 1000}, FloatCase{L"1E-2", 0.01f}, FloatCase{L"1e+006", 1e6f},
                                         FloatCase{L"16777217", 16777216}));

class RefusedFloat : public ExchangeValues, public testing::WithParamInterface<const wchar_t*>
{
};

TEST_P(RefusedFloat, PromptsAndLeavesTheMember)
{
    float value = -77;
    dialog.SetText(kEdit, GetParam());
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

// Numbers where another module of the process has set a locale with a decimal comma.

class GermanRuntime : public ExchangeValues
{
protected:
    void SetUp() override
    {
        ExchangeValues::SetUp();
        ASSERT_EQ(",", m_german.DecimalPoint());
    }

private:
    RuntimeLocale m_german{"German"};
};

TEST_F(GermanRuntime, ShowsFloatsWithAPoint)
{
    EXPECT_EQ(L"0.5", Shown(0.5f));
    EXPECT_EQ(L"-0.333333", Shown(-1.0f / 3));
    EXPECT_EQ(L"1.5e-005", Shown(0.000015f));
    EXPECT_EQ(L"1234", Shown(1234.0f));
}

TEST_F(GermanRuntime, ReadsFloatsWithAPoint)
{
    for (const FloatCase& c : {FloatCase{L"0.5", 0.5f}, FloatCase{L" -1.5 ", -1.5f}, FloatCase{L"1.5E-2", 0.015f},
                               FloatCase{L".5", 0.5f}, FloatCase{L"7", 7}})
    {
        float value = -77;
        EXPECT_TRUE(afx::ParseFloat(c.text, value)) << c.text;
        EXPECT_EQ(c.value, value);
    }
}

TEST_F(GermanRuntime, ReadsWhatItShows)
{
    float value = 0.5f;
    EXPECT_TRUE(Exchange(FALSE, value));
    value = -77;
    EXPECT_TRUE(afx::ParseFloat(dialog.Text(kEdit).c_str(), value)) << dialog.Text(kEdit);
    EXPECT_EQ(0.5f, value);
}

TEST_F(GermanRuntime, RefusesWhatIsRefusedElsewhere)
{
    float value = -77;
    for (const wchar_t* const text : {L"0,5", L",5", L"1.5.1", L"1,000.5", L".", L"1.5mm"})
        EXPECT_FALSE(afx::ParseFloat(text, value)) << text;
    EXPECT_EQ(-77, value);
}

TEST_F(GermanRuntime, TakesWholeNumbersAsElsewhere)
{
    int value = -77;
    EXPECT_FALSE(afx::ParseInt(L"1.000", value));
    EXPECT_FALSE(afx::ParseInt(L"1,5", value));
    EXPECT_TRUE(afx::ParseInt(L" -1000 ", value));
    EXPECT_EQ(-1000, value);
    EXPECT_EQ(L"1234567", Shown(1234567));
}

// Blanks around a number, as any locale has them.
class BlankAroundNumber : public testing::TestWithParam<const char*>
{
};

TEST_P(BlankAroundNumber, IsAllowed)
{
    const RuntimeLocale locale(GetParam());
    for (wchar_t blank : {L' ', L'\t', L'\n', L'\v', L'\f', L'\r', L'\x85', L'\xA0', L'\x2003', L'\x3000'})
    {
        const std::wstring text = {blank, L'4', L'2', blank};
        float real = 0;
        EXPECT_TRUE(afx::ParseFloat(text.c_str(), real)) << static_cast<int>(blank);
        EXPECT_EQ(42.0f, real);
        int whole = 0;
        EXPECT_TRUE(afx::ParseInt(text.c_str(), whole)) << static_cast<int>(blank);
        EXPECT_EQ(42, whole);
        CString trimmed(text);
        EXPECT_STREQ(L"42", trimmed.Trim()) << static_cast<int>(blank);
    }
}

INSTANTIATE_TEST_SUITE_P(Locales, BlankAroundNumber, testing::Values("C", "German", "Chinese"),
                         [](const auto& test) { return std::string(test.param); });

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
    ::SendMessage(dialog.Item(kEdit), EM_SETSEL, 2, 3);
    Shown(value);
    EXPECT_EQ(MAKELRESULT(2, 3), ::SendMessage(dialog.Item(kEdit), EM_GETSEL, 0, 0));
}

// Length and range

class MaxChars : public ExchangeValues
{
protected:
    BOOL ExchangeName(BOOL save)
    {
        return Run(save, [this](CDataExchange* dx) {
            DDX_Text(dx, kEdit, name);
            DDV_MaxChars(dx, name, 5);
        });
    }

    void Type(const wchar_t* text)
    {
        for (; *text; ++text)
            ::SendMessage(dialog.Item(kEdit), WM_CHAR, *text, 1);
    }

    CString name;
};

TEST_F(MaxChars, LimitsWhatCanBeTyped)
{
    ExchangeName(FALSE);
    Type(L"1234567");
    EXPECT_EQ(L"12345", dialog.Text(kEdit));
}

TEST_F(MaxChars, ShowsALongerTextWholeAndRefusesToSaveIt)
{
    name = L"longer name";
    const MessageBoxes boxes;
    EXPECT_TRUE(ExchangeName(FALSE));
    EXPECT_EQ(L"longer name", dialog.Text(kEdit));
    EXPECT_FALSE(ExchangeName(TRUE));
    ASSERT_EQ(1u, boxes.Count());
    EXPECT_NE(std::wstring::npos, boxes.Shown()[0].text.find(L"5"));
    EXPECT_EQ(dialog.Item(kEdit), ::GetFocus());
}

TEST_F(MaxChars, AcceptsTheLongestText)
{
    dialog.SetText(kEdit, L"12345");
    EXPECT_TRUE(ExchangeName(TRUE));
    EXPECT_STREQ(L"12345", name);
}

class MinMaxInt : public ExchangeValues
{
protected:
    BOOL ExchangeNumber(BOOL save)
    {
        return Run(save, [this](CDataExchange* dx) {
            DDX_Text(dx, kEdit, number);
            DDV_MinMaxInt(dx, number, -3, 200);
        });
    }

    int number = 0;
};

TEST_F(MinMaxInt, IncludesItsBounds)
{
    for (const wchar_t* const text : {L"-3", L"0", L"200"})
    {
        dialog.SetText(kEdit, text);
        EXPECT_TRUE(ExchangeNumber(TRUE)) << text;
    }
}

TEST_F(MinMaxInt, RefusesWhatLiesOutsideAndNamesTheBounds)
{
    for (const wchar_t* const text : {L"-4", L"201"})
    {
        dialog.SetText(kEdit, text);
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
    EXPECT_EQ(L"250", dialog.Text(kEdit));
    EXPECT_FALSE(ExchangeNumber(TRUE));
    EXPECT_EQ(1u, boxes.Count());
}

// Check boxes and radio buttons

TEST_F(ExchangeValues, CheckGoesBothWays)
{
    for (int value : {1, 0})
    {
        EXPECT_TRUE(Run(FALSE, [&](CDataExchange* dx) { DDX_Check(dx, kCheckBox, value); }));
        EXPECT_EQ(value, State(kCheckBox));
        int read = -1;
        EXPECT_TRUE(Run(TRUE, [&](CDataExchange* dx) { DDX_Check(dx, kCheckBox, read); }));
        EXPECT_EQ(value, read);
    }
}

TEST_F(ExchangeValues, CheckKnowsTheThirdState)
{
    int value = 2;
    EXPECT_TRUE(Run(FALSE, [&](CDataExchange* dx) { DDX_Check(dx, kThreeState, value); }));
    EXPECT_EQ(BST_INDETERMINATE, State(kThreeState));
}

TEST_F(ExchangeValues, CheckOutOfRangeIsUnchecked)
{
    for (int value : {-1, 3, 256})
    {
        dialog.GetDlgItem(kThreeState)->SendMessage(BM_SETCHECK, BST_CHECKED);
        EXPECT_TRUE(Run(FALSE, [&](CDataExchange* dx) { DDX_Check(dx, kThreeState, value); }));
        EXPECT_EQ(BST_UNCHECKED, State(kThreeState)) << value;
    }
}

class Radio : public ExchangeValues
{
protected:
    BOOL Load(Id first, int value)
    {
        return Run(FALSE, [&](CDataExchange* dx) { DDX_Radio(dx, first, value); });
    }

    int Save(Id first)
    {
        int value = -77;
        EXPECT_TRUE(Run(TRUE, [&](CDataExchange* dx) { DDX_Radio(dx, first, value); }));
        return value;
    }

    std::vector<LRESULT> States() const { return {State(kFirstRadio), State(kSecondRadio), State(kThirdRadio)}; }
};

TEST_F(Radio, LoadChecksOneAndUnchecksTheRest)
{
    EXPECT_TRUE(Load(kFirstRadio, 0));
    EXPECT_EQ((std::vector<LRESULT>{1, 0, 0}), States());
    EXPECT_TRUE(Load(kFirstRadio, 2));
    EXPECT_EQ((std::vector<LRESULT>{0, 0, 1}), States());
}

TEST_F(Radio, CountsHiddenButtonsAndSkipsOtherControls)
{
    EXPECT_TRUE(Load(kFirstRadio, 1));
    EXPECT_EQ((std::vector<LRESULT>{0, 1, 0}), States());
    EXPECT_EQ(1, Save(kFirstRadio));
}

TEST_F(Radio, LoadOfAValueOutsideChecksNone)
{
    for (const int value : {-1, 3})
    {
        Load(kFirstRadio, 0);
        EXPECT_TRUE(Load(kFirstRadio, value));
        EXPECT_EQ((std::vector<LRESULT>{0, 0, 0}), States()) << value;
    }
}

TEST_F(Radio, SaveGivesTheIndexOfTheCheckedOne)
{
    EXPECT_EQ(-1, Save(kFirstRadio));
    dialog.GetDlgItem(kThirdRadio)->SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(2, Save(kFirstRadio));
}

TEST_F(Radio, EndsBeforeTheNextGroup)
{
    dialog.GetDlgItem(kNextGroup)->SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(-1, Save(kFirstRadio));
    Load(kFirstRadio, 0);
    EXPECT_EQ(BST_CHECKED, State(kNextGroup));
}

TEST_F(Radio, LabelThatStartsAGroupEndsIt)
{
    dialog.GetDlgItem(kCutSecond)->SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(-1, Save(kCutFirst));
}

TEST_F(Radio, ExchangeTellsNothing)
{
    dialog.notifications.clear();
    Load(kFirstRadio, 1);
    Save(kFirstRadio);
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
