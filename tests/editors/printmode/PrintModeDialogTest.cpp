#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/editors/fixtures/RefusingList.h"

namespace
{
const Calls kSaved = {"IHostControl.SaveParameters(2)"};

class PrintModeDialog : public PrintModeFixture
{
protected:
    // The configuration of each scheme that is left, in the list's order.
    template <class Schemes>
    static std::vector<int> ConfigsOf(const Schemes& schemes)
    {
        std::vector<int> configs;
        for (const auto& scheme : schemes)
            configs.push_back(scheme.configIndex);
        return configs;
    }

    std::vector<std::string> ConfigNames()
    {
        const refhost::Machine machine = Machine();
        std::vector<std::string> names;
        for (const refhost::PrintConfig& config : machine.configurations)
            names.push_back(config.name);
        return names;
    }

    std::vector<std::string> ModeNames(std::size_t config)
    {
        const refhost::Machine machine = Machine();
        std::vector<std::string> names;
        for (const refhost::PrintMode& mode : machine.configurations.at(config).modes)
            names.push_back(mode.name);
        return names;
    }
};

TEST_F(PrintModeDialog, ShowsConfigurationsAndTheModesOfTheFirst)
{
    m_machine.configurations[2].xResolution = 65535;
    m_machine.configurations[2].yResolution = 0;
    m_machine.configurations[2].colorCount = 255;
    m_machine.configurations[2].dotBits = 0;
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(),
                  (Texts{L"Fast [720X1200][4C][2B]", L"Fine [720X1200][4C][2B]", L"Draft [65535X0][255C][0B]"}));
        EXPECT_EQ(editor.Configs().Selected(), 0);
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"Fast-1", L"Fast-2"}));
        EXPECT_EQ(editor.Modes().Selected(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fast-1");
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, ListsKeepTheHostsOrder)
{
    m_machine.configurations = {Config("b", {"z", "a", "m"}), Config("a"), Config("c")};
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().Row(0), L"b [720X1200][4C][2B]");
        EXPECT_EQ(editor.Configs().Row(1), L"a [720X1200][4C][2B]");
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"z", L"a", L"m"}));
        EXPECT_FALSE(editor.Configs().HasStyle(LBS_SORT));
        EXPECT_FALSE(editor.Modes().HasStyle(LBS_SORT));
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, WithoutConfigurationsIsEmpty)
{
    m_machine = EmptyMachine();
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().RowCount(), 0);
        EXPECT_EQ(editor.Modes().RowCount(), 0);
        for (int id : {IDC_BTN_DEL_CFG, IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN})
            EXPECT_FALSE(editor.IsEnabled(id)) << id;
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_ADD_CFG));
        EXPECT_TRUE(editor.IsEnabled(IDC_BTN_ADD_MODE));
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"");
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).RowCount(), 0);
        EXPECT_EQ(editor.Combo(IDC_CMB_SMALL_GROUP).RowCount(), 0);
        EXPECT_EQ(editor.Grid().RowCount(), 0);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(PrintModeDialog, ShowsArrowsAndHidesApply)
{
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Dialog().Control(IDC_BTN_MODE_UP).Text(), L"↑");
        EXPECT_EQ(editor.Dialog().Control(IDC_BTN_MODE_DOWN).Text(), L"↓");
        EXPECT_FALSE(editor.Dialog().Control(IDC_BTN_APPLY).IsVisible());
        for (int id :
             {IDC_BTN_ADD_CFG, IDC_BTN_DEL_CFG, IDC_BTN_ADD_MODE, IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN})
            EXPECT_TRUE(editor.IsEnabled(id)) << id;
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, SaveAndQuitStoresTheShownModeThenSaves)
{
    Run([](PrintModeEditor& editor) { editor.SaveAndQuit(); });
    EXPECT_EQ(Changes(), StoredMode({"0.0", "Fast-1"}) + kSaved);
}

