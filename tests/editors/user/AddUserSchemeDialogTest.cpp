#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
class NewUserScheme : public UserSchemeFixture
{
protected:
    using DialogScript = std::function<void(UserEditor&, const AddUserSchemeDialog&)>;

    // Opens the dialog after the row was selected; the script closes it.
    void Add(int row, const DialogScript& script)
    {
        Run([&](UserEditor& editor) {
            if (row != kNone)
                editor.Schemes().ClickRow(row);
            script(editor, editor.OpenAddScheme());
            editor.Cancel();
        });
    }

    // The source that the dialog proposes for a selected row.
    std::wstring ProposedSource(int row)
    {
        std::wstring source;
        Add(row, [&](UserEditor& editor, const AddUserSchemeDialog& dialog) {
            source = dialog.Source().SelectedText();
            editor.Confirm(dialog, IDCANCEL);
        });
        return source;
    }

    // The calls that name the scheme added under what was typed.
    Calls NamingOf(const std::wstring& typed)
    {
        Run([&](UserEditor& editor) {
            editor.AddScheme(typed);
            editor.Cancel();
        });
        return ChangesWith("SetName");
    }
};

TEST_F(NewUserScheme, OffersPresetsUnconvertedAndUserSchemesConvertedWithoutADivider)
{
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) {
        // "Poster" and "Sign", two bytes a character
        EXPECT_EQ(dialog.Source().Rows(),
                  (Texts{L"\x6F50\x7473\x7265(preset)", L"\x6953\x6E67(preset)", L"Mine", L"Yours"}));
        EXPECT_FALSE(dialog.Source().HasStyle(CBS_SORT));
        editor.Confirm(dialog, IDCANCEL);
    });
}

TEST_F(NewUserScheme, ShowsChineseNamesOfUserSchemesOnly)
{
    UseChineseNames();
    Poster().name = "\xB9\xE2\xC3\xE6";
    Sign().name = "\xB9\xE2X";
    Mine().name = "\xB4\xF2\xD3\xA1";
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) {
        EXPECT_EQ(dialog.Source().Rows(), (Texts{L"\xE2B9\xE6C3(preset)", L"\xE2B9\x0058(preset)", L"打印", L"Yours"}));
        editor.Confirm(dialog, IDCANCEL);
    });
}

TEST_F(NewUserScheme, EmptyAndMissingNamesKeepTheirRows)
{
    Poster().name = Yours().name = "";
    m_faults.failing = {"IPrintScheme[3].GetName()", "IUserScheme[0].GetName()"};
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) {
        EXPECT_EQ(dialog.Source().Rows(), (Texts{L"(preset)", L"(null)(preset)", L"", L""}));
        editor.Confirm(dialog, IDCANCEL);
    });
}

TEST_F(NewUserScheme, MarksPresetsInChineseWithoutALanguageFile)
{
    RemoveTexts();
    EXPECT_EQ(ProposedSource(kSign), Unconverted("Sign") + L"(预设)");
}

