#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
constexpr int kRangeEdits[] = {IDC_EDIT_RANGE_SS, IDC_EDIT_RANGE_S, IDC_EDIT_RANGE_M, IDC_EDIT_RANGE_L};
constexpr int kRangeLabels[] = {IDC_STATIC_RANGE_DEFAULT, IDC_STATIC_RD_SS, IDC_STATIC_RD_S, IDC_STATIC_RD_M,
                                IDC_STATIC_RD_L};

class EclosionPage : public FactorySchemeFixture
{
protected:
    static ComboBox Combo(const FactoryEditor& editor, int controlId)
    {
        return editor.Combo(SchemePage::Eclosion, controlId);
    }
    static EditField Edit(const FactoryEditor& editor, int controlId)
    {
        return editor.Edit(SchemePage::Eclosion, controlId);
    }
    static ComboBox Types(const FactoryEditor& editor) { return Combo(editor, IDC_CMB_ELC_TYPE); }
    static ComboBox Levels(const FactoryEditor& editor) { return Combo(editor, IDC_CMB_ELC_LEVEL); }
    static EditField CustomRange(const FactoryEditor& editor) { return Edit(editor, IDC_EDIT_CUSTOM_RANGE); }
    static Trackbar CustomSlider(const FactoryEditor& editor)
    {
        return editor.Slider(SchemePage::Eclosion, IDC_SLIDER_CUSTOM_RANGE);
    }

    refhost::ParamTable& Table(std::uint32_t id)
    {
        for (refhost::ParamTable& table : m_machine.paramTables)
            if (table.id == id)
                return table;
        throw std::out_of_range("no such table");
    }

    void RunWithLevel(int code, const Script& script)
    {
        Poster().eclosionLevel = static_cast<std::uint8_t>(code);
        Run(script);
    }
};

TEST_F(EclosionPage, ShowsTheSchemesValues)
{
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_DOT_MODE).Selected(), Poster().dotMode);
        EXPECT_EQ(Types(editor).SelectedText(), L"Waves");
        EXPECT_EQ(Levels(editor).SelectedText(), L"Light Eclosion");
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD_ELC_TYPE).SelectedText(), L"Switch");
        EXPECT_EQ(Edit(editor, IDC_EDIT_RANGE_SS).Text(), L"11");
        EXPECT_EQ(Edit(editor, IDC_EDIT_RANGE_S).Text(), L"22");
        EXPECT_EQ(Edit(editor, IDC_EDIT_RANGE_M).Text(), L"33");
        EXPECT_EQ(Edit(editor, IDC_EDIT_RANGE_L).Text(), L"44");
        EXPECT_EQ(CustomRange(editor).Text(), L"55");
        EXPECT_EQ(CustomSlider(editor).Position(), 55);
        EXPECT_EQ(CustomSlider(editor).Lowest(), 0);
        EXPECT_EQ(CustomSlider(editor).Highest(), 200);
        EXPECT_TRUE(CustomRange(editor).HasStyle(ES_READONLY));
        editor.Cancel();
    });
}

TEST_F(EclosionPage, ListsHaveTheTextsOfTheLanguageFile)
{
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_DOT_MODE).Rows(), (Texts{L"Dots 1", L"Dots 2", L"Dots 3", L"Dots 4"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD_ELC_TYPE).Rows(), (Texts{L"Template", L"Switch", L"Filter"}));
        EXPECT_EQ(Types(editor).Rows(), (Texts{L"Plain", L"Waves", L"Own"}));
        editor.Cancel();
    });
}

TEST_F(EclosionPage, ListsHaveBuiltInTextsWithoutLanguageFile)
{
    RemoveTexts();
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_DOT_MODE).Rows(), Texts(4));
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD_ELC_TYPE).Rows(), Texts(3));
        EXPECT_EQ(Types(editor).Rows(), (Texts{L"ECL0_ID", L"ECL2_ID", L"ECL19_ID"}));
        EXPECT_EQ(Levels(editor).Rows(), (Texts{L"Close Eclosion", L"Light Eclosion", L"Normal Eclosion",
                                                L"Depth Eclosion", L"Super Eclosion", L"Custom Eclosion"}));
        editor.Cancel();
    });
}

