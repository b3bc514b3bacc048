#include "ExchangeDialog.h"

#include <afxbutton.h>

#include <gtest/gtest.h>

namespace
{
using namespace test;

enum Id : WORD
{
    checkId = 101,
    firstRadioId = 102,
    secondRadioId = 103,
    pushId = 104,
    defaultId = 105
};
constexpr DWORD style = WS_VISIBLE | WS_TABSTOP;

const DialogTemplate
    dialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 150, 100,
                   {{L"BUTTON", L"", style | BS_AUTOCHECKBOX, 5, 5, 60, 12, checkId},
                    {L"BUTTON", L"", style | BS_AUTORADIOBUTTON | WS_GROUP, 5, 20, 60, 12, firstRadioId},
                    {L"BUTTON", L"", WS_VISIBLE | BS_AUTORADIOBUTTON, 5, 35, 60, 12, secondRadioId},
                    {L"BUTTON", L"", style | WS_GROUP, 5, 50, 60, 14, pushId},
                    {L"BUTTON", L"", style | BS_DEFPUSHBUTTON, 5, 70, 60, 14, defaultId}});

class Button : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(dialogTemplate);
        check.SubclassWindow(dialog.Item(checkId));
        firstRadio.SubclassWindow(dialog.Item(firstRadioId));
        secondRadio.SubclassWindow(dialog.Item(secondRadioId));
        push.SubclassWindow(dialog.Item(pushId));
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
    ExpectClicksOf({checkId, checkId});
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
    ExpectClicksOf({pushId});
}

TEST_F(Button, PushButtonIsTheDefaultWhileItHasTheFocus)
{
    dialog.SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(push.m_hWnd), TRUE);
    EXPECT_EQ(DLGC_DEFPUSHBUTTON, push.SendMessage(WM_GETDLGCODE) & DLGC_DEFPUSHBUTTON);
    PressKey(VK_RETURN);
    ExpectClicksOf({pushId});
}
} // namespace
