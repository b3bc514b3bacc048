#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
class UserSchemePages : public UserSchemeFixture
{
protected:
    // Runs the editor with the row selected; the script acts on the pages.
    void Show(int row, const Script& script)
    {
        Run([&](UserEditor& editor) {
            editor.Schemes().ClickRow(row);
            script(editor);
            editor.Cancel();
        });
    }

    // Lets the script edit the scheme on the row, and stores it by selecting no scheme.
    void Edit(int row, const Script& script)
    {
        Show(row, [&](UserEditor& editor) {
            script(editor);
            editor.Schemes().ClickRow(kDivider);
        });
    }

    // What the pages store of a scheme that nobody edits.
    void StoreUnchanged(int row)
    {
        Edit(row, [](UserEditor&) {});
    }

    static void ExpectEnabled(const Window& page, std::initializer_list<int> ids, bool enabled)
    {
        for (int id : ids)
            EXPECT_EQ(page.Control(id).IsEnabled(), enabled) << id;
    }

    static void ExpectHidden(const Window& page, std::initializer_list<int> ids)
    {
        for (int id : ids)
            EXPECT_FALSE(page.Control(id).IsVisible()) << id;
    }

    static std::string MineCall(const std::string& call) { return "IUserScheme[0]." + call; }
};

class UserSchemeCommonPage : public UserSchemePages
{
protected:
    static ComboBox Combo(const UserEditor& editor, int id) { return editor.Combo(SchemePage::Common, id); }
};

class UserSchemeEclosionPage : public UserSchemePages
{
protected:
    static ComboBox Combo(const UserEditor& editor, int id) { return editor.Combo(SchemePage::Eclosion, id); }
    static Trackbar CustomRange(const UserEditor& editor)
    {
        return editor.Slider(SchemePage::Eclosion, IDC_SLIDER_CUSTOM_RANGE);
    }
};

class UserSchemeInkMultiplePage : public UserSchemePages
{
protected:
    static ComboBox Multiple(const UserEditor& editor, int row)
    {
        return editor.Combo(SchemePage::InkMultiple, IDC_CMB_INK_MUL_FIRST + row);
    }

    static Texts ShownLabels(const UserEditor& editor)
    {
        const Window page = editor.Open(SchemePage::InkMultiple);
        Texts labels;
        for (int row = 0; row < 12; ++row)
        {
            const Window label = page.Control(IDC_STATIC_COLOR_FIRST + row);
            EXPECT_EQ(label.IsVisible(), page.Control(IDC_CMB_INK_MUL_FIRST + row).IsVisible()) << row;
            if (label.IsVisible())
                labels.push_back(label.Text());
        }
        return labels;
    }
};

class UserSchemeInkCutPage : public UserSchemePages
{
protected:
    static Trackbar Cut(const UserEditor& editor, int row)
    {
        return editor.Slider(SchemePage::InkCut, IDC_SLIDER_INK_CUT_FIRST + 2 * row);
    }
    static Window Number(const UserEditor& editor, int row)
    {
        return editor.Open(SchemePage::InkCut).Control(IDC_EDIT_INK_CUT_FIRST + 2 * row);
    }
};

class UserSchemeUvPage : public UserSchemePages
{
protected:
    static constexpr int kLamps[] = {IDC_CHECK_LPRINT_LLIGHT, IDC_CHECK_LPRINT_RLIGHT, IDC_CHECK_RPRINT_LLIGHT,
                                     IDC_CHECK_RPRINT_RLIGHT};

    static std::vector<bool> Ticks(const UserEditor& editor)
    {
        std::vector<bool> ticks;
        for (int id : kLamps)
            ticks.push_back(editor.Check(SchemePage::UvLamps, id).IsChecked());
        return ticks;
    }
};

class UserSchemeSmallFormatPage : public UserSchemePages
{
protected:
    static ComboBox Mode(const UserEditor& editor) { return editor.Combo(SchemePage::SmallFormat, IDC_CMB_SMALL_MODE); }
    static EditField Offset(const UserEditor& editor)
    {
        return editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET);
    }

    // What the host is told of the offset typed for "Mine".
    Calls OffsetStoredOf(const std::wstring& typed)
    {
        Edit(kMine, [&](UserEditor& editor) { Offset(editor).Type(typed); });
        return ChangesWith("SetSmallFormatOffset");
    }
};

