#include "tests/editors/module/HostWindow.h"
#include "tests/editors/fixtures/PrintModeFixture.h"

namespace
{
using EditorInHost = PrintModeFixture;

TEST_F(EditorInHost, OpensInAHostWithoutAnyWindow)
{
    ASSERT_EQ(GetActiveWindow(), nullptr);
    Run([](PrintModeEditor& editor) {
        EXPECT_FALSE(editor.Dialog().Owner().Exists());
        editor.Confirm(editor.OpenAddConfig(), IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(EditorInHost, DisablesTheHostsWindowWhileItIsOpen)
{
    const HostWindow host;
    Run([&](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Dialog().Owner().Handle(), host.Handle());
        EXPECT_FALSE(host.IsEnabled());
        editor.SaveAndQuit();
    });
    EXPECT_TRUE(host.IsEnabled());
    EXPECT_EQ(GetActiveWindow(), host.Handle());
}

TEST_F(EditorInHost, DisablesEveryWindowOfAHostThatIsNotActive)
{
    const HostWindow host;
    const HostWindow other;
    SetActiveWindow(nullptr);
    Run([&](PrintModeEditor& editor) {
        EXPECT_TRUE(editor.Dialog().Owner().Exists());
        EXPECT_FALSE(host.IsEnabled());
        EXPECT_FALSE(other.IsEnabled());
        editor.Cancel();
    });
    EXPECT_TRUE(host.IsEnabled());
    EXPECT_TRUE(other.IsEnabled());
}

TEST_F(EditorInHost, LeavesAHostsWindowDisabledThatWasSoBefore)
{
    const HostWindow host;
    EnableWindow(host.Handle(), FALSE);
    Run([](PrintModeEditor& editor) { editor.Cancel(); });
    EXPECT_FALSE(host.IsEnabled());
}

TEST_F(EditorInHost, NestedDialogsLeaveTheHostsWindowDisabled)
{
    const HostWindow host;
    Run([&](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenAddConfig();
        EXPECT_FALSE(host.IsEnabled());
        EXPECT_FALSE(editor.Dialog().IsEnabled());
        editor.Confirm(dialog, IDCANCEL);
        EXPECT_FALSE(host.IsEnabled());
        EXPECT_TRUE(editor.Dialog().IsEnabled());
        editor.Cancel();
    });
    EXPECT_TRUE(host.IsEnabled());
}

TEST_F(EditorInHost, ReturnsWhenTheHostsWindowIsDestroyedUnderIt)
{
    const HostWindow host;
    Run([&](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.Op().OnUi([&] { DestroyWindow(host.Handle()); });
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(ChangesWith("SaveParameters"), Calls());
}

TEST_F(EditorInHost, KeepsTheHostsQuitMessageForTheHost)
{
    Run([](PrintModeEditor& editor) {
        editor.Op().OnUi([] { PostQuitMessage(7); });
        editor.Op().ExpectClosed(editor.Dialog());
    });
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}

// This program has no manifest, so its own controls are the system's old ones.
TEST_F(EditorInHost, BringsTheNewControlsToAHostWithoutAManifest)
{
    const HostWindow host;
    const auto module = [](HWND window) { return GetClassLongPtrW(window, GCLP_HMODULE); };
    const ULONG_PTR old = module(host.Child());
    Run([&](PrintModeEditor& editor) {
        EXPECT_NE(module(editor.Edit(IDC_EDIT_NAME).Handle()), old);
        editor.Cancel();
    });
    const HostWindow later;
    EXPECT_EQ(module(later.Child()), old);
}
} // namespace