TEST_F(NewUserScheme, OffersTheSchemesOfTheSelectedConfiguration)
{
    Run([](UserEditor& editor) {
        editor.Configs().ClickRow(1);
        const AddUserSchemeDialog dialog = editor.OpenAddScheme();
        EXPECT_EQ(dialog.Source().Rows(), (Texts{Unconverted("Photo") + L"(preset)", L"Album"}));
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(NewUserScheme, StillOffersASchemeWhoseDeletionIsPending)
{
    Run([](UserEditor& editor) {
        editor.DeleteScheme(kMine);
        const AddUserSchemeDialog dialog = editor.OpenAddScheme();
        EXPECT_EQ(dialog.Source().Rows(),
                  (Texts{Unconverted("Poster") + L"(preset)", Unconverted("Sign") + L"(preset)", L"Mine", L"Yours"}));
        EXPECT_EQ(dialog.Source().SelectedText(), L"Yours");
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(NewUserScheme, ProposesTheSelectedPreset)
{
    EXPECT_EQ(ProposedSource(kSign), Unconverted("Sign") + L"(preset)");
}

TEST_F(NewUserScheme, ProposesTheSelectedUserScheme)
{
    EXPECT_EQ(ProposedSource(kYours), L"Yours");
}

TEST_F(NewUserScheme, ProposesTheFirstSourceForTheDividerAndForNoSelection)
{
    EXPECT_EQ(ProposedSource(kDivider), Unconverted("Poster") + L"(preset)");
    EXPECT_EQ(ProposedSource(kNone), Unconverted("Poster") + L"(preset)");
}

TEST_F(NewUserScheme, ProposesTheFirstSourceForASchemeThatWentToAnotherConfiguration)
{
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kYours);
        InHost(editor, [](IHostData& data) { data.GetUserSchemeList()->GetAt(1)->SetConfigIndex(1); });
        const AddUserSchemeDialog dialog = editor.OpenAddScheme();
        EXPECT_EQ(dialog.Source().RowCount(), 3);
        EXPECT_EQ(dialog.Source().Selected(), 0);
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(NewUserScheme, ProposedNameCountsAddedSchemesAndThoseWithAPendingDeletion)
{
    Run([](UserEditor& editor) {
        editor.DeleteScheme(kMine);
        editor.AddScheme(L"Fresh");
        const AddUserSchemeDialog dialog = editor.OpenAddScheme();
        EXPECT_EQ(dialog.Name().Text(), L"方案-5");
        editor.Confirm(dialog, IDCANCEL);
        editor.Cancel();
    });
}

TEST_F(NewUserScheme, ProposedNameIsTakenAsItStands)
{
    m_language.WriteBytes("[DLG_PRINT_SCHEME]\r\nSCHEME=Scheme\r\n");
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) { editor.Confirm(dialog); });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IUserScheme[3].SetName(\"Scheme-4\")"});
}

TEST_F(NewUserScheme, ChineseNameTypedAsTextReachesTheHostInItsCodePage)
{
    UseChineseNames();
    Run([](UserEditor& editor) {
        editor.AddScheme(L"光面");
        EXPECT_EQ(editor.Schemes().Row(5), L"光面");
        EXPECT_EQ(editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Text(), L"光面");
        editor.Configs().ClickRow(1);
        editor.Configs().ClickRow(0);
        EXPECT_EQ(editor.Schemes().Row(5), L"\xE2B9\xE6C3");
        editor.Cancel();
    });
    const std::string named = "IUserScheme[3].SetName(\"\\xB9\\xE2\\xC3\\xE6\")";
    EXPECT_EQ(ChangesWith("SetName"), (Calls{named, named})); // by the dialog, and when the page stored it
    EXPECT_EQ(UserSchemeNames().back(), "\xB9\xE2\xC3\xE6");
}

TEST_F(NewUserScheme, EmptyNameIsAccepted)
{
    EXPECT_EQ(NamingOf(L""), Calls{"IUserScheme[3].SetName(\"\")"});
}

TEST_F(NewUserScheme, NameThatExistsIsAccepted)
{
    EXPECT_EQ(NamingOf(L"Mine"), Calls{"IUserScheme[3].SetName(\"Mine\")"});
}

TEST_F(NewUserScheme, NameMayBeLongerThanThePagesTake)
{
    EXPECT_EQ(NamingOf(std::wstring(100, L'n')), Calls{"IUserScheme[3].SetName(\"" + std::string(100, 'n') + "\")"});
}

TEST_F(NewUserScheme, PresetsOfOneNameAreToldApart)
{
    Poster().name = Sign().name = "Same";
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) {
        const std::wstring same = Unconverted("Same") + L"(preset)";
        EXPECT_EQ(dialog.Source().Rows(), (Texts{same, same, L"Mine", L"Yours"}));
        dialog.Source().Pick(1);
        editor.Confirm(dialog);
    });
    EXPECT_EQ(ChangesWith("SetBaseScheme"), Calls{"IUserScheme[3].SetBaseScheme(3)"});
}

TEST_F(NewUserScheme, WithoutASourceTheSchemeKeepsTheHostsDefaults)
{
    Poster().enabled = Sign().enabled = false;
    Run([this](UserEditor& editor) {
        InHost(editor, [](IHostData& data) {
            data.GetUserSchemeList()->RemoveAt(0);
            data.GetUserSchemeList()->RemoveAt(0);
        });
        const AddUserSchemeDialog dialog = editor.OpenAddScheme();
        EXPECT_EQ(dialog.Source().RowCount(), 0);
        EXPECT_EQ(dialog.Source().Selected(), kNone);
        EXPECT_EQ(dialog.Name().Text(), L"方案-2");
        dialog.Name().Type(L"Bare");
        editor.Confirm(dialog);
        EXPECT_EQ(Changes(), (Calls{"ISchemeList[user].AddScheme()", "IUserScheme[3].SetName(\"Bare\")"}));
        editor.Cancel();
    });
}

TEST_F(NewUserScheme, GivingUpAddsNothing)
{
    Run([](UserEditor& editor) {
        editor.Confirm(editor.OpenAddScheme(), IDCANCEL);
        const AddUserSchemeDialog escaped = editor.OpenAddScheme();
        editor.Op().Key(VK_ESCAPE);
        editor.Op().ExpectClosed(escaped.Dialog());
        const AddUserSchemeDialog closed = editor.OpenAddScheme();
        editor.Op().Close(closed.Dialog());
        editor.Op().ExpectClosed(closed.Dialog());
        EXPECT_EQ(editor.Schemes().RowCount(), 5);
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(NewUserScheme, EnterInTheNameIsOk)
{
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) {
        dialog.Name().Type(L"Quick");
        editor.Op().Key(VK_RETURN);
        editor.Op().ExpectClosed(dialog.Dialog());
    });
    EXPECT_EQ(UserSchemeNames().back(), "Quick");
}

TEST_F(NewUserScheme, BelongsToTheEditor)
{
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) {
        EXPECT_EQ(dialog.Dialog().Owner(), editor.Dialog());
        EXPECT_FALSE(editor.Dialog().IsEnabled());
        editor.Confirm(dialog, IDCANCEL);
        EXPECT_TRUE(editor.Dialog().IsEnabled());
    });
}

