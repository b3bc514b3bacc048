#pragma once

#include "IdleTimer.h"

#include <deque>
#include <string>

namespace test
{
// Steps that run one after the other inside whatever modal loops the thread is in, each when the thread is idle.
// A step that never comes fails the test by its name, and closes the dialogs so that the test can end.
class Script
{
public:
    Script() = default;
    ~Script();

    Script& Then(std::string what, std::function<void()> action);
    Script& When(std::string what, std::function<bool()> condition, std::function<void()> action);

private:
    struct Step
    {
        std::string what;
        std::function<bool()> condition;
        std::function<void()> action;
    };

    void RunNext();
    void GiveUp();

    std::deque<Step> m_steps;
    ULONGLONG m_lastStep = ::GetTickCount64();
    bool m_gaveUp = false;
    IdleTimer m_timer{[this] { RunNext(); }};
};
} // namespace test
