#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"

#include <algorithm>

namespace
{
constexpr std::size_t kMostStops = 100;

// What all editors have, each over the small scheme machine.
struct Editor
{
    const char* name;
    decltype(&IQuorvane::EditPrintModes) operation;
    int secondList;
    std::vector<int> stops; // lists and their buttons, in tab order
};

std::ostream& operator<<(std::ostream& stream, const Editor& editor)
{
    return stream << editor.name;
}

const Editor kEditors[] = {{"PrintModes",
                            &IQuorvane::EditPrintModes,
                            IDC_LIST_MODE,
                            {IDC_LIST_CFG, IDC_BTN_ADD_CFG, IDC_BTN_DEL_CFG, IDC_LIST_MODE, IDC_BTN_ADD_MODE,
                             IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN}},
                           {"FactorySchemes",
                            &IQuorvane::EditFactorySchemes,
                            IDC_LIST_SCHEME,
                            {IDC_LIST_CFG, IDC_LIST_SCHEME, IDC_BTN_ADD_SCHEME, IDC_BTN_DEL_SCHEME}},
                           {"UserSchemes",
                            &IQuorvane::EditUserSchemes,
                            IDC_LIST_SCHEME,
                            {IDC_LIST_CFG, IDC_LIST_SCHEME, IDC_BTN_ADD_SCHEME, IDC_BTN_DEL_SCHEME}}};

int FocusedId(Operator& op)
{
    op.WaitFor("a window to have the focus", [&] { return op.Focus().Exists(); });
    return op.Focus().Id();
}

class EditorOpening : public SchemeFixture, public testing::WithParamInterface<Editor>
{
protected:
    using EditorScript = std::function<void(Operator&, const Window&)>;
    void Open(const EditorScript& script)
    {
        RunOperation(GetParam().operation, [&](Operator& op) {
            const Window editor =
                op.ExpectDialogWith("an editor", [](const Window& dialog) { return dialog.Has(IDC_LIST_CFG); });
            script(op, editor);
            editor.Control(IDCANCEL).Click();
            op.ExpectClosed(editor);
        });
    }
};

TEST_P(EditorOpening, PutsTheFocusIntoTheConfigurationList)
{
    Open([](Operator& op, const Window&) { EXPECT_EQ(FocusedId(op), IDC_LIST_CFG); });
}

TEST_P(EditorOpening, PutsTheFocusIntoAnEmptyConfigurationListToo)
{
    m_machine.configurations.clear();
    Open([](Operator& op, const Window&) { EXPECT_EQ(FocusedId(op), IDC_LIST_CFG); });
}

// Where Tab stops in the dialog itself, from the configuration list on until it comes round.
std::vector<int> StopsOf(Operator& op, const Window& editor)
{
    const Window start = editor.Control(IDC_LIST_CFG);
    op.MoveFocus(start);
    std::vector<int> stops;
    std::size_t count = 0;
    do
    {
        if (op.Focus().Parent() == editor)
            stops.push_back(op.Focus().Id());
        op.Key(VK_TAB);
    } while (op.Focus() != start && ++count < kMostStops);
    return stops;
}

TEST_P(EditorOpening, TabComesToAListBeforeItsButtons)
{
    Open([](Operator& op, const Window& editor) {
        const ListBox items = editor.Control<ListBox>(GetParam().secondList);
        items.ClickRow(items.RowCount() - 1); // so that it can be deleted
        std::vector<int> stops = StopsOf(op, editor);
        stops.resize(std::min(stops.size(), GetParam().stops.size()));
        EXPECT_EQ(stops, GetParam().stops);
    });
}

INSTANTIATE_TEST_SUITE_P(EachEditor, EditorOpening, testing::ValuesIn(kEditors),
                         [](const auto& editor) { return std::string(editor.param.name); });

class ConfigDialogOpening : public PrintModeFixture
{
};

TEST_F(ConfigDialogOpening, PutsTheFocusIntoTheNameOfANewConfiguration)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenAddConfig();
        EXPECT_EQ(FocusedId(editor.Op()), IDC_EDIT_CFG_NAME);
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(ConfigDialogOpening, PutsTheFocusIntoTheNameToBeChanged)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenRename(0);
        EXPECT_EQ(FocusedId(editor.Op()), IDC_EDIT_CFG_NAME);
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

class NewUserSchemeOpening : public UserSchemeFixture
{
};

TEST_F(NewUserSchemeOpening, PutsTheFocusIntoTheName)
{
    Run([](UserEditor& editor) {
        const AddUserSchemeDialog dialog = editor.OpenAddScheme();
        EXPECT_EQ(FocusedId(editor.Op()), IDC_EDIT_NAME);
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

class ViewedConfiguration : public UserSchemeFixture
{
protected:
    static std::vector<int> EnabledStops(const Window& dialog)
    {
        std::vector<int> ids;
        for (const Window& child : dialog.Children())
            if (child.HasStyle(WS_TABSTOP) && child.IsEnabled())
                ids.push_back(child.Id());
        return ids;
    }
};

TEST_F(ViewedConfiguration, HasNothingEnabledButItsButtons)
{
    Run([](UserEditor& editor) {
        const ConfigDialog dialog = editor.OpenConfig(0);
        EXPECT_EQ(EnabledStops(dialog.Dialog()), (std::vector<int>{IDOK, IDCANCEL}));
        EXPECT_EQ(FocusedId(editor.Op()), IDOK);
        editor.Confirm(dialog);
        editor.Cancel();
    });
}
} // namespace
