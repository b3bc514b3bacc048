#pragma once

#include "tests/support/DialogWatch.h"
#include "tests/support/UiThread.h"
#include "tests/support/Window.h"

#include <atomic>
#include <functional>
#include <stdexcept>
#include <string>

// The script cannot go on: what it acts on is not there, or what it waits for did not come.
class OperatorFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct KeyModifiers
{
    bool control = false;
    bool shift = false;
    bool alt = false;
};

// Acts on an editor's windows as a person does, from a thread of its own, with posted messages: those the library's
// message loop sees. Each action returns when the library has dealt with it. A disabled or hidden window cannot be
// acted on.
class Operator
{
public:
    Operator(UiThread& thread, DialogWatch& watch) : m_thread(thread), m_watch(watch) {}

    // Waits for a dialog that is not claimed yet. Any other dialog fails the script at once.
    Window ExpectDialog(const std::wstring& caption);
    Window ExpectDialogWith(const std::string& name, const std::function<bool(const Window&)>& isExpected);
    Window ExpectMessageBox();
    void ExpectClosed(const Window& dialog);
    // Whatever opens from now on, or has opened so far, is expected.
    void ExpectAnyDialog() { m_watch.ClaimAll(); }
    // The innermost one that is open; none does not exist.
    Window TopDialog();
    // Waits for a message box, presses its button and waits until it has gone.
    void AnswerMessageBox(int buttonId = IDOK);

    void Click(const Window& window, POINT at);
    void DoubleClick(const Window& window, POINT at);
    // The second half of a double click.
    void ClickAgain(const Window& window, POINT at);
    void MoveMouse(POINT screen);
    // Moves the mouse there, presses the right button and lets it go.
    void RightClick(const Window& window, POINT at);
    // Away from the operator for a positive number.
    void TurnWheel(const Window& window, int notches);
    // To the window that has the focus.
    void Key(int virtualKey, KeyModifiers modifiers = {});
    void TypeCharacters(const std::wstring& text);
    void Close(const Window& dialog);

    Window Focus();
    void MoveFocus(const Window& window);
    Window ActiveWindow();
    // The pop-up menu that is open; none does not exist.
    Window OpenMenu();

    void WaitFor(const std::string& what, const std::function<bool()>& condition);
    void OnUi(const std::function<void()>& action) { m_thread.Run(action); }
    void Settle();

    // From then on nothing is waited for any longer.
    void EditorHasEnded() { m_ended = true; }
    bool HasEditorEnded() const { return m_ended; }

private:
    void RequireReachable(const Window& window) const;
    void MoveMouse(const Window& window, POINT at);
    void PressAndRelease(const Window& window, POINT at, UINT press);
    void Post(const Window& window, UINT message, WPARAM wParam, LPARAM lParam);
    void SetModifiers(KeyModifiers modifiers);
    [[noreturn]] void Fail(const std::string& why) const;

    UiThread& m_thread;
    DialogWatch& m_watch;
    std::atomic<bool> m_ended{false};
};