TEST_F(UserSchemeCommonPage, ShowsAPresetLocked)
{
    Sign().speed = 1;
    Sign().direction = 2;
    Sign().material = 2;
    Sign().channel = 1;
    Sign().wave = 2;
    Show(kSign, [](UserEditor& editor) {
        const Window page = editor.Open(SchemePage::Common);
        ExpectEnabled(page,
                      {IDC_EDIT_NAME, IDC_CMB_SPEED, IDC_CMB_DIRECTION, IDC_CMB_MATERIAL, IDC_CMB_CHANNEL,
                       IDC_CMB_WAIT_STEP, IDC_CMB_WAVE, IDC_CMB_LAYOUT, IDC_CMB_HEAD, IDC_CMB_ENABLE},
                      false);
        ExpectHidden(page, {IDC_CMB_ENABLE, IDC_STATIC_ENABLE});
        EXPECT_EQ(page.Control(IDC_EDIT_NAME).Text(), L"Sign");
        EXPECT_EQ(Combo(editor, IDC_CMB_SPEED).SelectedText(), L"Medium");
        EXPECT_EQ(Combo(editor, IDC_CMB_DIRECTION).SelectedText(), L"Right");
        EXPECT_EQ(Combo(editor, IDC_CMB_MATERIAL).SelectedText(), L"Foil");
        EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).SelectedText(), L"CMYKW");
        EXPECT_EQ(Combo(editor, IDC_CMB_WAIT_STEP).SelectedText(), L"On");
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).SelectedText(), L"Wave2");
        EXPECT_EQ(Combo(editor, IDC_CMB_LAYOUT).SelectedText(), L"Four");
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).SelectedText(), L"Right");
    });
}

TEST_F(UserSchemeCommonPage, ShowsAUserSchemesOwnValuesAndThoseOfItsBaseLocked)
{
    Mine().speed = 2;
    Mine().direction = 3;
    Mine().material = 1;
    Mine().channel = 0;
    Poster().waitStepStop = 0;
    Poster().wave = 1;
    Poster().layoutId = 41;
    Poster().headId = 12;
    Show(kMine, [](UserEditor& editor) {
        const Window page = editor.Open(SchemePage::Common);
        ExpectEnabled(page, {IDC_EDIT_NAME, IDC_CMB_SPEED, IDC_CMB_DIRECTION, IDC_CMB_MATERIAL, IDC_CMB_CHANNEL}, true);
        ExpectEnabled(page, {IDC_CMB_WAIT_STEP, IDC_CMB_WAVE, IDC_CMB_LAYOUT, IDC_CMB_HEAD}, false);
        ExpectHidden(page, {IDC_CMB_ENABLE, IDC_STATIC_ENABLE});
        EXPECT_EQ(page.Control(IDC_EDIT_NAME).Text(), L"Mine");
        EXPECT_EQ(Combo(editor, IDC_CMB_SPEED).SelectedText(), L"Quick");
        EXPECT_EQ(Combo(editor, IDC_CMB_DIRECTION).SelectedText(), L"Both");
        EXPECT_EQ(Combo(editor, IDC_CMB_MATERIAL).SelectedText(), L"Paper");
        EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).SelectedText(), L"CMYK");
        EXPECT_EQ(Combo(editor, IDC_CMB_WAIT_STEP).SelectedText(), L"Off");
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).SelectedText(), L"Wave1");
        EXPECT_EQ(Combo(editor, IDC_CMB_LAYOUT).SelectedText(), L"Two");
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).SelectedText(), L"Single");
    });
}

TEST_F(UserSchemeCommonPage, HidesTheSwitchWithoutASchemeToo)
{
    Show(kDivider, [](UserEditor& editor) {
        ExpectHidden(editor.Open(SchemePage::Common), {IDC_CMB_ENABLE, IDC_STATIC_ENABLE});
    });
}

