// What an exception leaves behind where the framework ends it.
#include "DebugOutput.h"
#include "ModalDialog.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
using namespace test;
using Lines = std::vector<std::string>;

TEST(CaughtException, OfAWindowProcedureIsNamedWithItsMessage)
{
    const CWinApp app(L"Print host");
    ModalDialog dialog;
    dialog.Create(IDD_MODAL);
    dialog.onMessage = [](UINT message) {
        if (message == WM_APP)
            throw std::runtime_error("the host has gone");
    };
    const DebugOutput output;
    dialog.SendMessage(WM_APP);
    EXPECT_EQ(Lines{"Print host: caught in the window procedure, message 32768: the host has gone\n"}, output.lines);
}

TEST(CaughtException, OfADialogsInitialisationIsNamedWithItsTemplate)
{
    ModalDialog dialog;
    dialog.onInit = []() -> BOOL { throw 1; };
    const DebugOutput output;
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(Lines{"mfc: caught in the initialisation of dialog 200: an exception of no standard type\n"},
              output.lines);
}

TEST(CaughtException, LongDescriptionIsCut)
{
    ModalDialog dialog;
    dialog.onInit = []() -> BOOL { throw std::runtime_error(std::string(10'000, 'x')); };
    const DebugOutput output;
    EXPECT_EQ(-1, dialog.DoModal());
    ASSERT_EQ(1u, output.lines.size());
    EXPECT_LT(output.lines[0].size(), 512u);
    EXPECT_EQ('\n', output.lines[0].back());
}
} // namespace
