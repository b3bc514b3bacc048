#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
class WaitCursor : public testing::Test
{
protected:
    void SetUp() override { m_before = ::SetCursor(m_cross); }
    void TearDown() override { ::SetCursor(m_before); }

    const HCURSOR m_cross = ::LoadCursor(nullptr, IDC_CROSS);
    const HCURSOR m_hourglass = ::LoadCursor(nullptr, IDC_WAIT);

private:
    HCURSOR m_before = nullptr;
};

TEST_F(WaitCursor, ShowsTheHourglassWhileItLives)
{
    {
        const CWaitCursor wait;
        EXPECT_EQ(m_hourglass, ::GetCursor());
    }
    EXPECT_EQ(m_cross, ::GetCursor());
}

TEST_F(WaitCursor, NestedOneDoesNotEndTheOuter)
{
    {
        const CWaitCursor outer;
        {
            const CWaitCursor inner;
        }
        EXPECT_EQ(m_hourglass, ::GetCursor());
    }
    EXPECT_EQ(m_cross, ::GetCursor());
}

TEST_F(WaitCursor, ReturnsToTheCursorOfItsOwnBeginning)
{
    {
        const CWaitCursor first;
    }
    const HCURSOR hand = ::LoadCursor(nullptr, IDC_HAND);
    ::SetCursor(hand);
    {
        const CWaitCursor second;
    }
    EXPECT_EQ(hand, ::GetCursor());
}
} // namespace