TEST_F(UserSchemeCommonPage, StoresWhatWasEditedInOrder)
{
    Edit(kMine, [](UserEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Renamed");
        Combo(editor, IDC_CMB_SPEED).Pick(3);
        Combo(editor, IDC_CMB_DIRECTION).Pick(1);
        Combo(editor, IDC_CMB_MATERIAL).Pick(2);
        Combo(editor, IDC_CMB_CHANNEL).Pick(1);
    });
    Mine().name = "Renamed";
    Mine().speed = 2;
    Mine().direction = 1;
    Mine().material = 2;
    Mine().channel = 1;
    EXPECT_EQ(Changes(), Calls(StoredMine()));
}

TEST_F(UserSchemeCommonPage, UnlimitedIsStoredAsTheByteOfMinusOne)
{
    Edit(kMine, [](UserEditor& editor) {
        for (int id : {IDC_CMB_SPEED, IDC_CMB_DIRECTION, IDC_CMB_MATERIAL})
            Combo(editor, id).Pick(0);
    });
    EXPECT_EQ(ChangesWith("(255)"),
              (Calls{MineCall("SetSpeed(255)"), MineCall("SetDirection(255)"), MineCall("SetMaterial(255)")}));
}

TEST_F(UserSchemeCommonPage, ValuesThatNoRowHasShowUnlimited)
{
    Mine().speed = -1;
    Mine().direction = 0;
    Mine().material = 9;
    Show(kMine, [](UserEditor& editor) {
        for (int id : {IDC_CMB_SPEED, IDC_CMB_DIRECTION, IDC_CMB_MATERIAL})
            EXPECT_EQ(Combo(editor, id).SelectedText(), L"Any") << id;
    });
}

TEST_F(UserSchemeCommonPage, WithoutWaveformsOffersUnlimitedOnly)
{
    m_machine.paramTables[0].entries = {0};
    Show(kMine, [](UserEditor& editor) { EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).Rows(), Texts{L"Any"}); });
}

TEST_F(UserSchemeCommonPage, WaveformsAreNumberedInChineseWithoutALanguageFile)
{
    RemoveTexts();
    Show(kMine, [](UserEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).Rows(), (Texts{L"", L"波形0", L"波形1", L"波形2"}));
    });
}

TEST_F(UserSchemeCommonPage, SetUpsThatDoNotFitAreLeftOutAndTheRowCounts)
{
    m_machine.channelSetups = {{"A", {9}}, {"B", {5}}, {"C", {5}}};
    Mine().channel = 1;
    Show(kMine, [this](UserEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).Rows(), (Texts{L"B", L"C"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).SelectedText(), L"C");
        Combo(editor, IDC_CMB_CHANNEL).Pick(0);
        editor.Schemes().ClickRow(kDivider);
        EXPECT_EQ(ChangesWith("SetChannel"), Calls{MineCall("SetChannel(0)")});
    });
}

TEST_F(UserSchemeCommonPage, SetUpThatIsNotListedSelectsNoRow)
{
    m_machine.channelSetups = {{"A", {5}}, {"B", {9}}};
    Mine().channel = 1;
    Edit(kMine, [](UserEditor& editor) { EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).Selected(), kNone); });
    EXPECT_EQ(ChangesWith("SetChannel"), Calls{MineCall("SetChannel(255)")});
}

TEST_F(UserSchemeCommonPage, ChineseNameTypedAsTextIsStoredInTheHostsCodePage)
{
    UseChineseNames();
    Edit(kMine, [](UserEditor& editor) { editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"光面"); });
    EXPECT_EQ(ChangesWith("SetName"), Calls{MineCall("SetName(\"\\xB9\\xE2\\xC3\\xE6\")")});
}

TEST_F(UserSchemeCommonPage, TakesNoMoreThanSixtyCharactersOfAName)
{
    Edit(kMine,
         [](UserEditor& editor) { editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(std::wstring(70, L'n')); });
    EXPECT_EQ(ChangesWith("SetName"), Calls{MineCall("SetName(\"" + std::string(60, 'n') + "\")")});
}

TEST_F(UserSchemeCommonPage, HostsNameOfMoreThanSixtyCharactersIsRefusedAndKept)
{
    Mine().name = std::string(70, 'n');
    Edit(kMine, [](UserEditor& editor) {
        editor.Schemes().ClickRow(kYours);
        editor.Op().AnswerMessageBox();
    });
    EXPECT_EQ(User(0).name, std::string(70, 'n'));
}

