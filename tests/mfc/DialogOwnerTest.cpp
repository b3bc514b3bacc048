#include "ModalDialog.h"
#include "OwnerWindow.h"

#include "tests/support/Limits.h"

#include <gtest/gtest.h>

#include <future>

namespace
{
using namespace test;

HWND OwnerOf(const CWnd& wnd)
{
    return ::GetWindow(wnd.m_hWnd, GW_OWNER);
}

TEST(DialogOwner, IsTheGivenParent)
{
    Owner owner;
    Owner active;
    ModalDialog dialog(&owner);
    RunWith(dialog, [&] {
        EXPECT_EQ(owner.m_hWnd, OwnerOf(dialog));
        EXPECT_FALSE(owner.IsWindowEnabled());
        dialog.Command(IDCANCEL);
    });
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(DialogOwner, IsElseTheActiveWindow)
{
    Owner other;
    Owner active;
    ::SetActiveWindow(active.m_hWnd);
    CWnd withoutWindow;
    for (CWnd* parent : {static_cast<CWnd*>(nullptr), &withoutWindow})
    {
        ModalDialog dialog(parent);
        RunWith(dialog, [&] {
            EXPECT_EQ(active.m_hWnd, OwnerOf(dialog));
            dialog.Command(IDCANCEL);
        });
    }
}

TEST(DialogOwner, IsTheLastActivePopUpOfTheGivenParent)
{
    Owner owner;
    TestDialog popUp;
    popUp.Create(DialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 100, 50, {}), &owner);
    ::SetActiveWindow(popUp.m_hWnd);
    ModalDialog dialog(&owner);
    RunWith(dialog, [&] {
        EXPECT_EQ(popUp.m_hWnd, OwnerOf(dialog));
        dialog.Command(IDCANCEL);
    });
}

TEST(DialogOwner, IsNobodyInAProcessWithoutWindows)
{
    ModalDialog dialog;
    EXPECT_EQ(IDOK, RunWith(dialog, [&] {
                  EXPECT_EQ(nullptr, OwnerOf(dialog));
                  dialog.Command(IDOK);
              }));
}

TEST(DialogOwner, IsEnabledBeforeTheDialogIsDestroyed)
{
    Owner owner;
    ModalDialog dialog(&owner);
    BOOL enabled = FALSE;
    dialog.onMessage = [&](UINT message) {
        if (message == WM_DESTROY)
            enabled = owner.IsWindowEnabled();
    };
    RunWith(dialog, [&] { dialog.Command(IDCANCEL); });
    EXPECT_TRUE(enabled);
}

TEST(DialogOwner, IsActiveAfterwards)
{
    Owner owner;
    Owner other;
    ::SetActiveWindow(owner.m_hWnd);
    ModalDialog dialog(&owner);
    RunWith(dialog, [&] { dialog.Command(IDCANCEL); });
    EXPECT_EQ(owner.m_hWnd, ::GetActiveWindow());
}

TEST(DialogOwner, ThatWasDisabledStaysDisabled)
{
    Owner owner;
    owner.EnableWindow(FALSE);
    ModalDialog dialog(&owner);
    RunWith(dialog, [&] { dialog.Command(IDCANCEL); });
    EXPECT_FALSE(owner.IsWindowEnabled());
}

TEST(DialogOwner, IsToldOfIdleTime)
{
    Owner owner;
    ModalDialog dialog(&owner);
    HWND handle = nullptr;
    Script script;
    script.When(
        "the owner was told", [&] { return owner.idles > 0; },
        [&] {
            handle = dialog.m_hWnd;
            dialog.Command(IDCANCEL);
        });
    dialog.DoModal();
    EXPECT_EQ(static_cast<WPARAM>(MSGF_DIALOGBOX), owner.idleReason);
    EXPECT_EQ(handle, owner.idleDialog);
}

TEST(DialogOwner, OfANestedDialogIsTheDialogAround)
{
    Owner owner;
    Owner activeMeanwhile;
    ModalDialog outer(&owner);
    ModalDialog inner;
    outer.onPush = [&] {
        ::SetActiveWindow(activeMeanwhile.m_hWnd);
        const INT_PTR result = RunWith(inner, [&] {
            EXPECT_EQ(outer.m_hWnd, OwnerOf(inner));
            EXPECT_FALSE(outer.IsWindowEnabled());
            EXPECT_FALSE(owner.IsWindowEnabled());
            inner.Command(IDOK);
        });
        EXPECT_EQ(IDOK, result);
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(owner.IsWindowEnabled()) << "the outer dialog still runs";
        EXPECT_EQ(outer.m_hWnd, ::GetActiveWindow());
        outer.EndDialog(8);
    };
    EXPECT_EQ(8, RunWith(outer, [&] { outer.Command(IDC_PUSH); }));
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(DialogOwner, OfADialogOpenedFromAPageIsTheWholeEditor)
{
    Page page;
    ModalDialog outer;
    ModalDialog inner(&page);
    outer.onInit = [&] { return page.Create(IDD_PAGE, &outer); };
    outer.onPush = [&] {
        RunWith(inner, [&] {
            EXPECT_EQ(outer.m_hWnd, OwnerOf(inner));
            EXPECT_FALSE(outer.IsWindowEnabled());
            EXPECT_TRUE(page.IsWindowEnabled());
            inner.Command(IDCANCEL);
        });
        EXPECT_TRUE(outer.IsWindowEnabled());
        outer.EndDialog(8);
    };
    EXPECT_EQ(8, RunWith(outer, [&] { outer.Command(IDC_PUSH); }));
}

TEST(DialogOwner, ThatDiesTakesTheDialogAlong)
{
    Owner owner;
    ModalDialog dialog(&owner);
    EXPECT_EQ(-1, RunWith(dialog, [&] { owner.PostMessage(kDestroyYourself); }));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_EQ(5, RunWith(dialog, [&] { dialog.EndDialog(5); })) << "runs again";
}

TEST(DialogOwner, ThatDiesTakesNestedDialogsAlong)
{
    Owner owner;
    ModalDialog outer(&owner);
    ModalDialog inner;
    outer.onPush = [&] { EXPECT_EQ(-1, RunWith(inner, [&] { owner.PostMessage(kDestroyYourself); })); };
    EXPECT_EQ(-1, RunWith(outer, [&] { outer.Command(IDC_PUSH); }));
}

// A dialog whose loop already waits is told to end by a message that another thread sends: such a message runs inside
// the wait and does not end it by itself.
class WaitingDialog : public testing::Test
{
protected:
    // Nothing else may wake the loop: no script drives it, and no caret blinks.
    INT_PTR RunAndSend(const std::function<void()>& send)
    {
        dialog.onInit = [this] {
            dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_PUSH));
            return FALSE;
        };
        std::promise<void> waits;
        std::promise<void> ended;
        bool told = false;
        owner.onIdle = [&] {
            if (!told)
                waits.set_value();
            told = true;
        };
        const DWORD thread = ::GetCurrentThreadId();
        const auto other = std::async(std::launch::async, [&] {
            EXPECT_EQ(std::future_status::ready, waits.get_future().wait_for(kWaitLimit)) << "the loop never waited";
            send();
            if (ended.get_future().wait_for(kWaitLimit) == std::future_status::ready)
                return;
            ADD_FAILURE() << "the loop was not woken";
            ::PostThreadMessage(thread, WM_NULL, 0, 0);
        });
        const INT_PTR result = dialog.DoModal();
        ended.set_value();
        other.wait();
        return result;
    }

    Owner owner;
    ModalDialog dialog{&owner};
};

TEST_F(WaitingDialog, IsWokenByASentCommand)
{
    EXPECT_EQ(IDCANCEL, RunAndSend([&] { dialog.SendMessage(WM_COMMAND, IDCANCEL); }));
}

TEST_F(WaitingDialog, IsWokenByTheDeathOfItsOwner)
{
    EXPECT_EQ(-1, RunAndSend([&] { owner.SendMessage(kDestroyYourself); }));
}
} // namespace
