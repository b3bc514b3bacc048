// What every control that is a dialog's member has in common.
#include "ExchangeDialog.h"

#include <afxbutton.h>
#include <afxcmn.h>

#include <gtest/gtest.h>

namespace
{
using namespace test;

constexpr WORD kControlId = 101;
constexpr WORD kOtherId = 102;

template <typename Member>
struct Kind;
template <>
struct Kind<CStatic>
{
    static constexpr auto name = L"STATIC";
};
template <>
struct Kind<CButton>
{
    static constexpr auto name = L"BUTTON";
};
template <>
struct Kind<CMFCButton> : Kind<CButton>
{
};
template <>
struct Kind<CEdit>
{
    static constexpr auto name = L"EDIT";
};
template <>
struct Kind<CListBox>
{
    static constexpr auto name = L"LISTBOX";
};
template <>
struct Kind<CComboBox>
{
    static constexpr auto name = L"COMBOBOX";
};
template <>
struct Kind<CSliderCtrl>
{
    static constexpr auto name = TRACKBAR_CLASS;
};

template <typename Member>
class ControlMember : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.exchange = [this](CDataExchange* dx) { DDX_Control(dx, kControlId, member); };
        Open();
    }

    void Open()
    {
        const DWORD style = WS_VISIBLE | WS_TABSTOP;
        const DialogTemplate dialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 150, 60,
                                            {{Kind<Member>::name, L"", style, 5, 5, 60, 40, kControlId},
                                             {Kind<Member>::name, L"", style, 75, 5, 60, 40, kOtherId}});
        dialog.Create(dialogTemplate);
    }

    Member member;
    ExchangeDialog dialog;
};

using Kinds = testing::Types<CStatic, CButton, CMFCButton, CEdit, CListBox, CComboBox, CSliderCtrl>;
TYPED_TEST_SUITE(ControlMember, Kinds);

TYPED_TEST(ControlMember, HasNoWindowBeforeTheFirstExchange)
{
    EXPECT_EQ(nullptr, this->member.GetSafeHwnd());
}

TYPED_TEST(ControlMember, IsBoundByTheFirstExchangeInEitherDirection)
{
    for (const BOOL save : {FALSE, TRUE})
    {
        EXPECT_TRUE(this->dialog.UpdateData(save));
        EXPECT_EQ(this->dialog.Item(kControlId), this->member.GetSafeHwnd());
        EXPECT_EQ(&this->member, this->dialog.GetDlgItem(kControlId));
        this->member.UnsubclassWindow();
    }
}

TYPED_TEST(ControlMember, StaysBoundAtLaterExchanges)
{
    this->dialog.UpdateData(FALSE);
    this->dialog.exchange = [this](CDataExchange* dx) { DDX_Control(dx, kOtherId, this->member); };
    EXPECT_TRUE(this->dialog.UpdateData(FALSE));
    EXPECT_EQ(this->dialog.Item(kControlId), this->member.GetSafeHwnd());
}

TYPED_TEST(ControlMember, FailsTheExchangeWhenTheDialogLacksIt)
{
    this->dialog.exchange = [this](CDataExchange* dx) { DDX_Control(dx, 199, this->member); };
    EXPECT_FALSE(this->dialog.UpdateData(FALSE));
    EXPECT_EQ(nullptr, this->member.GetSafeHwnd());
}

TYPED_TEST(ControlMember, LosesItsWindowWithTheDialogAndIsBoundAgainInTheNext)
{
    this->dialog.UpdateData(FALSE);
    this->dialog.DestroyWindow();
    EXPECT_EQ(nullptr, this->member.GetSafeHwnd());
    this->Open();
    EXPECT_TRUE(this->dialog.UpdateData(FALSE));
    EXPECT_EQ(this->dialog.Item(kControlId), this->member.GetSafeHwnd());
}

TYPED_TEST(ControlMember, StaysItsSystemControl)
{
    const HWND plain = this->dialog.Item(kOtherId);
    const HWND bound = this->dialog.Item(kControlId);
    this->dialog.UpdateData(FALSE);
    EXPECT_EQ(::SendMessage(plain, WM_GETDLGCODE, 0, 0), ::SendMessage(bound, WM_GETDLGCODE, 0, 0));
    EXPECT_EQ(::GetWindowLong(plain, GWL_STYLE), ::GetWindowLong(bound, GWL_STYLE));
}

TYPED_TEST(ControlMember, IsEnabledAndShownOnItsOwn)
{
    this->dialog.UpdateData(FALSE);
    this->member.EnableWindow(FALSE);
    this->member.ShowWindow(SW_HIDE);
    EXPECT_FALSE(this->member.IsWindowEnabled());
    EXPECT_FALSE(this->member.IsWindowVisible());
    EXPECT_TRUE(::IsWindowEnabled(this->dialog.Item(kOtherId)));
    EXPECT_TRUE(::IsWindowVisible(this->dialog.Item(kOtherId)));
    this->member.EnableWindow();
    this->member.ShowWindow(SW_SHOW);
    EXPECT_TRUE(this->member.IsWindowEnabled());
    EXPECT_TRUE(this->member.IsWindowVisible());
}
} // namespace
