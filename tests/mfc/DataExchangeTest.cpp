// The road of UpdateData: order, failure, focus and the lock on notifications.
#include "ExchangeDialog.h"
#include "MessageBoxes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace
{
using namespace test;

enum Id : WORD
{
    kFirstEdit = 101,
    kSecondEdit = 102,
    kThirdEdit = 103,
    kCheckBox = 104,
    kHiddenEdit = 105,
    kDisabledEdit = 106,
    kMissing = 199
};

constexpr DWORD kEditStyle = WS_VISIBLE | WS_BORDER | WS_TABSTOP;

const DialogTemplate kDialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 200, 100,
                                     {{L"EDIT", L"1", kEditStyle, 5, 5, 50, 12, kFirstEdit},
                                      {L"EDIT", L"2", kEditStyle, 5, 20, 50, 12, kSecondEdit},
                                      {L"EDIT", L"3", kEditStyle, 5, 35, 50, 12, kThirdEdit},
                                      {L"BUTTON", L"check", WS_VISIBLE | BS_AUTOCHECKBOX, 5, 50, 50, 12, kCheckBox},
                                      {L"EDIT", L"4", WS_BORDER, 5, 65, 50, 12, kHiddenEdit},
                                      {L"EDIT", L"5", kEditStyle | WS_DISABLED, 5, 80, 50, 12, kDisabledEdit}});

class DataExchange : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(kDialogTemplate);
        dialog.exchange = [this](CDataExchange* dx) {
            DDX_Text(dx, kFirstEdit, first);
            DDX_Text(dx, kSecondEdit, second);
            DDV_MinMaxInt(dx, second, 0, 50);
            DDX_Text(dx, kThirdEdit, third);
        };
        ::SetFocus(dialog.Item(kFirstEdit));
        dialog.notifications.clear();
    }

    bool Notifies(int id)
    {
        dialog.notifications.clear();
        dialog.SetText(id, L"typed");
        const auto& all = dialog.notifications;
        return std::find(all.begin(), all.end(), Notification{id, EN_CHANGE}) != all.end();
    }

    int first = 10;
    int second = 20;
    int third = 30;
    ExchangeDialog dialog;
};

TEST_F(DataExchange, CopiesMembersToControls)
{
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(L"10", dialog.Text(kFirstEdit));
    EXPECT_EQ(L"20", dialog.Text(kSecondEdit));
    EXPECT_EQ(L"30", dialog.Text(kThirdEdit));
}

TEST_F(DataExchange, CopiesControlsToMembersUnlessToldOtherwise)
{
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_EQ(1, first);
    EXPECT_EQ(2, second);
    EXPECT_EQ(3, third);
}

TEST_F(DataExchange, TellsTheDirectionAndTheDialog)
{
    std::vector<BOOL> directions;
    dialog.exchange = [&](CDataExchange* dx) {
        EXPECT_EQ(&dialog, dx->m_pDlgWnd);
        directions.push_back(dx->m_bSaveAndValidate);
    };
    dialog.UpdateData(FALSE);
    dialog.UpdateData(TRUE);
    EXPECT_EQ((std::vector<BOOL>{FALSE, TRUE}), directions);
}

TEST_F(DataExchange, OfADialogWithoutExchangeSucceeds)
{
    dialog.exchange = nullptr;
    EXPECT_TRUE(dialog.UpdateData(TRUE));
}

TEST_F(DataExchange, StopsAtTheFirstFailure)
{
    dialog.SetText(kSecondEdit, L"junk");
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1, first) << "read before the failure";
    EXPECT_EQ(20, second) << "a text that is no number leaves the member";
    EXPECT_EQ(30, third) << "later members are untouched";
}

TEST_F(DataExchange, RangeFailureComesAfterTheMemberWasRead)
{
    dialog.SetText(kSecondEdit, L"51");
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(51, second);
    EXPECT_EQ(30, third);
}

TEST_F(DataExchange, PromptsOncePerFailure)
{
    dialog.SetText(kFirstEdit, L"junk");
    dialog.SetText(kThirdEdit, L"junk too");
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_EQ(nullptr, OpenMessageBox());
}

TEST_F(DataExchange, LoadNeverPrompts)
{
    second = 51;
    const MessageBoxes boxes;
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(L"51", dialog.Text(kSecondEdit));
    PumpMessages();
    EXPECT_EQ(0u, boxes.Count());
}

