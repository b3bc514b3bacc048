#include "ExchangeDialog.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

enum Id : WORD
{
    kPlainId = 101,
    kNumberId = 102,
    kReadOnlyId = 103
};
constexpr DWORD kStyle = WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL;

const DialogTemplate kDialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 150, 60,
                                     {{L"EDIT", L"", kStyle, 5, 5, 100, 12, kPlainId},
                                      {L"EDIT", L"", kStyle | ES_NUMBER, 5, 20, 100, 12, kNumberId},
                                      {L"EDIT", L"", kStyle | ES_READONLY, 5, 35, 100, 12, kReadOnlyId}});

class Edit : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(kDialogTemplate);
        edit.SubclassWindow(dialog.Item(kPlainId));
        dialog.notifications.clear();
    }

    static void Type(const CWnd& wnd, const wchar_t* text)
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
    EXPECT_EQ((std::vector<Notification>{{kPlainId, EN_UPDATE}, {kPlainId, EN_CHANGE}}), dialog.notifications);
}

TEST_F(Edit, ForNumbersTakesDigitsOnlyFromTheKeyboard)
{
    Type(*dialog.GetDlgItem(kNumberId), L"1a-2");
    EXPECT_EQ(L"12", dialog.Text(kNumberId));
    dialog.SetText(kNumberId, L"-5a");
    EXPECT_EQ(L"-5a", dialog.Text(kNumberId));
}

TEST_F(Edit, ReadOnlyShowsWhatTheProgramSets)
{
    Type(*dialog.GetDlgItem(kReadOnlyId), L"typed");
    EXPECT_EQ(L"", dialog.Text(kReadOnlyId));
    dialog.SetText(kReadOnlyId, L"set");
    EXPECT_EQ(L"set", dialog.Text(kReadOnlyId));
}

TEST_F(Edit, DisablingItTakesTheFocusFromTheThread)
{
    edit.SetFocus();
    dialog.notifications.clear();
    edit.EnableWindow(FALSE);
    EXPECT_NE(edit.m_hWnd, ::GetFocus());
    EXPECT_EQ((std::vector<Notification>{{kPlainId, EN_KILLFOCUS}}), dialog.notifications);
}
} // namespace
