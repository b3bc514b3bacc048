#include "tests/editors/fixtures/PrintModeFixture.h"

namespace
{
class AddConfigDialog : public PrintModeFixture
{
protected:
    using DialogScript = std::function<void(PrintModeEditor&, const ConfigDialog&)>;

    // Opens the dialog to add a configuration; the script closes it.
    void Add(const DialogScript& script)
    {
        Run([&](PrintModeEditor& editor) {
            script(editor, editor.OpenAddConfig());
            editor.Cancel();
        });
    }

    // Opens it to rename the first configuration.
    void Rename(const DialogScript& script)
    {
        Run([&](PrintModeEditor& editor) {
            const ConfigDialog dialog = editor.OpenRename(0);
            NewChanges();
            script(editor, dialog);
            editor.Cancel();
        });
    }

    // The name that the host got of a new configuration with these texts.
    std::string AddedName(const std::wstring& name, const std::wstring& xDpi, const std::wstring& yDpi,
                          const std::wstring& colors, const std::wstring& dotBits)
    {
        Add([&](PrintModeEditor& editor, const ConfigDialog& dialog) {
            dialog.Type(IDC_EDIT_CFG_NAME, name);
            dialog.Type(IDC_EDIT_CFG_XDPI, xDpi);
            dialog.Type(IDC_EDIT_CFG_YDPI, yDpi);
            dialog.Type(IDC_EDIT_CFG_COLORS, colors);
            dialog.Type(IDC_EDIT_CFG_DOT_BITS, dotBits);
            editor.Confirm(dialog);
        });
        return Machine().configurations.back().name;
    }

    // Types a text that is no number, presses OK and answers the one message that comes.
    static void ExpectRefused(PrintModeEditor& editor, const ConfigDialog& dialog, int field, const std::wstring& text)
    {
        dialog.Type(field, text);
        dialog.Dialog().Control(IDOK).Click();
        editor.Op().AnswerMessageBox();
        editor.Op().Settle();
        EXPECT_TRUE(dialog.Dialog().IsVisible());
        EXPECT_TRUE(dialog.Field(field).HasFocus());
        EXPECT_EQ(dialog.Field(field).Text(), text);
        EXPECT_TRUE(text.empty() || dialog.Field(field).IsAllSelected());
    }
};

TEST_F(AddConfigDialog, BeginsWithTheDefaults)
{
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_NAME).Text(), L"[720 X 720]");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_XDPI).Text(), L"720");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_YDPI).Text(), L"720");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_COLORS).Text(), L"0");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_DOT_BITS).Text(), L"0");
        EXPECT_TRUE(dialog.Field<CheckBox>(IDC_CHECK_CFG_ENABLE).IsChecked());
        for (int id : {IDC_EDIT_CFG_NAME, IDC_EDIT_CFG_XDPI, IDC_EDIT_CFG_YDPI, IDC_EDIT_CFG_COLORS,
                       IDC_EDIT_CFG_DOT_BITS, IDC_CHECK_CFG_ENABLE})
            EXPECT_TRUE(dialog.Field(id).IsEnabled()) << id;
        editor.Confirm(dialog, IDCANCEL);
    });
}

TEST_F(AddConfigDialog, KeepsItsTemplateTextsWhateverTheLanguage)
{
    m_language.WriteTexts(L"IDCANCEL=Cancel\r\nIDOK=OK\r\nTITLE=Add\r\nIDC_STATIC_NAME=Name\r\n");
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        const Window window = dialog.Dialog();
        EXPECT_EQ(window.Text(), L"添加配置");
        EXPECT_EQ(window.Control(IDOK).Text(), L"确定");
        EXPECT_EQ(window.Control(IDCANCEL).Text(), L"取消");
        EXPECT_EQ(window.Control(IDC_STATIC_CFG_NAME).Text(), L"配置名称:");
        EXPECT_EQ(window.Control(IDC_STATIC_CFG_XDPI).Text(), L"横向精度:");
        EXPECT_EQ(window.Control(IDC_STATIC_CFG_YDPI).Text(), L"纵向精度:");
        EXPECT_EQ(window.Control(IDC_STATIC_CFG_COLORS).Text(), L"颜色数:");
        EXPECT_EQ(window.Control(IDC_STATIC_CFG_DOT_BITS).Text(), L"点位数:");
        EXPECT_EQ(window.Control(IDC_CHECK_CFG_ENABLE).Text(), L"启用");
        editor.Confirm(dialog, IDCANCEL);
    });
}