TEST_F(DataExchange, FailureGivesTheFocusBackWithTheTextSelected)
{
    dialog.SetText(kSecondEdit, L"junk");
    ::SendMessage(dialog.Item(kSecondEdit), EM_SETSEL, 1, 1);
    const MessageBoxes boxes;
    dialog.UpdateData(TRUE);
    EXPECT_EQ(dialog.Item(kSecondEdit), ::GetFocus());
    EXPECT_EQ(MAKELRESULT(0, 4), ::SendMessage(dialog.Item(kSecondEdit), EM_GETSEL, 0, 0));
}

TEST_F(DataExchange, FailureAtAControlThatIsNoEditGivesItTheFocus)
{
    dialog.exchange = [](CDataExchange* dx) {
        dx->PrepareEditCtrl(kFirstEdit);
        dx->PrepareCtrl(kCheckBox);
        dx->Fail();
    };
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(dialog.Item(kCheckBox), ::GetFocus());
}

TEST_F(DataExchange, PrepareGivesTheControl)
{
    CDataExchange dx(&dialog, TRUE);
    EXPECT_EQ(dialog.Item(kCheckBox), dx.PrepareCtrl(kCheckBox));
    EXPECT_EQ(dialog.Item(kFirstEdit), dx.PrepareEditCtrl(kFirstEdit));
    EXPECT_THROW(dx.PrepareCtrl(kMissing), CNotSupportedException);
}

TEST_F(DataExchange, MissingControlFailsWithoutAPrompt)
{
    int value = 7;
    dialog.exchange = [&](CDataExchange* dx) { DDX_Text(dx, kMissing, value); };
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_FALSE(dialog.UpdateData(FALSE));
    PumpMessages();
    EXPECT_EQ(0u, boxes.Count());
    EXPECT_EQ(7, value);
}

TEST_F(DataExchange, WithoutAWindowFails)
{
    bool asked = false;
    ExchangeDialog other;
    other.exchange = [&](CDataExchange*) { asked = true; };
    EXPECT_FALSE(other.UpdateData(TRUE));
    EXPECT_FALSE(other.UpdateData(FALSE));
    EXPECT_FALSE(asked);
}

TEST_F(DataExchange, ReadsHiddenAndDisabledControlsLikeAnyOther)
{
    dialog.exchange = [this](CDataExchange* dx) {
        DDX_Text(dx, kHiddenEdit, first);
        DDX_Text(dx, kDisabledEdit, second);
    };
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(4, first);
    EXPECT_EQ(5, second);
    first = 40;
    second = 50;
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(L"40", dialog.Text(kHiddenEdit));
    EXPECT_EQ(L"50", dialog.Text(kDisabledEdit));
}

class UnfocusableControl : public DataExchange, public testing::WithParamInterface<Id>
{
};

TEST_P(UnfocusableControl, FailsAndLeavesTheFocus)
{
    dialog.SetText(GetParam(), L"junk");
    dialog.exchange = [this](CDataExchange* dx) { DDX_Text(dx, GetParam(), first); };
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_EQ(dialog.Item(kFirstEdit), ::GetFocus());
}

INSTANTIATE_TEST_SUITE_P(HiddenOrDisabled, UnfocusableControl, testing::Values(kHiddenEdit, kDisabledEdit));

// The lock: while a window exchanges, its control notifications do not reach its handlers.

TEST_F(DataExchange, ChangeByTheProgramIsToldOutsideOfIt)
{
    EXPECT_TRUE(Notifies(kFirstEdit));
}

TEST_F(DataExchange, LoadTellsOfNoChange)
{
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(L"10", dialog.Text(kFirstEdit));
    EXPECT_TRUE(dialog.notifications.empty());
}

TEST_F(DataExchange, SaveTellsOfNoChange)
{
    dialog.exchange = [this](CDataExchange*) { dialog.SetText(kFirstEdit, L"set while saving"); };
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(dialog.notifications.empty());
}

TEST_F(DataExchange, PromptsFocusChangesAreNotTold)
{
    dialog.SetText(kFirstEdit, L"junk");
    dialog.notifications.clear();
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_TRUE(dialog.notifications.empty());
}

