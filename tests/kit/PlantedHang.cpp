// Not part of the kit: a program whose end tools/checks/check-test-kit.sh knows.
#include <gtest/gtest.h>

#include <windows.h>

TEST(Planted, Hangs)
{
    Sleep(INFINITE);
}
