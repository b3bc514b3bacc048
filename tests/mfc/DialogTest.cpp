#include "MessageBoxes.h"
#include "ModalDialog.h"
#include "OwnerWindow.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
using namespace test;
using Calls = std::vector<std::string>;

// Beginning

TEST(Dialog, GivesTheValueOfEndDialog)
{
    ModalDialog dialog;
    EXPECT_EQ(42, RunWith(dialog, [&] { dialog.EndDialog(42); }));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

class FailingDialog : public testing::TestWithParam<UINT>
{
};

TEST_P(FailingDialog, GivesMinusOneAndLeavesTheOwnerAlone)
{
    Owner owner;
    ModalDialog dialog(&owner, GetParam());
    EXPECT_EQ(-1, RunAlone(dialog));
    EXPECT_EQ(Calls{}, dialog.calls);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

INSTANTIATE_TEST_SUITE_P(WithoutTemplateOrControlClass, FailingDialog,
                         testing::Values(IDD_NO_TEMPLATE, IDD_UNKNOWN_CLASS));

TEST(Dialog, TakesItsTemplateFromTheResourceHandleOfTheRun)
{
    const HINSTANCE before = AfxGetResourceHandle();
    ModalDialog dialog;
    AfxSetResourceHandle(::GetModuleHandle(L"kernel32"));
    EXPECT_EQ(-1, RunAlone(dialog));
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(5, RunWith(dialog, [&] { dialog.EndDialog(5); })) << "null means the program";
    AfxSetResourceHandle(before);
    EXPECT_EQ(6, RunWith(dialog, [&] { dialog.EndDialog(6); }));
}

TEST(Dialog, FailingFirstExchangeGivesMinusOneAndIsNeverShown)
{
    bool shown = false;
    Owner owner;
    ModalDialog dialog(&owner);
    dialog.hasAllControls = false;
    dialog.onMessage = [&](UINT message) { shown = shown || message == WM_SHOWWINDOW; };
    EXPECT_EQ(-1, RunAlone(dialog));
    EXPECT_EQ(Calls{"load"}, dialog.calls);
    EXPECT_FALSE(shown);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(Dialog, ExceptionAtInitialisationGivesMinusOne)
{
    Owner owner;
    ModalDialog dialog(&owner);
    dialog.onInit = []() -> BOOL { throw std::runtime_error("host"); };
    EXPECT_EQ(-1, RunAlone(dialog));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(Dialog, MayEndAtInitialisationAndIsNeverShown)
{
    bool shown = false;
    ModalDialog dialog;
    dialog.onInit = [&] {
        dialog.EndDialog(9);
        return TRUE;
    };
    dialog.onMessage = [&](UINT message) { shown = shown || message == WM_SHOWWINDOW; };
    EXPECT_EQ(9, RunAlone(dialog));
    EXPECT_FALSE(shown);
}

TEST(Dialog, IsFilledBeforeItIsShown)
{
    CString shown;
    ModalDialog dialog;
    dialog.number = 77;
    dialog.onMessage = [&](UINT message) {
        if (message == WM_SHOWWINDOW && shown.IsEmpty())
            dialog.GetDlgItem(IDC_NUMBER)->GetWindowText(shown);
    };
    RunWith(dialog, [&] { dialog.Command(IDCANCEL); });
    EXPECT_STREQ(L"77", shown);
}

TEST(Dialog, FocusIsAtTheFirstControlUnlessInitialisationSetIt)
{
    ModalDialog dialog;
    RunWith(dialog, [&] {
        EXPECT_EQ(dialog.Item(IDC_NUMBER), ::GetFocus());
        dialog.Command(IDCANCEL);
    });
    dialog.onInit = [&] {
        dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_OTHER));
        return FALSE;
    };
    RunWith(dialog, [&] {
        EXPECT_EQ(dialog.Item(IDC_OTHER), ::GetFocus());
        dialog.Command(IDCANCEL);
    });
}

TEST(Dialog, RunsAgainWithTheSameObject)
{
    ModalDialog dialog;
    dialog.number = 5;
    EXPECT_EQ(IDOK, RunWith(dialog, [&] { dialog.Command(IDOK); }));
    EXPECT_EQ(IDCANCEL, RunWith(dialog, [&] { dialog.Command(IDCANCEL); }));
    EXPECT_EQ((Calls{"load", "OK", "save", "load", "Cancel"}), dialog.calls);
}

// OK and Cancel

TEST(Dialog, OkSavesAndEnds)
{
    ModalDialog dialog;
    EXPECT_EQ(IDOK, RunWith(dialog, [&] {
                  ::SetWindowText(dialog.Item(IDC_NUMBER), L"33");
                  dialog.Command(IDOK);
              }));
    EXPECT_EQ(33, dialog.number);
}

TEST(Dialog, OkStaysOpenWhileAValueIsRefused)
{
    ModalDialog dialog;
    const MessageBoxes boxes;
    Script script;
    script.When(
        "the dialog is shown", [&] { return IsShown(dialog); },
        [&] {
            ::SetWindowText(dialog.Item(IDC_NUMBER), L"junk");
            dialog.Command(IDOK);
        });
    script.When(
        "the prompt was answered", [&] { return boxes.Count() == 1 && ::IsWindowEnabled(dialog.m_hWnd); },
        [&] {
            EXPECT_TRUE(IsShown(dialog));
            EXPECT_EQ(dialog.Item(IDC_NUMBER), ::GetFocus());
            ::SetWindowText(dialog.Item(IDC_NUMBER), L"34");
            dialog.Command(IDOK);
        });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(34, dialog.number);
    EXPECT_EQ(1u, boxes.Count());
}

TEST(Dialog, CancelEndsWithoutSaving)
{
    ModalDialog dialog;
    EXPECT_EQ(IDCANCEL, RunWith(dialog, [&] {
                  ::SetWindowText(dialog.Item(IDC_NUMBER), L"junk");
                  dialog.Command(IDCANCEL);
              }));
    EXPECT_EQ(1, dialog.number);
    EXPECT_EQ((Calls{"load", "Cancel"}), dialog.calls);
}

TEST(Dialog, CloseBoxCancels)
{
    ModalDialog dialog;
    EXPECT_EQ(IDCANCEL, RunWith(dialog, [&] { dialog.PostMessage(WM_SYSCOMMAND, SC_CLOSE); }));
    EXPECT_EQ((Calls{"load", "Cancel"}), dialog.calls);
}

TEST(Dialog, CloseBoxCancelsEvenWhileTheCancelButtonIsDisabled)
{
    ModalDialog dialog;
    EXPECT_EQ(IDCANCEL, RunWith(dialog, [&] {
                  dialog.GetDlgItem(IDCANCEL)->EnableWindow(FALSE);
                  dialog.PostMessage(WM_CLOSE);
              }));
}

TEST(Dialog, EscCancels)
{
    ModalDialog dialog;
    EXPECT_EQ(IDCANCEL, RunWith(dialog, [] { ModalDialog::Press(VK_ESCAPE); }));
}

TEST(Dialog, EnterInAnEditPressesTheDefaultButton)
{
    ModalDialog dialog;
    EXPECT_EQ(IDOK, RunWith(dialog, [] { ModalDialog::Press(VK_RETURN); }));
}

TEST(Dialog, EnterOnAButtonPressesIt)
{
    ModalDialog dialog;
    dialog.onPush = [&] { dialog.EndDialog(77); };
    EXPECT_EQ(77, RunWith(dialog, [&] {
                  dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_PUSH));
                  ModalDialog::Press(VK_RETURN);
              }));
}