TEST_F(AddConfigDialog, NameOfBlanksIsBuiltToo)
{
    EXPECT_EQ(AddedName(L"   ", L"600", L"1200", L"6", L"2"), "[600 X 1200][6 C][2 B]");
}

TEST_F(AddConfigDialog, NameLosesTheBlanksAroundIt)
{
    EXPECT_EQ(AddedName(L"  My own  ", L"720", L"720", L"0", L"0"), "My own");
}

TEST_F(AddConfigDialog, NumbersOfAnySizeAreAcceptedAsTyped)
{
    AddedName(L"Large", L"70000", L"-5", L"300", L"0");
    EXPECT_EQ(ChangesWith("Set"),
              (Calls{"IPrintConfig[new.0].SetXResolution(70000)", "IPrintConfig[new.0].SetYResolution(-5)",
                     "IPrintConfig[new.0].SetColorCount(300)", "IPrintConfig[new.0].SetDotBits(0)",
                     "IPrintConfig[new.0].SetEnabled(1)", "IPrintConfig[new.0].SetName(\"Large\")"}));
}

TEST_F(AddConfigDialog, UncheckedConfigurationIsNotEnabled)
{
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        dialog.Field(IDC_CHECK_CFG_ENABLE).Click();
        editor.Confirm(dialog);
    });
    EXPECT_EQ(ChangesWith("SetEnabled"), Calls{"IPrintConfig[new.0].SetEnabled(0)"});
}

TEST_F(AddConfigDialog, TextThatIsNoIntegerIsRefusedOnceAndTheDialogStaysOpen)
{
    Add([this](PrintModeEditor& editor, const ConfigDialog& dialog) {
        ExpectRefused(editor, dialog, IDC_EDIT_CFG_XDPI, L"many");
        ExpectRefused(editor, dialog, IDC_EDIT_CFG_XDPI, L"");
        dialog.Type(IDC_EDIT_CFG_XDPI, L"360");
        ExpectRefused(editor, dialog, IDC_EDIT_CFG_YDPI, L"1.5");
        dialog.Type(IDC_EDIT_CFG_YDPI, L"360");
        ExpectRefused(editor, dialog, IDC_EDIT_CFG_COLORS, L"4 C");
        dialog.Type(IDC_EDIT_CFG_COLORS, L"4");
        ExpectRefused(editor, dialog, IDC_EDIT_CFG_DOT_BITS, L"0x2");
        EXPECT_EQ(Changes(), Calls());
        dialog.Type(IDC_EDIT_CFG_DOT_BITS, L"1");
        editor.Confirm(dialog);
        EXPECT_EQ(editor.Configs().RowCount(), 4);
    });
    EXPECT_EQ(ChangesWith("SetXResolution"), Calls{"IPrintConfig[new.0].SetXResolution(360)"});
}

TEST_F(AddConfigDialog, RefusedTextCanBeGivenUp)
{
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        ExpectRefused(editor, dialog, IDC_EDIT_CFG_COLORS, L"four");
        editor.Confirm(dialog, IDCANCEL);
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(AddConfigDialog, TakesNoMoreThanSixtyCharactersOfAName)
{
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        dialog.Type(IDC_EDIT_CFG_NAME, std::wstring(70, L'n'));
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_NAME).Text(), std::wstring(60, L'n'));
        editor.Confirm(dialog);
    });
    EXPECT_EQ(Machine().configurations.back().name, std::string(60, 'n'));
}

TEST_F(AddConfigDialog, HostsNameOfMoreThanSixtyCharactersIsRefusedUntilItIsShortened)
{
    m_machine.configurations[0].name = std::string(70, 'n');
    Rename([this](PrintModeEditor& editor, const ConfigDialog& dialog) {
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_NAME).Text(), std::wstring(70, L'n'));
        dialog.Dialog().Control(IDOK).Click();
        editor.Op().AnswerMessageBox();
        EXPECT_TRUE(dialog.Dialog().IsVisible());
        EXPECT_TRUE(dialog.Field(IDC_EDIT_CFG_NAME).HasFocus());
        EXPECT_TRUE(dialog.Field(IDC_EDIT_CFG_NAME).IsAllSelected());
        EXPECT_EQ(Changes(), Calls());
        dialog.Type(IDC_EDIT_CFG_NAME, L"Short");
        editor.Confirm(dialog);
        EXPECT_EQ(ChangesWith("IPrintConfig"), Calls{"IPrintConfig[0].SetName(\"Short\")"});
    });
}

