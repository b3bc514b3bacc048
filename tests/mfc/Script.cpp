#include "Script.h"

#include "tests/support/DialogWatch.h"

#include <gtest/gtest.h>

namespace
{
constexpr ULONGLONG kPatience = 20'000; // milliseconds; only a broken test waits that long

BOOL CALLBACK CloseDialog(HWND window, LPARAM)
{
    if (WindowClass(window) == L"#32770")
        ::PostMessage(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}
} // namespace

test::Script::~Script()
{
    for (const Step& step : m_steps)
        ADD_FAILURE() << "the step never came: " << step.what;
}

test::Script& test::Script::Then(std::string what, std::function<void()> action)
{
    const auto always = [] { return true; };
    return When(std::move(what), always, std::move(action));
}

test::Script& test::Script::When(std::string what, std::function<bool()> condition, std::function<void()> action)
{
    m_steps.push_back({std::move(what), std::move(condition), std::move(action)});
    return *this;
}

void test::Script::RunNext()
{
    if (m_gaveUp)
        return GiveUp();
    if (m_steps.empty() || !m_steps.front().condition())
    {
        if (::GetTickCount64() - m_lastStep > kPatience)
            GiveUp();
        return;
    }
    // Taken out first: the action may start a modal loop in which the next step runs.
    const Step step = std::move(m_steps.front());
    m_steps.pop_front();
    m_lastStep = ::GetTickCount64();
    step.action();
}

void test::Script::GiveUp()
{
    if (!m_gaveUp && m_steps.empty())
        ADD_FAILURE() << "a dialog stayed open after the last step";
    m_gaveUp = true;
    ::EndMenu();
    ::EnumThreadWindows(::GetCurrentThreadId(), &CloseDialog, 0);
}