TEST_F(UserSchemeCommonPage, BaseThatNamesNoFactorySchemeShowsNothingOfIt)
{
    Mine().baseScheme = 200;
    Edit(kMine, [](UserEditor& editor) {
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Mine");
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).SelectedText(), L"Any");
        EXPECT_EQ(Combo(editor, IDC_CMB_LAYOUT).RowCount(), 0);
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).RowCount(), 0);
    });
    EXPECT_EQ(Changes(),
              StoredMine().Common() + StoredMine().Eclosion() + StoredMine().InkCuts() + StoredMine().Lamps());
}

TEST_F(UserSchemeEclosionPage, ShowsAPresetLockedAndHidesTheDefaultRanges)
{
    Sign().eclosionType = 2;
    Sign().eclosionLevel = 4;
    Sign().dotMode = 3;
    Sign().headEclosionType = 1;
    Show(kSign, [](UserEditor& editor) {
        const Window page = editor.Open(SchemePage::Eclosion);
        ExpectEnabled(page,
                      {IDC_CMB_DOT_MODE, IDC_CMB_ELC_TYPE, IDC_CMB_ELC_LEVEL, IDC_SLIDER_CUSTOM_RANGE,
                       IDC_CMB_HEAD_ELC_TYPE, IDC_EDIT_RANGE_SS, IDC_EDIT_RANGE_S, IDC_EDIT_RANGE_M, IDC_EDIT_RANGE_L},
                      false);
        ExpectHidden(page,
                     {IDC_STATIC_RANGE_DEFAULT, IDC_STATIC_RD_SS, IDC_STATIC_RD_S, IDC_STATIC_RD_M, IDC_STATIC_RD_L,
                      IDC_EDIT_RANGE_SS, IDC_EDIT_RANGE_S, IDC_EDIT_RANGE_M, IDC_EDIT_RANGE_L, IDC_BTN_CUSTOM_ELC});
        EXPECT_EQ(Combo(editor, IDC_CMB_DOT_MODE).SelectedText(), L"Dots 4");
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_TYPE).SelectedText(), L"Waves");
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_LEVEL).SelectedText(), L"Custom Eclosion");
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD_ELC_TYPE).SelectedText(), L"Switch");
    });
}

TEST_F(UserSchemeEclosionPage, UnlocksAUserSchemeAndHidesTheDefaultRangesToo)
{
    Show(kMine, [](UserEditor& editor) {
        const Window page = editor.Open(SchemePage::Eclosion);
        ExpectEnabled(page, {IDC_CMB_DOT_MODE, IDC_CMB_ELC_TYPE, IDC_CMB_ELC_LEVEL, IDC_CMB_HEAD_ELC_TYPE}, true);
        ExpectHidden(page,
                     {IDC_STATIC_RANGE_DEFAULT, IDC_STATIC_RD_SS, IDC_STATIC_RD_S, IDC_STATIC_RD_M, IDC_STATIC_RD_L,
                      IDC_EDIT_RANGE_SS, IDC_EDIT_RANGE_S, IDC_EDIT_RANGE_M, IDC_EDIT_RANGE_L, IDC_BTN_CUSTOM_ELC});
        EXPECT_FALSE(CustomRange(editor).IsEnabled());
    });
}

TEST_F(UserSchemeEclosionPage, StoredLevelFourIsCustomAndFiveIsSuper)
{
    Mine().eclosionLevel = 4;
    Yours().eclosionLevel = 5;
    Edit(kMine, [](UserEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_LEVEL).Selected(), 5);
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_LEVEL).SelectedText(), L"Custom Eclosion");
        EXPECT_TRUE(CustomRange(editor).IsEnabled());
        editor.Schemes().ClickRow(kYours);
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_LEVEL).Selected(), 4);
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_LEVEL).SelectedText(), L"Super Eclosion");
        EXPECT_FALSE(CustomRange(editor).IsEnabled());
    });
    EXPECT_EQ(ChangesWith("SetEclosionLevel"),
              (Calls{MineCall("SetEclosionLevel(4)"), "IUserScheme[1].SetEclosionLevel(5)"}));
}

