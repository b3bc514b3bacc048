// What a modal dialog leaves to the operator while it is open: itself.
#include "MessageBoxes.h"
#include "ModalDialog.h"
#include "OwnerWindow.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

const DialogTemplate kWindow(WS_POPUP | WS_VISIBLE | WS_CAPTION, 100, 50, {});

// A host's main window with a palette, and a second window.
class DialogModality : public testing::Test
{
protected:
    void SetUp() override
    {
        main.Create(kWindow);
        palette.Create(kWindow, &main);
        second.Create(kWindow);
    }

    bool AreEnabled(bool enabled) const
    {
        for (const TestDialog* window : {&main, &palette, &second})
            if ((window->IsWindowEnabled() != FALSE) != enabled)
                return false;
        return true;
    }

    // Runs the dialog with one step inside, after which it is cancelled.
    INT_PTR Run(ModalDialog& opened, const std::function<void()>& step)
    {
        return RunWith(opened, [&] {
            step();
            opened.Command(IDCANCEL);
        });
    }

    TestDialog main;
    TestDialog palette;
    TestDialog second;
    ModalDialog dialog;
};

HWND OwnerOf(const CWnd& wnd)
{
    return ::GetWindow(wnd.m_hWnd, GW_OWNER);
}

TEST_F(DialogModality, ReachesEveryWindowOfTheThread)
{
    ::SetActiveWindow(main.m_hWnd);
    Run(dialog, [&] { EXPECT_TRUE(AreEnabled(false)); });
    EXPECT_TRUE(AreEnabled(true));
}

TEST_F(DialogModality, ReachesTheMainWindowOfAnActivePalette)
{
    ::SetActiveWindow(palette.m_hWnd);
    Run(dialog, [&] {
        EXPECT_EQ(palette.m_hWnd, OwnerOf(dialog));
        EXPECT_TRUE(AreEnabled(false));
    });
    EXPECT_TRUE(AreEnabled(true));
    EXPECT_EQ(palette.m_hWnd, ::GetActiveWindow());
}

TEST_F(DialogModality, ReachesAllWhereNoneIsActive)
{
    ::SetActiveWindow(nullptr);
    ASSERT_EQ(nullptr, ::GetActiveWindow());
    Run(dialog, [&] {
        EXPECT_NE(nullptr, OwnerOf(dialog));
        EXPECT_TRUE(AreEnabled(false));
    });
    EXPECT_TRUE(AreEnabled(true));
}

TEST_F(DialogModality, EndsBeforeTheDialogIsDestroyed)
{
    bool enabled = false;
    dialog.onMessage = [&](UINT message) {
        if (message == WM_DESTROY)
            enabled = AreEnabled(true);
    };
    Run(dialog, [] {});
    EXPECT_TRUE(enabled);
}

TEST_F(DialogModality, EndsWhereNoDialogCanBeMade)
{
    ModalDialog missing(nullptr, 1);
    EXPECT_EQ(-1, missing.DoModal());
    EXPECT_TRUE(AreEnabled(true));
}

TEST_F(DialogModality, EndsWhereTheInitialisationFails)
{
    dialog.hasAllControls = false;
    EXPECT_EQ(-1, RunAlone(dialog));
    EXPECT_TRUE(AreEnabled(true));
}

TEST_F(DialogModality, EndsWithTheOwner)
{
    Owner owner;
    ModalDialog owned(&owner);
    EXPECT_EQ(-1, RunWith(owned, [&] { owner.PostMessage(kDestroyYourself); }));
    EXPECT_TRUE(AreEnabled(true));
}

TEST_F(DialogModality, LeavesWhatWasDisabledBefore)
{
    second.EnableWindow(FALSE);
    Run(dialog, [] {});
    EXPECT_FALSE(second.IsWindowEnabled());
    EXPECT_TRUE(main.IsWindowEnabled());
}

TEST_F(DialogModality, LeavesWhatTheHostEnablesMeanwhile)
{
    Run(dialog, [&] { second.EnableWindow(TRUE); });
    EXPECT_TRUE(AreEnabled(true));
}

TEST_F(DialogModality, OutlivesAWindowThatGoesMeanwhile)
{
    Run(dialog, [&] { second.DestroyWindow(); });
    EXPECT_TRUE(main.IsWindowEnabled());
    EXPECT_TRUE(palette.IsWindowEnabled());
}

TEST_F(DialogModality, LeavesHiddenWindowsAndChildrenAlone)
{
    TestDialog child;
    child.Create(DialogTemplate(WS_CHILD | WS_VISIBLE, 20, 20, {}), &main);
    second.ShowWindow(SW_HIDE);
    Run(dialog, [&] {
        EXPECT_TRUE(second.IsWindowEnabled());
        EXPECT_TRUE(child.IsWindowEnabled());
    });
}

TEST_F(DialogModality, LeavesTipsAndInputMethodsAlone)
{
    WNDCLASSW inputMethod = {};
    inputMethod.style = CS_IME;
    inputMethod.lpfnWndProc = &::DefWindowProcW;
    inputMethod.hInstance = AfxGetInstanceHandle();
    inputMethod.lpszClassName = L"TestInputMethod";
    ::RegisterClassW(&inputMethod);
    for (const wchar_t* name : {TOOLTIPS_CLASSW, inputMethod.lpszClassName})
    {
        HWND window = ::CreateWindowExW(0, name, nullptr, WS_POPUP, 0, 0, 9, 9, main.m_hWnd, nullptr,
                                        AfxGetInstanceHandle(), nullptr);
        ::ShowWindow(window, SW_SHOWNA);
        ::SetActiveWindow(main.m_hWnd);
        Run(dialog, [&] { EXPECT_TRUE(::IsWindowEnabled(window)); });
        ::DestroyWindow(window);
    }
}

TEST_F(DialogModality, OfANestedDialogEndsWithTheOuterOne)
{
    ModalDialog inner;
    dialog.onPush = [&] {
        second.EnableWindow(TRUE); // as a host may that asks something
        Run(inner, [&] { EXPECT_TRUE(AreEnabled(false)); });
        EXPECT_TRUE(second.IsWindowEnabled());
        EXPECT_FALSE(main.IsWindowEnabled());
        EXPECT_FALSE(palette.IsWindowEnabled());
        dialog.EndDialog(IDOK);
    };
    RunWith(dialog, [&] { dialog.Command(IDC_PUSH); });
    EXPECT_TRUE(AreEnabled(true));
}

TEST_F(DialogModality, IsThatOfAMessageBox)
{
    for (HWND active : {main.m_hWnd, palette.m_hWnd, static_cast<HWND>(nullptr)})
    {
        ::SetActiveWindow(active);
        bool disabled = false;
        const MessageBoxes boxes([&] { disabled = AreEnabled(false); });
        AfxMessageBox(L"Saved.");
        EXPECT_TRUE(disabled);
        EXPECT_TRUE(AreEnabled(true));
    }
}

TEST_F(DialogModality, IsNotEndedByAMessageBox)
{
    dialog.onPush = [&] {
        const MessageBoxes boxes;
        AfxMessageBox(L"Saved.");
        EXPECT_TRUE(AreEnabled(false));
        EXPECT_TRUE(dialog.IsWindowEnabled());
        dialog.EndDialog(IDOK);
    };
    RunWith(dialog, [&] { dialog.Command(IDC_PUSH); });
    EXPECT_TRUE(AreEnabled(true));
}
} // namespace
