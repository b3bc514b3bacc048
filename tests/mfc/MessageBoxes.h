#pragma once

#include "IdleTimer.h"

#include <string>
#include <vector>

namespace test
{
struct MessageBox
{
    std::wstring text;
    std::wstring caption;
};

// The message box that this thread shows; null without one.
HWND OpenMessageBox();

// Answers each message box that appears while it lives, and keeps what it said.
class MessageBoxes
{
public:
    // What is given is called while a box is open, before it is answered.
    explicit MessageBoxes(std::function<void()> whileOpen = {});

    const std::vector<MessageBox>& Shown() const { return m_shown; }
    size_t Count() const { return m_shown.size(); }

private:
    void AnswerOpenBox();

    std::function<void()> m_whileOpen;
    std::vector<MessageBox> m_shown;
    IdleTimer m_timer{[this] { AnswerOpenBox(); }};
};
} // namespace test
