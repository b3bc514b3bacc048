#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
struct Label
{
    SchemePage page;
    int id;
    std::string key;
};

const Label kLabels[] = {
    {SchemePage::Common, IDC_STATIC_ENABLE, "IDC_STATIC_ENABLE"},
    {SchemePage::Common, IDC_STATIC_NAME, "IDC_STATIC_NAME"},
    {SchemePage::Common, IDC_STATIC_SPEED, "IDC_STATIC_SPEED"},
    {SchemePage::Common, IDC_STATIC_DIRECTION, "IDC_STATIC_DIRECTION"},
    {SchemePage::Common, IDC_STATIC_MATERIAL, "IDC_STATIC_MATERIAL"},
    {SchemePage::Common, IDC_STATIC_CHANNEL, "IDC_STATIC_CHANNEL"},
    {SchemePage::Common, IDC_STATIC_WAIT_STEP, "IDC_STATIC_WAIT_STEP"},
    {SchemePage::Common, IDC_STATIC_WAVE, "IDC_STATIC_WAVE"},
    {SchemePage::Common, IDC_STATIC_LAYOUT, "IDC_STATIC_LAYOUT"},
    {SchemePage::Common, IDC_STATIC_HEAD, "IDC_STATIC_HEAD"},
    {SchemePage::Mode, IDC_STATIC_PRINT_MODE, "IDC_STATIC_PRINT_MODE"},
    {SchemePage::Mode, IDC_STATIC_PASS, "IDC_STATIC_PASS"},
    {SchemePage::Mode, IDC_STATIC_RESIDENT, "IDC_STATIC_STAY_MODE"},
    {SchemePage::Eclosion, IDC_STATIC_DOT_MODE, "IDC_STATIC_DOT_MODE"},
    {SchemePage::Eclosion, IDC_STATIC_RANGE_DEFAULT, "IDC_STATIC_RANGE_DEFAULT"},
    {SchemePage::Eclosion, IDC_STATIC_RD_SS, "IDC_STATIC_RD_SS"},
    {SchemePage::Eclosion, IDC_STATIC_RD_S, "IDC_STATIC_RD_S"},
    {SchemePage::Eclosion, IDC_STATIC_RD_M, "IDC_STATIC_RD_M"},
    {SchemePage::Eclosion, IDC_STATIC_RD_L, "IDC_STATIC_RD_L"},
    {SchemePage::Eclosion, IDC_STATIC_TYPE, "IDC_STATIC_TYPE"},
    {SchemePage::Eclosion, IDC_STATIC_RANGE_SELECT, "IDC_STATIC_RANGE_SELECT"},
    {SchemePage::Eclosion, IDC_STATIC_RANGE_CUSTOM, "IDC_STATIC_RANGE_CUSTOM"},
    {SchemePage::Eclosion, IDC_STATIC_HEAD_ELC_TYPE, "IDC_STATIC_HEAD_ELC_TYPE"},
    {SchemePage::Eclosion, IDC_STATIC_TYPE_CUSTOM, "IDC_STATIC_TYPE_CUSTOM"},
    {SchemePage::Eclosion, IDC_BTN_CUSTOM_ELC, "IDC_BTN_CUSTOM_ELC"},
    {SchemePage::UvLamps, IDC_STATIC_LPRINT, "IDC_STATIC_LPRINT"},
    {SchemePage::UvLamps, IDC_STATIC_RPRINT, "IDC_STATIC_RPRINT"},
    {SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT, "IDC_CHECK_LPRINT_LLIGHT"},
    {SchemePage::UvLamps, IDC_CHECK_LPRINT_RLIGHT, "IDC_CHECK_LPRINT_RLIGHT"},
    {SchemePage::UvLamps, IDC_CHECK_RPRINT_LLIGHT, "IDC_CHECK_RPRINT_LLIGHT"},
    {SchemePage::UvLamps, IDC_CHECK_RPRINT_RLIGHT, "IDC_CHECK_RPRINT_RLIGHT"},
    {SchemePage::SmallFormat, IDC_STATIC_SMALL_MODE, "IDC_STATIC_SMALL_MODE"},
    {SchemePage::SmallFormat, IDC_STATIC_SMALL_OFFSET, "IDC_STATIC_SMALL_OFFSET"},
};

