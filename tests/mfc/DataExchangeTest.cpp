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
    firstEdit = 101,
    secondEdit = 102,
    thirdEdit = 103,
    checkBox = 104,
    hiddenEdit = 105,
    disabledEdit = 106,
    missing = 199
};

constexpr DWORD editStyle = WS_VISIBLE | WS_BORDER | WS_TABSTOP;

const DialogTemplate dialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 200, 100,
                                    {{L"EDIT", L"1", editStyle, 5, 5, 50, 12, firstEdit},
                                     {L"EDIT", L"2", editStyle, 5, 20, 50, 12, secondEdit},
                                     {L"EDIT", L"3", editStyle, 5, 35, 50, 12, thirdEdit},
                                     {L"BUTTON", L"check", WS_VISIBLE | BS_AUTOCHECKBOX, 5, 50, 50, 12, checkBox},
                                     {L"EDIT", L"4", WS_BORDER, 5, 65, 50, 12, hiddenEdit},
                                     {L"EDIT", L"5", editStyle | WS_DISABLED, 5, 80, 50, 12, disabledEdit}});

class DataExchange : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(dialogTemplate);
        dialog.exchange = [this](CDataExchange* pDX) {
            DDX_Text(pDX, firstEdit, first);
            DDX_Text(pDX, secondEdit, second);
            DDV_MinMaxInt(pDX, second, 0, 50);
            DDX_Text(pDX, thirdEdit, third);
        };
        ::SetFocus(dialog.Item(firstEdit));
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
    EXPECT_EQ(L"10", dialog.Text(firstEdit));
    EXPECT_EQ(L"20", dialog.Text(secondEdit));
    EXPECT_EQ(L"30", dialog.Text(thirdEdit));
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
    dialog.exchange = [&](CDataExchange* pDX) {
        EXPECT_EQ(&dialog, pDX->m_pDlgWnd);
        directions.push_back(pDX->m_bSaveAndValidate);
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
    dialog.SetText(secondEdit, L"junk");
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1, first) << "read before the failure";
    EXPECT_EQ(20, second) << "a text that is no number leaves the member";
    EXPECT_EQ(30, third) << "later members are untouched";
}

TEST_F(DataExchange, RangeFailureComesAfterTheMemberWasRead)
{
    dialog.SetText(secondEdit, L"51");
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(51, second);
    EXPECT_EQ(30, third);
}

TEST_F(DataExchange, PromptsOncePerFailure)
{
    dialog.SetText(firstEdit, L"junk");
    dialog.SetText(thirdEdit, L"junk too");
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
    EXPECT_EQ(L"51", dialog.Text(secondEdit));
    PumpMessages();
    EXPECT_EQ(0u, boxes.Count());
}

TEST_F(DataExchange, FailureGivesTheFocusBackWithTheTextSelected)
{
    dialog.SetText(secondEdit, L"junk");
    ::SendMessage(dialog.Item(secondEdit), EM_SETSEL, 1, 1);
    const MessageBoxes boxes;
    dialog.UpdateData(TRUE);
    EXPECT_EQ(dialog.Item(secondEdit), ::GetFocus());
    EXPECT_EQ(MAKELRESULT(0, 4), ::SendMessage(dialog.Item(secondEdit), EM_GETSEL, 0, 0));
}

TEST_F(DataExchange, FailureAtAControlThatIsNoEditGivesItTheFocus)
{
    dialog.exchange = [](CDataExchange* pDX) {
        pDX->PrepareEditCtrl(firstEdit);
        pDX->PrepareCtrl(checkBox);
        pDX->Fail();
    };
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(dialog.Item(checkBox), ::GetFocus());
}

TEST_F(DataExchange, PrepareGivesTheControl)
{
    CDataExchange dx(&dialog, TRUE);
    EXPECT_EQ(dialog.Item(checkBox), dx.PrepareCtrl(checkBox));
    EXPECT_EQ(dialog.Item(firstEdit), dx.PrepareEditCtrl(firstEdit));
    EXPECT_THROW(dx.PrepareCtrl(missing), CNotSupportedException);
}