TEST_F(NewUserScheme, ShowsTheTextsOfTheLanguageFileButForItsFirstLabel)
{
    m_language.WriteBytes("[DLG_PRINT_SCHEME]\r\nTITLE=Wrong\r\nADD_SCHEME=Add one\r\nIDOK=Make\r\nIDCANCEL=Drop\r\n"
                          "IDC_STATIC_CFG=Wrong\r\nIDC_STATIC_NAME=Wrong\r\nIDC_STATIC_SOURCE=From\r\n");
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) {
        const Window window = dialog.Dialog();
        EXPECT_EQ(window.Text(), L"Add one");
        EXPECT_EQ(window.Control(IDOK).Text(), L"Make");
        EXPECT_EQ(window.Control(IDCANCEL).Text(), L"Drop");
        EXPECT_EQ(window.Control(IDC_STATIC_SCHEME_NAME).Text(), L"方案名称:");
        EXPECT_EQ(window.Control(IDC_STATIC_SOURCE).Text(), L"From");
        editor.Confirm(dialog, IDCANCEL);
    });
}

TEST_F(NewUserScheme, WithoutALanguageFileHasTheDefaultTexts)
{
    RemoveTexts();
    Add(kNone, [](UserEditor& editor, const AddUserSchemeDialog& dialog) {
        const Window window = dialog.Dialog();
        EXPECT_EQ(window.Text(), L"");
        EXPECT_EQ(window.Control(IDOK).Text(), L"OK");
        EXPECT_EQ(window.Control(IDCANCEL).Text(), L"Cancel");
        EXPECT_EQ(window.Control(IDC_STATIC_SCHEME_NAME).Text(), L"方案名称:");
        EXPECT_EQ(window.Control(IDC_STATIC_SOURCE).Text(), L"");
        editor.Confirm(dialog, IDCANCEL);
    });
}
} // namespace
