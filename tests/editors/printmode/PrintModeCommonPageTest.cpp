#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/support/RuntimeLocale.h"

namespace
{
// The rows of the pass count list.
const Texts kPassCounts = {L"1", L"2", L"3", L"4", L"6", L"8", L"12", L"16"};

class PrintModeCommonPage : public PrintModeFixture
{
protected:
    refhost::PrintMode& FirstMode() { return m_machine.configurations[0].modes[0]; }

    // The pass count that is shown for the host's.
    std::wstring ShownPassCount(std::uint16_t passCount)
    {
        std::wstring shown;
        FirstMode().passCount = passCount;
        Run([&](PrintModeEditor& editor) {
            shown = editor.Combo(IDC_CMB_PASS).SelectedText();
            editor.Cancel();
        });
        return shown;
    }

    // Types a value for the third group and leaves the field by Tab.
    void EnterForYellow(PrintModeEditor& editor, int group, int field, const std::wstring& value)
    {
        editor.Combo(group).Pick(2);
        NewChanges();
        editor.Edit(field).Type(value);
        editor.Op().Key(VK_TAB);
    }

    // Shows the second group's switch and turns it over.
    void TurnOverForMagenta(PrintModeEditor& editor, int group, int onOff, int expected)
    {
        editor.Combo(group).Pick(1);
        EXPECT_EQ(editor.Combo(onOff).Selected(), expected);
        NewChanges();
        editor.Combo(onOff).Pick(1 - expected);
    }
};

TEST_F(PrintModeCommonPage, OffersTheFixedPassCounts)
{
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_PASS).Rows(), kPassCounts);
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, ShowsAPassCountThatIsOffered)
{
    EXPECT_EQ(ShownPassCount(12), L"12");
    EXPECT_EQ(ShownPassCount(1), L"1");
    EXPECT_EQ(ShownPassCount(16), L"16");
}

TEST_F(PrintModeCommonPage, ShowsOnePassWhereTheCountIsNotOffered)
{
    EXPECT_EQ(ShownPassCount(5), L"1");
    EXPECT_EQ(ShownPassCount(0), L"1");
    EXPECT_EQ(ShownPassCount(65535), L"1");
}

