// What the filters of a host (WH_MSGFILTER hooks) see of a modal dialog's messages.
#include "ModalDialog.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

constexpr UINT kPlainMessage = WM_APP + 7;

// A filter of this thread. It counts what it sees, and takes what it is told to take.
class Filter
{
public:
    Filter()
    {
        s_filter = this;
        m_hook = ::SetWindowsHookEx(WH_MSGFILTER, &Filter::Procedure, nullptr, ::GetCurrentThreadId());
    }
    ~Filter() { ::UnhookWindowsHookEx(m_hook); }
    Filter(const Filter&) = delete;
    Filter& operator=(const Filter&) = delete;

    int Count(HWND window, UINT message) const
    {
        int count = 0;
        for (const MSG& msg : m_seen)
            count += msg.hwnd == window && msg.message == message;
        return count;
    }

    UINT taken = WM_NULL;

private:
    static LRESULT CALLBACK Procedure(int code, WPARAM wParam, LPARAM lParam)
    {
        const MSG& msg = *reinterpret_cast<const MSG*>(lParam);
        if (code == MSGF_DIALOGBOX)
            s_filter->m_seen.push_back(msg);
        const bool takes = msg.message == s_filter->taken;
        return takes ? TRUE : ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static Filter* s_filter;
    HHOOK m_hook;
    std::vector<MSG> m_seen;
};
Filter* Filter::s_filter = nullptr;

class HostWindow : public TestDialog
{
public:
    HostWindow() { Create(DialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 100, 50, {})); }

    int received = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        received += message == kPlainMessage || message == WM_RBUTTONUP;
        return TestDialog::WindowProc(message, wParam, lParam);
    }
};

// Takes a plain message itself, as the tab control takes its keys.
class TakingDialog : public ModalDialog
{
public:
    using ModalDialog::ModalDialog;
    int takes = 0;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message != kPlainMessage && message->message != WM_MBUTTONUP)
            return ModalDialog::PreTranslateMessage(message);
        ++takes;
        return TRUE;
    }
};

class MessageFilter : public testing::Test
{
protected:
    // Opens the dialog, acts, and closes it when what was posted has been handled.
    void Run(const std::function<void()>& action)
    {
        Script script;
        script.When(
            "the dialog is shown", [this] { return IsShown(dialog); }, action);
        script.When(
            "the dialog is idle", [this] { return dialog.IsWindowEnabled(); }, [this] { dialog.Command(IDCANCEL); });
        dialog.DoModal();
    }

    HostWindow host;
    TakingDialog dialog;
    Filter filter;
};

TEST_F(MessageFilter, SeesAMessageOfTheThreadOnce)
{
    Run([] { ::PostThreadMessage(::GetCurrentThreadId(), kPlainMessage, 0, 0); });
    EXPECT_EQ(1, filter.Count(nullptr, kPlainMessage));
}

TEST_F(MessageFilter, SeesMessagesOfAHostsWindowOnce)
{
    Run([this] {
        host.PostMessage(kPlainMessage);
        host.PostMessage(WM_RBUTTONUP);
    });
    EXPECT_EQ(1, filter.Count(host.m_hWnd, kPlainMessage));
    EXPECT_EQ(1, filter.Count(host.m_hWnd, WM_RBUTTONUP));
    EXPECT_EQ(2, host.received);
}

TEST_F(MessageFilter, SeesMessagesOfTheDialogOnce)
{
    HWND edit = nullptr;
    HWND window = nullptr;
    Run([&] {
        window = dialog.m_hWnd;
        edit = dialog.Item(IDC_NUMBER);
        ::PostMessage(edit, WM_KEYDOWN, VK_HOME, 1);
        ::PostMessage(edit, WM_MOUSEMOVE, 0, 0);
        ::PostMessage(edit, WM_APP, 0, 0);
        ::PostMessage(window, WM_MOUSEMOVE, 0, 0);
    });
    EXPECT_EQ(1, filter.Count(edit, WM_KEYDOWN));
    EXPECT_EQ(1, filter.Count(edit, WM_MOUSEMOVE));
    EXPECT_EQ(1, filter.Count(edit, WM_APP));
    EXPECT_EQ(1, filter.Count(window, WM_MOUSEMOVE));
}

TEST_F(MessageFilter, SeesWhatTheDialogTakesItself)
{
    HWND window = nullptr;
    Run([&] {
        window = dialog.m_hWnd;
        dialog.PostMessage(kPlainMessage);
        dialog.PostMessage(WM_MBUTTONUP);
    });
    EXPECT_EQ(1, filter.Count(window, kPlainMessage));
    EXPECT_EQ(1, filter.Count(window, WM_MBUTTONUP));
    EXPECT_EQ(2, dialog.takes);
}

TEST_F(MessageFilter, KeepsWhatItTakes)
{
    filter.taken = kPlainMessage;
    Run([this] {
        host.PostMessage(kPlainMessage);
        dialog.PostMessage(kPlainMessage);
    });
    EXPECT_EQ(0, host.received);
    EXPECT_EQ(0, dialog.takes);
}

TEST_F(MessageFilter, KeepsAKeyThatItTakes)
{
    filter.taken = WM_KEYDOWN;
    Run([] { ModalDialog::Press(VK_ESCAPE); });
    EXPECT_EQ(std::vector<std::string>({"load", "Cancel"}), dialog.calls) << "by the command at the end alone";
}

// The loop of a dialog that a key opens runs inside the handling of that key.
TEST_F(MessageFilter, SeesMessagesOfANestedDialogOnce)
{
    ModalDialog inner;
    HWND edit = nullptr;
    dialog.onPush = [&] {
        RunWith(inner, [&] {
            edit = inner.Item(IDC_NUMBER);
            ::PostMessage(edit, WM_KEYDOWN, VK_HOME, 1);
            ::PostMessage(edit, WM_MOUSEMOVE, 0, 0);
            inner.Command(IDCANCEL);
        });
    };
    Run([this] {
        dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_PUSH));
        ModalDialog::Press(VK_RETURN);
    });
    EXPECT_EQ(1, filter.Count(edit, WM_KEYDOWN));
    EXPECT_EQ(1, filter.Count(edit, WM_MOUSEMOVE));
}
} // namespace
