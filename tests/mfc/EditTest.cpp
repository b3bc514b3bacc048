#include "ExchangeDialog.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

enum Id : WORD
{
    plainId = 101,
    numberId = 102,
    readOnlyId = 103
};
constexpr DWORD style = WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL;

const DialogTemplate dialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 150, 60,
                                    {{L"EDIT", L"", style, 5, 5, 100, 12, plainId},
                                     {L"EDIT", L"", style | ES_NUMBER, 5, 20, 100, 12, numberId},
                                     {L"EDIT", L"", style | ES_READONLY, 5, 35, 100, 12, readOnlyId}});

class Edit : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(dialogTemplate);
        edit.SubclassWindow(dialog.Item(plainId));
        dialog.notifications.clear();
    }

    static void Type(const CWnd& wnd, LPCTSTR text)
    {
        for (; *text; ++text)
            wnd.SendMessage(WM_CHAR, *text, 1);
    }

    CEdit edit;
    ExchangeDialog dialog;
};

TEST_F(Edit, GivesItsTextWhole)
{
    for (const size_t length : {0u, 1u, 255u, 256u, 20'000u})
    {
        const std::wstring text(length, L'x');
        edit.SetWindowText(text.c_str());
        CString read(L"before");
        edit.GetWindowText(read);
        EXPECT_EQ(text, read.GetString()) << length;
    }
}

TEST_F(Edit, TellsOfTyping)
{
    Type(edit, L"1");
    EXPECT_EQ((std::vector<Notification>{{plainId, EN_UPDATE}, {plainId, EN_CHANGE}}), dialog.notifications);
}

TEST_F(Edit, ForNumbersTakesDigitsOnlyFromTheKeyboard)
{
    Type(*dialog.GetDlgItem(numberId), L"1a-2");
    EXPECT_EQ(L"12", dialog.Text(numberId));
    dialog.SetText(numberId, L"-5a");
    EXPECT_EQ(L"-5a", dialog.Text(numberId));
}

TEST_F(Edit, ReadOnlyShowsWhatTheProgramSets)
{
    Type(*dialog.GetDlgItem(readOnlyId), L"typed");
    EXPECT_EQ(L"", dialog.Text(readOnlyId));
    dialog.SetText(readOnlyId, L"set");
    EXPECT_EQ(L"set", dialog.Text(readOnlyId));
}

TEST_F(Edit, DisablingItTakesTheFocusFromTheThread)
{
    edit.SetFocus();
    dialog.notifications.clear();
    edit.EnableWindow(FALSE);
    EXPECT_NE(edit.m_hWnd, ::GetFocus());
    EXPECT_EQ((std::vector<Notification>{{plainId, EN_KILLFOCUS}}), dialog.notifications);
}
} // namespace
