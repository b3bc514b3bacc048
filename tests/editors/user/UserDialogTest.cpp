#include "tests/editors/fixtures/RefusingList.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
class UserSchemeDialog : public UserSchemeFixture
{
protected:
    // Leaves the first configuration with one user scheme and no preset.
    void KeepOneSchemeOnly()
    {
        Poster().enabled = Sign().enabled = false;
        m_machine.userSchemes.resize(1);
    }

    static Calls LampOfFourthScheme(bool lit) { return {"IUserScheme[3].SetLampLL(" + std::to_string(lit) + ")"}; }

    static void ClickLamp(const UserEditor& editor)
    {
        editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT).Click();
    }
};

TEST_F(UserSchemeDialog, ListsPresetsADividerAndTheUserSchemesOfTheFirstConfiguration)
{
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), (Texts{L"Fast", L"Fine", L"Draft"}));
        EXPECT_EQ(editor.Configs().Selected(), 0);
        // "Poster", "Sign", "Mine" and "Yours", two bytes a character
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{L"\x6F50\x7473\x7265(preset)", L"\x6953\x6E67(preset)",
                                                  L"----------------------", L"\x694D\x656E", L"\x6F59\x7275\x0073"}));
        EXPECT_FALSE(editor.Schemes().HasStyle(LBS_SORT));
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, PresetsAreMarkedInChineseWithoutALanguageFile)
{
    RemoveTexts();
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Row(kSign), L"\x6953\x6E67(预设)");
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, ListsTheSchemesOfAnotherConfiguration)
{
    Run([](UserEditor& editor) {
        editor.Configs().ClickRow(1);
        EXPECT_EQ(editor.Schemes().Rows(),
                  (Texts{Unconverted("Photo") + L"(preset)", kDividerText, Unconverted("Album")}));
        EXPECT_EQ(editor.Schemes().Selected(), kNone);
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, ChineseNamesStandUnconvertedInAnyCodePage)
{
    UseChineseNames();
    Sign().name = "\xB9\xE2\xC3\xE6";
    Mine().name = "\xB4\xF2\xD3\xA1";
    Yours().name = "\xB4\xF2X";
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Row(kSign), L"\xE2B9\xE6C3(preset)");
        EXPECT_EQ(editor.Schemes().Row(kMine), L"\xF2B4\xA1D3");
        EXPECT_EQ(editor.Schemes().Row(kYours), L"\xF2B4\x0058");
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, EmptyNamesKeepTheirRows)
{
    Sign().name = Mine().name = "";
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Row(kSign), L"(preset)");
        EXPECT_EQ(editor.Schemes().Row(kMine), L"");
        EXPECT_EQ(editor.Schemes().RowCount(), 5);
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, MissingNamesShowTheFormatsWord)
{
    m_faults.failing = {"IPrintScheme[3].GetName()", "IUserScheme[0].GetName()"};
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Row(kSign), L"(null)(preset)");
        EXPECT_EQ(editor.Schemes().Row(kMine), L"(null)");
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, MissingSchemesAreLeftOutAndMoveNoId)
{
    m_faults.failing = {"ISchemeList[factory].GetAt(0)", "ISchemeList[user].GetAt(0)"};
    Run([this](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Rows(),
                  (Texts{Unconverted("Sign") + L"(preset)", kDividerText, Unconverted("Yours")}));
        editor.Schemes().ClickRow(2);
        EXPECT_EQ(NewChanges(), Calls());
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), StoredYours() + kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, NothingIsSelectedAtFirst)
{
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Selected(), kNone);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_ADD_SCHEME));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        EXPECT_EQ(editor.Tab().Selected(), 0);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, ConfigurationWithoutEnabledPresetsShowsNoDivider)
{
    Poster().enabled = Sign().enabled = false;
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{Unconverted("Mine"), Unconverted("Yours")}));
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_ADD_SCHEME));
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, ConfigurationWithoutSchemesIsEmptyAndNothingCanBeAdded)
{
    Run([](UserEditor& editor) {
        editor.Configs().ClickRow(2);
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_ADD_SCHEME));
        editor.Configs().ClickRow(1);
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_ADD_SCHEME));
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, OnlyAUserSchemeCanBeDeleted)
{
    Run([](UserEditor& editor) {
        for (const auto& [row, isUsers] :
             {std::pair(kMine, true), std::pair(kPoster, false), std::pair(kYours, true), std::pair(kDivider, false)})
        {
            editor.Schemes().ClickRow(row);
            EXPECT_EQ(editor.IsEnabled(IDC_BTN_DEL_SCHEME), isUsers) << row;
        }
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, OnlyAUserSchemeCanBeEdited)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        EXPECT_EQ(EditablePages(editor), kAllUserPages);
        for (int row : {kPoster, kDivider})
        {
            editor.Schemes().ClickRow(row);
            EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>()) << row;
        }
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, PagesStoreTheSchemeThatIsLeftInTabOrder)
{
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        EXPECT_EQ(NewChanges(), Calls());
        editor.Schemes().ClickRow(kYours);
        EXPECT_EQ(NewChanges(), Calls(StoredMine()));
        editor.Schemes().ClickRow(kDivider);
        EXPECT_EQ(NewChanges(), Calls(StoredYours()));
        editor.Schemes().ClickRow(kMine);
        EXPECT_EQ(NewChanges(), Calls());
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), StoredMine() + kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, PresetIsWrittenNothingButItsSmallFormatUnchanged)
{
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kPoster);
        EXPECT_EQ(NewChanges(), Calls());
        editor.Schemes().ClickRow(kSign);
        EXPECT_EQ(NewChanges(), StoredScheme("0", Poster()).SmallFormat());
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), StoredScheme("3", Sign()).SmallFormat() + kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, AnotherConfigurationStoresThePagesAndShowsNoScheme)
{
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        ClickLamp(editor);
        editor.Configs().ClickRow(1);
        Mine().lampLL = !Mine().lampLL;
        EXPECT_EQ(NewChanges(), Calls(StoredMine()));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, SavesOnceUnderTheWaitCursor)
{
    Run([this](UserEditor& editor) {
        HCURSOR cursor = nullptr;
        Host().OnSave([&](refhost::SaveRequest) { cursor = GetCursor(); });
        editor.SaveAndQuit();
        EXPECT_EQ(cursor, LoadCursorW(nullptr, IDC_WAIT));
    });
    EXPECT_EQ(Changes(), kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, CancelStoresNothingAndSavesNothing)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        ClickLamp(editor);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(UserSchemeDialog, EscapeIsACancel)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        editor.Op().Key(VK_ESCAPE);
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(UserSchemeDialog, CloseBoxIsACancel)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        editor.Op().Close(editor.Dialog());
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(UserSchemeDialog, CancelLeavesInTheHostWhatWasAddedAndStoredBefore)
{
    Run([](UserEditor& editor) {
        editor.AddScheme(L"Fresh");
        ClickLamp(editor);
        editor.Schemes().ClickRow(kDivider);
        editor.Cancel();
    });
    EXPECT_EQ(UserSchemeNames(), (std::vector<std::string>{"Mine", "Yours", "Album", "Fresh"}));
    EXPECT_EQ(User(3).lampLL, !Poster().lampLL);
    EXPECT_EQ(ChangesWith("SaveParameters"), Calls());
}

TEST_F(UserSchemeDialog, ApplyIsHiddenAndStoresWithoutSaving)
{
    Run([this](UserEditor& editor) {
        const Window apply = editor.Dialog().Control(IDC_BTN_APPLY);
        EXPECT_FALSE(apply.IsVisible());
        editor.Schemes().ClickRow(kMine);
        editor.Op().OnUi([&] { ShowWindow(apply.Handle(), SW_SHOW); });
        apply.Click();
        EXPECT_EQ(NewChanges(), Calls(StoredMine()));
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, DeletingSelectsTheSchemeThatMovedIntoThePlace)
{
    Run([this](UserEditor& editor) {
        editor.DeleteScheme(kMine);
        EXPECT_EQ(editor.Schemes().Selected(), kMine);
        EXPECT_EQ(editor.Schemes().Row(kMine), Unconverted("Yours"));
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Yours");
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, DeletingTheLastRowSelectsTheNewLastOne)
{
    Run([](UserEditor& editor) {
        editor.DeleteScheme(kYours);
        EXPECT_EQ(editor.Schemes().Selected(), kMine);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Mine");
        editor.Press(IDC_BTN_DEL_SCHEME);
        EXPECT_EQ(editor.Schemes().Selected(), kDivider);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, DeletingTheOnlySchemeLeavesNothingSelected)
{
    KeepOneSchemeOnly();
    Run([](UserEditor& editor) {
        editor.DeleteScheme(0);
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        EXPECT_EQ(editor.Schemes().Selected(), kNone);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Calls{"ISchemeList[user].RemoveAt(0)"} + kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, DeletedSchemesPendingEditsAreDropped)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        ClickLamp(editor);
        editor.Press(IDC_BTN_DEL_SCHEME);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(UserSchemeDialog, DeletedSchemesStayInTheHostAfterACancel)
{
    Run([](UserEditor& editor) {
        editor.DeleteScheme(kMine);
        editor.Press(IDC_BTN_DEL_SCHEME);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
    EXPECT_EQ(UserSchemeNames(), (std::vector<std::string>{"Mine", "Yours", "Album"}));
}

TEST_F(UserSchemeDialog, DeletedSchemesAreRemovedFromTheHighestIndexDown)
{
    Album().configIndex = 0;
    const Calls removed = Calls{"ISchemeList[user].RemoveAt(2)", "ISchemeList[user].RemoveAt(0)"} + kUserSchemesSaved;
    for (const auto& [first, second] : {std::pair(kYours + 1, kMine + 0), std::pair(kMine + 0, kYours + 0)})
    {
        Run([&, firstRow = first, secondRow = second](UserEditor& editor) {
            editor.DeleteScheme(firstRow);
            editor.Schemes().ClickRow(kPoster);
            NewChanges();
            editor.DeleteScheme(secondRow);
            editor.Schemes().ClickRow(kDivider);
            NewChanges();
            editor.SaveAndQuit();
        });
        EXPECT_EQ(Changes(), removed);
        EXPECT_EQ(UserSchemeNames(), std::vector<std::string>{"Yours"});
    }
}

TEST_F(UserSchemeDialog, DeletionsComeAfterThePagesAndBeforeTheSave)
{
    Run([](UserEditor& editor) {
        editor.DeleteScheme(kMine);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), StoredYours() + Calls{"ISchemeList[user].RemoveAt(0)"} + kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, DeletedSchemeComesBackWithTheListAndIsRemovedOnce)
{
    Run([this](UserEditor& editor) {
        editor.DeleteScheme(kYours);
        editor.Configs().ClickRow(1);
        editor.Configs().ClickRow(0);
        EXPECT_EQ(editor.Schemes().Row(kYours), Unconverted("Yours"));
        editor.DeleteScheme(kYours);
        editor.Schemes().ClickRow(kDivider);
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Calls{"ISchemeList[user].RemoveAt(1)"} + kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, SchemesOfSeveralConfigurationsAreDeletedTogether)
{
    Run([this](UserEditor& editor) {
        editor.Configs().ClickRow(1);
        editor.DeleteScheme(2);
        editor.Configs().ClickRow(0);
        editor.DeleteScheme(kMine);
        editor.Schemes().ClickRow(kDivider);
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), (Calls{"ISchemeList[user].RemoveAt(2)", "ISchemeList[user].RemoveAt(0)"} + kUserSchemesSaved));
    EXPECT_EQ(UserSchemeNames(), std::vector<std::string>{"Yours"});
}

TEST_F(UserSchemeDialog, AddedSchemeIsSelectedAndShown)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kSign);
        editor.AddScheme(L"Fresh");
        EXPECT_EQ(editor.Schemes().RowCount(), 6);
        EXPECT_EQ(editor.Schemes().Selected(), 5);
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Fresh");
        EXPECT_EQ(EditablePages(editor), kAllUserPages);
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, AddedSchemesIdFollowsAllUserSchemesOfEveryConfiguration)
{
    Run([this](UserEditor& editor) {
        editor.Configs().ClickRow(1);
        editor.AddScheme(L"First");
        NewChanges();
        ClickLamp(editor);
        editor.Configs().ClickRow(0);
        EXPECT_EQ(ChangesWith("SetLampLL"), LampOfFourthScheme(!Photo().lampLL));
        editor.AddScheme(L"Second");
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IUserScheme[4].SetName(\"Second\")"});
}

TEST_F(UserSchemeDialog, AddedSchemeReadsCorrectlyUntilTheListIsRebuilt)
{
    Run([](UserEditor& editor) {
        editor.AddScheme(L"Fresh");
        EXPECT_EQ(editor.Schemes().Row(5), L"Fresh");
        editor.Configs().ClickRow(1);
        editor.Configs().ClickRow(0);
        EXPECT_EQ(editor.Schemes().Row(5), L"\x7246\x7365\x0068");
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, AddedSchemeShowsTheNameThatTheHostGivesBack)
{
    m_faults.failing = {"IUserScheme[3].GetName()"};
    Run([](UserEditor& editor) {
        editor.AddScheme(L"Fresh");
        EXPECT_EQ(editor.Schemes().Row(5), L"");
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, AdditionAfterADeletionCountsTheDeletedOne)
{
    Run([this](UserEditor& editor) {
        editor.DeleteScheme(kMine);
        editor.AddScheme(L"Fresh");
        EXPECT_EQ(editor.Schemes().Selected(), 4);
        NewChanges();
        ClickLamp(editor);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetLampLL"), LampOfFourthScheme(!Yours().lampLL));
    EXPECT_EQ(ChangesWith("RemoveAt"), Calls{"ISchemeList[user].RemoveAt(0)"});
    EXPECT_EQ(UserSchemeNames(), (std::vector<std::string>{"Yours", "Album", "Fresh"}));
}

TEST_F(UserSchemeDialog, AddedSchemeCanBeDeletedWithOlderOnes)
{
    Run([](UserEditor& editor) {
        editor.AddScheme(L"Fresh");
        editor.Press(IDC_BTN_DEL_SCHEME);
        editor.DeleteScheme(kMine);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("RemoveAt"), (Calls{"ISchemeList[user].RemoveAt(3)", "ISchemeList[user].RemoveAt(0)"}));
    EXPECT_EQ(UserSchemeNames(), (std::vector<std::string>{"Yours", "Album"}));
}

TEST_F(UserSchemeDialog, TabControlLiesOverItsHiddenPlaceholder)
{
    Run([](UserEditor& editor) {
        const Window placeholder = editor.Dialog().Control(IDC_TAB);
        const TabStrip tab = editor.Tab();
        RECT expected{};
        RECT actual{};
        GetWindowRect(placeholder.Handle(), &expected);
        GetWindowRect(tab.Handle(), &actual);
        EXPECT_NE(placeholder, tab);
        EXPECT_FALSE(placeholder.IsVisible());
        EXPECT_EQ(tab.Id(), IDC_TAB);
        EXPECT_TRUE(EqualRect(&actual, &expected));
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, NothingIsAddedWhenTheHostMakesNoScheme)
{
    m_faults.failing = {"ISchemeList[user].AddScheme()"};
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        editor.AddScheme(L"Fresh");
        EXPECT_EQ(editor.Schemes().RowCount(), 5);
        EXPECT_EQ(editor.Schemes().Selected(), kMine);
        EXPECT_EQ(Changes(), Calls{"ISchemeList[user].AddScheme()"});
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, SchemeThatTheListRefusesIsRemovedAgain)
{
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        const RefusingList refusing(editor, editor.Schemes());
        editor.AddScheme(L"Fresh");
        EXPECT_EQ(Changes(), (Calls{"ISchemeList[user].AddScheme()", "ISchemeParams[user.3].CopyFrom(user.0)",
                                    "IUserScheme[3].SetName(\"Fresh\")", "ISchemeList[user].RemoveAt(3)"}));
        EXPECT_EQ(editor.Schemes().RowCount(), 5);
        EXPECT_EQ(editor.Schemes().Selected(), kMine);
        editor.Cancel();
    });
    EXPECT_EQ(UserSchemeNames(), (std::vector<std::string>{"Mine", "Yours", "Album"}));
}

TEST_F(UserSchemeDialog, DoubleClickShowsTheConfigurationReadOnly)
{
    Run([](UserEditor& editor) {
        const ConfigDialog dialog = editor.OpenConfig(1);
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_NAME).Text(), L"Fine");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_XDPI).Text(), L"720");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_YDPI).Text(), L"1200");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_COLORS).Text(), L"4");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_DOT_BITS).Text(), L"2");
        for (int id : {IDC_EDIT_CFG_NAME, IDC_EDIT_CFG_XDPI, IDC_EDIT_CFG_YDPI, IDC_EDIT_CFG_COLORS,
                       IDC_EDIT_CFG_DOT_BITS, IDC_CHECK_CFG_ENABLE})
            EXPECT_FALSE(dialog.Field(id).IsEnabled()) << id;
        editor.Confirm(dialog);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(UserSchemeDialog, MissingConfigurationKeepsItsRowAndCannotBeActedOn)
{
    m_faults.failing = {"IConfigList.GetAt(0)"};
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Configs().RowCount(), 3);
        EXPECT_EQ(editor.Schemes().RowCount(), 5);
        editor.Press(IDC_BTN_ADD_SCHEME);
        editor.Configs().DoubleClickRow(0);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(UserSchemeDialog, WithoutConfigurationsIsEmptyAndItsButtonsDoNothing)
{
    m_machine = EmptyMachine();
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Configs().RowCount(), 0);
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        editor.Press(IDC_BTN_ADD_SCHEME);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, HostWithoutAnyListIsAnEmptyOne)
{
    m_faults.failing = {"IHostData.*"};
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Configs().RowCount(), 0);
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        editor.Press(IDC_BTN_ADD_SCHEME);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, MissingPresetListLeavesTheUserSchemes)
{
    m_faults.failing = {"IHostData.GetFactorySchemeList()"};
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{Unconverted("Mine"), Unconverted("Yours")}));
        editor.Schemes().ClickRow(0);
        editor.Schemes().ClickRow(1);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IPrintScheme"), Calls());
}

TEST_F(UserSchemeDialog, MissingUserListLeavesThePresets)
{
    m_faults.failing = {"IHostData.GetUserSchemeList()"};
    Run([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().RowCount(), 3);
        EXPECT_EQ(editor.Schemes().Row(kDivider), kDividerText);
        editor.AddScheme(L"Nowhere");
        EXPECT_EQ(editor.Schemes().RowCount(), 3);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(UserSchemeDialog, SchemeThatTheHostHasLostShowsAndStoresNothing)
{
    Album().configIndex = 0;
    Run([this](UserEditor& editor) {
        InHost(editor, [](IHostData& data) { data.GetUserSchemeList()->RemoveAt(2); });
        editor.Schemes().ClickRow(kYours);
        editor.Schemes().ClickRow(kYours + 1);
        EXPECT_EQ(NewChanges(), Calls(StoredYours()));
        editor.Schemes().ClickRow(kDivider);
        EXPECT_EQ(NewChanges(), Calls());
        editor.DeleteScheme(kYours + 1);
        editor.Schemes().ClickRow(kDivider);
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, FirstUserSchemeOfAListThatTheHostHasEmptiedStoresNothing)
{
    Run([this](UserEditor& editor) {
        InHost(editor, [](IHostData& data) {
            while (data.GetUserSchemeList()->GetCount() > 0)
                data.GetUserSchemeList()->RemoveAt(0);
        });
        editor.Schemes().ClickRow(kMine);
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, PresetsThatNoIdCanNameAreNotListed)
{
    m_machine.factorySchemes.resize(1002, FactorySchemeOf(2));
    for (std::size_t index : {999, 1000, 1001})
    {
        m_machine.factorySchemes[index].configIndex = 0;
        m_machine.factorySchemes[index].name = "P" + std::to_string(index);
    }
    Run([this](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Rows(),
                  (Texts{Unconverted("Poster") + L"(preset)", Unconverted("Sign") + L"(preset)",
                         Unconverted("P999") + L"(preset)", kDividerText, Unconverted("Mine"), Unconverted("Yours")}));
        editor.Schemes().ClickRow(2);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"P999");
        editor.Schemes().ClickRow(4);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Mine");
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), StoredMine() + kUserSchemesSaved);
}

TEST_F(UserSchemeDialog, ShowsTheTextsOfTheLanguageFile)
{
    m_language.WriteBytes(
        "[DLG_PRINT_SCHEME]\r\nTITLE=Wrong\r\nTITLE_USER=Own schemes\r\nSAVE_QUIT=Store\r\n"
        "IDCANCEL=Drop\r\nIDC_STATIC_CFG=Set-ups\r\nIDC_STATIC_MODE=Plans\r\nTAB_COMMON=1\r\n"
        "TAB_MODE=Wrong\r\nTAB_ELC=2\r\nTAB_INK_MUL=3\r\nTAB_INK_CUT=4\r\nTAB_UV=5\r\nTAB_SAPP=6\r\n");
    Run([](UserEditor& editor) {
        const Window dialog = editor.Dialog();
        EXPECT_EQ(dialog.Text(), L"Own schemes");
        EXPECT_EQ(dialog.Control(IDOK).Text(), L"Store");
        EXPECT_EQ(dialog.Control(IDCANCEL).Text(), L"Drop");
        EXPECT_EQ(dialog.Control(IDC_STATIC_CFG).Text(), L"Set-ups");
        EXPECT_EQ(dialog.Control(IDC_STATIC_MODE).Text(), L"Plans");
        EXPECT_EQ(dialog.Control(IDC_BTN_ADD_SCHEME).Text(), L"+");
        EXPECT_EQ(dialog.Control(IDC_BTN_DEL_SCHEME).Text(), L"X");
        EXPECT_EQ(dialog.Control(IDC_BTN_APPLY).Text(), L"应用");
        EXPECT_EQ(editor.Tab().Labels(), (Texts{L"1", L"2", L"3", L"4", L"5", L"6"}));
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, WithoutALanguageFileHasTheDefaultTexts)
{
    RemoveTexts();
    Run([](UserEditor& editor) {
        const Window dialog = editor.Dialog();
        EXPECT_EQ(dialog.Text(), L"");
        EXPECT_EQ(dialog.Control(IDOK).Text(), L"Save&Quit");
        EXPECT_EQ(dialog.Control(IDCANCEL).Text(), L"Cancel");
        EXPECT_EQ(dialog.Control(IDC_STATIC_CFG).Text(), L"");
        EXPECT_EQ(dialog.Control(IDC_STATIC_MODE).Text(), L"");
        EXPECT_EQ(editor.Tab().Labels(), Texts(6));
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, TabsShowThePagesInOrder)
{
    Run([](UserEditor& editor) {
        for (std::size_t tab = 0; tab < kAllUserPages.size(); ++tab)
        {
            editor.Tab().ClickTab(static_cast<int>(tab));
            EXPECT_EQ(editor.Tab().VisiblePage(), editor.Page(kAllUserPages[tab])) << tab;
        }
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, RightButtonSelectsNothingAndOpensNoMenu)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        editor.Schemes().RightClickRow(kYours);
        EXPECT_EQ(editor.Schemes().Selected(), kMine);
        EXPECT_FALSE(editor.Op().OpenMenu().Exists());
        editor.Cancel();
    });
}

TEST_F(UserSchemeDialog, OpensAgainOnWhatWasSaved)
{
    Run([](UserEditor& editor) {
        editor.AddScheme(L"Fresh");
        editor.DeleteScheme(kMine);
        editor.SaveAndQuit();
    });
    RunAgain([](UserEditor& editor) {
        EXPECT_EQ(editor.Schemes().Rows(),
                  (Texts{Unconverted("Poster") + L"(preset)", Unconverted("Sign") + L"(preset)", kDividerText,
                         Unconverted("Yours"), Unconverted("Fresh")}));
        editor.Schemes().ClickRow(kYours);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Fresh");
        editor.Cancel();
    });
}
} // namespace
