#include "tests/robustness/Resources.h"

#include <gtest/gtest.h>
#include <vector>
#include <windows.h>

// What is not counted could leak unseen.
namespace
{
class HeldResources : public testing::Test
{
protected:
    ~HeldResources() override { DestroyWindow(m_first); }

    static HPEN MakePen() { return CreatePen(PS_SOLID, 3, RGB(1, 2, 3)); }
    static HWND MakeWindow(DWORD style, HWND parent)
    {
        return CreateWindowExW(0, L"STATIC", nullptr, style, 0, 0, 1, 1, parent, nullptr, nullptr, nullptr);
    }

    using Count = long Resources::*;
    long Grown(Count count) const { return (Resources::Held() - m_before).*count; }

private:
    // With a thread's first window come others of the system's, and they go with its last one.
    HWND m_first = MakeWindow(WS_POPUP, nullptr);
    Resources m_before = Resources::Held();
};

TEST_F(HeldResources, CountGdiObjects)
{
    const HPEN pen = MakePen();
    EXPECT_EQ(Grown(&Resources::gdiObjects), 1);
    DeleteObject(pen);
    EXPECT_EQ(Grown(&Resources::gdiObjects), 0);
}

TEST_F(HeldResources, CountWindowsAndTheirChildren)
{
    const HWND window = MakeWindow(WS_POPUP, nullptr);
    MakeWindow(WS_CHILD, window);
    EXPECT_EQ(Grown(&Resources::windows), 2);
    DestroyWindow(window);
    EXPECT_EQ(Grown(&Resources::windows), 0);
}

TEST_F(HeldResources, CountWindowsForMessages)
{
    const HWND window = MakeWindow(0, HWND_MESSAGE);
    EXPECT_EQ(Grown(&Resources::windows), 1);
    DestroyWindow(window);
    EXPECT_EQ(Grown(&Resources::windows), 0);
}

TEST_F(HeldResources, CountMenus)
{
    const HMENU menu = CreatePopupMenu();
    EXPECT_EQ(Grown(&Resources::menus), 1);
    DestroyMenu(menu);
    EXPECT_EQ(Grown(&Resources::menus), 0);
}

TEST_F(HeldResources, CountHandlesOfTheKernel)
{
    const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    EXPECT_EQ(Grown(&Resources::handles), 1);
    CloseHandle(event);
    EXPECT_EQ(Grown(&Resources::handles), 0);
}

TEST_F(HeldResources, CountBlocksOfTheProcessesHeap)
{
    void* const block = HeapAlloc(GetProcessHeap(), 0, 100);
    EXPECT_EQ(Grown(&Resources::heapBlocks), 1);
    HeapFree(GetProcessHeap(), 0, block);
    EXPECT_EQ(Grown(&Resources::heapBlocks), 0);
}

// So many of one size that the system keeps them together.
TEST_F(HeldResources, CountEachSmallBlockOfTheProcessesHeap)
{
    std::vector<void*> blocks(10000);
    for (void*& block : blocks)
        block = HeapAlloc(GetProcessHeap(), 0, 40);
    EXPECT_EQ(Grown(&Resources::heapBlocks), static_cast<long>(blocks.size()));
    for (void* block : blocks)
        HeapFree(GetProcessHeap(), 0, block);
    EXPECT_EQ(Grown(&Resources::heapBlocks), 0);
}
} // namespace
