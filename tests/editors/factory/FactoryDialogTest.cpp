#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/RefusingList.h"

#include <algorithm>

namespace
{
const Texts kSchemesOfFast = {L"Poster", L"Banner", L"Sign"};

class FactoryDialog : public FactorySchemeFixture
{
protected:
    std::vector<std::string> SchemeNames()
    {
        const refhost::Machine machine = Machine();
        std::vector<std::string> names;
        for (const refhost::FactoryScheme& scheme : machine.factorySchemes)
            names.push_back(scheme.name);
        return names;
    }

    // The place of a call in the log; the end where it was never made.
    static std::size_t PlaceOf(const Calls& calls, const std::string& call)
    {
        return static_cast<std::size_t>(std::find(calls.begin(), calls.end(), call) - calls.begin());
    }

    static void Delete(const FactoryEditor& editor, int row)
    {
        editor.Schemes().ClickRow(row);
        editor.Press(IDC_BTN_DEL_SCHEME);
    }
};

TEST_F(FactoryDialog, ShowsConfigurationsAndTheSchemesOfTheFirst)
{
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), (Texts{L"Fast", L"Fine", L"Draft"}));
        EXPECT_EQ(editor.Configs().Selected(), 0);
        EXPECT_EQ(editor.Schemes().Rows(), kSchemesOfFast);
        EXPECT_EQ(editor.Schemes().Selected(), 0);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Poster");
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_ADD_SCHEME));
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_FALSE(editor.Dialog().Control(IDC_BTN_APPLY).IsVisible());
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(FactoryDialog, ListsKeepTheHostsOrder)
{
    m_machine.configurations = {Config("b"), Config("a"), Config("c")};
    m_machine.factorySchemes[0].name = "Zebra";
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), (Texts{L"b", L"a", L"c"}));
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{L"Zebra", L"Banner", L"Sign"}));
        EXPECT_FALSE(editor.Configs().HasStyle(LBS_SORT));
        EXPECT_FALSE(editor.Schemes().HasStyle(LBS_SORT));
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, ConfigurationWithoutNameIsListedByItsValues)
{
    m_machine.configurations[1].name.clear();
    m_machine.configurations[1].yResolution = 600;
    m_machine.configurations[2].name.clear();
    m_machine.configurations[2].xResolution = 65535;
    m_machine.configurations[2].yResolution = 0;
    m_machine.configurations[2].colorCount = 255;
    m_machine.configurations[2].dotBits = 0;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), (Texts{L"Fast", L"[720X600][4C][2b]", L"[65535X0][255C][0b]"}));
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, HasSevenTabsWithTheTextsOfTheLanguageFile)
{
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(editor.Dialog().Text(), L"Factory schemes");
        EXPECT_EQ(editor.Tab().Labels(),
                  (Texts{L"Common", L"Mode", L"Eclosion", L"Multiple", L"Cut", L"Lamps", L"Small"}));
        EXPECT_EQ(editor.Tab().Selected(), 0);
        for (SchemePage page : editor.Pages())
        {
            const Window opened = editor.Open(page);
            EXPECT_EQ(opened, editor.Tab().VisiblePage());
        }
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, WithoutLanguageFileHasItsBuiltInTexts)
{
    RemoveTexts();
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(editor.Dialog().Text(), L"");
        EXPECT_EQ(editor.Dialog().Control(IDOK).Text(), L"Save&Quit");
        EXPECT_EQ(editor.Dialog().Control(IDCANCEL).Text(), L"Cancel");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_CFG).Text(), L"");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_MODE).Text(), L"");
        EXPECT_EQ(editor.Dialog().Control(IDC_BTN_ADD_SCHEME).Text(), L"+");
        EXPECT_EQ(editor.Dialog().Control(IDC_BTN_DEL_SCHEME).Text(), L"X");
        EXPECT_EQ(editor.Dialog().Control(IDC_BTN_APPLY).Text(), L"应用");
        EXPECT_EQ(editor.Tab().Labels(), Texts(7));
        for (SchemePage page : editor.Pages())
            EXPECT_TRUE(editor.Open(page).IsVisible());
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, LabelsHaveTheKeysOfTheLanguageFile)
{
    m_language.WriteBytes("[DLG_PRINT_SCHEME]\nSAVE_QUIT=Store\nIDCANCEL=Leave\nIDC_STATIC_CFG=Sets\n"
                          "IDC_STATIC_MODE=Schemes\n");
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(editor.Dialog().Control(IDOK).Text(), L"Store");
        EXPECT_EQ(editor.Dialog().Control(IDCANCEL).Text(), L"Leave");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_CFG).Text(), L"Sets");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_MODE).Text(), L"Schemes");
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, SaveAndQuitStoresThePagesInTabOrderThenSaves)
{
    Run([](FactoryEditor& editor) { editor.SaveAndQuit(); });
    EXPECT_EQ(Changes(), Stored(0) + kFactorySchemesSaved);
}