TEST_F(UserSchemeEclosionPage, CustomLevelThatTheHostDoesNotOfferShowsNoSelection)
{
    m_machine.paramTables[2].entries = {0};
    Mine().eclosionLevel = 4;
    Edit(kMine, [](UserEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_LEVEL).RowCount(), 5);
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_LEVEL).Selected(), kNone);
    });
    EXPECT_EQ(ChangesWith("SetEclosionLevel"), Calls{MineCall("SetEclosionLevel(255)")});
}

TEST_F(UserSchemeEclosionPage, OffersTheTypesThatTheHostHas)
{
    Mine().eclosionType = 1;
    Edit(kMine, [](UserEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_TYPE).Rows(), (Texts{L"Plain", L"Waves", L"Own"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_TYPE).Selected(), kNone);
    });
    EXPECT_EQ(ChangesWith("SetEclosionType"), Calls{MineCall("SetEclosionType(255)")});
}

TEST_F(UserSchemeEclosionPage, StoresWhatWasEditedInOrder)
{
    Edit(kMine, [](UserEditor& editor) {
        Combo(editor, IDC_CMB_ELC_TYPE).Pick(0);
        Combo(editor, IDC_CMB_ELC_LEVEL).Pick(5);
        CustomRange(editor).Track(77);
        Combo(editor, IDC_CMB_DOT_MODE).Pick(2);
        Combo(editor, IDC_CMB_HEAD_ELC_TYPE).Pick(0);
    });
    Mine().eclosionType = 0;
    Mine().eclosionLevel = 4;
    Mine().customRange = 77;
    Mine().dotMode = 2;
    Mine().headEclosionType = 0;
    EXPECT_EQ(Changes(), Calls(StoredMine()));
}

TEST_F(UserSchemeEclosionPage, TrackbarMovesTheNumberAtOnceAndTheHostOnlyWhenStored)
{
    Mine().eclosionLevel = 4;
    Show(kMine, [this](UserEditor& editor) {
        CustomRange(editor).Track(123);
        EXPECT_EQ(editor.Edit(SchemePage::Eclosion, IDC_EDIT_CUSTOM_RANGE).Text(), L"123");
        EXPECT_EQ(Changes(), Calls());
    });
}

TEST_F(UserSchemeEclosionPage, AnotherTypeUnlocksTheTrackbarWhateverTheLevel)
{
    Show(kMine, [](UserEditor& editor) {
        EXPECT_FALSE(CustomRange(editor).IsEnabled());
        Combo(editor, IDC_CMB_ELC_TYPE).Pick(0);
        EXPECT_TRUE(CustomRange(editor).IsEnabled());
        Combo(editor, IDC_CMB_ELC_LEVEL).Pick(0);
        EXPECT_FALSE(CustomRange(editor).IsEnabled());
    });
}

TEST_F(UserSchemeEclosionPage, ChoosingTheCustomTypeOpensItsDialogWhoseOkNamesTheDefinition)
{
    Show(kMine, [this](UserEditor& editor) {
        editor.Confirm(editor.OpenCustomEclosion());
        EXPECT_EQ(ChangesWith("IUserScheme"), Calls{MineCall("SetCustomEclosionId(0)")});
        EXPECT_FALSE(Combo(editor, IDC_CMB_ELC_LEVEL).IsEnabled());
    });
}

TEST_F(UserSchemeEclosionPage, GivingUpTheCustomDialogNamesNoDefinition)
{
    Show(kMine, [this](UserEditor& editor) {
        editor.Confirm(editor.OpenCustomEclosion(), IDCANCEL);
        EXPECT_EQ(ChangesWith("IUserScheme"), Calls());
    });
}

TEST_F(UserSchemeEclosionPage, LoadingTheCustomTypeOpensNoDialog)
{
    Mine().eclosionType = kCustomEclosionType;
    Show(kMine, [](UserEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_ELC_TYPE).SelectedText(), L"Own");
        EXPECT_FALSE(Combo(editor, IDC_CMB_ELC_LEVEL).IsEnabled());
    });
}

