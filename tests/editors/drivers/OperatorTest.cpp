#include "tests/support/EditorRun.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace
{
std::int32_t AskNothing()
{
    return MessageBoxW(nullptr, L"Text", L"Caption", MB_OK);
}

// What a run over one message box reports.
std::vector<std::string> FailuresOf(const std::function<void(Operator&)>& script,
                                    const std::function<std::int32_t()>& operation = AskNothing)
{
    testing::TestPartResultArray results;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &results);
        RunEditor(operation, script);
    }
    std::vector<std::string> messages;
    for (int i = 0; i < results.size(); ++i)
        messages.push_back(results.GetTestPartResult(i).message());
    return messages;
}

bool Mentions(const std::vector<std::string>& messages, const std::string& text)
{
    for (const std::string& message : messages)
        if (message.find(text) != std::string::npos)
            return true;
    return false;
}

TEST(OperatorFailures, AreNoneWhenWhatWasExpectedCame)
{
    EXPECT_TRUE(FailuresOf([](Operator& op) { op.AnswerMessageBox(); }).empty());
}

TEST(OperatorFailures, ComeOfADialogThatNobodyExpected)
{
    const auto failures = FailuresOf([](Operator&) {});
    EXPECT_TRUE(Mentions(failures, "a dialog opened that was not expected"));
}

TEST(OperatorFailures, ComeOfAScriptThatLeavesADialogOpen)
{
    const auto failures = FailuresOf([](Operator& op) { op.ExpectMessageBox(); });
    EXPECT_TRUE(Mentions(failures, "the script has ended before the editor; open dialogs: \"Caption\" Text"));
}

TEST(OperatorFailures, ComeOfAnotherDialogThanTheExpected)
{
    const auto failures = FailuresOf([](Operator& op) { op.ExpectDialog(L"Other"); });
    EXPECT_TRUE(Mentions(failures, "another dialog opened than \"Other\""));
}

TEST(OperatorFailures, ComeOfADialogThatDoesNotCome)
{
    const auto failures = FailuresOf([](Operator& op) { op.ExpectMessageBox(); }, [] { return 1; });
    EXPECT_TRUE(Mentions(failures, "no use to wait for a message box"));
}

TEST(OperatorFailures, ComeOfAnActionThatNoPersonCouldDo)
{
    const auto failures = FailuresOf([](Operator& op) {
        const Window button = op.ExpectMessageBox().Control(IDOK);
        op.OnUi([&] { EnableWindow(button.Handle(), FALSE); });
        button.Click();
    });
    EXPECT_TRUE(Mentions(failures, "cannot act on a disabled window"));
}
} // namespace