TEST_F(FactoryDialog, SavesUnderTheWaitCursor)
{
    HCURSOR cursor = nullptr;
    Run([&](FactoryEditor& editor) {
        Host().OnSave([&](refhost::SaveRequest) { cursor = GetCursor(); });
        editor.SaveAndQuit();
    });
    EXPECT_EQ(cursor, LoadCursorW(nullptr, IDC_WAIT));
}

TEST_F(FactoryDialog, CancelTellsTheHostNothing)
{
    Run([](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Lost");
        editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT).Click();
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(FactoryDialog, ClosesByTheCloseBoxAndByEscapeAsByCancel)
{
    Run([](FactoryEditor& editor) { editor.Op().Close(editor.Dialog()); });
    EXPECT_EQ(NewChanges(), Calls());
    RunAgain([](FactoryEditor& editor) {
        editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET).Click();
        editor.Op().Key(VK_ESCAPE);
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(FactoryDialog, EnterInAPageSavesAndQuits)
{
    Run([](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Typed");
        editor.Op().Key(VK_RETURN);
    });
    Poster().name = "Typed";
    EXPECT_EQ(Changes(), Stored(0) + kFactorySchemesSaved);
}

// The button is hidden, but a program can press it.
TEST_F(FactoryDialog, ApplyStoresThePagesAndNothingElse)
{
    Run([](FactoryEditor& editor) {
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Stored(0));
}

TEST_F(FactoryDialog, SelectingASchemeStoresThePreviousOneAndThenLoads)
{
    Run([this](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Edited");
        Host().Log().Clear();
        editor.Schemes().ClickRow(1);
        Poster().name = "Edited";
        EXPECT_EQ(Changes(), Stored(0));
        const Calls calls = Host().Log().Everything();
        const std::size_t lastStored = PlaceOf(calls, Stored(0).back());
        const std::size_t firstLoaded = PlaceOf(calls, "IPrintScheme[1].GetName()");
        EXPECT_LT(lastStored, firstLoaded);
        EXPECT_LT(firstLoaded, calls.size());
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Banner");
        editor.Cancel();
    });
}

// The row keeps the name that it was listed with.
TEST_F(FactoryDialog, ListShowsANewNameWhenItIsFilledAgain)
{
    Run([](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Edited");
        editor.Schemes().ClickRow(1);
        EXPECT_EQ(editor.Schemes().Row(0), L"Poster");
        editor.Configs().ClickRow(1);
        editor.Configs().ClickRow(0);
        EXPECT_EQ(editor.Schemes().Row(0), L"Edited");
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, SelectingTheSameSchemeAgainStoresItAndLoadsItAgain)
{
    Run([this](FactoryEditor& editor) {
        editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT).Click();
        editor.Schemes().ClickRow(0);
        Poster().lampLL = 0;
        EXPECT_EQ(Changes(), Stored(0));
        EXPECT_FALSE(editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT).IsChecked());
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, SelectingAConfigurationStoresThePagesAndShowsItsFirstScheme)
{
    Run([this](FactoryEditor& editor) {
        editor.Schemes().ClickRow(1);
        NewChanges();
        editor.Configs().ClickRow(1);
        EXPECT_EQ(Changes(), Stored(1));
        EXPECT_EQ(editor.Schemes().Rows(), Texts{L"Photo"});
        EXPECT_EQ(editor.Schemes().Selected(), 0);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Photo");
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, ConfigurationWithoutSchemesShowsNone)
{
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(2);
        EXPECT_EQ(NewChanges(), Stored(0));
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_ADD_SCHEME));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kFactorySchemesSaved);
}

// Schemes hold their configuration's index in a byte.
TEST_F(FactoryDialog, ConfigurationsThatNoSchemeCanNameHaveNone)
{
    m_machine.configurations.resize(300, Config("Many"));
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(257);
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        NewChanges();
        editor.Press(IDC_BTN_ADD_SCHEME);
        EXPECT_EQ(NewChanges().back(), "IPrintScheme[4].SetConfigIndex(1)");
        EXPECT_EQ(editor.Schemes().Rows(), Texts{L"M-5"});
        editor.Configs().ClickRow(1);
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{L"Photo", L"M-5"}));
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, NullSchemeIsLeftOut)
{
    m_faults.failing = {"ISchemeList[factory].GetAt(1)"};
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{L"Poster", L"Sign"}));
        editor.Schemes().ClickRow(1);
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Stored(3) + kFactorySchemesSaved);
}

TEST_F(FactoryDialog, NullConfigurationKeepsItsRowAndDoesNothing)
{
    m_faults.failing = {"IConfigList.GetAt(1)"};
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), (Texts{L"Fast", L"", L"Draft"}));
        editor.Configs().DoubleClickRow(1);
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        editor.Press(IDC_BTN_ADD_SCHEME);
        editor.Press(IDC_BTN_DEL_SCHEME);
        EXPECT_EQ(NewChanges(), Calls());
        editor.Configs().ClickRow(0);
        EXPECT_EQ(editor.Schemes().Rows(), kSchemesOfFast);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("RemoveAt"), Calls());
}

