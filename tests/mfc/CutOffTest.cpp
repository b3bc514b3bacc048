// What a handler leaves behind when an exception that is no C++ one takes it away. The system throws such an exception
// away where it calls a window procedure for a message that another thread has sent.
#include "AfxState.h"
#include "ModalDialog.h"
#include "OwnerWindow.h"
#include "ScopedValue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace
{
using namespace test;

// What Microsoft's compiler throws, and a fault of the processor.
constexpr DWORD kCxxException = 0xE06D7363;

class CutOff : public testing::TestWithParam<DWORD>
{
protected:
    ~CutOff() override
    {
        if (m_sender.joinable())
            m_sender.join();
    }

    static void Raise() { ::RaiseException(GetParam(), 0, 0, nullptr); }

    // Runs the dialog. Another thread sends it a command, and when that has come back, the step runs.
    void RunWithSentCommand(int id, const std::function<void()>& step)
    {
        std::atomic<bool> isBack{false};
        Script script;
        script.When(
            "the dialog is shown", [this] { return IsShown(dialog); },
            [&, this] {
                m_sender = std::thread([&, window = dialog.m_hWnd] {
                    ::SendMessage(window, WM_COMMAND, static_cast<WPARAM>(id), 0);
                    isBack = true;
                });
            });
        script.When(
            "the command is back", [&] { return isBack.load(); }, step);
        script.Then("the dialog is cancelled", [this] { dialog.Command(IDCANCEL); });
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
    }

    Owner owner;
    ModalDialog dialog{&owner};

private:
    std::thread m_sender;
};

TEST_P(CutOff, WaitCursorsEnd)
{
    const HCURSOR hand = ::SetCursor(::LoadCursor(nullptr, IDC_HAND));
    dialog.onPush = [] {
        const CWaitCursor outer;
        const CWaitCursor inner;
        Raise();
    };
    RunWithSentCommand(IDC_PUSH, [] { EXPECT_EQ(0, AfxGetState().waitCursors); });
    EXPECT_EQ(::LoadCursor(nullptr, IDC_HAND), ::SetCursor(hand));
}

TEST_P(CutOff, ValuesComeBack)
{
    bool flag = false;
    dialog.onPush = [&] {
        bool own = false;
        const CScopedValue<bool> raised(flag, true);
        const CScopedValue<bool> ownRaised(own, true);
        Raise();
    };
    RunWithSentCommand(IDC_PUSH, [&] { EXPECT_FALSE(flag); });
}

TEST_P(CutOff, TheMessageBeforeIsCurrentAgain)
{
    dialog.onPush = [] { Raise(); };
    const UINT before = AfxGetState().current.message;
    RunWithSentCommand(IDC_PUSH, [] {});
    EXPECT_EQ(before, AfxGetState().current.message);
}

// Its data exchange asks the host.
class AskingDialog : public ModalDialog
{
public:
    using ModalDialog::ModalDialog;
    std::function<void()> onSave;

protected:
    void DoDataExchange(CDataExchange* dx) override
    {
        ModalDialog::DoDataExchange(dx);
        if (dx->m_bSaveAndValidate && onSave)
            onSave();
    }
};

TEST_P(CutOff, NotificationsAreNoLongerHeldBack)
{
    AskingDialog asking(&owner);
    asking.onSave = [] { Raise(); };
    std::thread sender;
    Script script;
    script.When(
        "the dialog is shown", [&] { return IsShown(asking); },
        [&] { sender = std::thread([window = asking.m_hWnd] { ::SendMessage(window, WM_COMMAND, IDOK, 0); }); });
    script.When(
        "its values are asked for", [&] { return asking.calls.back() == "save"; },
        [&] {
            EXPECT_EQ(nullptr, AfxGetState().heldWindow);
            asking.onSave = nullptr;
            asking.Command(IDOK);
        });
    EXPECT_EQ(IDOK, asking.DoModal());
    sender.join();
}

TEST_P(CutOff, ANestedDialogGoes)
{
    HWND nested = nullptr;
    dialog.onPush = [&] {
        ModalDialog inner;
        inner.onInit = [&]() -> BOOL {
            nested = inner.m_hWnd;
            Raise();
            return TRUE;
        };
        inner.DoModal();
    };
    RunWithSentCommand(IDC_PUSH, [&] {
        EXPECT_NE(nullptr, nested);
        EXPECT_FALSE(::IsWindow(nested));
        EXPECT_TRUE(dialog.IsWindowEnabled());
        EXPECT_FALSE(owner.IsWindowEnabled());
        EXPECT_EQ(std::vector<HWND>{dialog.m_hWnd}, AfxGetState().modalDialogs);
    });
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_P(CutOff, ANestedDialogGoesThatWasOpen)
{
    HWND nested = nullptr;
    dialog.onPush = [&] {
        struct Raising : ModalDialog
        {
            BOOL PreTranslateMessage(MSG* message) override
            {
                if (message->message == WM_APP)
                    Raise();
                return ModalDialog::PreTranslateMessage(message);
            }
        } raising;
        raising.onInit = [&]() -> BOOL {
            nested = raising.m_hWnd;
            raising.PostMessage(WM_APP);
            return TRUE;
        };
        raising.DoModal();
    };
    RunWithSentCommand(IDC_PUSH, [&] {
        EXPECT_NE(nullptr, nested);
        EXPECT_FALSE(::IsWindow(nested));
        EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(nested));
        EXPECT_TRUE(dialog.IsWindowEnabled());
    });
}

INSTANTIATE_TEST_SUITE_P(Exceptions, CutOff, testing::Values(kCxxException, EXCEPTION_ACCESS_VIOLATION));

// A jump leaves nobody the time to notice; the stack alone shows that the dialog's scope is no more.
void* jump[5];

__attribute__((noinline)) void RunAndJump(HWND& window, CWnd& owner)
{
    ModalDialog dialog(&owner);
    dialog.onInit = [&]() -> BOOL {
        window = dialog.m_hWnd;
        __builtin_longjmp(jump, 1);
    };
    dialog.DoModal();
}

TEST(CutOffDialog, GoesWhenTheStackShowsIt)
{
    HWND window = nullptr;
    Owner owner;
    if (__builtin_setjmp(jump) == 0)
        RunAndJump(window, owner);
    ASSERT_TRUE(::IsWindow(window));
    AfxUndoCutScopes();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_TRUE(AfxGetState().undos.empty());
}
} // namespace
