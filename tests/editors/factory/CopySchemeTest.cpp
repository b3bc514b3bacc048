#include "host/IConfigList.h"
#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
constexpr int kPoster = 0;
constexpr int kBanner = 1;

class CopyScheme : public FactorySchemeFixture
{
protected:
    // What the host is told for one copy; the places are those of the call log.
    static Calls CopiedValues(int source, int copy)
    {
        return {"ISchemeList[factory].AddScheme()",
                "ISchemeParams[factory." + std::to_string(copy) + "].CopyFrom(factory." + std::to_string(source) + ")"};
    }
    static Calls Copied(int source, int copy, int config)
    {
        const std::string object = "IPrintScheme[" + std::to_string(copy) + "].";
        return CopiedValues(source, copy) +
               Calls{object + "SetConfigIndex(" + std::to_string(config) + ")", object + "SetName(\"720X1200_Copy\")"};
    }

    // What makes the copy and gives it its configuration, the host's answers included.
    Calls CallsOfACopy()
    {
        Calls found;
        for (const std::string& call : Host().Log().Everything())
            for (const char* part : {"AddScheme", "GetParams", "CopyFrom", "IConfigList.GetAt", "SetConfigIndex"})
                if (call.find(part) != std::string::npos)
                    found.push_back(call);
        return found;
    }

    static ListBox ConfigsOf(const Window& dialog) { return dialog.Control<ListBox>(IDC_LIST_CFG); }

    static bool IsChosen(const ListBox& list, int row)
    {
        return SendMessageW(list.Handle(), LB_GETSEL, static_cast<WPARAM>(row), 0) > 0;
    }
};

TEST_F(CopyScheme, DialogListsAllConfigurationsAndNoneIsChosen)
{
    m_machine.configurations[1] = Config("");
    m_machine.configurations[1].yResolution = 720;
    m_machine.configurations[1].dotBits = 1;
    Run([](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kPoster);
        EXPECT_EQ(dialog.Text(), L"Choose configurations");
        const ListBox configs = ConfigsOf(dialog);
        EXPECT_EQ(configs.Rows(), (Texts{L"Fast", L"[720X720][4C][1b]", L"Draft"}));
        EXPECT_TRUE(configs.HasStyle(LBS_MULTIPLESEL));
        EXPECT_FALSE(configs.HasStyle(LBS_SORT));
        for (int row = 0; row < 3; ++row)
            EXPECT_FALSE(IsChosen(configs, row)) << row;
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(CopyScheme, DialogHasItsBuiltInTextsWithoutLanguageFile)
{
    RemoveTexts();
    Run([](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kPoster);
        EXPECT_EQ(dialog.Text(), L"");
        EXPECT_EQ(dialog.Control(IDOK).Text(), L"OK");
        EXPECT_EQ(dialog.Control(IDCANCEL).Text(), L"Cancel");
        EXPECT_EQ(dialog.Control(IDC_STATIC_CFG).Text(), L"");
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(CopyScheme, AClickTogglesARow)
{
    Run([](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kPoster);
        const ListBox configs = ConfigsOf(dialog);
        configs.ClickRow(1);
        EXPECT_TRUE(IsChosen(configs, 1));
        configs.ClickRow(1);
        EXPECT_FALSE(IsChosen(configs, 1));
        editor.Confirm(dialog);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("AddScheme"), Calls());
}

TEST_F(CopyScheme, MakesOneSchemeForEachChosenConfiguration)
{
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kBanner);
        ConfigsOf(dialog).ClickRow(0);
        ConfigsOf(dialog).ClickRow(2);
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(NewChanges(), Copied(1, 4, 0) + Stored(1) + Copied(1, 5, 2));
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{L"Poster", L"Banner", L"Sign", L"720X1200_Copy"}));
        EXPECT_EQ(editor.Schemes().Selected(), 0);
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"Poster");
        editor.Cancel();
    });
}

TEST_F(CopyScheme, CopiesInTheOrderOfTheConfigurations)
{
    m_machine.configurations.push_back(Config("Last"));
    m_machine.configurations[2].xResolution = 65535;
    m_machine.configurations[2].yResolution = 0;
    Run([](FactoryEditor& editor) {
        editor.CopyTo({3, 0, 2}, kPoster);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetConfigIndex"),
              (Calls{"IPrintScheme[4].SetConfigIndex(0)", "IPrintScheme[5].SetConfigIndex(2)",
                     "IPrintScheme[6].SetConfigIndex(3)"}));
    EXPECT_EQ(ChangesWith("IPrintScheme[5].SetName"), Calls{"IPrintScheme[5].SetName(\"65535X0_Copy\")"});
}

TEST_F(CopyScheme, IntoAnotherConfigurationLeavesTheListAlone)
{
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kBanner);
        ConfigsOf(dialog).ClickRow(1);
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(NewChanges(), Copied(1, 4, 1));
        EXPECT_EQ(editor.Schemes().Selected(), 1);
        editor.Configs().ClickRow(1);
        EXPECT_EQ(editor.Schemes().Rows(), (Texts{L"Photo", L"720X1200_Copy"}));
        editor.Cancel();
    });
}

TEST_F(CopyScheme, OkWithNothingChosenAndCancelCopyNothing)
{
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kPoster);
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(NewChanges(), Calls());
        const Window again = editor.OpenCopyDialog(kPoster);
        ConfigsOf(again).ClickRow(2);
        NewChanges();
        editor.Confirm(again, IDCANCEL);
        EXPECT_EQ(NewChanges(), Calls());
        editor.Cancel();
    });
}