TEST_F(UserSchemeEclosionPage, RangeThatIsTooLargeIsRefusedAndThePageStoresNothing)
{
    Mine().defaultRangeM = 250;
    Edit(kMine, [](UserEditor& editor) {
        editor.Schemes().ClickRow(kDivider);
        editor.Op().AnswerMessageBox();
    });
    EXPECT_EQ(Changes(), StoredMine().Common() + StoredMine().InkMultiples() + StoredMine().InkCuts() +
                             StoredMine().Lamps() + StoredMine().SmallFormat());
}

TEST_F(UserSchemeInkMultiplePage, ShowsAPresetLocked)
{
    Poster().inkMultiple[3] = 70;
    Show(kPoster, [](UserEditor& editor) {
        EXPECT_EQ(ShownLabels(editor), (Texts{L"Cyan", L"Magenta", L"Yellow", L"Black"}));
        for (int row = 0; row < 4; ++row)
            EXPECT_FALSE(Multiple(editor, row).IsEnabled()) << row;
        EXPECT_EQ(Multiple(editor, 0).SelectedText(), L"7");
    });
}

TEST_F(UserSchemeInkMultiplePage, UserSchemeHasTheChannelsOfItsBase)
{
    Sign().layoutId = 41;
    Yours().inkMultiple[5] = 40;
    Yours().inkMultiple[4] = 60;
    Edit(kYours, [](UserEditor& editor) {
        EXPECT_EQ(ShownLabels(editor), (Texts{L"White", L"Varnish"}));
        EXPECT_EQ(Multiple(editor, 0).SelectedText(), L"4");
        EXPECT_EQ(Multiple(editor, 1).SelectedText(), L"6");
        EXPECT_TRUE(Multiple(editor, 1).IsEnabled());
    });
    EXPECT_EQ(ChangesWith("SetInkMultiple"),
              (Calls{"IUserScheme[1].SetInkMultiple(40, 5)", "IUserScheme[1].SetInkMultiple(60, 4)"}));
}