TEST_F(DataExchange, OtherWindowsAreToldMeanwhile)
{
    ExchangeDialog other;
    other.Create(kDialogTemplate);
    other.notifications.clear();
    dialog.exchange = [&](CDataExchange*) { other.SetText(kFirstEdit, L"typed"); };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_FALSE(other.notifications.empty());
}

// A value edit is written when it loses the focus: the handler validates, its prompt takes the focus, and the failure
// gives it back while the other edit already has it.
TEST_F(DataExchange, KillFocusIsHandledOnceAroundAPrompt)
{
    std::vector<int> validated;
    dialog.onNotification = [&](Notification notification) {
        if (notification.code != EN_KILLFOCUS)
            return;
        validated.push_back(notification.id);
        EXPECT_FALSE(dialog.UpdateData(TRUE));
    };
    dialog.SetText(kFirstEdit, L"junk");
    const MessageBoxes boxes;
    ::SetFocus(dialog.Item(kSecondEdit));
    PumpMessages();
    EXPECT_EQ(std::vector<int>{kFirstEdit}, validated);
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_EQ(dialog.Item(kFirstEdit), ::GetFocus());
    dialog.onNotification = nullptr;
}

TEST_F(DataExchange, NestedOnItselfFailsAndDoesNothing)
{
    int entered = 0;
    BOOL nested = TRUE;
    dialog.exchange = [&](CDataExchange*) {
        ++entered;
        nested = dialog.UpdateData(TRUE);
    };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(1, entered);
    EXPECT_FALSE(nested);
    EXPECT_TRUE(Notifies(kFirstEdit));
}

TEST_F(DataExchange, NestedOnAnotherWindowKeepsTheOuterLock)
{
    ExchangeDialog other;
    other.Create(kDialogTemplate);
    dialog.notifications.clear();
    BOOL nested = FALSE;
    dialog.exchange = [&](CDataExchange*) {
        nested = other.UpdateData(TRUE);
        dialog.SetText(kFirstEdit, L"after");
    };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_TRUE(nested);
    EXPECT_TRUE(dialog.notifications.empty());
    EXPECT_TRUE(Notifies(kFirstEdit));
}

TEST_F(DataExchange, LockEndsWithSuccess)
{
    dialog.UpdateData(FALSE);
    EXPECT_TRUE(Notifies(kFirstEdit));
}

TEST_F(DataExchange, LockEndsWithARefusedValue)
{
    dialog.SetText(kFirstEdit, L"junk");
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(Notifies(kFirstEdit));
}

TEST_F(DataExchange, LockEndsWithAMissingControl)
{
    dialog.exchange = [](CDataExchange* dx) { dx->PrepareCtrl(kMissing); };
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(Notifies(kFirstEdit));
}

TEST_F(DataExchange, LockEndsWithAForeignException)
{
    dialog.exchange = [](CDataExchange*) { throw std::runtime_error("host"); };
    EXPECT_THROW(dialog.UpdateData(TRUE), std::runtime_error);
    EXPECT_TRUE(Notifies(kFirstEdit));
}

// WM_NOTIFY is held as well; other messages are not.
class MessageDialog : public ExchangeDialog
{
public:
    int notifies = 0;
    int others = 0;

protected:
    DECLARE_MESSAGE_MAP()

private:
    LRESULT OnNotifyMessage(WPARAM, LPARAM) { return ++notifies; }
    LRESULT OnOther(WPARAM, LPARAM) { return ++others; }
};

BEGIN_MESSAGE_MAP(MessageDialog, ExchangeDialog)
    ON_MESSAGE(WM_NOTIFY, &MessageDialog::OnNotifyMessage)
    ON_MESSAGE(WM_APP, &MessageDialog::OnOther)
END_MESSAGE_MAP()

TEST(DataExchangeLock, HoldsCommandsAndNotifiesOnly)
{
    MessageDialog dialog;
    dialog.Create(kDialogTemplate);
    NMHDR header = {dialog.Item(kFirstEdit), kFirstEdit, NM_CLICK};
    const auto send = [&](CDataExchange* = nullptr) {
        dialog.SendMessage(WM_NOTIFY, kFirstEdit, reinterpret_cast<LPARAM>(&header));
        dialog.SendMessage(WM_APP);
    };
    dialog.exchange = send;
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(0, dialog.notifies);
    EXPECT_EQ(1, dialog.others);
    send();
    EXPECT_EQ(1, dialog.notifies);
    EXPECT_EQ(2, dialog.others);
}
} // namespace