TEST_F(PrintModeCommonPage, ShowsOnePassAfterAModeWhoseCountIsOffered)
{
    FirstMode().passCount = 12;
    m_machine.configurations[0].modes[1].passCount = 5;
    Run([](PrintModeEditor& editor) {
        editor.Modes().ClickRow(1);
        EXPECT_EQ(editor.Combo(IDC_CMB_PASS).SelectedText(), L"1");
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, StoresTheNumberOfTheSelectedPassCount)
{
    Run([this](PrintModeEditor& editor) {
        for (int row = 0; row < static_cast<int>(kPassCounts.size()); ++row)
        {
            editor.Combo(IDC_CMB_PASS).Pick(row);
            editor.Modes().ClickRow(0); // stores, and loads again
            EXPECT_EQ(editor.Combo(IDC_CMB_PASS).Selected(), row);
        }
        EXPECT_EQ(ChangesWith("SetPassCount"),
                  (Calls{"IPrintMode[0.0].SetPassCount(1)", "IPrintMode[0.0].SetPassCount(2)",
                         "IPrintMode[0.0].SetPassCount(3)", "IPrintMode[0.0].SetPassCount(4)",
                         "IPrintMode[0.0].SetPassCount(6)", "IPrintMode[0.0].SetPassCount(8)",
                         "IPrintMode[0.0].SetPassCount(12)", "IPrintMode[0.0].SetPassCount(16)"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, LoadsAModeInOrder)
{
    Run([](PrintModeEditor& editor) { editor.Cancel(); });
    Calls reads;
    for (const std::string& call : Host().Log().Everything())
        if (call.find("IPrintMode[0.0].") == 0 || call == "IHostData.GetXResolutionList()" ||
            call == "IHostData.GetInkGroups()")
            reads.push_back(call);
    const Calls groups(5, "IHostData.GetInkGroups()");
    EXPECT_EQ(reads,
              (Calls{"IPrintMode[0.0].GetName()", // for the list of modes
                     "IPrintMode[0.0].GetHeadDataMode(0)", "IPrintMode[0.0].GetHeadDataMode(1)",
                     "IHostData.GetXResolutionList()", "IPrintMode[0.0].GetXResolutionIndex()"} +
               groups +
               Calls{"IPrintMode[0.0].GetSmallDotCompensation(0)", "IPrintMode[0.0].GetMediumDotCompensation(0)",
                     "IPrintMode[0.0].GetLargeDotCompensation(0)", "IPrintMode[0.0].GetFrontCompensation(0)",
                     "IPrintMode[0.0].GetBackCompensation(0)", "IPrintMode[0.0].GetPassCount()",
                     "IPrintMode[0.0].GetName()", "IPrintMode[0.0].GetDisabled()", "IPrintMode[0.0].GetResident()"}));
}

TEST_F(PrintModeCommonPage, ShowsTheModesValues)
{
    refhost::PrintMode& mode = FirstMode();
    mode.disabled = true;
    mode.resident = 1;
    mode.xResolutionIndex = 2;
    mode.smallDotCompensation = {1.5f};
    mode.mediumDotCompensation = {-0.1f};
    mode.largeDotCompensation = {2.0f};
    mode.frontCompensation = {true};
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_ENABLE).Selected(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fast-1");
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).SelectedText(), L"1440");
        EXPECT_EQ(editor.Combo(IDC_CMB_RESIDENT).Selected(), 1);
        EXPECT_EQ(editor.Edit(IDC_EDIT_SMALL).Text(), L"1.5");
        EXPECT_EQ(editor.Edit(IDC_EDIT_MEDIUM).Text(), L"-0.1");
        EXPECT_EQ(editor.Edit(IDC_EDIT_LARGE).Text(), L"2");
        EXPECT_EQ(editor.Combo(IDC_CMB_FRONT).Selected(), 1);
        EXPECT_EQ(editor.Combo(IDC_CMB_BACK).Selected(), 0);
        editor.Modes().ClickRow(1);
        EXPECT_EQ(editor.Combo(IDC_CMB_ENABLE).Selected(), 1);
        EXPECT_EQ(editor.Combo(IDC_CMB_RESIDENT).Selected(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_SMALL).Text(), L"0");
        EXPECT_EQ(editor.Combo(IDC_CMB_FRONT).Selected(), 0);
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, OffersTheHostsResolutionsAndInkGroups)
{
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).Rows(), (Texts{L"360", L"720", L"1440"}));
        for (int id :
             {IDC_CMB_SMALL_GROUP, IDC_CMB_MEDIUM_GROUP, IDC_CMB_LARGE_GROUP, IDC_CMB_FRONT_GROUP, IDC_CMB_BACK_GROUP})
        {
            EXPECT_EQ(editor.Combo(id).Rows(), (Texts{L"Cyan", L"Magenta", L"Yellow", L"Black"})) << id;
            EXPECT_EQ(editor.Combo(id).Selected(), 0) << id;
        }
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, StoresAllGeneralSettingsInOrder)
{
    Run([this](PrintModeEditor& editor) {
        editor.Combo(IDC_CMB_ENABLE).Pick(0);
        editor.Edit(IDC_EDIT_NAME).Type(L"Night run");
        editor.Combo(IDC_CMB_PASS).Pick(7);
        editor.Combo(IDC_CMB_XDPI).Pick(1);
        editor.Combo(IDC_CMB_RESIDENT).Pick(1);
        EXPECT_EQ(Changes(), Calls());
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), StoredMode({"0.0", "Night run", 16, 1, 1, 1}) + Calls{"IHostControl.SaveParameters(2)"});
}

TEST_F(PrintModeCommonPage, ResolutionIndexBeyondTheListShowsTheFirst)
{
    FirstMode().xResolutionIndex = 3;
    m_machine.configurations[0].modes[1].xResolutionIndex = -1;
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).Selected(), 0);
        editor.Modes().ClickRow(1);
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).Selected(), 0);
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, EmptyResolutionListStoresMinusOne)
{
    m_machine.xResolutions.clear();
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).RowCount(), 0);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetXResolutionIndex"), Calls{"IPrintMode[0.0].SetXResolutionIndex(-1)"});
}

