#include "tests/editors/drivers/UserEditor.h"

UserEditor::UserEditor(Operator& op, const Window& dialog)
    : SchemeEditor(op, dialog,
                   {SchemePage::Common, SchemePage::Eclosion, SchemePage::InkMultiple, SchemePage::InkCut,
                    SchemePage::UvLamps, SchemePage::SmallFormat})
{
}

AddUserSchemeDialog UserEditor::OpenAddScheme() const
{
    Press(IDC_BTN_ADD_SCHEME);
    return ExpectAddScheme();
}

// Its caption is the language file's, so it is known by a label that no other dialog has.
AddUserSchemeDialog UserEditor::ExpectAddScheme() const
{
    return AddUserSchemeDialog(Op().ExpectDialogWith(
        "the dialog for a new user scheme", [](const Window& dialog) { return dialog.Has(IDC_STATIC_SCHEME_NAME); }));
}

void UserEditor::AddScheme(const std::wstring& name) const
{
    const AddUserSchemeDialog dialog = OpenAddScheme();
    dialog.Name().Type(name);
    Confirm(dialog);
}

void UserEditor::DeleteScheme(int row) const
{
    Schemes().ClickRow(row);
    Press(IDC_BTN_DEL_SCHEME);
}

UserEditor ExpectUserEditor(Operator& op)
{
    return {op, ExpectSchemeEditor(op, "the user editor")};
}
