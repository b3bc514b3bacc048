// Not part of the kit: a program whose end tools/checks/check-test-kit.sh knows.
#include <gtest/gtest.h>

#include <windows.h>

TEST(Planted, Passes) {}

// With something to see in the picture.
TEST(Planted, FailsWithALogThatIsNoHtml)
{
    const HWND window = CreateWindowW(L"BUTTON", L"Planted", WS_POPUP | WS_VISIBLE, 100, 100, 200, 100, nullptr,
                                      nullptr, nullptr, nullptr);
    UpdateWindow(window);
    ADD_FAILURE() << "<b>\"R&D\"</b>";
    DestroyWindow(window);
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
