#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
class SchemeModePage : public FactorySchemeFixture
{
protected:
    refhost::PrintMode& Mode(std::size_t index) { return m_machine.configurations[0].modes[index]; }

    static ComboBox Modes(const FactoryEditor& editor) { return editor.Combo(SchemePage::Mode, IDC_CMB_PRINT_MODE); }
    static ComboBox Passes(const FactoryEditor& editor) { return editor.Combo(SchemePage::Mode, IDC_CMB_PASS); }
    static ComboBox StayMode(const FactoryEditor& editor) { return editor.Combo(SchemePage::Mode, IDC_CMB_RESIDENT); }
};

TEST_F(SchemeModePage, ShowsTheSchemesModeWithItsDetails)
{
    Poster().modeIndex = 1;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Modes(editor).Rows(), (Texts{L"Fast-1", L"Fast-2", L"Fast-3"}));
        EXPECT_EQ(Modes(editor).Selected(), 1);
        EXPECT_EQ(Passes(editor).Rows(), (Texts{L"1", L"2", L"3", L"4", L"6", L"8", L"12", L"16"}));
        EXPECT_EQ(Passes(editor).SelectedText(), L"6");
        EXPECT_EQ(StayMode(editor).Rows(), (Texts{L"Off", L"On"}));
        EXPECT_EQ(StayMode(editor).SelectedText(), L"On");
        EXPECT_TRUE(Modes(editor).IsEnabled());
        EXPECT_FALSE(Passes(editor).IsEnabled());
        EXPECT_FALSE(StayMode(editor).IsEnabled());
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(SchemeModePage, ResidentHasBuiltInTexts)
{
    RemoveTexts();
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(StayMode(editor).Rows(), (Texts{L"禁用", L"启用"}));
        editor.Cancel();
    });
}

TEST_F(SchemeModePage, ChosenModeShowsItsDetailsAndIsStoredLater)
{
    Run([this](FactoryEditor& editor) {
        Modes(editor).Pick(1);
        EXPECT_EQ(Passes(editor).SelectedText(), L"6");
        EXPECT_EQ(StayMode(editor).SelectedText(), L"On");
        EXPECT_EQ(Changes(), Calls());
        editor.Apply();
        EXPECT_EQ(ChangesWith("SetModeIndex"), Calls{"IPrintScheme[0].SetModeIndex(1)"});
        editor.Cancel();
    });
}

// The mode's index is taken for a row: with a disabled mode before it, a later mode is shown and then stored.
TEST_F(SchemeModePage, ModeIndexSelectsTheRowOfItsNumber)
{
    Mode(0).disabled = true;
    Poster().modeIndex = 1;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Modes(editor).Rows(), (Texts{L"Fast-2", L"Fast-3"}));
        EXPECT_EQ(Modes(editor).SelectedText(), L"Fast-3");
        EXPECT_EQ(Passes(editor).SelectedText(), L"6"); // of the mode with the row's number
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetModeIndex"), Calls{"IPrintScheme[0].SetModeIndex(2)"});
}

TEST_F(SchemeModePage, ModeIndexPastTheLastRowSelectsNoneAndStoresNothing)
{
    Mode(0).disabled = true;
    Poster().modeIndex = 2;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Modes(editor).Selected(), kNone);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetModeIndex"), Calls());
}

TEST_F(SchemeModePage, DisabledModeIsReplacedByTheFirstListedOneWhileLoading)
{
    Mode(0).disabled = true;
    Poster().modeIndex = 0;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Modes(editor).Selected(), 0);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls{"IPrintScheme[0].SetModeIndex(1)"});
}

TEST_F(SchemeModePage, MissingModeIsReplacedByTheFirstListedOneWhileLoading)
{
    Poster().modeIndex = 9;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Modes(editor).SelectedText(), L"Fast-1");
        EXPECT_EQ(Passes(editor).SelectedText(), L"4");
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls{"IPrintScheme[0].SetModeIndex(0)"});
}

TEST_F(SchemeModePage, AllModesDisabledLeavesTheListEmptyAndWritesNothing)
{
    for (refhost::PrintMode& mode : m_machine.configurations[0].modes)
        mode.disabled = true;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Modes(editor).RowCount(), 0);
        EXPECT_EQ(Modes(editor).Selected(), kNone);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetModeIndex"), Calls());
}

TEST_F(SchemeModePage, NullModeIsLeftOut)
{
    m_faults.failing = {"IPrintConfig[0].GetMode(1)"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Modes(editor).Rows(), (Texts{L"Fast-1", L"Fast-3"}));
        Modes(editor).Pick(1);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetModeIndex"), Calls{"IPrintScheme[0].SetModeIndex(2)"});
}

TEST_F(SchemeModePage, ModeWithoutNameHasAnEmptyRow)
{
    m_faults.failing = {"IPrintMode[0.1].GetName()"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Modes(editor).Rows(), (Texts{L"Fast-1", L"", L"Fast-3"}));
        editor.Cancel();
    });
}

TEST_F(SchemeModePage, PassCountAndResidentWithoutARowSelectNone)
{
    Mode(0).passCount = 5;
    Mode(0).resident = 2;
    Mode(1).passCount = 16;
    Mode(2).passCount = 65535;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Passes(editor).Selected(), kNone);
        EXPECT_EQ(StayMode(editor).Selected(), kNone);
        Modes(editor).Pick(1);
        EXPECT_EQ(Passes(editor).SelectedText(), L"16");
        Modes(editor).Pick(2);
        EXPECT_EQ(Passes(editor).Selected(), kNone);
        editor.Cancel();
    });
}

// Looking for "1" must not find "12" or "16".
TEST_F(SchemeModePage, PassCountIsFoundByItsWholeText)
{
    Mode(0).passCount = 12;
    Mode(1).passCount = 1;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Passes(editor).SelectedText(), L"12");
        Modes(editor).Pick(1);
        EXPECT_EQ(Passes(editor).SelectedText(), L"1");
        editor.Cancel();
    });
}

TEST_F(SchemeModePage, WithoutSchemeThePageStaysAsItWas)
{
    Run([](FactoryEditor& editor) {
        editor.Open(SchemePage::Mode);
        editor.Configs().ClickRow(2);
        EXPECT_EQ(Modes(editor).Rows(), (Texts{L"Fast-1", L"Fast-2", L"Fast-3"}));
        EXPECT_FALSE(Modes(editor).IsEnabled());
        editor.Cancel();
    });
}

TEST_F(SchemeModePage, SchemeThatMovedToAnotherConfigurationIsNotStored)
{
    Run([this](FactoryEditor& editor) {
        Modes(editor).Pick(2);
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->GetAt(0)->SetConfigIndex(2); });
        editor.Apply();
        EXPECT_EQ(ChangesWith("SetModeIndex"), Calls());
        editor.Cancel();
    });
}

TEST_F(SchemeModePage, ConfigurationWithoutModesEmptiesTheList)
{
    Photo().configIndex = 2;
    Run([](FactoryEditor& editor) {
        editor.Configs().ClickRow(2);
        EXPECT_EQ(editor.Schemes().Rows(), Texts{L"Photo"});
        EXPECT_EQ(Modes(editor).RowCount(), 0);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IPrintScheme[2].SetModeIndex"), Calls());
}
} // namespace
