#pragma once

#include "tests/editors/drivers/SchemeEditor.h"
#include "tests/support/PopupMenu.h"

// The factory print-scheme editor as an operator sees it.
class FactoryEditor : public SchemeEditor
{
public:
    FactoryEditor(Operator& op, const Window& dialog);

    // By the hidden button, as a program presses it: stores the pages.
    void Apply() const;

    // Lets the right button go over a row of the scheme list; the menu opens.
    PopupMenu OpenMenuOn(int row) const;
    PopupMenu OpenedMenu() const;
    // The same, once more where the menu has closed by itself.
    PopupMenu OpenedMenuOn(int row) const;
    // By the menu of the row.
    Window OpenCopyDialog(int row) const;
    Window ExpectCopyDialog() const;
    void CopyTo(const std::vector<int>& configs, int row) const;
};

FactoryEditor ExpectFactoryEditor(Operator& op);
