// Not part of the kit: a program whose end tools/checks/check-test-kit.sh knows.
#include <gtest/gtest.h>

#include <windows.h>

TEST(Planted, Passes) {}

TEST(Planted, FailsWithALogThatIsNoHtml)
{
    ADD_FAILURE() << "<b>\"R&D\"</b>";
}

TEST(Planted, SkipsItself)
{
    GTEST_SKIP() << "as planned";
}

TEST(Planted, IsSkippedByTheList)
{
    ADD_FAILURE() << "the list was not read";
}

// Behind all others: nothing follows a crash.
TEST(PlantedCrash, EndsTheProgram)
{
    TerminateProcess(GetCurrentProcess(), 3);
}
