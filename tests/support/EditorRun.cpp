#include "tests/support/EditorRun.h"

#include "tests/support/Limits.h"
#include "tests/support/Watchdog.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace
{
std::string CurrentTest()
{
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    return test ? std::string(test->test_suite_name()) + "." + test->name() : "no test";
}

class Run
{
public:
    Run(const std::function<std::int32_t()>& operation, const std::function<void(Operator&)>& script)
        : m_operation(operation), m_script(script)
    {
    }

    std::int32_t Execute()
    {
        const Watchdog watchdog(kTestLimit, [this] { return CurrentTest() + ", " + m_watch.DescribeOpen(); });
        std::thread scriptThread([this] { Script(); });
        const std::int32_t result = m_operation();
        m_operator.EditorHasEnded();
        m_thread.PumpUntil([this] { return m_scriptDone.load(); });
        scriptThread.join();
        for (const std::string& dialog : m_watch.DescribeUnclaimed())
            ADD_FAILURE() << "a dialog opened that was not expected: " << dialog;
        return result;
    }

private:
    void Script()
    {
        try
        {
            m_script(m_operator);
            m_operator.Settle();
            if (!m_watch.Open().empty())
                ADD_FAILURE() << "the script has ended before the editor; " << m_watch.DescribeOpen();
        }
        catch (const std::exception& failure)
        {
            ADD_FAILURE() << failure.what();
        }
        CloseAll();
        m_scriptDone = true;
        m_thread.Wake();
    }

    // The innermost first; what comes of closing it, or shows only later, goes in the next round.
    void CloseAll()
    {
        while (!m_operator.HasEditorEnded())
        {
            const std::vector<HWND> open = m_watch.Open();
            if (!open.empty())
                Close(open.back());
            m_thread.Settle();
            m_watch.AwaitChange();
        }
    }

    void Close(HWND dialog)
    {
        if (IsMessageBox(dialog))
            m_thread.Run([dialog] { EndDialog(dialog, IDCANCEL); });
        else
            PostMessageW(dialog, WM_CLOSE, 0, 0);
    }

    const std::function<std::int32_t()>& m_operation;
    const std::function<void(Operator&)>& m_script;
    UiThread m_thread;
    DialogWatch m_watch;
    Operator m_operator{m_thread, m_watch};
    std::atomic<bool> m_scriptDone{false};
};
} // namespace

std::int32_t RunEditor(const std::function<std::int32_t()>& operation, const std::function<void(Operator&)>& script)
{
    return Run(operation, script).Execute();
}
