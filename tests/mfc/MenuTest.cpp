#include "Script.h"
#include "TestResource.h"
#include "TestWindow.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

std::wstring ItemText(HMENU menu, UINT id)
{
    wchar_t text[64] = {};
    ::GetMenuString(menu, id, text, 64, MF_BYCOMMAND);
    return text;
}

TEST(Menu, IsLoadedFromTheResourceHandle)
{
    CMenu menu;
    EXPECT_TRUE(menu.LoadMenu(IDR_POPUP));
    EXPECT_NE(nullptr, menu.m_hMenu);
    const HINSTANCE before = AfxGetResourceHandle();
    AfxSetResourceHandle(::GetModuleHandle(L"kernel32"));
    EXPECT_FALSE(menu.LoadMenu(IDR_POPUP));
    AfxSetResourceHandle(before);
    EXPECT_EQ(nullptr, menu.m_hMenu);
}

TEST(Menu, ThatIsMissingIsNotLoaded)
{
    CMenu menu;
    EXPECT_FALSE(menu.LoadMenu(IDD_NO_TEMPLATE));
    EXPECT_EQ(nullptr, menu.m_hMenu);
}

TEST(Menu, LoadingAgainDestroysTheFirst)
{
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    const HMENU first = menu.m_hMenu;
    EXPECT_TRUE(menu.LoadMenu(IDR_POPUP));
    EXPECT_NE(first, menu.m_hMenu);
    EXPECT_FALSE(::IsMenu(first));
}

TEST(Menu, IsDestroyedOnceAndWithItsObject)
{
    HMENU handle = nullptr;
    {
        CMenu menu;
        menu.LoadMenu(IDR_POPUP);
        handle = menu.m_hMenu;
        EXPECT_TRUE(::IsMenu(handle));
    }
    EXPECT_FALSE(::IsMenu(handle));
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(menu.DestroyMenu());
}

TEST(Menu, ModifiesAnItemOfItsPopUp)
{
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    const HMENU popUp = menu.GetSubMenu(0);
    EXPECT_EQ(L"Add", ItemText(popUp, ID_POPUP_ADD));
    EXPECT_TRUE(menu.ModifyMenu(ID_POPUP_ADD, MF_BYCOMMAND | MF_STRING, ID_POPUP_ADD, L"Neu \u6253"));
    EXPECT_EQ(L"Neu \u6253", ItemText(popUp, ID_POPUP_ADD));
    EXPECT_EQ(static_cast<UINT>(ID_POPUP_ADD), ::GetMenuItemID(popUp, 0));
    EXPECT_FALSE(menu.ModifyMenu(1, MF_BYCOMMAND | MF_STRING, 1, L"absent"));
}

TEST(Menu, GivesItsPopUpsOnly)
{
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    EXPECT_EQ(2, ::GetMenuItemCount(menu.GetSubMenu(0)));
    EXPECT_EQ(nullptr, menu.GetSubMenu(1));
}

TEST(Menu, ItemsStayAsTheResourceHasThem)
{
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    EXPECT_TRUE(::GetMenuState(menu.GetSubMenu(0), ID_POPUP_DELETE, MF_BYCOMMAND) & MF_GRAYED);
}

bool IsMenuOpen()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE);
}

// The command of a tracked pop-up reaches the owner's map after the tracking call.
class MenuOwner : public TestDialog
{
public:
    int adds = 0;

protected:
    DECLARE_MESSAGE_MAP()

private:
    void OnAdd() { ++adds; }
};

BEGIN_MESSAGE_MAP(MenuOwner, TestDialog)
    ON_COMMAND(ID_POPUP_ADD, &MenuOwner::OnAdd)
END_MESSAGE_MAP()

TEST(Menu, TrackedPopUpPostsItsCommand)
{
    MenuOwner owner;
    owner.Create(DialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 100, 50, {}));
    PumpMessages();
    CMenu menu;
    menu.LoadMenu(IDR_POPUP);
    Script script;
    script.When("the menu is open", &IsMenuOpen, [&] {
        owner.PostMessage(WM_KEYDOWN, VK_DOWN, 1);
        owner.PostMessage(WM_KEYDOWN, VK_RETURN, 1);
    });
    EXPECT_TRUE(
        ::TrackPopupMenu(menu.GetSubMenu(0), TPM_LEFTALIGN | TPM_RIGHTBUTTON, 10, 10, 0, owner.m_hWnd, nullptr));
    EXPECT_EQ(0, owner.adds);
    menu.DestroyMenu();
    PumpMessages();
    EXPECT_EQ(1, owner.adds);
}
} // namespace
