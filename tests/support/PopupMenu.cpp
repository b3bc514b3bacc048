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
void PopupMenu::Choose(int item) const
{
    const HMENU menu = Menu();
    RECT area{};
    GetMenuItemRect(nullptr, menu, static_cast<UINT>(item), &area);
    Op().MoveMouse({(area.left + area.right) / 2, (area.top + area.bottom) / 2});
    const auto isMarked = [&] { return (GetMenuState(menu, static_cast<UINT>(item), MF_BYPOSITION) & MF_HILITE) != 0; };
    Op().WaitFor("the menu's item to be marked", [&] {
        if (!isMarked())
            Op().Key(VK_DOWN);
        return isMarked();
    });
    Op().Key(VK_RETURN);
    AwaitEnd();
}

void PopupMenu::Dismiss() const
{
    Op().Key(VK_ESCAPE);
    AwaitEnd();
}

void PopupMenu::AwaitEnd() const
{
    Op().WaitFor("the menu to close", [this] { return !Op().OpenMenu().Exists(); });
}
