#include "ExchangeDialog.h"

#include <afxbutton.h>

#include <gtest/gtest.h>

namespace
{
using namespace test;

enum Id : WORD
{
    kCheckId = 101,
    kFirstRadioId = 102,
    kSecondRadioId = 103,
    kPushId = 104,
    kDefaultId = 105
};
constexpr DWORD kStyle = WS_VISIBLE | WS_TABSTOP;

const DialogTemplate
    kDialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 150, 100,
                    {{L"BUTTON", L"", kStyle | BS_AUTOCHECKBOX, 5, 5, 60, 12, kCheckId},
                     {L"BUTTON", L"", kStyle | BS_AUTORADIOBUTTON | WS_GROUP, 5, 20, 60, 12, kFirstRadioId},
                     {L"BUTTON", L"", WS_VISIBLE | BS_AUTORADIOBUTTON, 5, 35, 60, 12, kSecondRadioId},
                     {L"BUTTON", L"", kStyle | WS_GROUP, 5, 50, 60, 14, kPushId},
                     {L"BUTTON", L"", kStyle | BS_DEFPUSHBUTTON, 5, 70, 60, 14, kDefaultId}});

class Button : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(kDialogTemplate);
        check.SubclassWindow(dialog.Item(kCheckId));
        firstRadio.SubclassWindow(dialog.Item(kFirstRadioId));
        secondRadio.SubclassWindow(dialog.Item(kSecondRadioId));
        push.SubclassWindow(dialog.Item(kPushId));
        dialog.notifications.clear();
    }

    static LRESULT CheckOf(const CButton& button) { return button.SendMessage(BM_GETCHECK); }

    void ExpectClicksOf(std::vector<int> ids)
    {
        std::vector<int> clicked;
        for (const Notification& notification : dialog.notifications)
            if (notification.code == BN_CLICKED)
                clicked.push_back(notification.id);
        EXPECT_EQ(ids, clicked);
    }

    CButton check;
    CButton firstRadio;
    CButton secondRadio;
    CMFCButton push;
    ExchangeDialog dialog;
};

TEST_F(Button, ClickTurnsACheckAndTellsOfIt)
{
    Click(check.m_hWnd, {4, 4});
    EXPECT_EQ(BST_CHECKED, CheckOf(check));
    Click(check.m_hWnd, {4, 4});
    EXPECT_EQ(BST_UNCHECKED, CheckOf(check));
    ExpectClicksOf({kCheckId, kCheckId});
}

TEST_F(Button, ClickMovesTheCheckWithinAGroup)
{
    Click(firstRadio.m_hWnd, {4, 4});
    Click(secondRadio.m_hWnd, {4, 4});
    EXPECT_EQ(BST_UNCHECKED, CheckOf(firstRadio));
    EXPECT_EQ(BST_CHECKED, CheckOf(secondRadio));
}

TEST_F(Button, PushButtonTellsOfItsClick)
{
    Click(push.m_hWnd, {4, 4});
    ExpectClicksOf({kPushId});
}

TEST_F(Button, PushButtonIsTheDefaultWhileItHasTheFocus)
{
    dialog.SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(push.m_hWnd), TRUE);
    EXPECT_EQ(DLGC_DEFPUSHBUTTON, push.SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
    PressKey(VK_RETURN);
    ExpectClicksOf({kPushId});
}
} // namespace