TEST_F(AddConfigDialog, RenamingLocksEverythingButTheName)
{
    m_machine.configurations[0].enabled = false;
    Rename([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        EXPECT_TRUE(dialog.Field(IDC_EDIT_CFG_NAME).IsEnabled());
        for (int id :
             {IDC_EDIT_CFG_XDPI, IDC_EDIT_CFG_YDPI, IDC_EDIT_CFG_COLORS, IDC_EDIT_CFG_DOT_BITS, IDC_CHECK_CFG_ENABLE})
            EXPECT_FALSE(dialog.Field(id).IsEnabled()) << id;
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_NAME).Text(), L"Fast");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_XDPI).Text(), L"720");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_YDPI).Text(), L"1200");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_COLORS).Text(), L"4");
        EXPECT_EQ(dialog.Field(IDC_EDIT_CFG_DOT_BITS).Text(), L"2");
        EXPECT_FALSE(dialog.Field<CheckBox>(IDC_CHECK_CFG_ENABLE).IsChecked());
        editor.Confirm(dialog, IDCANCEL);
    });
}

TEST_F(AddConfigDialog, RenamingToBlanksBuildsTheName)
{
    Rename([this](PrintModeEditor& editor, const ConfigDialog& dialog) {
        dialog.Type(IDC_EDIT_CFG_NAME, L" ");
        editor.Confirm(dialog);
        EXPECT_EQ(ChangesWith("IPrintConfig"), Calls{"IPrintConfig[0].SetName(\"[720 X 1200][4 C][2 B]\")"});
    });
}

TEST_F(AddConfigDialog, EnterAcceptsFromAField)
{
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        dialog.Type(IDC_EDIT_CFG_NAME, L"By Enter");
        editor.Op().Key(VK_RETURN);
        editor.Op().ExpectClosed(dialog.Dialog());
    });
    EXPECT_EQ(Machine().configurations.back().name, "By Enter");
}

TEST_F(AddConfigDialog, EscapeAndTheCloseBoxGiveUpWhateverIsTyped)
{
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        dialog.Type(IDC_EDIT_CFG_XDPI, L"wrong");
        editor.Op().Key(VK_ESCAPE);
        editor.Op().ExpectClosed(dialog.Dialog());
        const ConfigDialog again = editor.OpenAddConfig();
        EXPECT_EQ(again.Field(IDC_EDIT_CFG_XDPI).Text(), L"720");
        again.Type(IDC_EDIT_CFG_XDPI, L"wrong");
        editor.Op().Close(again.Dialog());
        editor.Op().ExpectClosed(again.Dialog());
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(AddConfigDialog, TabGoesThroughTheFieldsInTheirOrder)
{
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        for (int id : {IDC_EDIT_CFG_NAME, IDC_EDIT_CFG_XDPI, IDC_EDIT_CFG_YDPI, IDC_EDIT_CFG_COLORS,
                       IDC_EDIT_CFG_DOT_BITS, IDC_CHECK_CFG_ENABLE, IDOK, IDCANCEL, IDC_EDIT_CFG_NAME})
        {
            EXPECT_EQ(editor.Op().Focus().Id(), id);
            editor.Op().Key(VK_TAB);
        }
        editor.Confirm(dialog, IDCANCEL);
    });
}

TEST_F(AddConfigDialog, BelongsToTheEditorWhichItDisables)
{
    Add([](PrintModeEditor& editor, const ConfigDialog& dialog) {
        EXPECT_EQ(dialog.Dialog().Owner(), editor.Dialog());
        EXPECT_FALSE(editor.Dialog().IsEnabled());
        editor.Confirm(dialog, IDCANCEL);
        EXPECT_TRUE(editor.Dialog().IsEnabled());
        EXPECT_EQ(editor.Op().ActiveWindow(), editor.Dialog());
    });
}
} // namespace