TEST_F(UserSchemeInkMultiplePage, PartsOfAMultipleAreLost)
{
    Mine().inkMultiple = {5, 250, 79, 35};
    Edit(kMine, [](UserEditor& editor) {
        EXPECT_EQ(Multiple(editor, 0).Rows(), (Texts{L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8"}));
        EXPECT_EQ(Multiple(editor, 0).SelectedText(), L"3");
        EXPECT_EQ(Multiple(editor, 1).SelectedText(), L"7");
        EXPECT_EQ(Multiple(editor, 2).SelectedText(), L"1");
        EXPECT_EQ(Multiple(editor, 3).SelectedText(), L"1");
    });
    Mine().inkMultiple = {10, 10, 70, 30};
    EXPECT_EQ(Changes(), Calls(StoredMine()));
}

TEST_F(UserSchemeInkMultiplePage, StoresWhatWasChosen)
{
    Edit(kMine, [](UserEditor& editor) { Multiple(editor, 1).Pick(7); });
    Mine().inkMultiple[2] = 80;
    EXPECT_EQ(Changes(), Calls(StoredMine()));
}

TEST_F(UserSchemeInkMultiplePage, WithoutALayoutShowsAndStoresNothing)
{
    Poster().layoutId = 99;
    Yours().baseScheme = 200;
    Show(kMine, [](UserEditor& editor) {
        EXPECT_EQ(ShownLabels(editor), Texts());
        editor.Schemes().ClickRow(kYours);
        EXPECT_EQ(ShownLabels(editor), Texts());
        editor.Schemes().ClickRow(kDivider);
    });
    EXPECT_EQ(ChangesWith("SetInkMultiple"), Calls());
}

TEST_F(UserSchemeInkMultiplePage, SchemeWithoutALayoutBehindOneWithChannelsStoresNoMultiple)
{
    Yours().baseScheme = 200;
    Show(kMine, [this](UserEditor& editor) {
        editor.Schemes().ClickRow(kYours);
        NewChanges();
        editor.Schemes().ClickRow(kDivider);
    });
    EXPECT_EQ(ChangesWith("SetInkMultiple"), Calls());
    EXPECT_EQ(ChangesWith("IUserScheme[1].SetInkCut").size(), 5u);
}

TEST_F(UserSchemeInkCutPage, ShowsAPresetsNumbersButLocksItsTrackbars)
{
    Poster().inkCut[7] = 11;
    Poster().inkCut[9] = 100;
    Show(kPoster, [](UserEditor& editor) {
        for (int row = 0; row < 5; ++row)
        {
            EXPECT_TRUE(Number(editor, row).IsVisible()) << row;
            EXPECT_TRUE(Cut(editor, row).IsVisible()) << row;
            EXPECT_FALSE(Cut(editor, row).IsEnabled()) << row;
        }
        EXPECT_FALSE(Cut(editor, 5).IsVisible());
        EXPECT_EQ(Number(editor, 0).Text(), L"11");
        EXPECT_EQ(Number(editor, 1).Text(), L"11");
        EXPECT_EQ(Number(editor, 4).Text(), L"100");
        EXPECT_EQ(Cut(editor, 4).Position(), 100);
    });
}

TEST_F(UserSchemeInkCutPage, TrackbarMovesTheNumberAtOnceAndTheHostOnlyWhenStored)
{
    Edit(kMine, [this](UserEditor& editor) {
        Cut(editor, 4).Track(33);
        EXPECT_EQ(Number(editor, 4).Text(), L"33");
        EXPECT_EQ(Changes(), Calls());
    });
    Mine().inkCut[9] = 33;
    EXPECT_EQ(Changes(), Calls(StoredMine()));
}

TEST_F(UserSchemeInkCutPage, LastRowOfAGroupWins)
{
    Mine().inkCut[7] = 50;
    Edit(kMine, [](UserEditor& editor) {
        Cut(editor, 0).Track(20);
        Cut(editor, 1).Track(30);
    });
    EXPECT_EQ(ChangesWith(", 7)"), (Calls{MineCall("SetInkCut(20, 7)"), MineCall("SetInkCut(30, 7)")}));
    EXPECT_EQ(User(0).inkCut[7], 30);
}

TEST_F(UserSchemeInkCutPage, WithoutAnActiveSetUpShowsAndStoresNoRow)
{
    m_faults.failing = {"IDeviceState.GetActiveSetup()"};
    Edit(kMine, [](UserEditor& editor) {
        for (int row = 0; row < 12; ++row)
            EXPECT_FALSE(Cut(editor, row).IsVisible()) << row;
    });
    EXPECT_EQ(ChangesWith("SetInkCut"), Calls());
}

TEST_F(UserSchemeUvPage, ShowsAPresetLockedAndLeavesItUntouched)
{
    Poster().lampLL = Poster().lampRR = 1;
    Poster().lampLR = Poster().lampRL = 0;
    Edit(kPoster, [](UserEditor& editor) {
        EXPECT_EQ(Ticks(editor), (std::vector<bool>{true, false, false, true}));
        for (int id : kLamps)
            EXPECT_FALSE(editor.Check(SchemePage::UvLamps, id).IsEnabled()) << id;
    });
    EXPECT_EQ(ChangesWith("Lamp"), Calls());
}

TEST_F(UserSchemeUvPage, StoresTicksAsOneAndNoneAsZeroInOrder)
{
    Mine().lampLL = Mine().lampRL = 1;
    Mine().lampLR = Mine().lampRR = 0;
    Edit(kMine, [](UserEditor& editor) {
        EXPECT_EQ(Ticks(editor), (std::vector<bool>{true, false, true, false}));
        for (int id : kLamps)
            editor.Check(SchemePage::UvLamps, id).Click();
    });
    EXPECT_EQ(ChangesWith("Lamp"), (Calls{MineCall("SetLampLL(0)"), MineCall("SetLampLR(1)"), MineCall("SetLampRL(0)"),
                                          MineCall("SetLampRR(1)")}));
}

TEST_F(UserSchemeUvPage, KeepsItsTicksWithoutAScheme)
{
    Mine().lampLL = 1;
    Edit(kMine, [](UserEditor& editor) {
        const std::vector<bool> ticks = Ticks(editor);
        editor.Schemes().ClickRow(kDivider);
        EXPECT_EQ(Ticks(editor), ticks);
    });
}

TEST_F(UserSchemeSmallFormatPage, ShowsAPresetLocked)
{
    Sign().smallFormatMode = 0;
    Sign().smallFormatOffset = 65535;
    Show(kSign, [](UserEditor& editor) {
        EXPECT_FALSE(Mode(editor).IsEnabled());
        EXPECT_FALSE(Offset(editor).IsEnabled());
        EXPECT_EQ(Mode(editor).SelectedText(), L"Off");
        EXPECT_EQ(Offset(editor).Text(), L"65535");
    });
}

TEST_F(UserSchemeSmallFormatPage, PresetsModeThatNoRowHasIsWrittenBackUnchanged)
{
    Sign().smallFormatMode = 7;
    StoreUnchanged(kSign);
    EXPECT_EQ(Changes(), StoredScheme("3", Sign()).SmallFormat());
}

TEST_F(UserSchemeSmallFormatPage, ShowsTheBaseAndLetsTheOffsetAloneBeEdited)
{
    Poster().smallFormatMode = 1;
    Poster().smallFormatOffset = 12;
    Show(kMine, [](UserEditor& editor) {
        EXPECT_FALSE(Mode(editor).IsEnabled());
        EXPECT_TRUE(Offset(editor).IsEnabled());
        EXPECT_EQ(Mode(editor).SelectedText(), L"On");
        EXPECT_EQ(Offset(editor).Text(), L"12");
    });
}

TEST_F(UserSchemeSmallFormatPage, OffsetIsSharedWithTheBaseAndItsOtherUserSchemes)
{
    Yours().baseScheme = 0;
    Show(kMine, [](UserEditor& editor) {
        Offset(editor).Type(L"77");
        for (int row : {kYours, kPoster})
        {
            editor.Schemes().ClickRow(row);
            EXPECT_EQ(Offset(editor).Text(), L"77") << row;
        }
        editor.Schemes().ClickRow(kSign);
        EXPECT_EQ(Offset(editor).Text(), L"40003");
    });
    EXPECT_EQ(Factory(0).smallFormatOffset, 77);
}

TEST_F(UserSchemeSmallFormatPage, BaseThatNamesNoFactorySchemeShowsTheLastValuesAndStoresNothing)
{
    Yours().baseScheme = 200;
    Poster().smallFormatOffset = 12;
    Show(kMine, [this](UserEditor& editor) {
        editor.Schemes().ClickRow(kYours);
        EXPECT_EQ(Offset(editor).Text(), L"12");
        NewChanges();
        Offset(editor).Type(L"13");
        editor.Schemes().ClickRow(kDivider);
    });
    EXPECT_EQ(ChangesWith("SmallFormat"), Calls());
}

TEST_F(UserSchemeSmallFormatPage, OffsetsAreStoredAsTheirLowSixteenBits)
{
    EXPECT_EQ(OffsetStoredOf(L"65537"), Calls{"IPrintScheme[0].SetSmallFormatOffset(1)"});
    EXPECT_EQ(OffsetStoredOf(L"-1"), Calls{"IPrintScheme[0].SetSmallFormatOffset(65535)"});
}

TEST_F(UserSchemeSmallFormatPage, NegativeOffsetShowsAsItWasStored)
{
    Show(kMine, [](UserEditor& editor) {
        Offset(editor).Type(L"-1");
        editor.Schemes().ClickRow(kDivider);
        editor.Schemes().ClickRow(kMine);
        EXPECT_EQ(Offset(editor).Text(), L"65535");
    });
}

TEST_F(UserSchemeSmallFormatPage, TextThatIsNoNumberIsRefusedAndTheOldOffsetStored)
{
    Poster().smallFormatOffset = 12;
    Show(kMine, [this](UserEditor& editor) {
        Offset(editor).Type(L"far");
        editor.Schemes().ClickRow(kYours);
        editor.Op().AnswerMessageBox();
        EXPECT_EQ(ChangesWith("SmallFormatOffset"), Calls{"IPrintScheme[0].SetSmallFormatOffset(12)"});
        EXPECT_EQ(Offset(editor).Text(), L"40003");
    });
}

TEST_F(UserSchemeSmallFormatPage, HasTwoEmptyRowsWithoutALanguageFile)
{
    RemoveTexts();
    Run([](UserEditor& editor) {
        EXPECT_EQ(Mode(editor).Rows(), Texts(2));
        EXPECT_EQ(Mode(editor).Selected(), 1);
        editor.Cancel();
    });
}
} // namespace