TEST_F(FactoryDialog, WithoutConfigurationsIsEmpty)
{
    m_machine.configurations.clear();
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(editor.Configs().RowCount(), 0);
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        editor.Press(IDC_BTN_ADD_SCHEME);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kFactorySchemesSaved);
}

TEST_F(FactoryDialog, NullListsAreEmptyOnes)
{
    for (const char* missing : {"IHostData.GetConfigList()", "IHostData.GetFactorySchemeList()", "IHostData.*"})
    {
        SCOPED_TRACE(missing);
        m_faults.failing = {missing};
        Run([](FactoryEditor& editor) {
            EXPECT_EQ(editor.Schemes().RowCount(), 0);
            editor.Press(IDC_BTN_ADD_SCHEME);
            editor.SaveAndQuit();
        });
        EXPECT_EQ(Changes(), kFactorySchemesSaved);
    }
}

TEST_F(FactoryDialog, AddedSchemeIsNamedAfterItsConfigurationAndTheCount)
{
    m_machine.configurations[0].name = "720X600";
    Run([this](FactoryEditor& editor) {
        editor.Press(IDC_BTN_ADD_SCHEME);
        EXPECT_EQ(NewChanges(), (Calls{"ISchemeList[factory].AddScheme()", "IPrintScheme[4].SetName(\"7-5\")",
                                       "IPrintScheme[4].SetConfigIndex(0)"}) +
                                    Stored(0));
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{L"Poster", L"Banner", L"Sign", L"7-5"}));
        EXPECT_EQ(editor.Schemes().Selected(), 3);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"7-5");
        editor.Cancel();
    });
    EXPECT_EQ(SchemeNames().back(), "7-5");
}

