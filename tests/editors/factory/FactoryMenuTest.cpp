#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
// The right mouse button: the selection follows the cursor's height, the menu belongs to the scheme list.
class FactoryMenu : public FactorySchemeFixture
{
protected:
    static LONG RowHeight(const FactoryEditor& editor)
    {
        return static_cast<LONG>(SendMessageW(editor.Schemes().Handle(), LB_GETITEMHEIGHT, 0, 0));
    }

    // A place on a window, level with one on the scheme list: in rows from the list's upper edge.
    static POINT LevelWith(const FactoryEditor& editor, double rows, const Window& window)
    {
        POINT at = {0, static_cast<LONG>(rows * RowHeight(editor))};
        MapWindowPoints(editor.Schemes().Handle(), window.Handle(), &at, 1);
        return {window.ClientArea().right - 4, at.y};
    }

    // Releases the button outside the scheme list. No menu may open.
    static void ReleaseBeside(const FactoryEditor& editor, double rows, const Window& window)
    {
        editor.Op().RightClick(window, LevelWith(editor, rows, window));
        EXPECT_FALSE(editor.Op().OpenMenu().Exists());
    }

    // Over the middle of a dialog, which is level with a row, and over its button.
    void ExpectNothingFollows(const FactoryEditor& editor, const Window& dialog)
    {
        NewChanges();
        const RECT area = dialog.ClientArea();
        editor.Op().RightClick(dialog, {area.right - 4, area.bottom / 2});
        editor.Op().RightClick(dialog.Control(IDCANCEL), {4, 4});
        EXPECT_FALSE(editor.Op().OpenMenu().Exists());
        EXPECT_EQ(editor.Schemes().Selected(), 0);
        EXPECT_EQ(Changes(), Calls());
    }

    static PopupMenu OpenMenuAt(const FactoryEditor& editor, double rows)
    {
        editor.Op().RightClick(editor.Schemes(), LevelWith(editor, rows, editor.Schemes()));
        return editor.OpenedMenu();
    }
};

TEST_F(FactoryMenu, OpensOnTheRowUnderTheCursorAndSelectsIt)
{
    Run([this](FactoryEditor& editor) {
        const PopupMenu menu = editor.OpenMenuOn(1);
        EXPECT_EQ(menu.Items(), Texts{L"Copy to"});
        EXPECT_EQ(editor.Schemes().Selected(), 1);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Banner");
        menu.Dismiss();
        EXPECT_EQ(Changes(), Stored(0));
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, HasNoTextWithoutLanguageFile)
{
    RemoveTexts();
    Run([](FactoryEditor& editor) {
        const PopupMenu menu = editor.OpenMenuOn(0);
        EXPECT_EQ(menu.Items(), Texts{L""});
        menu.Dismiss();
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, StoresWhatWasEditedIntoTheSchemeShownUntilNow)
{
    Run([this](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Edited");
        editor.OpenMenuOn(2).Dismiss();
        Poster().name = "Edited";
        EXPECT_EQ(Changes(), Stored(0));
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, BelowTheLastRowSelectsNoneAndStillOpens)
{
    Run([](FactoryEditor& editor) {
        const PopupMenu menu = OpenMenuAt(editor, 3.5);
        EXPECT_EQ(editor.Schemes().Selected(), kNone);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        menu.Dismiss();
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, OpensOnAnEmptyList)
{
    Run([](FactoryEditor& editor) {
        editor.Configs().ClickRow(2);
        const PopupMenu menu = OpenMenuAt(editor, 0.5);
        EXPECT_EQ(editor.Schemes().Selected(), kNone);
        menu.Dismiss();
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, OnAScrolledListSelectsTheRowUnderTheCursor)
{
    m_machine.factorySchemes.resize(60, m_machine.factorySchemes[0]);
    Run([](FactoryEditor& editor) {
        SendMessageW(editor.Schemes().Handle(), LB_SETTOPINDEX, 20, 0);
        editor.OpenMenuOn(25).Dismiss();
        EXPECT_EQ(editor.Schemes().Selected(), 25);
        EXPECT_EQ(SendMessageW(editor.Schemes().Handle(), LB_GETTOPINDEX, 0, 0), 20);
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, BesideTheListOnlyTheSelectionFollows)
{
    Run([this](FactoryEditor& editor) {
        ReleaseBeside(editor, 1.5, editor.Configs());
        EXPECT_EQ(editor.Schemes().Selected(), 1);
        EXPECT_EQ(editor.Configs().Selected(), 0);
        EXPECT_EQ(NewChanges(), Stored(0));
        ReleaseBeside(editor, 2.5, editor.Dialog());
        EXPECT_EQ(editor.Schemes().Selected(), 2);
        EXPECT_EQ(NewChanges(), Stored(1));
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, OverAPageAndItsControlsTheSelectionFollows)
{
    Run([](FactoryEditor& editor) {
        const Window page = editor.Open(SchemePage::Common);
        ReleaseBeside(editor, 1.5, page);
        EXPECT_EQ(editor.Schemes().Selected(), 1);
        ReleaseBeside(editor, 0.5, page.Control(IDC_CMB_ENABLE));
        EXPECT_EQ(editor.Schemes().Selected(), 0);
        ReleaseBeside(editor, 2.5, editor.Tab());
        EXPECT_EQ(editor.Schemes().Selected(), 2);
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, BesideNoRowTheSelectionGoes)
{
    Run([this](FactoryEditor& editor) {
        ReleaseBeside(editor, 5.5, editor.Dialog());
        EXPECT_EQ(editor.Schemes().Selected(), kNone);
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        EXPECT_EQ(NewChanges(), Stored(0));
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kFactorySchemesSaved);
}

// Dividing integers cuts towards zero: less than a row above the list is still the first row.
TEST_F(FactoryMenu, JustAboveTheListIsTheFirstRowAndHigherIsNone)
{
    Run([](FactoryEditor& editor) {
        editor.Schemes().ClickRow(2);
        ReleaseBeside(editor, -0.5, editor.Dialog());
        EXPECT_EQ(editor.Schemes().Selected(), 0);
        ReleaseBeside(editor, -1.2, editor.Dialog());
        EXPECT_EQ(editor.Schemes().Selected(), kNone);
        editor.Cancel();
    });
}

TEST_F(FactoryMenu, OverADialogOfTheEditorNothingFollows)
{
    m_machine.factorySchemes.resize(60, m_machine.factorySchemes[0]);
    Run([this](FactoryEditor& editor) {
        const ConfigDialog config = editor.OpenConfig(0);
        ExpectNothingFollows(editor, config.Dialog());
        editor.Confirm(config);
        const Window copy = editor.OpenCopyDialog(0);
        ExpectNothingFollows(editor, copy);
        editor.Confirm(copy, IDCANCEL);
        const Window eclosion = editor.OpenCustomEclosion();
        ExpectNothingFollows(editor, eclosion);
        editor.Confirm(eclosion, IDCANCEL);
        editor.Cancel();
    });
}
} // namespace
