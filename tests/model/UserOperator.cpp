#include "tests/model/UserOperator.h"

UserOperator::UserOperator(const UserEditor& editor, UserModel& model, SeededRun& run)
    : SchemeOperator(editor, model, run, IDD_SCHEME_USER), m_editor(editor), m_model(model)
{
}

void UserOperator::ActBesides()
{
    Press(m_editor.Dialog(), IDC_BTN_ADD_SCHEME);
}

void UserOperator::WorkOnOther(int)
{
    const AddUserSchemeDialog dialog = m_editor.ExpectAddScheme();
    RequireProposal(dialog);
    if (!Luck().OneIn(3))
        dialog.Name().Type(Luck().OneOf(Names()));
    if (!Luck().OneIn(3) && dialog.Source().RowCount() > 0)
        dialog.Source().Pick(Luck().Below(dialog.Source().RowCount()));
    const std::wstring name = dialog.Name().Text();
    const int source = dialog.Source().Selected();
    if (Luck().OneIn(6))
    {
        Note("cancels");
        CloseDialog(dialog.Dialog());
        m_model.CancelScheme();
        return;
    }
    Note("makes \"" + Utf8(name) + "\" from row " + std::to_string(source));
    m_model.MakeScheme(name, source);
    dialog.Dialog().Control(IDOK).Click();
    Op().ExpectClosed(dialog.Dialog());
    Listen();
}

void UserOperator::RequireProposal(const AddUserSchemeDialog& dialog) const
{
    if (dialog.Name().Text() != m_model.ProposedName() || dialog.Source().Rows() != m_model.OfferedSources() ||
        dialog.Source().Selected() != m_model.ProposedSource())
        throw OperatorFailure("the dialog for a new scheme proposes something else than the model");
}
