#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
ComboBox Switch(const SchemeEditor& editor)
{
    return editor.Combo(SchemePage::SmallFormat, IDC_CMB_SMALL_MODE);
}

EditField Offset(const SchemeEditor& editor)
{
    return editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET);
}

// The small-format page of a user scheme whose base index names no factory scheme.
class MissingBase : public UserSchemeFixture
{
};

TEST_F(MissingBase, LeavesTheSwitchOnAndThatIsStoredOnceTheBaseExists)
{
    Mine().baseScheme = 4;
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        EXPECT_EQ(Switch(editor).Selected(), 1);
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->AddScheme(); });
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SmallFormat"),
              (Calls{"IPrintScheme[4].SetSmallFormatMode(1)", "IPrintScheme[4].SetSmallFormatOffset(0)"}));
}

TEST_F(MissingBase, ShowsThePreviousSwitchAndOffsetAndStoresNothing)
{
    Poster().smallFormatMode = 0;
    Poster().smallFormatOffset = 12;
    Yours().baseScheme = 4;
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        editor.Schemes().ClickRow(kYours);
        EXPECT_EQ(Switch(editor).Selected(), 0);
        EXPECT_EQ(Offset(editor).Text(), L"12");
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SmallFormat"), Calls());
}
} // namespace
