#include "tests/editors/drivers/FactoryEditor.h"

namespace
{
// A dialog that has closed just before may end a menu by its last change of the focus.
constexpr int kMenuAttempts = 3;
} // namespace

FactoryEditor::FactoryEditor(Operator& op, const Window& dialog)
    : SchemeEditor(op, dialog,
                   {SchemePage::Common, SchemePage::Mode, SchemePage::Eclosion, SchemePage::InkMultiple,
                    SchemePage::InkCut, SchemePage::UvLamps, SchemePage::SmallFormat})
{
}

void FactoryEditor::Apply() const
{
    SendMessageW(Dialog().Control(IDC_BTN_APPLY).Handle(), BM_CLICK, 0, 0);
}

PopupMenu FactoryEditor::OpenMenuOn(int row) const
{
    Schemes().RightClickRow(row);
    return OpenedMenuOn(row);
}

PopupMenu FactoryEditor::OpenedMenu() const
{
    Op().WaitFor("the menu to open", [this] { return Op().OpenMenu().Exists(); });
    return {Op(), Op().OpenMenu().Handle()};
}

PopupMenu FactoryEditor::OpenedMenuOn(int row) const
{
    for (int i = 1; i < kMenuAttempts; ++i)
    {
        Op().Settle();
        if (Op().OpenMenu().Exists())
            break;
        Schemes().RightClickRow(row);
    }
    return OpenedMenu();
}

Window FactoryEditor::OpenCopyDialog(int row) const
{
    for (int i = 0; i < kMenuAttempts; ++i)
        if (OpenMenuOn(row).Choose(0))
            return ExpectCopyDialog();
    throw OperatorFailure("the menu does not stay open");
}

Window FactoryEditor::ExpectCopyDialog() const
{
    return Op().ExpectDialogWith("the dialog to copy a scheme", [](const Window& dialog) {
        return dialog.Has(IDC_LIST_CFG) && !dialog.Has(IDC_LIST_SCHEME);
    });
}

void FactoryEditor::CopyTo(const std::vector<int>& configs, int row) const
{
    const Window dialog = OpenCopyDialog(row);
    for (int config : configs)
        dialog.Control<ListBox>(IDC_LIST_CFG).ClickRow(config);
    Confirm(dialog);
}

FactoryEditor ExpectFactoryEditor(Operator& op)
{
    return {op, ExpectSchemeEditor(op, "the factory editor")};
}