TEST_F(FactoryDialog, AddsToTheSelectedConfiguration)
{
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(2);
        NewChanges();
        editor.Press(IDC_BTN_ADD_SCHEME);
        EXPECT_EQ(NewChanges(), (Calls{"ISchemeList[factory].AddScheme()", "IPrintScheme[4].SetName(\"D-5\")",
                                       "IPrintScheme[4].SetConfigIndex(2)"}));
        EXPECT_EQ(editor.Schemes().Rows(), Texts{L"D-5"});
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"New");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Factory(4).name, "New");
    EXPECT_EQ(Factory(4).configIndex, 2);
}

TEST_F(FactoryDialog, RefusedAdditionChangesNothing)
{
    m_faults.failing = {"ISchemeList[factory].AddScheme()"};
    Run([](FactoryEditor& editor) {
        editor.Press(IDC_BTN_ADD_SCHEME);
        EXPECT_EQ(editor.Schemes().Rows(), kSchemesOfFast);
        EXPECT_EQ(editor.Schemes().Selected(), 0);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls{"ISchemeList[factory].AddScheme()"});
}

TEST_F(FactoryDialog, SchemeThatTheListRefusesIsRemovedAgain)
{
    Run([this](FactoryEditor& editor) {
        {
            const RefusingList refusing(editor, editor.Schemes());
            editor.Press(IDC_BTN_ADD_SCHEME);
        }
        EXPECT_EQ(NewChanges(), (Calls{"ISchemeList[factory].AddScheme()", "IPrintScheme[4].SetName(\"F-5\")",
                                       "IPrintScheme[4].SetConfigIndex(0)", "ISchemeList[factory].RemoveAt(4)"}));
        EXPECT_EQ(editor.Schemes().Rows(), kSchemesOfFast);
        editor.Cancel();
    });
    EXPECT_EQ(SchemeNames(), (std::vector<std::string>{"Poster", "Banner", "Photo", "Sign"}));
}

TEST_F(FactoryDialog, AddedSchemeStaysAfterCancel)
{
    Run([](FactoryEditor& editor) {
        editor.Press(IDC_BTN_ADD_SCHEME);
        editor.Cancel();
    });
    EXPECT_EQ(SchemeNames().size(), 5u);
    EXPECT_EQ(ChangesWith("SaveParameters"), Calls());
}

TEST_F(FactoryDialog, DeletingTouchesTheHostOnlyAtTheEnd)
{
    Run([this](FactoryEditor& editor) {
        editor.Schemes().ClickRow(1);
        NewChanges();
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Lost");
        editor.Press(IDC_BTN_DEL_SCHEME);
        EXPECT_EQ(Changes(), Calls());
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{L"Poster", L"Sign"}));
        EXPECT_EQ(editor.Schemes().Selected(), 1);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Sign");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Stored(3) + Calls{"ISchemeList[factory].RemoveAt(1)"} + kFactorySchemesSaved);
    EXPECT_EQ(SchemeNames(), (std::vector<std::string>{"Poster", "Photo", "Sign"}));
}

TEST_F(FactoryDialog, DeletingTheLastRowSelectsTheNewLastOne)
{
    Run([](FactoryEditor& editor) {
        Delete(editor, 2);
        EXPECT_EQ(editor.Schemes().Selected(), 1);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Banner");
        editor.Cancel();
    });
}

TEST_F(FactoryDialog, DeletingTheOnlySchemeLeavesNone)
{
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(1);
        Delete(editor, 0);
        EXPECT_EQ(editor.Schemes().Selected(), kNone);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_EQ(EditablePages(editor), std::vector<SchemePage>());
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Calls{"ISchemeList[factory].RemoveAt(2)"} + kFactorySchemesSaved);
}

