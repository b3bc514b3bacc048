#include "TestWindow.h"

#include <afxtabctrl.h>

#include <gtest/gtest.h>

namespace
{
using namespace test;

constexpr DWORD kEditStyle = WS_VISIBLE | WS_BORDER | WS_TABSTOP;
constexpr WORD kPlaceholderId = 25004;
enum Id : WORD
{
    kFirstEdit = 101,
    kSecondEdit = 102,
    kOutsideEdit = 103
};

const DialogTemplate kPageTemplate(WS_CHILD | DS_CONTROL, 60, 40,
                                   {{L"EDIT", L"one", kEditStyle, 5, 5, 50, 12, kFirstEdit},
                                    {L"EDIT", L"two", kEditStyle, 5, 25, 50, 12, kSecondEdit}});

const DialogTemplate kOwnerTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 300, 200,
                                    {{L"EDIT", L"outside", kEditStyle, 5, 5, 50, 12, kOutsideEdit},
                                     {L"STATIC", L"", 0, 70, 5, 200, 180, kPlaceholderId}});

// A page that tells how often an edit lost the focus and, when asked to, puts the focus back.
class Page : public TestDialog
{
public:
    int killFocusCount = 0;
    bool wasVisible = false;
    bool refuses = false;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (HIWORD(wParam) != EN_KILLFOCUS)
            return TestDialog::OnCommand(wParam, lParam);
        ++killFocusCount;
        wasVisible = IsWindowVisible();
        if (refuses)
            ::SetFocus(reinterpret_cast<HWND>(lParam));
        return TRUE;
    }
};

// Forwards keys to the tab control as the editors do.
class Owner : public TestDialog
{
public:
    CMFCTabCtrl tabs;
    BOOL PreTranslateMessage(MSG* message) override { return tabs.PreTranslateMessage(message); }
};

class TabCtrl : public testing::Test
{
protected:
    void SetUp() override
    {
        owner.Create(kOwnerTemplate);
        RECT rect;
        ::GetWindowRect(owner.Item(kPlaceholderId), &rect);
        owner.ScreenToClient(&rect);
        ASSERT_TRUE(tabs.Create(CMFCTabCtrl::STYLE_3D, rect, &owner, kPlaceholderId, CMFCTabCtrl::LOCATION_TOP));
        for (Page& page : pages)
            page.Create(kPageTemplate, &tabs);
        tabs.AddTab(&pages[0], L"Common");
        tabs.AddTab(&pages[1], L"Data");
        tabs.AddTab(&pages[2], L"");
        PumpMessages();
    }

