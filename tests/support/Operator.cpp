#include "tests/support/Operator.h"

#include "tests/support/Limits.h"

#include <chrono>

namespace
{
LPARAM PointParam(POINT at)
{
    return MAKELPARAM(at.x, at.y);
}

LPARAM KeyParam(int virtualKey, bool up, bool alt)
{
    UINT param = 1 | MapVirtualKeyW(static_cast<UINT>(virtualKey), MAPVK_VK_TO_VSC) << 16;
    if (alt)
        param |= 0x20000000;
    if (up)
        param |= 0xC0000000;
    return static_cast<LPARAM>(param);
}

std::string Describe(const Window& window)
{
    return Utf8(window.ClassName()) + " " + std::to_string(window.Id()) + " \"" + Utf8(WindowText(window.Handle())) +
           "\"";
}
} // namespace

Window Operator::ExpectDialog(const std::wstring& caption)
{
    return ExpectDialogWith("\"" + Utf8(caption) + "\"",
                            [&](const Window& dialog) { return dialog.Text() == caption; });
}

Window Operator::ExpectMessageBox()
{
    return ExpectDialogWith("a message box", [](const Window& dialog) { return IsMessageBox(dialog.Handle()); });
}

Window Operator::ExpectDialogWith(const std::string& name, const std::function<bool(const Window&)>& isExpected)
{
    WaitFor(name + " to open", [this] { return m_watch.FirstUnclaimed().has_value(); });
    Settle();
    const Window dialog(*this, m_watch.FirstUnclaimed().value());
    if (!isExpected(dialog))
        Fail("another dialog opened than " + name);
    m_watch.Claim(dialog.Handle());
    return dialog;
}

Window Operator::TopDialog()
{
    const std::vector<HWND> open = m_watch.Open();
    return {*this, open.empty() ? nullptr : open.back()};
}

void Operator::ExpectClosed(const Window& dialog)
{
    const std::string name = DescribeDialog(dialog.Handle());
    WaitFor(name + " to close", [&] { return m_ended || !m_watch.IsOpen(dialog.Handle()); });
}

void Operator::AnswerMessageBox(int buttonId)
{
    const Window box = ExpectMessageBox();
    box.Control(buttonId).Click();
    ExpectClosed(box);
}

void Operator::Click(const Window& window, POINT at)
{
    PressAndRelease(window, at, WM_LBUTTONDOWN);
}

void Operator::DoubleClick(const Window& window, POINT at)
{
    Click(window, at);
    ClickAgain(window, at);
}

void Operator::ClickAgain(const Window& window, POINT at)
{
    PressAndRelease(window, at, WM_LBUTTONDBLCLK);
}

void Operator::RightClick(const Window& window, POINT at)
{
    RequireReachable(window);
    MoveMouse(window, at);
    Post(window, WM_RBUTTONDOWN, MK_RBUTTON, PointParam(at));
    Post(window, WM_RBUTTONUP, 0, PointParam(at));
    Settle();
}

// On the thread of the windows: only there do late messages of earlier moves count as outdated.
void Operator::MoveMouse(POINT screen)
{
    OnUi([=] { SetCursorPos(screen.x, screen.y); });
}

void Operator::PressAndRelease(const Window& window, POINT at, UINT press)
{
    RequireReachable(window);
    MoveMouse(window, at);
    Post(window, press, MK_LBUTTON, PointParam(at));
    Settle();
    // Where the press opened a dialog, the button is released over that one.
    if (IsWindowEnabled(GetAncestor(window.Handle(), GA_ROOT)))
        Post(window, WM_LBUTTONUP, 0, PointParam(at));
    Settle();
}

// The system tells a window of the mouse whenever another one goes from over it. Left where an earlier click was, the
// mouse would drag a list's selection there while the button is down.
void Operator::MoveMouse(const Window& window, POINT at)
{
    ClientToScreen(window.Handle(), &at);
    MoveMouse(at);
    Settle();
}

void Operator::TurnWheel(const Window& window, int notches)
{
    RequireReachable(window);
    Post(window, WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA), 0);
    Settle();
}

void Operator::Key(int virtualKey, KeyModifiers modifiers)
{
    // Where a dialog has just closed, the window system may be about to give the focus back.
    WaitFor("a window to have the focus", [this] { return Focus().Exists(); });
    const Window target = Focus();
    SetModifiers(modifiers);
    const bool alt = modifiers.alt;
    const auto key = static_cast<WPARAM>(virtualKey);
    Post(target, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, KeyParam(virtualKey, false, alt));
    Settle();
    const Window after = Focus();
    if (after.Exists())
        Post(after, alt ? WM_SYSKEYUP : WM_KEYUP, key, KeyParam(virtualKey, true, alt));
    SetModifiers({});
    Settle();
}

void Operator::TypeCharacters(const std::wstring& text)
{
    const Window target = Focus();
    for (wchar_t character : text)
        Post(target, WM_CHAR, character, 1);
    Settle();
}

void Operator::Close(const Window& dialog)
{
    RequireReachable(dialog);
    Post(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
    Settle();
}

Window Operator::Focus()
{
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(m_thread.Id(), &info);
    return {*this, info.hwndFocus};
}

void Operator::MoveFocus(const Window& window)
{
    RequireReachable(window);
    OnUi([&] { SetFocus(window.Handle()); });
}

Window Operator::OpenMenu()
{
    HWND menu = nullptr;
    while ((menu = FindWindowExW(nullptr, menu, L"#32768", nullptr)) != nullptr)
        if (IsWindowVisible(menu) && GetWindowThreadProcessId(menu, nullptr) == m_thread.Id())
            break;
    return {*this, menu};
}

Window Operator::ActiveWindow()
{
    HWND active = nullptr;
    OnUi([&] { active = GetActiveWindow(); });
    return {*this, active};
}

void Operator::WaitFor(const std::string& what, const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + kWaitLimit;
    while (!condition())
    {
        if (m_ended)
            Fail("the editor has ended, no use to wait for " + what);
        if (std::chrono::steady_clock::now() > end)
            Fail("waited in vain for " + what);
        Settle();
        m_watch.AwaitChange();
    }
}

void Operator::Settle()
{
    if (!m_thread.Settle())
        Fail("the user-interface thread handles no messages");
}

void Operator::RequireReachable(const Window& window) const
{
    HWND handle = window.Handle();
    if (!IsWindow(handle) || !IsWindowVisible(handle))
        Fail("cannot act on a window that is not to be seen: " + Describe(window));
    if (!IsWindowEnabled(handle) || !IsWindowEnabled(GetAncestor(handle, GA_ROOT)))
        Fail("cannot act on a disabled window: " + Describe(window));
}

void Operator::Post(const Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    PostMessageW(window.Handle(), message, wParam, lParam);
}

// Posted keys do not change the keyboard's state, on which their meaning depends.
void Operator::SetModifiers(KeyModifiers modifiers)
{
    OnUi([&] {
        BYTE keys[256]{};
        keys[VK_CONTROL] = modifiers.control ? 0x80 : 0;
        keys[VK_SHIFT] = modifiers.shift ? 0x80 : 0;
        keys[VK_MENU] = modifiers.alt ? 0x80 : 0;
        SetKeyboardState(keys);
    });
}

void Operator::Fail(const std::string& why) const
{
    throw OperatorFailure(why + "; " + m_watch.DescribeOpen());
}