TEST_F(FactoryDialog, DisablingTheDeleteButtonLeavesTheKeyboardAlive)
{
    Run([](FactoryEditor& editor) {
        editor.Configs().ClickRow(1);
        Delete(editor, 0);
        ASSERT_FALSE(editor.IsEnabled(IDC_BTN_DEL_SCHEME));
        EXPECT_TRUE(editor.Op().Focus().Exists());
        EXPECT_TRUE(editor.Op().Focus().IsEnabled());
        editor.Op().Key(VK_ESCAPE);
    });
}

TEST_F(FactoryDialog, DisablingTheFocusedFieldOfAPageLeavesTheKeyboardAlive)
{
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(1);
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Click();
        // A host may take the scheme away; the list is then filled again by the operator's program.
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(2); });
        SendMessageW(editor.Dialog().Handle(), WM_COMMAND, MAKEWPARAM(IDC_LIST_CFG, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(editor.Configs().Handle()));
        ASSERT_FALSE(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).IsEnabled());
        EXPECT_TRUE(editor.Op().Focus().IsEnabled());
        editor.Op().Key(VK_ESCAPE);
    });
}

TEST_F(FactoryDialog, RemovesTheHigherIndexFirst)
{
    Run([this](FactoryEditor& editor) {
        Delete(editor, 0);
        Delete(editor, 1);
        NewChanges();
        editor.SaveAndQuit();
    });
    const Calls removed = {"ISchemeList[factory].RemoveAt(3)", "ISchemeList[factory].RemoveAt(0)"};
    EXPECT_EQ(Changes(), Stored(1) + removed + kFactorySchemesSaved);
    EXPECT_EQ(SchemeNames(), (std::vector<std::string>{"Banner", "Photo"}));
}

TEST_F(FactoryDialog, CancelKeepsDeletedSchemes)
{
    Run([](FactoryEditor& editor) {
        Delete(editor, 0);
        Delete(editor, 1);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("RemoveAt"), Calls());
    EXPECT_EQ(SchemeNames(), (std::vector<std::string>{"Poster", "Banner", "Photo", "Sign"}));
}

// Until the end the host still has it, so a list that is filled again shows it again.
TEST_F(FactoryDialog, SchemeDeletedTwiceIsRemovedOnce)
{
    Run([](FactoryEditor& editor) {
        Delete(editor, 0);
        editor.Configs().ClickRow(1);
        editor.Configs().ClickRow(0);
        EXPECT_EQ(editor.Schemes().Rows(), kSchemesOfFast);
        Delete(editor, 0);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("RemoveAt"), Calls{"ISchemeList[factory].RemoveAt(0)"});
}

TEST_F(FactoryDialog, SchemeAddedAfterADeletionKeepsItsIndex)
{
    Run([](FactoryEditor& editor) {
        Delete(editor, 0);
        editor.Press(IDC_BTN_ADD_SCHEME);
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"New");
        editor.Schemes().ClickRow(0);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("IPrintScheme[4].SetName").back(), "IPrintScheme[4].SetName(\"New\")");
    EXPECT_EQ(SchemeNames(), (std::vector<std::string>{"Banner", "Photo", "Sign", "New"}));
}

TEST_F(FactoryDialog, AddedSchemeThatIsDeletedAgainIsRemoved)
{
    Run([](FactoryEditor& editor) {
        editor.Press(IDC_BTN_ADD_SCHEME);
        editor.Press(IDC_BTN_DEL_SCHEME);
        EXPECT_EQ(editor.Schemes().Rows(), kSchemesOfFast);
        EXPECT_EQ(editor.Schemes().Selected(), 2);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("RemoveAt"), Calls{"ISchemeList[factory].RemoveAt(4)"});
}

TEST_F(FactoryDialog, DeletedSchemeThatVanishedIsNotRemovedAgain)
{
    Run([this](FactoryEditor& editor) {
        Delete(editor, 2);
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(3); });
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Stored(1) + kFactorySchemesSaved);
}

TEST_F(FactoryDialog, ShownSchemeThatVanishedIsNotStored)
{
    Run([this](FactoryEditor& editor) {
        editor.Schemes().ClickRow(2);
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(3); });
        editor.Schemes().ClickRow(0);
        EXPECT_EQ(Changes(), Calls());
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Poster");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Stored(0) + kFactorySchemesSaved);
}

TEST_F(FactoryDialog, SelectingASchemeThatVanishedStoresNothingIntoIt)
{
    Run([this](FactoryEditor& editor) {
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(3); });
        editor.Schemes().ClickRow(2);
        EXPECT_EQ(NewChanges(), Stored(0));
        for (SchemePage page : editor.Pages())
            editor.Open(page);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kFactorySchemesSaved);
}

TEST_F(FactoryDialog, SchemeBeyondTheIdsIsNotListed)
{
    m_machine.factorySchemes.resize(1001, m_machine.factorySchemes[0]);
    m_machine.factorySchemes[999].name = "Last";
    m_machine.factorySchemes[1000].name = "Nameless";
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(editor.Schemes().RowCount(), 999); // one belongs to another configuration
        EXPECT_EQ(editor.Schemes().Row(998), L"Last");
        editor.Schemes().ClickRow(998);
        NewChanges();
        editor.Press(IDC_BTN_ADD_SCHEME);
        EXPECT_EQ(NewChanges(), Calls()); // it could not be named either
        EXPECT_EQ(editor.Schemes().RowCount(), 999);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Stored(999) + kFactorySchemesSaved);
}

