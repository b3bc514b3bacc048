// A prompt that nobody answers would keep the program for ever.
#include "tests/support/Limits.h"
#include "tests/support/Watchdog.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
class TestLimit : public testing::EmptyTestEventListener
{
private:
    void OnTestStart(const testing::TestInfo& test) override
    {
        const std::string name = std::string(test.test_suite_name()) + '.' + test.name();
        m_watchdog = std::make_unique<Watchdog>(kTestLimit, [name] { return name; });
    }
    void OnTestEnd(const testing::TestInfo&) override { m_watchdog.reset(); }

    std::unique_ptr<Watchdog> m_watchdog;
};

const bool kIsLimited = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new TestLimit);
    return true;
}();
} // namespace