TEST_F(CopyScheme, WithoutConfigurationsNothingCanBeChosen)
{
    m_machine.configurations.clear();
    Run([](FactoryEditor& editor) {
        PostMessageW(editor.Dialog().Handle(), WM_COMMAND, IDM_COPY_SCHEME, 0);
        const Window dialog = editor.ExpectCopyDialog();
        EXPECT_EQ(ConfigsOf(dialog).RowCount(), 0);
        editor.Confirm(dialog);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

// The right click stores the pages; the command alone does not.
TEST_F(CopyScheme, TakesTheSchemeAsTheHostHasIt)
{
    Run([](FactoryEditor& editor) {
        editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT).Click();
        PostMessageW(editor.Dialog().Handle(), WM_COMMAND, IDM_COPY_SCHEME, 0);
        const Window dialog = editor.ExpectCopyDialog();
        ConfigsOf(dialog).ClickRow(2);
        editor.Confirm(dialog);
        editor.Cancel();
    });
    EXPECT_EQ(Factory(4).lampLL, Poster().lampLL);
    EXPECT_EQ(ChangesWith("SetLamp"), Calls());
}

TEST_F(CopyScheme, EditsMadeBeforeTheRightClickAreCopied)
{
    Run([](FactoryEditor& editor) {
        editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT).Click();
        editor.CopyTo({2}, kPoster);
        editor.Cancel();
    });
    EXPECT_EQ(Factory(4).lampLL, 1 - Poster().lampLL);
}

TEST_F(CopyScheme, WithoutASelectedSchemeNothingIsCopied)
{
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(2);
        PostMessageW(editor.Dialog().Handle(), WM_COMMAND, IDM_COPY_SCHEME, 0);
        const Window dialog = editor.ExpectCopyDialog();
        ConfigsOf(dialog).ClickRow(0);
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(CopyScheme, SchemeThatVanishedIsNotCopied)
{
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(2);
        ConfigsOf(dialog).ClickRow(1);
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(3); });
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(CopyScheme, IsMadeBeforeItsConfigurationIsLookedAt)
{
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kPoster);
        ConfigsOf(dialog).ClickRow(2);
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(CallsOfACopy(), (Calls{"ISchemeList[factory].AddScheme()", "IPrintScheme[4].GetParams()",
                                         "IPrintScheme[0].GetParams()", "ISchemeParams[factory.4].CopyFrom(factory.0)",
                                         "IConfigList.GetAt(2)", "IPrintScheme[4].SetConfigIndex(2)"}));
        editor.Cancel();
    });
}

TEST_F(CopyScheme, ForAConfigurationThatIsNullStaysWithoutPlaceAndName)
{
    m_faults.failing = {"IConfigList.GetAt(1)"};
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kBanner);
        EXPECT_EQ(ConfigsOf(dialog).Rows(), (Texts{L"Fast", L"", L"Draft"}));
        ConfigsOf(dialog).ClickRow(1);
        ConfigsOf(dialog).ClickRow(2);
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), CopiedValues(1, 4) + Copied(1, 5, 2));
        editor.Cancel();
    });
    EXPECT_EQ(Factory(4).lampLL, Banner().lampLL);
    EXPECT_EQ(Factory(4).name, "Banner");
}

TEST_F(CopyScheme, ForTheShownConfigurationThatVanishedLeavesTheListAlone)
{
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(1);
        const Window dialog = editor.OpenCopyDialog(0);
        ConfigsOf(dialog).ClickRow(1);
        InHost(editor, [](IHostData& data) {
            data.GetConfigList()->RemoveAt(2);
            data.GetConfigList()->RemoveAt(1);
        });
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), CopiedValues(2, 4));
        EXPECT_EQ(editor.Schemes().Rows(), Texts{L"Photo"});
        editor.Cancel();
    });
}

TEST_F(CopyScheme, RefusedAdditionCopiesNothing)
{
    m_faults.failing = {"ISchemeList[factory].AddScheme()"};
    Run([this](FactoryEditor& editor) {
        const Window dialog = editor.OpenCopyDialog(kPoster);
        ConfigsOf(dialog).ClickRow(1);
        NewChanges();
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), Calls{"ISchemeList[factory].AddScheme()"});
        editor.Cancel();
    });
}

TEST_F(CopyScheme, DeletingAndCopyingInOneRunKeepTheirSchemes)
{
    Run([](FactoryEditor& editor) {
        editor.Schemes().ClickRow(kPoster);
        editor.Press(IDC_BTN_DEL_SCHEME);
        editor.CopyTo({1}, 0); // the row that moved up
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("CopyFrom"), Calls{"ISchemeParams[factory.4].CopyFrom(factory.1)"});
    EXPECT_EQ(ChangesWith("RemoveAt"), Calls{"ISchemeList[factory].RemoveAt(0)"});
    EXPECT_EQ(Factory(0).name, "Banner");
    EXPECT_EQ(Factory(3).name, "720X1200_Copy");
}

TEST_F(CopyScheme, CopyThatIsDeletedAgainIsRemoved)
{
    Run([](FactoryEditor& editor) {
        editor.CopyTo({0}, kPoster);
        editor.Schemes().ClickRow(3);
        editor.Press(IDC_BTN_DEL_SCHEME);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("RemoveAt"), Calls{"ISchemeList[factory].RemoveAt(4)"});
}
} // namespace