TEST_F(EclosionPage, StoresEveryControl)
{
    Run([](FactoryEditor& editor) {
        Combo(editor, IDC_CMB_DOT_MODE).Pick(3);
        Types(editor).Pick(0);
        Levels(editor).Pick(5);
        Combo(editor, IDC_CMB_HEAD_ELC_TYPE).Pick(2);
        CustomSlider(editor).Track(77);
        Edit(editor, IDC_EDIT_RANGE_SS).Type(L"0");
        Edit(editor, IDC_EDIT_RANGE_S).Type(L"1");
        Edit(editor, IDC_EDIT_RANGE_M).Type(L"199");
        Edit(editor, IDC_EDIT_RANGE_L).Type(L"200");
        editor.SaveAndQuit();
    });
    refhost::FactoryScheme& poster = Poster();
    poster.dotMode = 3;
    poster.eclosionType = 0;
    poster.eclosionLevel = 4;
    poster.headEclosionType = 2;
    poster.defaultRangeSS = 0;
    poster.defaultRangeS = 1;
    poster.defaultRangeM = 199;
    poster.defaultRangeL = 200;
    poster.customRange = 77;
    EXPECT_EQ(Changes(), Stored(0) + kFactorySchemesSaved);
}

TEST_F(EclosionPage, LevelCodesFourAndFiveChangePlacesWhenLoaded)
{
    for (int code : {4, 5})
        RunWithLevel(code, [&](FactoryEditor& editor) {
            EXPECT_EQ(Levels(editor).Selected(), code == 4 ? 5 : 4) << code;
            EXPECT_EQ(CustomSlider(editor).IsEnabled(), code == 4) << code;
            editor.Cancel();
        });
}

TEST_F(EclosionPage, LevelCodesFourAndFiveChangePlacesWhenStored)
{
    Run([this](FactoryEditor& editor) {
        for (int row : {4, 5})
        {
            Levels(editor).Pick(row);
            editor.Apply();
        }
        EXPECT_EQ(ChangesWith("SetEclosionLevel"),
                  (Calls{"IPrintScheme[0].SetEclosionLevel(5)", "IPrintScheme[0].SetEclosionLevel(4)"}));
        editor.Cancel();
    });
}

TEST_F(EclosionPage, WithoutTheCustomLevelItsCodeShowsNoneAndIsStoredAsTheByteOfNone)
{
    Table(2057).entries = {0};
    RunWithLevel(4, [](FactoryEditor& editor) {
        EXPECT_EQ(Levels(editor).RowCount(), 5);
        EXPECT_EQ(Levels(editor).Selected(), kNone);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetEclosionLevel"), Calls{"IPrintScheme[0].SetEclosionLevel(255)"});
}

TEST_F(EclosionPage, TypesAreStoredByTheirPlaceInTheTable)
{
    Run([this](FactoryEditor& editor) {
        for (int row : {0, 1})
        {
            Types(editor).Pick(row);
            editor.Apply();
        }
        EXPECT_EQ(ChangesWith("SetEclosionType"),
                  (Calls{"IPrintScheme[0].SetEclosionType(0)", "IPrintScheme[0].SetEclosionType(2)"}));
        editor.Cancel();
    });
}

TEST_F(EclosionPage, TypeThatIsNotOfferedShowsNoneAndIsStoredAsTheByteOfNone)
{
    Poster().eclosionType = 5;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Types(editor).Selected(), kNone);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetEclosionType"), Calls{"IPrintScheme[0].SetEclosionType(255)"});
}

TEST_F(EclosionPage, ChoosingTheCustomTypeOpensItsDialogAndLocksTheLevel)
{
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCustomEclosion();
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), (Calls{"IHostControl.SaveCustomEclosionSet()", "IPrintScheme[0].SetCustomEclosionId(0)"}));
        EXPECT_FALSE(Levels(editor).IsEnabled());
        EXPECT_FALSE(CustomSlider(editor).IsEnabled());
        EXPECT_EQ(Types(editor).SelectedText(), L"Own");
        EXPECT_EQ(Levels(editor).SelectedText(), L"Light Eclosion");
        editor.Cancel();
    });
}

TEST_F(EclosionPage, GivingUpTheCustomDialogKeepsTheTypeAndNamesNoDefinition)
{
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCustomEclosion();
        NewChanges();
        editor.Confirm(dialog, IDCANCEL);
        EXPECT_EQ(Changes(), Calls());
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(Factory(0).eclosionType, kCustomEclosionType);
    EXPECT_EQ(Factory(0).customEclosionId, Poster().customEclosionId);
}

