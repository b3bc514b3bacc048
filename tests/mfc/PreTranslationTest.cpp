// What a modal dialog's loop shows to whom before a message is dispatched.
#include "MessageBoxes.h"
#include "ModalDialog.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;
using Names = std::vector<std::string>;

// A message that no dialog takes for itself, as it takes input.
constexpr UINT kPlainMessage = WM_APP;

// Who saw the right click or the plain message, in order.
Names seen;

template <typename Base>
class Watcher : public Base
{
public:
    template <typename... Args>
    explicit Watcher(std::string name, Args&&... args) : Base(std::forward<Args>(args)...), m_name(std::move(name))
    {
    }

    bool takes = false;
    int received = 0;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message != WM_RBUTTONUP && message->message != kPlainMessage)
            return Base::PreTranslateMessage(message);
        seen.push_back(m_name);
        return takes || Base::PreTranslateMessage(message);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_RBUTTONUP)
        {
            ++received;
            return 0; // no context menu
        }
        return Base::WindowProc(message, wParam, lParam);
    }

private:
    std::string m_name;
};

class PreTranslation : public testing::Test
{
protected:
    void SetUp() override
    {
        seen.clear();
        editor.onInit = [this] {
            page.Create(IDD_PAGE, &editor);
            page.ShowWindow(SW_SHOW);
            edit.SubclassWindow(::GetDlgItem(page.m_hWnd, IDC_NUMBER));
            return TRUE;
        };
    }

    // Opens the editor, acts, and closes it when what was posted is handled and nothing is open in front of it.
    void RunEditor(const std::function<void()>& action)
    {
        Script script;
        const auto isShown = [this] { return IsShown(editor); };
        script.When("the editor is shown", isShown, action);
        script.When(
            "the editor is idle", [this] { return editor.IsWindowEnabled(); }, [this] { editor.Command(IDCANCEL); });
        EXPECT_EQ(IDCANCEL, editor.DoModal());
    }

    Watcher<CEdit> edit{"edit"};
    Watcher<Page> page{"page"};
    Watcher<ModalDialog> editor{"editor"};
};

TEST_F(PreTranslation, GoesFromTheTargetUpwards)
{
    RunEditor([this] { edit.PostMessage(WM_RBUTTONUP); });
    EXPECT_EQ((Names{"edit", "page", "editor"}), seen);
    EXPECT_EQ(1, edit.received);
}

TEST_F(PreTranslation, EndsWithTheFirstThatTakesTheMessage)
{
    page.takes = true;
    RunEditor([this] { edit.PostMessage(WM_RBUTTONUP); });
    EXPECT_EQ((Names{"edit", "page"}), seen);
    EXPECT_EQ(0, edit.received);
}

TEST_F(PreTranslation, SkipsControlsWithoutAnObject)
{
    RunEditor([this] { ::PostMessage(::GetDlgItem(page.m_hWnd, IDC_PUSH), WM_RBUTTONUP, 0, 0); });
    EXPECT_EQ((Names{"page", "editor"}), seen);
}

TEST_F(PreTranslation, SeesPostedMessagesOnly)
{
    RunEditor([this] { edit.SendMessage(WM_RBUTTONUP); });
    EXPECT_EQ(Names{}, seen);
    EXPECT_EQ(1, edit.received);
}

TEST_F(PreTranslation, StopsAtTheInnermostDialog)
{
    Watcher<ModalDialog> inner("inner");
    editor.onPush = [&] {
        Script script;
        script.When(
            "the inner dialog is shown", [&] { return IsShown(inner); },
            [&] {
                EXPECT_EQ(editor.m_hWnd, ::GetParent(inner.m_hWnd));
                ::PostMessage(inner.Item(IDC_PUSH), kPlainMessage, 0, 0);
            });
        script.Then("the message was handled", [&] { inner.Command(IDCANCEL); });
        inner.DoModal();
    };
    RunEditor([this] { editor.Command(IDC_PUSH); });
    EXPECT_EQ(Names{"inner"}, seen);
}

TEST_F(PreTranslation, LeavesOtherWindowsAlone)
{
    Watcher<TestDialog> other("other");
    other.Create(DialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 100, 50, {}));
    RunEditor([&] { other.PostMessage(WM_RBUTTONUP); });
    EXPECT_EQ(Names{}, seen);
    EXPECT_EQ(1, other.received);
}

TEST_F(PreTranslation, DoesNotSeeAMessageBox)
{
    editor.onPush = [] { AfxMessageBox(L"Saved."); };
    const MessageBoxes boxes([] { ::PostMessage(OpenMessageBox(), WM_RBUTTONUP, 0, 0); });
    RunEditor([this] { editor.SendMessage(WM_COMMAND, IDC_PUSH); });
    EXPECT_EQ(1u, boxes.Count());
    EXPECT_EQ(Names{}, seen);
}

// A list's context menu or a nested dialog may run while a message is being looked at.
class Nesting : public ModalDialog
{
public:
    INT_PTR innerResult = 0;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message != WM_RBUTTONUP)
            return ModalDialog::PreTranslateMessage(message);
        ModalDialog inner;
        innerResult = RunWith(inner, [&] { inner.Command(IDOK); });
        return TRUE;
    }
};

TEST(NestedPreTranslation, MayRunADialogOfItsOwn)
{
    Nesting editor;
    Script script;
    const auto isShown = [&] { return IsShown(editor); };
    script.When("the editor is shown", isShown, [&] { editor.PostMessage(WM_RBUTTONUP); });
    script.When(
        "the inner dialog has ended", [&] { return editor.innerResult == IDOK; }, [&] { editor.Command(IDCANCEL); });
    EXPECT_EQ(IDCANCEL, editor.DoModal());
}
} // namespace
