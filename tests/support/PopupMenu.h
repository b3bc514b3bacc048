#pragma once

#include "tests/support/Controls.h"

// A pop-up menu that is open.
class PopupMenu : public Window
{
public:
    using Window::Window;

    Texts Items() const;
    void Choose(int item) const;
    void Dismiss() const;

private:
    HMENU Menu() const;
    void AwaitEnd() const;
};
