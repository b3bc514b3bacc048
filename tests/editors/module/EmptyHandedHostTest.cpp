#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
void PressAll(const EditorWindow& editor, std::initializer_list<int> buttons)
{
    for (int button : buttons)
        editor.Notify(button, BN_CLICKED);
}

void ExpectEmpty(const EditorWindow& editor, int listId)
{
    EXPECT_EQ(editor.Dialog().Control<ListBox>(listId).RowCount(), 0) << listId;
    for (UINT notice : {LBN_SELCHANGE, LBN_DBLCLK})
        editor.Notify(listId, notice);
}

// A host that has no list, no table and no new configuration to give.
template <class Fixture>
class EmptyHandedHost : public Fixture
{
protected:
    EmptyHandedHost() { this->m_faults.failing = {"IHostData.*"}; }
};

using EmptyHandedModeHost = EmptyHandedHost<PrintModeFixture>;
using EmptyHandedFactoryHost = EmptyHandedHost<FactorySchemeFixture>;
using EmptyHandedUserHost = EmptyHandedHost<UserSchemeFixture>;

TEST_F(EmptyHandedModeHost, OpensEmptyAndItsButtonsDoNothing)
{
    Run([this](PrintModeEditor& editor) {
        ExpectEmpty(editor, IDC_LIST_CFG);
        ExpectEmpty(editor, IDC_LIST_MODE);
        for (int id : {IDC_BTN_DEL_CFG, IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN})
            EXPECT_FALSE(editor.IsEnabled(id)) << id;
        PressAll(editor, {IDC_BTN_DEL_CFG, IDC_BTN_ADD_MODE, IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN,
                          IDC_BTN_APPLY});
        EXPECT_EQ(NewChanges(), Calls());
        editor.Confirm(editor.OpenAddConfig());
        EXPECT_EQ(NewChanges(), Calls{"IHostData.CreateConfig()"});
        ExpectEmpty(editor, IDC_LIST_CFG);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Calls{"IHostControl.SaveParameters(2)"});
}

TEST_F(EmptyHandedFactoryHost, OpensEmptyAndItsButtonsDoNothing)
{
    Run([](FactoryEditor& editor) {
        ExpectEmpty(editor, IDC_LIST_CFG);
        ExpectEmpty(editor, IDC_LIST_SCHEME);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        PressAll(editor, {IDC_BTN_ADD_SCHEME, IDC_BTN_DEL_SCHEME, IDC_BTN_APPLY});
        PostMessageW(editor.Dialog().Handle(), WM_COMMAND, IDM_COPY_SCHEME, 0);
        const Window dialog = editor.ExpectCopyDialog();
        EXPECT_EQ(dialog.Control<ListBox>(IDC_LIST_CFG).RowCount(), 0);
        editor.Confirm(dialog);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kFactorySchemesSaved);
}

TEST_F(EmptyHandedUserHost, OpensEmptyAndItsButtonsDoNothing)
{
    Run([](UserEditor& editor) {
        ExpectEmpty(editor, IDC_LIST_CFG);
        ExpectEmpty(editor, IDC_LIST_SCHEME);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        PressAll(editor, {IDC_BTN_ADD_SCHEME, IDC_BTN_DEL_SCHEME, IDC_BTN_APPLY});
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kUserSchemesSaved);
}
} // namespace