    RECT TabRect(int tab) const
    {
        RECT rect;
        tabs.SendMessage(TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    void ClickTab(int tab) { Click(tabs.m_hWnd, Centre(TabRect(tab))); }
    int ShownTab() const { return static_cast<int>(tabs.SendMessage(TCM_GETCURSEL)); }

    void ExpectOnlyPageVisible(int expected) const
    {
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(i == expected, pages[i].IsWindowVisible() != FALSE) << "page " << i;
        EXPECT_EQ(expected, ShownTab());
    }

    Page pages[3];
    Owner owner;
    CMFCTabCtrl& tabs = owner.tabs;
};

TEST_F(TabCtrl, FirstPageAddedIsActiveAndTheOthersAreHidden)
{
    EXPECT_EQ(3, tabs.GetTabsNum());
    ExpectOnlyPageVisible(0);
}

TEST_F(TabCtrl, TakesTheIdOfItsHiddenPlaceholder)
{
    EXPECT_EQ(kPlaceholderId, tabs.GetDlgCtrlID());
    EXPECT_NE(owner.Item(kPlaceholderId), nullptr);
}

TEST_F(TabCtrl, PageFillsTheAreaBelowTheStrip)
{
    RECT area;
    tabs.GetClientRect(&area);
    tabs.SendMessage(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    RECT page;
    pages[0].GetWindowRect(&page);
    tabs.ScreenToClient(&page);
    EXPECT_TRUE(::EqualRect(&area, &page));
    EXPECT_GE(page.top, TabRect(0).bottom);
}

TEST_F(TabCtrl, PagesFollowTheSizeOfTheControl)
{
    RECT before;
    pages[1].GetClientRect(&before);
    RECT rect;
    tabs.GetWindowRect(&rect);
    owner.ScreenToClient(&rect);
    rect.right -= 40;
    rect.bottom -= 30;
    tabs.MoveWindow(rect);
    RECT after;
    pages[1].GetClientRect(&after);
    EXPECT_EQ(before.right - 40, after.right);
    EXPECT_EQ(before.bottom - 30, after.bottom);
}

TEST_F(TabCtrl, SetActiveTabShowsThePageAndHidesTheOld)
{
    EXPECT_TRUE(tabs.SetActiveTab(1));
    ExpectOnlyPageVisible(1);
    EXPECT_TRUE(tabs.SetActiveTab(1));
    ExpectOnlyPageVisible(1);
}

TEST_F(TabCtrl, SetActiveTabRefusesAnIndexOutOfRange)
{
    EXPECT_FALSE(tabs.SetActiveTab(-1));
    EXPECT_FALSE(tabs.SetActiveTab(3));
    ExpectOnlyPageVisible(0);
}

TEST_F(TabCtrl, ClickOnATabSwitchesAndFocusesTheStrip)
{
    ::SetFocus(owner.Item(kOutsideEdit));
    ClickTab(1);
    ExpectOnlyPageVisible(1);
    EXPECT_EQ(tabs.m_hWnd, ::GetFocus());
}

TEST_F(TabCtrl, EmptyLabelStillMakesATabThatCanBeClicked)
{
    const RECT rect = TabRect(2);
    EXPECT_GE(rect.right - rect.left, 20);
    ClickTab(2);
    ExpectOnlyPageVisible(2);
}

TEST_F(TabCtrl, WidthOfAnEmptyLabelGrowsWithTheDialogsFont)
{
    TestDialog bigOwner;
    bigOwner.Create(DialogTemplate(WS_POPUP, 200, 100, {}, 36));
    CMFCTabCtrl bigTabs;
    Page page;
    ASSERT_TRUE(bigTabs.Create(CMFCTabCtrl::STYLE_3D, {0, 0, 300, 200}, &bigOwner, 7, CMFCTabCtrl::LOCATION_TOP));
    page.Create(kPageTemplate, &bigTabs);
    bigTabs.AddTab(&page, L"");
    RECT tab;
    bigTabs.SendMessage(TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&tab));
    EXPECT_GE(tab.right - tab.left, 70); // wider than the system makes it by itself
}

TEST_F(TabCtrl, CtrlTabGoesRoundInBothDirections)
{
    ::SetFocus(pages[0].Item(kFirstEdit));
    PressKey(VK_TAB, {VK_CONTROL});
    ExpectOnlyPageVisible(1);
    PressKey(VK_TAB, {VK_CONTROL});
    PressKey(VK_TAB, {VK_CONTROL});
    ExpectOnlyPageVisible(0);
    PressKey(VK_TAB, {VK_CONTROL, VK_SHIFT});
    ExpectOnlyPageVisible(2);
}

TEST_F(TabCtrl, CtrlPageKeysSwitchPages)
{
    ::SetFocus(pages[0].Item(kFirstEdit));
    PressKey(VK_NEXT, {VK_CONTROL});
    ExpectOnlyPageVisible(1);
    PressKey(VK_PRIOR, {VK_CONTROL});
    ExpectOnlyPageVisible(0);
}

TEST_F(TabCtrl, CtrlTabFromWithinAPageFocusesTheStrip)
{
    ::SetFocus(pages[0].Item(kSecondEdit));
    PressKey(VK_TAB, {VK_CONTROL});
    EXPECT_EQ(tabs.m_hWnd, ::GetFocus());
}

TEST_F(TabCtrl, CtrlTabOutsideTheTabControlLeavesTheFocusWhereItIs)
{
    ::SetFocus(owner.Item(kOutsideEdit));
    PressKey(VK_TAB, {VK_CONTROL});
    ExpectOnlyPageVisible(1);
    EXPECT_EQ(owner.Item(kOutsideEdit), ::GetFocus());
}

TEST_F(TabCtrl, ArrowsSwitchWhenTheStripHasTheFocus)
{
    tabs.SetFocus();
    PressKey(VK_RIGHT);
    ExpectOnlyPageVisible(1);
    EXPECT_EQ(tabs.m_hWnd, ::GetFocus());
    PressKey(VK_LEFT);
    ExpectOnlyPageVisible(0);
}

TEST_F(TabCtrl, ClickAfterAnArrowSwitchesToo)
{
    ClickTab(2);
    PressKey(VK_LEFT);
    ExpectOnlyPageVisible(1);
    ClickTab(0);
    ExpectOnlyPageVisible(0);
    EXPECT_EQ(::GetFocus(), tabs.m_hWnd);
}

TEST_F(TabCtrl, TabWalksThroughTheStripAndTheActivePageOnly)
{
    tabs.SetActiveTab(1);
    ::SetFocus(owner.Item(kOutsideEdit));
    const HWND expected[] = {tabs.m_hWnd, pages[1].Item(kFirstEdit), pages[1].Item(kSecondEdit),
                             owner.Item(kOutsideEdit)};
    for (HWND window : expected)
    {
        PressKey(VK_TAB);
        EXPECT_EQ(window, ::GetFocus());
    }
}

TEST_F(TabCtrl, ShiftTabWalksTheSameWayBack)
{
    ::SetFocus(owner.Item(kOutsideEdit));
    const HWND expected[] = {pages[0].Item(kSecondEdit), pages[0].Item(kFirstEdit), tabs.m_hWnd,
                             owner.Item(kOutsideEdit)};
    for (HWND window : expected)
    {
        PressKey(VK_TAB, {VK_SHIFT});
        EXPECT_EQ(window, ::GetFocus());
    }
}

TEST_F(TabCtrl, EditLosesTheFocusOnceWhileItsPageIsStillVisible)
{
    for (const bool byMouse : {true, false})
    {
        tabs.SetActiveTab(0);
        pages[0].killFocusCount = 0;
        ::SetFocus(pages[0].Item(kFirstEdit));
        if (byMouse)
            ClickTab(1);
        else
            tabs.SetActiveTab(1);
        EXPECT_EQ(1, pages[0].killFocusCount);
        EXPECT_TRUE(pages[0].wasVisible);
        ExpectOnlyPageVisible(1);
    }
}

TEST_F(TabCtrl, RefusedValueKeepsThePageAndAsksOnce)
{
    pages[0].refuses = true;
    const HWND edit = pages[0].Item(kFirstEdit);
    ::SetFocus(edit);

    EXPECT_FALSE(tabs.SetActiveTab(1));
    EXPECT_EQ(1, pages[0].killFocusCount);
    ClickTab(1);
    EXPECT_EQ(2, pages[0].killFocusCount);
    PressKey(edit, VK_TAB, {VK_CONTROL});
    EXPECT_EQ(3, pages[0].killFocusCount);

    ExpectOnlyPageVisible(0);
    EXPECT_EQ(edit, ::GetFocus());
    pages[0].refuses = false;
}

TEST_F(TabCtrl, FocusSetByMessageAsksThePageToo)
{
    pages[0].refuses = true;
    ::SetFocus(pages[0].Item(kFirstEdit));
    tabs.SendMessage(TCM_SETCURFOCUS, 1);
    ExpectOnlyPageVisible(0);
    EXPECT_EQ(1, pages[0].killFocusCount);

    pages[0].refuses = false;
    tabs.SendMessage(TCM_SETCURFOCUS, 1);
    ExpectOnlyPageVisible(1);
}

TEST_F(TabCtrl, ValueAcceptedAfterARefusalLetsThePageGo)
{
    pages[0].refuses = true;
    ::SetFocus(pages[0].Item(kFirstEdit));
    ClickTab(1);
    pages[0].refuses = false;
    ClickTab(1);
    ExpectOnlyPageVisible(1);
}

TEST_F(TabCtrl, PagesOutliveTheControlAsObjects)
{
    tabs.DestroyWindow();
    EXPECT_EQ(nullptr, pages[0].m_hWnd);
    EXPECT_EQ(0, tabs.GetTabsNum());
    EXPECT_FALSE(tabs.SetActiveTab(0));
}

TEST_F(TabCtrl, KeysDoNothingWithoutTabs)
{
    tabs.DestroyWindow();
    MSG message = {owner.m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {0, 0}};
    const HeldKeys control({VK_CONTROL});
    EXPECT_FALSE(tabs.PreTranslateMessage(&message));
}

TEST_F(TabCtrl, StripAtTheBottomLiesBelowThePage)
{
    CMFCTabCtrl bottom;
    Page page;
    ASSERT_TRUE(bottom.Create(CMFCTabCtrl::STYLE_3D, {0, 0, 120, 120}, &owner, 7));
    page.Create(kPageTemplate, &bottom);
    bottom.AddTab(&page, L"Below");
    RECT tab;
    bottom.SendMessage(TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&tab));
    RECT rect;
    page.GetWindowRect(&rect);
    bottom.ScreenToClient(&rect);
    EXPECT_LE(rect.bottom, tab.top);
    bottom.DestroyWindow();
}

// As when the scale of the screen changes: higher tabs leave less to the pages.
TEST_F(TabCtrl, FollowsItsFont)
{
    const auto pageTop = [this] {
        RECT rect;
        ::GetWindowRect(pages[0].m_hWnd, &rect);
        return rect.top;
    };
    const LONG top = pageTop();
    const RECT tab = TabRect(2);
    LOGFONTW large = {};
    large.lfHeight = -40;
    const HFONT font = ::CreateFontIndirectW(&large);
    tabs.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    EXPECT_GT(TabRect(2).bottom, tab.bottom);
    EXPECT_GT(TabRect(2).right - TabRect(2).left, tab.right - tab.left);
    EXPECT_GE(pageTop() - top, TabRect(2).bottom - tab.bottom);
    tabs.SendMessage(WM_SETFONT, owner.SendMessage(WM_GETFONT), TRUE);
    EXPECT_EQ(pageTop(), top);
    EXPECT_EQ(TabRect(2).right - TabRect(2).left, tab.right - tab.left);
    ::DeleteObject(font);
}
} // namespace
