#pragma once

#include "resources/resource.h"
#include "tests/editors/drivers/ConfigDialog.h"
#include "tests/support/Controls.h"
#include "tests/support/Operator.h"

// What all editors have in common, as an operator sees it.
class EditorWindow
{
public:
    Operator& Op() const { return m_operator; }
    const Window& Dialog() const { return m_dialog; }

    ListBox Configs() const { return m_dialog.Control<ListBox>(IDC_LIST_CFG); }
    bool IsEnabled(int controlId) const { return m_dialog.Control(controlId).IsEnabled(); }
    void Press(int buttonId) const { m_dialog.Control(buttonId).Click(); }
    // What the control tells the dialog when it is used; the control may be disabled.
    void Notify(int controlId, UINT notice) const;
    TabStrip Tab() const;

    // The dialog of the configuration on a row.
    ConfigDialog OpenConfig(int row) const;
    // Ends a dialog over the editor by one of its buttons.
    void Confirm(const Window& dialog, int buttonId = IDOK) const;
    void Confirm(const ConfigDialog& dialog, int buttonId = IDOK) const { Confirm(dialog.Dialog(), buttonId); }

    void SaveAndQuit() const { Quit(IDOK); }
    void Cancel() const { Quit(IDCANCEL); }

protected:
    EditorWindow(Operator& op, const Window& dialog) : m_operator(op), m_dialog(dialog) {}

    // The page with a control that no other page has; it may be behind another one.
    Window PageWith(int knownControl) const;

private:
    void Quit(int buttonId) const;

    Operator& m_operator;
    Window m_dialog;
};