TEST_F(EclosionPage, LoadingTheCustomTypeOpensNoDialog)
{
    Banner().eclosionType = kCustomEclosionType;
    Run([](FactoryEditor& editor) {
        editor.Schemes().ClickRow(1);
        EXPECT_EQ(Types(editor).SelectedText(), L"Own");
        EXPECT_FALSE(Levels(editor).IsEnabled());
        EXPECT_FALSE(CustomSlider(editor).IsEnabled());
        editor.Schemes().ClickRow(0);
        EXPECT_TRUE(Levels(editor).IsEnabled());
        // Afterwards choosing it opens the dialog again.
        editor.Confirm(editor.OpenCustomEclosion(), IDCANCEL);
        editor.Cancel();
    });
}

// The level rule runs last when a scheme is loaded.
TEST_F(EclosionPage, LoadingTheCustomTypeWithTheCustomLevelLeavesTheTrackbarToTheLevel)
{
    Poster().eclosionType = kCustomEclosionType;
    RunWithLevel(4, [](FactoryEditor& editor) {
        EXPECT_FALSE(Levels(editor).IsEnabled());
        EXPECT_TRUE(CustomSlider(editor).IsEnabled());
        editor.Cancel();
    });
}

TEST_F(EclosionPage, NewTypeEnablesTheTrackbarWhateverTheLevel)
{
    RunWithLevel(1, [](FactoryEditor& editor) {
        EXPECT_FALSE(CustomSlider(editor).IsEnabled());
        Types(editor).Pick(0);
        EXPECT_TRUE(CustomSlider(editor).IsEnabled());
        EXPECT_TRUE(Levels(editor).IsEnabled());
        Levels(editor).Pick(2);
        EXPECT_FALSE(CustomSlider(editor).IsEnabled());
        Levels(editor).Pick(5);
        EXPECT_TRUE(CustomSlider(editor).IsEnabled());
        Levels(editor).Pick(4);
        EXPECT_FALSE(CustomSlider(editor).IsEnabled());
        editor.Cancel();
    });
}

TEST_F(EclosionPage, TrackbarUpdatesItsNumberAtOnceAndTheHostOnlyWhenStored)
{
    RunWithLevel(4, [this](FactoryEditor& editor) {
        const Trackbar slider = CustomSlider(editor);
        const std::pair<int, std::wstring> keys[] = {
            {VK_RIGHT, L"56"}, {VK_LEFT, L"55"}, {VK_HOME, L"0"}, {VK_END, L"200"}};
        for (const auto& [key, shown] : keys)
        {
            slider.Press(key);
            EXPECT_EQ(CustomRange(editor).Text(), shown);
        }
        slider.Track(120);
        EXPECT_EQ(CustomRange(editor).Text(), L"120");
        slider.LetGo(130);
        EXPECT_EQ(CustomRange(editor).Text(), L"130");
        EXPECT_EQ(Changes(), Calls());
        editor.Apply();
        EXPECT_EQ(ChangesWith("SetCustomRange"), Calls{"IPrintScheme[0].SetCustomRange(130)"});
        editor.Cancel();
    });
}

// A move of the trackbar shows all values of the page anew, those not taken over yet as well.
TEST_F(EclosionPage, TrackbarPutsRangesBackThatWereOnlyTyped)
{
    RunWithLevel(4, [](FactoryEditor& editor) {
        Edit(editor, IDC_EDIT_RANGE_SS).Type(L"99");
        CustomSlider(editor).Track(77);
        EXPECT_EQ(Edit(editor, IDC_EDIT_RANGE_SS).Text(), L"11");
        editor.Cancel();
    });
}

TEST_F(EclosionPage, RefusedRangeStopsThisPageAloneWithOnePrompt)
{
    for (int id : kRangeEdits)
        for (const wchar_t* text : {L"201", L""})
            Run([&](FactoryEditor& editor) {
                Edit(editor, id).Type(text);
                editor.Schemes().ClickRow(1);
                editor.Op().AnswerMessageBox();
                const StoredScheme stored = StoredPages(0);
                EXPECT_EQ(NewChanges(), stored.Common() + stored.Mode() + stored.InkMultiples() + stored.InkCuts() +
                                            stored.Lamps() + stored.SmallFormat());
                EXPECT_EQ(editor.Schemes().Selected(), 1);
                EXPECT_EQ(Edit(editor, IDC_EDIT_RANGE_SS).Text(), L"12");
                editor.Apply();
                EXPECT_EQ(Changes(), Stored(1));
                editor.Cancel();
            });
}

