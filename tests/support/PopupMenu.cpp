#include "tests/support/PopupMenu.h"

#include "tests/support/Operator.h"

namespace
{
constexpr UINT kGetMenu = 0x01E1; // MN_GETHMENU
}

HMENU PopupMenu::Menu() const
{
    return reinterpret_cast<HMENU>(Send(kGetMenu));
}

Texts PopupMenu::Items() const
{
    const HMENU menu = Menu();
    Texts items;
    for (int i = 0; i < GetMenuItemCount(menu); ++i)
    {
        wchar_t text[256]{};
        GetMenuStringW(menu, static_cast<UINT>(i), text, 256, MF_BYPOSITION);
        items.emplace_back(text);
    }
    return items;
}

// By the keyboard; the mouse is moved there first, because wherever else it came to rest, its last move would take the
// mark away.
bool PopupMenu::Choose(int item) const
{
    const HMENU menu = Menu();
    const auto position = static_cast<UINT>(item);
    RECT area{};
    GetMenuItemRect(nullptr, menu, position, &area);
    Op().MoveMouse({(area.left + area.right) / 2, (area.top + area.bottom) / 2});
    const auto isMarked = [=] { return (GetMenuState(menu, position, MF_BYPOSITION) & MF_HILITE) != 0; };
    Op().WaitFor("the menu's item to be marked", [&] { return isMarked() || !Press(VK_DOWN); });
    const bool chosen = Press(VK_RETURN);
    AwaitEnd();
    return chosen;
}

void PopupMenu::Dismiss() const
{
    Press(VK_ESCAPE);
    AwaitEnd();
}

// On the menu's own thread, so that a key never reaches the dialog behind a menu that has just gone.
bool PopupMenu::Press(int virtualKey) const
{
    bool isOpen = false;
    Op().OnUi([&] {
        isOpen = IsVisible();
        if (isOpen)
            PostMessageW(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1);
    });
    Op().Settle();
    return isOpen;
}

void PopupMenu::AwaitEnd() const
{
    Op().WaitFor("the menu to close", [this] { return !Op().OpenMenu().Exists(); });
}