TEST_F(DataExchange, MissingControlFailsWithoutAPrompt)
{
    int value = 7;
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, missing, value); };
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
    dialog.exchange = [this](CDataExchange* pDX) {
        DDX_Text(pDX, hiddenEdit, first);
        DDX_Text(pDX, disabledEdit, second);
    };
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(4, first);
    EXPECT_EQ(5, second);
    first = 40;
    second = 50;
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(L"40", dialog.Text(hiddenEdit));
    EXPECT_EQ(L"50", dialog.Text(disabledEdit));
}

class UnfocusableControl : public DataExchange, public testing::WithParamInterface<Id>
{
};

TEST_P(UnfocusableControl, FailsAndLeavesTheFocus)
{
    dialog.SetText(GetParam(), L"junk");
    dialog.exchange = [this](CDataExchange* pDX) { DDX_Text(pDX, GetParam(), first); };
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_EQ(dialog.Item(firstEdit), ::GetFocus());
}

INSTANTIATE_TEST_SUITE_P(HiddenOrDisabled, UnfocusableControl, testing::Values(hiddenEdit, disabledEdit));

// The lock: while a window exchanges, its control notifications do not reach its handlers.

TEST_F(DataExchange, ChangeByTheProgramIsToldOutsideOfIt)
{
    EXPECT_TRUE(Notifies(firstEdit));
}

TEST_F(DataExchange, LoadTellsOfNoChange)
{
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(L"10", dialog.Text(firstEdit));
    EXPECT_TRUE(dialog.notifications.empty());
}

TEST_F(DataExchange, SaveTellsOfNoChange)
{
    dialog.exchange = [this](CDataExchange*) { dialog.SetText(firstEdit, L"set while saving"); };
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(dialog.notifications.empty());
}

TEST_F(DataExchange, PromptsFocusChangesAreNotTold)
{
    dialog.SetText(firstEdit, L"junk");
    dialog.notifications.clear();
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_TRUE(dialog.notifications.empty());
}

TEST_F(DataExchange, OtherWindowsAreToldMeanwhile)
{
    ExchangeDialog other;
    other.Create(dialogTemplate);
    other.notifications.clear();
    dialog.exchange = [&](CDataExchange*) { other.SetText(firstEdit, L"typed"); };
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
    dialog.SetText(firstEdit, L"junk");
    const MessageBoxes boxes;
    ::SetFocus(dialog.Item(secondEdit));
    PumpMessages();
    EXPECT_EQ(std::vector<int>{firstEdit}, validated);
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_EQ(dialog.Item(firstEdit), ::GetFocus());
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
    EXPECT_TRUE(Notifies(firstEdit));
}

TEST_F(DataExchange, NestedOnAnotherWindowKeepsTheOuterLock)
{
    ExchangeDialog other;
    other.Create(dialogTemplate);
    dialog.notifications.clear();
    BOOL nested = FALSE;
    dialog.exchange = [&](CDataExchange*) {
        nested = other.UpdateData(TRUE);
        dialog.SetText(firstEdit, L"after");
    };
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_TRUE(nested);
    EXPECT_TRUE(dialog.notifications.empty());
    EXPECT_TRUE(Notifies(firstEdit));
}

TEST_F(DataExchange, LockEndsWithSuccess)
{
    dialog.UpdateData(FALSE);
    EXPECT_TRUE(Notifies(firstEdit));
}

TEST_F(DataExchange, LockEndsWithARefusedValue)
{
    dialog.SetText(firstEdit, L"junk");
    const MessageBoxes boxes;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(Notifies(firstEdit));
}

TEST_F(DataExchange, LockEndsWithAMissingControl)
{
    dialog.exchange = [](CDataExchange* pDX) { pDX->PrepareCtrl(missing); };
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    EXPECT_TRUE(Notifies(firstEdit));
}

TEST_F(DataExchange, LockEndsWithAForeignException)
{
    dialog.exchange = [](CDataExchange*) { throw std::runtime_error("host"); };
    EXPECT_THROW(dialog.UpdateData(TRUE), std::runtime_error);
    EXPECT_TRUE(Notifies(firstEdit));
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
    dialog.Create(dialogTemplate);
    NMHDR header = {dialog.Item(firstEdit), firstEdit, NM_CLICK};
    const auto send = [&](CDataExchange* = nullptr) {
        dialog.SendMessage(WM_NOTIFY, firstEdit, reinterpret_cast<LPARAM>(&header));
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