using SchemePages = FactorySchemeFixture;

TEST_F(SchemePages, LabelsHaveTheKeysOfTheLanguageFile)
{
    std::string texts = "[DLG_PRINT_SCHEME]\n";
    for (const Label& label : kLabels)
        texts += label.key + "=Of " + label.key + "\n";
    m_language.WriteBytes(texts);
    Run([](FactoryEditor& editor) {
        for (const Label& label : kLabels)
            EXPECT_EQ(Utf8(editor.Page(label.page).Control(label.id).Text()), "Of " + label.key);
        editor.Cancel();
    });
}

TEST_F(SchemePages, LabelsAreEmptyWithoutLanguageFile)
{
    RemoveTexts();
    Run([](FactoryEditor& editor) {
        for (const Label& label : kLabels)
            EXPECT_EQ(editor.Page(label.page).Control(label.id).Text(), L"") << label.key;
        editor.Cancel();
    });
}

TEST_F(SchemePages, StoreWhatTheyLoadedForEachScheme)
{
    Run([this](FactoryEditor& editor) {
        editor.Schemes().ClickRow(1);
        EXPECT_EQ(NewChanges(), Stored(0));
        editor.Schemes().ClickRow(2);
        EXPECT_EQ(NewChanges(), Stored(1));
        editor.Configs().ClickRow(1);
        EXPECT_EQ(NewChanges(), Stored(3));
        editor.Configs().ClickRow(0);
        EXPECT_EQ(NewChanges(), Stored(2));
        editor.Cancel();
    });
}

// The pages that were never opened hold their scheme as well.
TEST_F(SchemePages, AreAllEditableForASchemeAndNoneWithout)
{
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(EditablePages(editor), editor.Pages());
        editor.Configs().ClickRow(2);
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        editor.Configs().ClickRow(1);
        EXPECT_EQ(EditablePages(editor), editor.Pages());
        editor.Cancel();
    });
}

TEST_F(SchemePages, WithoutSchemeStoreNothing)
{
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(2);
        NewChanges();
        editor.Apply();
        editor.Configs().ClickRow(0);
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

// An edit of every page goes to the scheme that was shown while it was made, and to no other.
TEST_F(SchemePages, EditsGoToTheSchemeTheyWereMadeFor)
{
    Run([this](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Edited");
        editor.Combo(SchemePage::Mode, IDC_CMB_PRINT_MODE).Pick(2);
        editor.Combo(SchemePage::Eclosion, IDC_CMB_DOT_MODE).Pick(3);
        editor.Combo(SchemePage::InkMultiple, IDC_CMB_INK_MUL_FIRST).Pick(7);
        editor.Slider(SchemePage::InkCut, IDC_SLIDER_INK_CUT_FIRST + 8).Press(VK_HOME);
        editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT).Click();
        editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET).Type(L"1");
        editor.Schemes().ClickRow(1);
        refhost::FactoryScheme& poster = Poster();
        poster.name = "Edited";
        poster.modeIndex = 2;
        poster.dotMode = 3;
        poster.inkMultiple[3] = 80;
        poster.inkCut[9] = 0;
        poster.lampLL = 0;
        poster.smallFormatOffset = 1;
        EXPECT_EQ(NewChanges(), Stored(0));
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Stored(1) + kFactorySchemesSaved);
}

TEST_F(SchemePages, AskTheHostForTheirSchemeEachTime)
{
    Run([this](FactoryEditor& editor) {
        InHost(editor, [](IHostData& data) {
            data.GetFactorySchemeList()->GetAt(1)->SetName("Renamed");
            data.GetFactorySchemeList()->GetAt(1)->SetLampLR(0);
        });
        editor.Schemes().ClickRow(1);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Renamed");
        EXPECT_FALSE(editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_RLIGHT).IsChecked());
        editor.Cancel();
    });
}
} // namespace
