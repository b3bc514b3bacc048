#pragma once

#include "tests/support/Controls.h"

// A pop-up menu that is open.
class PopupMenu : public Window
{
public:
    using Window::Window;

    Texts Items() const;
    // False when the menu closed by itself before: the system ends a menu when the focus changes late.
    bool Choose(int item) const;
    void Dismiss() const;

private:
    HMENU Menu() const;
    bool Press(int virtualKey) const;
    void AwaitEnd() const;
};