TEST_F(PrintModeCommonPage, UnknownResidentValueSelectsNothingAndStores255)
{
    FirstMode().resident = 2;
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_RESIDENT).Selected(), kNone);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetResident"), Calls{"IPrintMode[0.0].SetResident(255)"});
}

TEST_F(PrintModeCommonPage, ChoosingAnInkGroupShowsItsCompensation)
{
    FirstMode().smallDotCompensation = {0, 1, 2, 3.25f};
    FirstMode().mediumDotCompensation = {0, 10, 20, 30};
    FirstMode().largeDotCompensation = {0, 100, 200, 300};
    Run([this](PrintModeEditor& editor) {
        editor.Combo(IDC_CMB_SMALL_GROUP).Pick(3);
        EXPECT_EQ(editor.Edit(IDC_EDIT_SMALL).Text(), L"3.25");
        editor.Combo(IDC_CMB_MEDIUM_GROUP).Pick(2);
        EXPECT_EQ(editor.Edit(IDC_EDIT_MEDIUM).Text(), L"20");
        editor.Combo(IDC_CMB_LARGE_GROUP).Pick(1);
        EXPECT_EQ(editor.Edit(IDC_EDIT_LARGE).Text(), L"100");
        EXPECT_EQ(editor.Edit(IDC_EDIT_SMALL).Text(), L"3.25");
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, ChoosingAnInkGroupPutsAnUnreadNameBack)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Half-typed");
        editor.Combo(IDC_CMB_SMALL_GROUP).Pick(1);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Fast-1");
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, NameIsReadAlongWithACompensation)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Kept");
        editor.Edit(IDC_EDIT_SMALL).Type(L"1");
        editor.Op().Key(VK_TAB);
        editor.Combo(IDC_CMB_SMALL_GROUP).Pick(1);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Kept");
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, LeavingASmallDotValueWritesItForItsGroupOnly)
{
    FirstMode().smallDotCompensation = {0, 1, 2, 3};
    Run([this](PrintModeEditor& editor) {
        EnterForYellow(editor, IDC_CMB_SMALL_GROUP, IDC_EDIT_SMALL, L"1.5");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetSmallDotCompensation(1.5, 2)"});
        editor.Cancel();
    });
    EXPECT_EQ(Mode(0, 0).smallDotCompensation, (std::vector<float>{0, 1, 1.5f, 3}));
}

TEST_F(PrintModeCommonPage, LeavingAMediumDotValueWritesItForItsGroup)
{
    Run([this](PrintModeEditor& editor) {
        EnterForYellow(editor, IDC_CMB_MEDIUM_GROUP, IDC_EDIT_MEDIUM, L"-2.25");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetMediumDotCompensation(-2.25, 2)"});
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, LeavingALargeDotValueWritesItForItsGroup)
{
    Run([this](PrintModeEditor& editor) {
        EnterForYellow(editor, IDC_CMB_LARGE_GROUP, IDC_EDIT_LARGE, L"40");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetLargeDotCompensation(40, 2)"});
        editor.Cancel();
    });
}

TEST_F(PrintModeCommonPage, FrontSwitchIsWrittenForItsGroupAtOnce)
{
    FirstMode().frontCompensation = {true, false};
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_FRONT).Selected(), 1);
        TurnOverForMagenta(editor, IDC_CMB_FRONT_GROUP, IDC_CMB_FRONT, 0);
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetFrontCompensation(1, 1)"});
        editor.Cancel();
    });
    EXPECT_EQ(Mode(0, 0).frontCompensation, (std::vector<bool>{true, true}));
}