TEST_F(PrintModeDialog, CancelTellsTheHostNothing)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Lost");
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(PrintModeDialog, ClosesByTheCloseBoxAsByCancel)
{
    Run([](PrintModeEditor& editor) {
        editor.Op().Close(editor.Dialog());
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(PrintModeDialog, ApplyStoresWithoutSaving)
{
    Run([this](PrintModeEditor& editor) {
        const Window apply = editor.Dialog().Control(IDC_BTN_APPLY);
        editor.Op().OnUi([&] { ShowWindow(apply.Handle(), SW_SHOW); });
        apply.Click();
        EXPECT_EQ(NewChanges(), Calls(StoredMode{"0.0", "Fast-1"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, AnotherModeIsShownAfterTheOldOneWasStored)
{
    Run([this](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Renamed");
        editor.Modes().ClickRow(1);
        EXPECT_EQ(NewChanges(), Calls(StoredMode{"0.0", "Renamed"}));
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fast-2");
        editor.Cancel();
    });
    EXPECT_EQ(Mode(0, 0).name, "Renamed");
}

TEST_F(PrintModeDialog, AnotherConfigurationIsShownAfterTheOldModeWasStored)
{
    Run([this](PrintModeEditor& editor) {
        editor.Combo(IDC_CMB_PASS).Pick(6);
        editor.Configs().ClickRow(1);
        EXPECT_EQ(NewChanges(), Calls(StoredMode{"0.0", "Fast-1", 12}));
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"Fine-1"});
        EXPECT_EQ(editor.Modes().Selected(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fine-1");
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, ConfigurationWithoutModesLeavesThePagesAndTheirPendingEdits)
{
    Run([this](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Pending");
        editor.Configs().ClickRow(2);
        EXPECT_EQ(NewChanges(), Calls());
        EXPECT_EQ(editor.Modes().RowCount(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Pending");
        EXPECT_EQ(editor.Grid().RowCount(), 2);
        for (int id : {IDC_BTN_DEL_CFG, IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN})
            EXPECT_TRUE(editor.IsEnabled(id)) << id;
        editor.Configs().ClickRow(1);
        EXPECT_EQ(NewChanges(), Calls(StoredMode{"0.0", "Pending"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, ModeButtonsDoNothingForAConfigurationWithoutModes)
{
    Run([this](PrintModeEditor& editor) {
        editor.Configs().ClickRow(2);
        for (int id : {IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN})
            editor.Press(id);
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, AddingAConfigurationCopiesItAndFreesIt)
{
    Run([this](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenAddConfig();
        dialog.Type(IDC_EDIT_CFG_NAME, L"Extra");
        dialog.Type(IDC_EDIT_CFG_COLORS, L"6");
        editor.Confirm(dialog);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), (Calls{"IHostData.CreateConfig()", "IPrintConfig[new.0].SetXResolution(720)",
                                "IPrintConfig[new.0].SetYResolution(720)", "IPrintConfig[new.0].SetColorCount(6)",
                                "IPrintConfig[new.0].SetDotBits(0)", "IPrintConfig[new.0].SetEnabled(1)",
                                "IPrintConfig[new.0].SetName(\"Extra\")", "IConfigList.AddConfig(new.0)",
                                "IHostData.DestroyConfig(new.0)"}));
    EXPECT_EQ(ConfigNames(), (std::vector<std::string>{"Fast", "Fine", "Draft", "Extra"}));
}

TEST_F(PrintModeDialog, AddedConfigurationsNameIsUnreadableUntilTheListIsRefilled)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenAddConfig();
        dialog.Type(IDC_EDIT_CFG_NAME, L"New1");
        editor.Confirm(dialog);
        // 'N' 'e' 'w' '1', two bytes a character
        EXPECT_EQ(editor.Configs().Row(3), L"\x654E\x3177 [720X720][0C][0B]");
        EXPECT_EQ(editor.Configs().Selected(), 3);
        const ConfigDialog rename = editor.OpenRename(0);
        rename.Type(IDC_EDIT_CFG_NAME, L"Faster");
        editor.Confirm(rename);
        EXPECT_EQ(editor.Configs().Row(0), L"Faster [720X1200][4C][2B]");
        EXPECT_EQ(editor.Configs().Row(3), L"New1 [720X720][0C][0B]");
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, AddedConfigurationIsReadableWhenTheEditorIsOpenedAgain)
{
    Run([](PrintModeEditor& editor) {
        editor.Confirm(editor.OpenAddConfig());
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SaveParameters"), Calls());
    EXPECT_EQ(ConfigNames().back(), "[720 X 720]");
    RunAgain([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().Row(3), L"[720 X 720] [720X720][0C][0B]");
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, AddingAConfigurationKeepsThePagesOnTheirMode)
{
    Run([this](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Pending");
        editor.Confirm(editor.OpenAddConfig());
        EXPECT_EQ(editor.Modes().RowCount(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Pending");
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), StoredMode({"0.0", "Pending"}) + kSaved);
}

TEST_F(PrintModeDialog, GivingUpTheAddDialogCreatesNothing)
{
    Run([](PrintModeEditor& editor) {
        editor.Confirm(editor.OpenAddConfig(), IDCANCEL);
        EXPECT_EQ(editor.Configs().RowCount(), 3);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(PrintModeDialog, RefusedConfigurationIsFreedAndNotShown)
{
    m_faults.failing = {"IConfigList.AddConfig(*)"};
    Run([this](PrintModeEditor& editor) {
        editor.Confirm(editor.OpenAddConfig());
        EXPECT_EQ(editor.Configs().RowCount(), 3);
        EXPECT_EQ(editor.Configs().Selected(), 0);
        EXPECT_EQ(Changes().back(), "IHostData.DestroyConfig(new.0)");
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, NothingIsAddedWhenTheHostCreatesNoConfiguration)
{
    m_faults.failing = {"IHostData.CreateConfig()"};
    Run([](PrintModeEditor& editor) {
        editor.Confirm(editor.OpenAddConfig());
        EXPECT_EQ(editor.Configs().RowCount(), 3);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls{"IHostData.CreateConfig()"});
}

TEST_F(PrintModeDialog, ConfigurationWhoseLineIsRefusedStaysTheHostsAndUnselected)
{
    Run([](PrintModeEditor& editor) {
        const RefusingList refusing(editor, editor.Configs());
        editor.Confirm(editor.OpenAddConfig());
        EXPECT_EQ(editor.Configs().RowCount(), 3);
        EXPECT_EQ(editor.Configs().Selected(), 0);
        editor.Cancel();
    });
    EXPECT_EQ(ConfigNames().size(), 4u);
    EXPECT_EQ(Changes().back(), "IHostData.DestroyConfig(new.0)");
}

TEST_F(PrintModeDialog, RenamingTellsTheHostTheNameAndNothingElse)
{
    Run([this](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenRename(1);
        NewChanges();
        dialog.Type(IDC_EDIT_CFG_NAME, L"Finest");
        editor.Confirm(dialog);
        EXPECT_EQ(ChangesWith("IPrintConfig"), Calls{"IPrintConfig[1].SetName(\"Finest\")"});
        EXPECT_EQ(editor.Configs().Row(1), L"Finest [720X1200][4C][2B]");
        EXPECT_EQ(editor.Configs().Selected(), 1);
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, RenamingToTheSameNameDoesNotCallTheHost)
{
    Run([this](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenRename(0);
        NewChanges();
        dialog.Type(IDC_EDIT_CFG_NAME, L"Fast");
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, RenamingInCaseOnlyIsARenaming)
{
    Run([this](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenRename(0);
        dialog.Type(IDC_EDIT_CFG_NAME, L"FAST");
        editor.Confirm(dialog);
        EXPECT_EQ(ChangesWith("IPrintConfig"), Calls{"IPrintConfig[0].SetName(\"FAST\")"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, DeletingAConfigurationSelectsTheOneThatMovedIntoItsPlace)
{
    Run([this](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(Changes(), Calls{"IConfigList.RemoveAt(0)"});
        EXPECT_EQ(editor.Configs().Rows(), (Texts{L"Fine [720X1200][4C][2B]", L"Draft [720X1200][4C][2B]"}));
        EXPECT_EQ(editor.Configs().Selected(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fine-1");
        editor.Cancel();
    });
    EXPECT_EQ(ConfigNames(), (std::vector<std::string>{"Fine", "Draft"}));
}

TEST_F(PrintModeDialog, DeletingTheLastConfigurationSelectsTheOneBefore)
{
    Run([](PrintModeEditor& editor) {
        editor.Configs().ClickRow(2);
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(editor.Configs().Selected(), 1);
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"Fine-1"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, DeletingTheOnlyConfigurationLeavesNothingSelected)
{
    m_machine.configurations.resize(1);
    Run([](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(editor.Configs().RowCount(), 0);
        EXPECT_EQ(editor.Configs().Selected(), kNone);
        EXPECT_EQ(editor.Modes().RowCount(), 0);
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, DeletingAConfigurationTakesItsSchemesAlongFromTheHighestIndex)
{
    for (int config : {2, 0, 3, 2, 1})
        m_machine.factorySchemes.push_back(FactorySchemeOf(config));
    for (int config : {2, 2, 3})
        m_machine.userSchemes.push_back(UserSchemeOf(config));
    m_machine.configurations.push_back(Config("Fourth"));
    Run([this](PrintModeEditor& editor) {
        editor.Configs().ClickRow(2);
        NewChanges();
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(Changes(), (Calls{"IConfigList.RemoveAt(2)", "ISchemeList[factory].RemoveAt(3)",
                                    "ISchemeList[factory].RemoveAt(0)", "ISchemeList[user].RemoveAt(1)",
                                    "ISchemeList[user].RemoveAt(0)"}));
        editor.Cancel();
    });
    // No renumbering: what belonged to the fourth configuration still says 3.
    EXPECT_EQ(ConfigsOf(Machine().factorySchemes), (std::vector<int>{0, 3, 1}));
    EXPECT_EQ(ConfigsOf(Machine().userSchemes), std::vector<int>{3});
}

TEST_F(PrintModeDialog, DeletedConfigurationsModesAreNotStoredInto)
{
    Run([this](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Pending");
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(Changes(), Calls{"IConfigList.RemoveAt(0)"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, DeletingTheConfigurationOfTheShownModeDetachesThePages)
{
    m_machine.configurations = {Config("Fast", {"Fast-1"}), Config("Empty")};
    Run([this](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_DEL_CFG);
        editor.Edit(IDC_EDIT_NAME).Type(L"Nobody's");
        editor.Combo(IDC_CMB_FRONT).Pick(1);
        editor.Edit(IDC_EDIT_SMALL).Type(L"3");
        EXPECT_EQ(editor.Grid().RowCount(), 0);
        editor.SaveAndQuit();
        EXPECT_EQ(Changes(), (Calls{"IConfigList.RemoveAt(0)"} + kSaved));
    });
}

TEST_F(PrintModeDialog, DeletingAnotherConfigurationThanTheShownModesKeepsThePages)
{
    m_machine.configurations = {Config("Fast", {"Fast-1"}), Config("Empty"), Config("Also empty")};
    Run([this](PrintModeEditor& editor) {
        editor.Configs().ClickRow(1);
        editor.Edit(IDC_EDIT_NAME).Type(L"Pending");
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(editor.Configs().Selected(), 1);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Calls{"IConfigList.RemoveAt(1)"} + StoredMode({"0.0", "Pending"}) + kSaved);
}

TEST_F(PrintModeDialog, DeletingAConfigurationDropsWhatWasTypedForAnotherOnesMode)
{
    m_machine.configurations = {Config("Fast", {"Fast-1"}), Config("Empty")};
    Run([this](PrintModeEditor& editor) {
        editor.Configs().ClickRow(1);
        editor.Edit(IDC_EDIT_NAME).Type(L"Pending");
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(editor.Configs().Selected(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fast-1");
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls{"IConfigList.RemoveAt(1)"});
}

TEST_F(PrintModeDialog, AddedModeIsNamedAfterItsConfigurationAndCountAndSelected)
{
    m_machine.configurations = {Config("A", {"first", "second"})};
    Run([](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_ADD_MODE);
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"first", L"second", L"A-3"}));
        EXPECT_EQ(editor.Modes().Selected(), 2);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"A-3");
        editor.Cancel();
    });
    EXPECT_EQ(Changes(),
              (Calls{"IPrintConfig[0].AddMode()", "IPrintMode[0.2].SetName(\"A-3\")"} + StoredMode({"0.0", "first"})));
}

TEST_F(PrintModeDialog, FirstModeOfAConfigurationEnablesTheModeButtons)
{
    m_machine.configurations = {Config("Draft")};
    Run([](PrintModeEditor& editor) {
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_MODE));
        editor.Press(IDC_BTN_ADD_MODE);
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"Draft-1"});
        for (int id : {IDC_BTN_DEL_CFG, IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN})
            EXPECT_TRUE(editor.IsEnabled(id)) << id;
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, NoModeIsAddedWithoutAConfiguration)
{
    m_machine = EmptyMachine();
    Run([](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_ADD_MODE);
        EXPECT_EQ(editor.Modes().RowCount(), 0);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(PrintModeDialog, NothingIsShownWhenTheHostAddsNoMode)
{
    m_faults.failing = {"IPrintConfig[*].AddMode()"};
    Run([](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_ADD_MODE);
        EXPECT_EQ(editor.Modes().RowCount(), 2);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls{"IPrintConfig[0].AddMode()"});
}

TEST_F(PrintModeDialog, ModeWhoseLineIsRefusedIsTakenBack)
{
    Run([this](PrintModeEditor& editor) {
        const RefusingList refusing(editor, editor.Modes());
        editor.Press(IDC_BTN_ADD_MODE);
        EXPECT_EQ(editor.Modes().Selected(), 0);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), (Calls{"IPrintConfig[0].AddMode()", "IPrintMode[0.2].SetName(\"Fast-3\")",
                                "IPrintConfig[0].RemoveMode(2)"}));
}

TEST_F(PrintModeDialog, DeletingAModeSelectsTheNextWithoutStoring)
{
    Run([this](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Pending");
        editor.Press(IDC_BTN_DEL_MODE);
        EXPECT_EQ(Changes(), Calls{"IPrintConfig[0].RemoveMode(0)"});
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"Fast-2"});
        EXPECT_EQ(editor.Modes().Selected(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fast-2");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ModeNames(0), std::vector<std::string>{"Fast-2"});
}

TEST_F(PrintModeDialog, DeletingTheLastModeSelectsTheOneBefore)
{
    Run([](PrintModeEditor& editor) {
        editor.Modes().ClickRow(1);
        editor.Press(IDC_BTN_DEL_MODE);
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"Fast-1"});
        EXPECT_EQ(editor.Modes().Selected(), 0);
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, DeletingTheOnlyModeDetachesThePages)
{
    Run([this](PrintModeEditor& editor) {
        editor.Configs().ClickRow(1);
        NewChanges();
        editor.Press(IDC_BTN_DEL_MODE);
        for (int id : {IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN})
            EXPECT_FALSE(editor.IsEnabled(id)) << id;
        // The page keeps showing what it showed, but nobody receives it.
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fine-1");
        EXPECT_EQ(editor.Grid().RowCount(), 0);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), (Calls{"IPrintConfig[1].RemoveMode(0)"} + kSaved));
}

TEST_F(PrintModeDialog, DeletesTheModeThatItsLineShowsAfterMoves)
{
    Run([this](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_MODE_DOWN);
        editor.Press(IDC_BTN_DEL_MODE);
        EXPECT_EQ(ModeNames(0), std::vector<std::string>{"Fast-2"});
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"Fast-2"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, MovingTheFirstModeUpOrTheLastDownDoesNothing)
{
    Run([this](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_MODE_UP);
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"Fast-1", L"Fast-2"}));
        editor.Modes().ClickRow(1);
        NewChanges();
        editor.Press(IDC_BTN_MODE_DOWN);
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"Fast-1", L"Fast-2"}));
        EXPECT_EQ(editor.Modes().Selected(), 1);
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, MovingAModeChangesTheListAndNotTheHost)
{
    m_machine.configurations = {Config("A", {"1", "2", "3"})};
    Run([this](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_MODE_DOWN);
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"2", L"1", L"3"}));
        EXPECT_EQ(editor.Modes().Selected(), 1);
        editor.Press(IDC_BTN_MODE_DOWN);
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"2", L"3", L"1"}));
        editor.Press(IDC_BTN_MODE_UP);
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"2", L"1", L"3"}));
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"1");
        EXPECT_EQ(ModeNames(0), (std::vector<std::string>{"1", "2", "3"}));
        editor.Cancel();
    });
    RunAgain([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"1", L"2", L"3"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, MovingAModeStoresIt)
{
    Run([this](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Moved");
        editor.Press(IDC_BTN_MODE_DOWN);
        EXPECT_EQ(Changes(), Calls(StoredMode{"0.0", "Moved"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeDialog, WorksWithAHostThatFreesAtOnce)
{
    m_faults.keepRemoved = false;
    Run([this](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_DEL_MODE);
        editor.Press(IDC_BTN_DEL_MODE);
        editor.Grid();
        editor.Tab().ClickTab(0);
        editor.Edit(IDC_EDIT_SMALL).Type(L"2");
        editor.Press(IDC_BTN_DEL_CFG);
        editor.Configs().ClickRow(0);
        editor.Press(IDC_BTN_DEL_CFG);
        editor.Edit(IDC_EDIT_SMALL).Type(L"3");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ConfigNames(), std::vector<std::string>{"Draft"});
}
} // namespace