TEST_F(EclosionPage, RefusedRangeDoesNotKeepTheEditorFromSaving)
{
    Run([](FactoryEditor& editor) {
        Edit(editor, IDC_EDIT_RANGE_M).Type(L"999");
        editor.Press(IDOK);
        editor.Op().AnswerMessageBox();
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(ChangesWith("SetDefaultRangeM"), Calls());
    EXPECT_EQ(Changes().back(), kFactorySchemesSaved.back());
}

TEST_F(EclosionPage, RangeOfTheHostThatIsTooLargeIsShownAndRefused)
{
    Poster().defaultRangeL = 250;
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(Edit(editor, IDC_EDIT_RANGE_L).Text(), L"250");
        editor.Schemes().ClickRow(1);
        editor.Op().AnswerMessageBox();
        EXPECT_EQ(ChangesWith("SetDefaultRangeL"), Calls());
        editor.Cancel();
    });
}

TEST_F(EclosionPage, RangesTakeDigitsOnly)
{
    Run([](FactoryEditor& editor) {
        for (int id : kRangeEdits)
            EXPECT_TRUE(Edit(editor, id).HasStyle(ES_NUMBER)) << id;
        EXPECT_TRUE(CustomRange(editor).HasStyle(ES_NUMBER));
        Edit(editor, IDC_EDIT_RANGE_SS).Type(L"1a2");
        EXPECT_EQ(Edit(editor, IDC_EDIT_RANGE_SS).Text(), L"12");
        editor.Cancel();
    });
}

TEST_F(EclosionPage, CustomButtonAndCustomTypeNeverShow)
{
    Run([](FactoryEditor& editor) {
        for (int id : {IDC_STATIC_TYPE_CUSTOM, IDC_CMB_CUSTOM_TYPE, IDC_BTN_CUSTOM_ELC})
            EXPECT_FALSE(Combo(editor, id).IsVisible()) << id;
        EXPECT_EQ(Combo(editor, IDC_CMB_CUSTOM_TYPE).RowCount(), 0);
        editor.Schemes().ClickRow(1);
        EXPECT_FALSE(Combo(editor, IDC_BTN_CUSTOM_ELC).IsVisible());
        editor.Cancel();
    });
}

TEST_F(EclosionPage, DefaultRangesShowForASchemeOnly)
{
    Run([](FactoryEditor& editor) {
        const Window page = editor.Open(SchemePage::Eclosion);
        const auto expectShown = [&](bool shown) {
            for (int id : kRangeEdits)
                EXPECT_EQ(page.Control(id).IsVisible(), shown) << id;
            for (int id : kRangeLabels)
                EXPECT_EQ(page.Control(id).IsVisible(), shown) << id;
        };
        expectShown(true);
        editor.Configs().ClickRow(2);
        expectShown(false);
        for (int id :
             {IDC_CMB_DOT_MODE, IDC_CMB_ELC_TYPE, IDC_CMB_ELC_LEVEL, IDC_CMB_HEAD_ELC_TYPE, IDC_SLIDER_CUSTOM_RANGE})
            EXPECT_FALSE(page.Control(id).IsEnabled()) << id;
        editor.Configs().ClickRow(0);
        expectShown(true);
        editor.Cancel();
    });
}

TEST_F(EclosionPage, DotModeAndHeadTypeWithoutARowAreStoredAsTheByteOfNone)
{
    Poster().dotMode = 4;
    Poster().headEclosionType = 3;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_DOT_MODE).Selected(), kNone);
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD_ELC_TYPE).Selected(), kNone);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetDotMode"), Calls{"IPrintScheme[0].SetDotMode(255)"});
    EXPECT_EQ(ChangesWith("SetHeadEclosionType"), Calls{"IPrintScheme[0].SetHeadEclosionType(255)"});
}

TEST_F(EclosionPage, SchemeThatVanishedWhileItsCustomDialogWasOpenGetsNoDefinition)
{
    Run([this](FactoryEditor& editor) {
        editor.Schemes().ClickRow(2);
        const Window dialog = editor.OpenCustomEclosion();
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(3); });
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), Calls{"IHostControl.SaveCustomEclosionSet()"});
        editor.Cancel();
    });
}
} // namespace