TEST_F(PrintModeCommonPage, BackSwitchIsWrittenForItsGroupAtOnce)
{
    FirstMode().backCompensation = {false, true};
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_BACK).Selected(), 0);
        TurnOverForMagenta(editor, IDC_CMB_BACK_GROUP, IDC_CMB_BACK, 1);
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetBackCompensation(0, 1)"});
        editor.Cancel();
    });
    EXPECT_EQ(Mode(0, 0).backCompensation, (std::vector<bool>{false, false}));
}

TEST_F(PrintModeCommonPage, TakesNoMoreThanSixtyCharactersOfAName)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(std::wstring(70, L'n'));
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), std::wstring(60, L'n'));
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).name, std::string(60, 'n'));
}

TEST_F(PrintModeCommonPage, HostsNameOfMoreThanSixtyCharactersIsRefusedOnceAndStaysTheHosts)
{
    const std::string longName(70, 'n');
    FirstMode().name = longName;
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), std::wstring(70, L'n'));
        editor.Press(IDOK);
        editor.Op().AnswerMessageBox();
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Mode(0, 0).name, longName);
    EXPECT_EQ(ChangesWith("SaveParameters").size(), 1u);
}

TEST_F(PrintModeCommonPage, ClearedNameIsStoredEmpty)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IPrintMode[0.0].SetName(\"\")"});
}

TEST_F(PrintModeCommonPage, WithoutAModeWritesNothing)
{
    m_machine.configurations.clear();
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"Nobody's");
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.Edit(IDC_EDIT_MEDIUM).Type(L"no number");
        editor.Combo(IDC_CMB_FRONT).Pick(1);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), Calls{"IHostControl.SaveParameters(2)"});
}

TEST_F(PrintModeCommonPage, BehavesWithoutInkGroups)
{
    m_machine.inkGroups.clear();
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_SMALL_GROUP).RowCount(), 0);
        EXPECT_EQ(editor.Combo(IDC_CMB_SMALL_GROUP).Selected(), kNone);
        EXPECT_EQ(editor.Edit(IDC_EDIT_SMALL).Text(), L"0");
        EXPECT_EQ(editor.Combo(IDC_CMB_FRONT).Selected(), 0);
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.Combo(IDC_CMB_FRONT).Pick(1);
        editor.SaveAndQuit();
    });
    EXPECT_TRUE(Mode(0, 0).smallDotCompensation.empty());
}
// The C library's locale is the process's: a host, or another of its modules, may have set it.
class GermanPrintModeCommonPage : public PrintModeCommonPage
{
protected:
    GermanPrintModeCommonPage() { FirstMode().smallDotCompensation = {0.5f, 0.25f, 0, 0}; }

private:
    RuntimeLocale m_german{"German"};
};

TEST_F(GermanPrintModeCommonPage, ShowsAndStoresANumberWithAPoint)
{
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Edit(IDC_EDIT_SMALL).Text(), L"0.5");
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.Op().Key(VK_TAB);
        EXPECT_EQ(NewChanges().back(), "IPrintMode[0.0].SetSmallDotCompensation(1.5, 0)");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).smallDotCompensation.at(0), 1.5f);
}

TEST_F(GermanPrintModeCommonPage, LeavesANumberThatIsNotTouched)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Click();
        editor.Op().Key(VK_TAB);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).smallDotCompensation.at(0), 0.5f);
}

TEST_F(GermanPrintModeCommonPage, RefusesANumberWithAComma)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Type(L"1,5");
        editor.Op().Key(VK_TAB);
        editor.Op().AnswerMessageBox();
        editor.Edit(IDC_EDIT_SMALL).Type(L"2");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).smallDotCompensation.at(0), 2.0f);
}
} // namespace
