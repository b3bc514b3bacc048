#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
EditField Offset(const SchemeEditor& editor)
{
    return editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET);
}

// Types what is no number; the script leaves the scheme, which asks once.
void Refuse(const SchemeEditor& editor, const std::function<void()>& leave)
{
    Offset(editor).Type(L"abc");
    leave();
    editor.Op().AnswerMessageBox();
}

void ExpectLocked(const SchemeEditor& editor, const std::wstring& offset)
{
    EXPECT_FALSE(Offset(editor).IsEnabled());
    EXPECT_EQ(Offset(editor).Text(), offset);
}

class RefusedOffset : public UserSchemeFixture
{
protected:
    RefusedOffset() { Poster().smallFormatOffset = 12; }
};

TEST_F(RefusedOffset, GivesWayToTheOneThatWasKeptAtTheDivider)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        Refuse(editor, [&] { editor.Schemes().ClickRow(kDivider); });
        ExpectLocked(editor, L"12");
        editor.Schemes().ClickRow(kYours);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("IPrintScheme[0].SetSmallFormatOffset"), Calls{"IPrintScheme[0].SetSmallFormatOffset(12)"});
}

TEST_F(RefusedOffset, GivesWayToTheOneThatWasKeptInAConfigurationWithoutSelection)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        Refuse(editor, [&] { editor.Configs().ClickRow(1); });
        ExpectLocked(editor, L"12");
        editor.Configs().ClickRow(0);
        editor.SaveAndQuit();
    });
}

TEST_F(RefusedOffset, GivesWayToThePresetsOwn)
{
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        Refuse(editor, [&] { editor.Schemes().ClickRow(kSign); });
        ExpectLocked(editor, std::to_wstring(Sign().smallFormatOffset));
        editor.SaveAndQuit();
    });
}

class RefusedFactoryOffset : public FactorySchemeFixture
{
};

TEST_F(RefusedFactoryOffset, GivesWayToTheOneThatWasKeptInAConfigurationWithoutSchemes)
{
    Poster().smallFormatOffset = 12;
    Run([](FactoryEditor& editor) {
        Refuse(editor, [&] { editor.Configs().ClickRow(2); });
        ExpectLocked(editor, L"12");
        editor.Configs().ClickRow(1);
        editor.SaveAndQuit();
    });
}

TEST_F(RefusedOffset, OfADeletedSchemeGivesWayToTheOneThatWasLoaded)
{
    Run([](UserEditor& editor) {
        editor.DeleteScheme(kYours);
        Offset(editor).Type(L"abc");
        editor.Press(IDC_BTN_DEL_SCHEME); // the divider is selected next
        ExpectLocked(editor, L"12");
        editor.Schemes().ClickRow(kPoster);
        editor.SaveAndQuit();
    });
}
} // namespace