TEST(Dialog, TabMovesTheFocus)
{
    ModalDialog dialog;
    Script script;
    const auto pressTab = [] { ModalDialog::Press(VK_TAB); };
    const auto isShown = [&] { return IsShown(dialog); };
    script.When("the dialog is shown", isShown, pressTab);
    script.Then("Tab was handled", [&] {
        EXPECT_EQ(dialog.Item(IDC_OTHER), ::GetFocus());
        dialog.Command(IDCANCEL);
    });
    dialog.DoModal();
}

// Ending

TEST(Dialog, EndDialogIsNotAReturn)
{
    bool windowLives = false;
    ModalDialog dialog;
    dialog.onPush = [&] {
        dialog.EndDialog(3);
        windowLives = ::IsWindow(dialog.m_hWnd) && ::IsWindow(dialog.Item(IDC_NUMBER));
    };
    EXPECT_EQ(3, RunWith(dialog, [&] { dialog.Command(IDC_PUSH); }));
    EXPECT_TRUE(windowLives);
}

TEST(Dialog, FirstEndDialogCounts)
{
    ModalDialog dialog;
    dialog.onPush = [&] {
        dialog.EndDialog(3);
        dialog.EndDialog(4);
    };
    EXPECT_EQ(3, RunWith(dialog, [&] { dialog.Command(IDC_PUSH); }));
}

TEST(Dialog, IgnoresCommandsOnceItEnds)
{
    ModalDialog dialog;
    bool ended = false;
    dialog.onPush = [&] {
        if (ended)
            return;
        ended = true;
        dialog.EndDialog(3);
        dialog.SendMessage(WM_COMMAND, IDC_PUSH);
        dialog.SendMessage(WM_COMMAND, IDOK);
        ::SendMessage(dialog.Item(IDC_PUSH), BM_CLICK, 0, 0);
    };
    EXPECT_EQ(3, RunWith(dialog, [&] { dialog.Command(IDC_PUSH); }));
    EXPECT_EQ((Calls{"load", "push"}), dialog.calls);
}

TEST(Dialog, DoubleOkSavesOnce)
{
    ModalDialog dialog;
    EXPECT_EQ(IDOK, RunWith(dialog, [&] {
                  dialog.Command(IDOK);
                  dialog.Command(IDOK);
              }));
    EXPECT_EQ((Calls{"load", "OK", "save"}), dialog.calls);
}

TEST(Dialog, EditThatLosesTheFocusIsToldWhileTheDialogRuns)
{
    ModalDialog dialog;
    RunWith(dialog, [&] {
        dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_OTHER));
        dialog.Command(IDCANCEL);
    });
    EXPECT_EQ((Calls{"load", "number left", "Cancel"}), dialog.calls);
}

TEST(Dialog, EditWithTheFocusIsNotToldOfTheClosing)
{
    ModalDialog dialog;
    RunWith(dialog, [&] {
        EXPECT_EQ(dialog.Item(IDC_NUMBER), ::GetFocus());
        ModalDialog::Press(VK_ESCAPE);
    });
    EXPECT_EQ((Calls{"load", "Cancel"}), dialog.calls);
}

TEST(Dialog, QuitEndsAllDialogsAndStaysInTheQueue)
{
    ModalDialog outer;
    ModalDialog inner;
    outer.onPush = [&] { EXPECT_EQ(-1, RunWith(inner, [] { ::PostQuitMessage(7); })); };
    EXPECT_EQ(-1, RunWith(outer, [&] { outer.Command(IDC_PUSH); }));
    MSG message = {};
    while (message.message != WM_QUIT && ::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessage(&message);
    EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
    EXPECT_EQ(7u, message.wParam);
}
} // namespace
