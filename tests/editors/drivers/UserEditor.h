#pragma once

#include "tests/editors/drivers/SchemeEditor.h"

// The dialog that asks for a new user scheme's name and source.
class AddUserSchemeDialog
{
public:
    explicit AddUserSchemeDialog(const Window& dialog) : m_dialog(dialog) {}

    const Window& Dialog() const { return m_dialog; }
    EditField Name() const { return m_dialog.Control<EditField>(IDC_EDIT_NAME); }
    ComboBox Source() const { return m_dialog.Control<ComboBox>(IDC_CMB_SOURCE); }

private:
    Window m_dialog;
};

// The user print-scheme editor as an operator sees it.
class UserEditor : public SchemeEditor
{
public:
    UserEditor(Operator& op, const Window& dialog);

    AddUserSchemeDialog OpenAddScheme() const;
    AddUserSchemeDialog ExpectAddScheme() const;
    void Confirm(const AddUserSchemeDialog& dialog, int buttonId = IDOK) const { Confirm(dialog.Dialog(), buttonId); }
    using EditorWindow::Confirm;
    // A scheme of the given name, made from the source that the dialog proposes.
    void AddScheme(const std::wstring& name) const;
    void DeleteScheme(int row) const;
};

UserEditor ExpectUserEditor(Operator& op);