TEST_F(FactoryDialog, DoubleClickShowsTheConfigurationReadOnly)
{
    m_machine.configurations[1].xResolution = 1440;
    m_machine.configurations[1].enabled = false;
    Run([this](FactoryEditor& editor) {
        const ConfigDialog dialog = editor.OpenConfig(1);
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_NAME).Text(), L"Fine");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_XDPI).Text(), L"1440");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_YDPI).Text(), L"1200");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_COLORS).Text(), L"4");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_DOT_BITS).Text(), L"2");
        EXPECT_FALSE(dialog.Field<CheckBox>(IDC_CHECK_CFG_ENABLE).IsChecked());
        for (int id : {IDC_EDIT_CFG_NAME, IDC_EDIT_CFG_XDPI, IDC_EDIT_CFG_YDPI, IDC_EDIT_CFG_COLORS,
                       IDC_EDIT_CFG_DOT_BITS, IDC_CHECK_CFG_ENABLE})
            EXPECT_FALSE(dialog.Field(id).IsEnabled()) << id;
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), Calls());
        editor.Confirm(editor.OpenConfig(0), IDCANCEL);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IPrintConfig"), Calls());
}

// A configuration that is no longer selected empties the list with its redrawing off.
TEST_F(FactoryDialog, ListIsPaintedAgainAfterItWasEmptied)
{
    Run([](FactoryEditor& editor) {
        const auto isPainted = [&] {
            COLORREF color = CLR_INVALID;
            editor.Op().OnUi([&] {
                RedrawWindow(editor.Schemes().Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
                const HDC dc = GetDC(editor.Schemes().Handle());
                color = GetPixel(dc, 100, 3);
                ReleaseDC(editor.Schemes().Handle(), dc);
            });
            return color == GetSysColor(COLOR_HIGHLIGHT);
        };
        EXPECT_TRUE(isPainted());
        SendMessageW(editor.Configs().Handle(), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        SendMessageW(editor.Dialog().Handle(), WM_COMMAND, MAKEWPARAM(IDC_LIST_CFG, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(editor.Configs().Handle()));
        EXPECT_EQ(editor.Schemes().RowCount(), 0);
        editor.Configs().ClickRow(0);
        EXPECT_EQ(editor.Schemes().Rows(), kSchemesOfFast);
        EXPECT_TRUE(isPainted());
        editor.Cancel();
    });
}
} // namespace
