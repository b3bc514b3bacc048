#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/support/ThreadLocale.h"
#include "tests/support/Utf16.h"

namespace
{
constexpr LCID kEnglish = 0x0409; // code page 1252
constexpr LCID kChinese = 0x0804; // code page 936

constexpr wchar_t kAllTexts[] = L"SAVE_QUIT=Store\r\nIDCANCEL=Leave\r\nIDC_STATIC_CFG=Configs\r\n"
                                L"IDC_STATIC_MODE=Modes\r\nTAB_COMMON=Common\r\nTAB_DATA=Data\r\n"
                                L"IDC_STATIC_NAME=Name\r\nIDC_STATIC_XDPI=Resolution\r\nIDC_STATIC_PASS=Passes\r\n"
                                L"IDC_STATIC_ENABLE=State\r\nDISABLE=Off\r\nENABLE=On\r\n";

class LanguageText : public PrintModeFixture
{
protected:
    // The label of the configurations, after a run in the folder that was set.
    std::wstring ConfigsLabel()
    {
        std::wstring label;
        Run([&](PrintModeEditor& editor) {
            label = editor.Dialog().Control(IDC_STATIC_CFG).Text();
            editor.Cancel();
        });
        return label;
    }

    std::wstring ConfigsLabelFrom(const std::string& bytes)
    {
        m_language.WriteBytes(bytes);
        return ConfigsLabel();
    }
};

TEST_F(LanguageText, ComesToEveryControlThatHasAKey)
{
    m_language.WriteTexts(kAllTexts);
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Dialog().Control(IDOK).Text(), L"Store");
        EXPECT_EQ(editor.Dialog().Control(IDCANCEL).Text(), L"Leave");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_CFG).Text(), L"Configs");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_MODE).Text(), L"Modes");
        EXPECT_EQ(editor.Tab().Labels(), (Texts{L"Common", L"Data"}));
        const Window page = editor.CommonPage();
        EXPECT_EQ(page.Control(IDC_STATIC_NAME).Text(), L"Name");
        EXPECT_EQ(page.Control(IDC_STATIC_XDPI).Text(), L"Resolution");
        EXPECT_EQ(page.Control(IDC_STATIC_PASS).Text(), L"Passes");
        EXPECT_EQ(page.Control(IDC_STATIC_ENABLE).Text(), L"State");
        for (int id : {IDC_CMB_ENABLE, IDC_CMB_RESIDENT, IDC_CMB_FRONT, IDC_CMB_BACK})
            EXPECT_EQ(editor.Combo(id).Rows(), (Texts{L"Off", L"On"})) << id;
        editor.Cancel();
    });
}

TEST_F(LanguageText, LabelsWithoutAKeyKeepTheTemplatesText)
{
    m_language.WriteTexts(std::wstring(kAllTexts) + L"TITLE=Title\r\nIDC_STATIC_RESIDENT=Resident\r\n");
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Dialog().Text(), L"打印模式");
        const Window page = editor.CommonPage();
        EXPECT_EQ(page.Control(IDC_STATIC_RESIDENT).Text(), L"驻留式:");
        EXPECT_EQ(page.Control(IDC_STATIC_SMALL).Text(), L"羽化补偿-小点:");
        EXPECT_EQ(page.Control(IDC_STATIC_MEDIUM).Text(), L"羽化补偿-中点:");
        EXPECT_EQ(page.Control(IDC_STATIC_LARGE).Text(), L"羽化补偿-大点:");
        EXPECT_EQ(page.Control(IDC_STATIC_FRONT).Text(), L"羽化补偿-前补:");
        EXPECT_EQ(page.Control(IDC_STATIC_BACK).Text(), L"羽化补偿-后补:");
        editor.Cancel();
    });
}

TEST_F(LanguageText, WithoutAFileIsTheDefault)
{
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Dialog().Control(IDOK).Text(), L"Save&Quit");
        EXPECT_EQ(editor.Dialog().Control(IDCANCEL).Text(), L"Cancel");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_CFG).Text(), L"");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_MODE).Text(), L"");
        EXPECT_EQ(editor.Tab().Labels(), (Texts{L"", L""}));
        for (int id : {IDC_STATIC_NAME, IDC_STATIC_XDPI, IDC_STATIC_PASS, IDC_STATIC_ENABLE})
            EXPECT_EQ(editor.CommonPage().Control(id).Text(), L"") << id;
        for (int id : {IDC_CMB_ENABLE, IDC_CMB_RESIDENT, IDC_CMB_FRONT, IDC_CMB_BACK})
            EXPECT_EQ(editor.Combo(id).Rows(), (Texts{L"", L""})) << id;
        EXPECT_EQ(editor.Combo(IDC_CMB_ENABLE).Selected(), 1);
        editor.Cancel();
    });
}

TEST_F(LanguageText, TabsWithoutALabelCanBeClicked)
{
    Run([](PrintModeEditor& editor) {
        editor.Tab().ClickTab(1);
        EXPECT_EQ(editor.Tab().VisiblePage(), editor.DataPage());
        editor.Cancel();
    });
}

TEST_F(LanguageText, MissingKeyLeavesTheLabelEmptyOrTheDefault)
{
    m_language.WriteTexts(L"IDC_STATIC_MODE=Modes\r\n");
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_CFG).Text(), L"");
        EXPECT_EQ(editor.Dialog().Control(IDC_STATIC_MODE).Text(), L"Modes");
        EXPECT_EQ(editor.Dialog().Control(IDCANCEL).Text(), L"Cancel");
        editor.Cancel();
    });
}

TEST_F(LanguageText, IsFoundInAFolderWithATrailingBackslash)
{
    m_language.WriteTexts(kAllTexts);
    m_languageDir += L'\\';
    EXPECT_EQ(ConfigsLabel(), L"Configs");
}

TEST_F(LanguageText, BackslashAndNMakeTwoLines)
{
    m_language.WriteTexts(L"IDC_STATIC_CFG=Print\\nconfigurations\r\n");
    EXPECT_EQ(ConfigsLabel(), L"Print\r\nconfigurations");
}

TEST_F(LanguageText, IsCutTo1023Characters)
{
    m_language.WriteTexts(L"IDC_STATIC_CFG=" + std::wstring(1500, L'x') + L"\r\n");
    EXPECT_EQ(ConfigsLabel(), std::wstring(1023, L'x'));
}

TEST_F(LanguageText, OfAnotherSectionIsNotTaken)
{
    EXPECT_EQ(ConfigsLabelFrom(Utf16(L"[DLG_PRINT_SCHEME]\r\nIDC_STATIC_CFG=Other\r\n")), L"");
}

TEST_F(LanguageText, OfAnEmptyFileIsTheDefault)
{
    EXPECT_EQ(ConfigsLabelFrom(""), L"");
}

TEST_F(LanguageText, OfABinaryFileIsTheDefault)
{
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 167 >> 3);
    EXPECT_EQ(ConfigsLabelFrom(bytes), L"");
}

TEST_F(LanguageText, OfAReadOnlyFileIsRead)
{
    m_language.WriteTexts(kAllTexts);
    SetFileAttributesW(m_language.FilePath().c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(ConfigsLabel(), L"Configs");
}

TEST_F(LanguageText, OfALockedFileIsTheDefault)
{
    m_language.WriteTexts(kAllTexts);
    HANDLE lock = CreateFileW(m_language.FilePath().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    EXPECT_EQ(ConfigsLabel(), L"");
    CloseHandle(lock);
}

TEST_F(LanguageText, OfAFolderThatDoesNotExistIsTheDefault)
{
    m_languageDir += L"\\nowhere";
    EXPECT_EQ(ConfigsLabel(), L"");
}

TEST_F(LanguageText, OfAnEmptyFolderNameIsTheDefault)
{
    m_languageDir.clear();
    EXPECT_EQ(ConfigsLabel(), L"");
}

TEST_F(LanguageText, OfAFolderNameLongerThanAPathIsTheDefault)
{
    m_languageDir += L"\\" + std::wstring(40000, L'd');
    EXPECT_EQ(ConfigsLabel(), L"");
}

TEST_F(LanguageText, OfANullFolderIsTheDefault)
{
    refhost::CHost host(m_machine);
    const Library::Interface editors = Library::Loaded().NewInterface();
    const auto operation = [&] { return editors->EditPrintModes(host.Data(), host.Control(), nullptr); };
    const auto script = [](Operator& op) {
        const PrintModeEditor editor(op, op.ExpectDialog(kEditorCaption));
        EXPECT_EQ(editor.Dialog().Control(IDCANCEL).Text(), L"Cancel");
        editor.Cancel();
    };
    EXPECT_EQ(RunEditor(operation, script), 1);
}

TEST_F(LanguageText, HostNamesAreReadInTheThreadsCodePage)
{
    const ThreadLocale chinese(kChinese);
    m_machine.configurations = {Config("\xB4\xF2\xD3\xA1", {"\xB2\xDD\xB8\xE5 1"})};
    m_machine.inkGroups = {{"\xC7\xE0", 1, 0, {}}};
    m_machine.headLayouts = {{"\xD7\xF3", 10, 0, {"\xCE\xDE", "\xB1\xEA\xD7\xBC"}}};
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), Texts{L"打印 [720X1200][4C][2B]"});
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"草稿 1"});
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"草稿 1");
        EXPECT_EQ(editor.Combo(IDC_CMB_SMALL_GROUP).Rows(), Texts{L"青"});
        EXPECT_EQ(editor.Grid().Options(0), (Texts{L"No", L"标准"}));
        editor.Cancel();
    });
}

TEST_F(LanguageText, NamesGoToTheHostInTheThreadsCodePage)
{
    const ThreadLocale chinese(kChinese);
    Run([this](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"模式A");
        const ConfigDialog dialog = editor.OpenAddConfig();
        dialog.Type(IDC_EDIT_CFG_NAME, L"配置");
        editor.Confirm(dialog);
        // C5 E4 D6 C3, two bytes a character
        EXPECT_EQ(editor.Configs().Row(3), L"\xE4C5\xC3D6 [720X720][0C][0B]");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).name, "\xC4\xA3\xCA\xBD"
                               "A");
    EXPECT_EQ(Machine().configurations.back().name, "\xC5\xE4\xD6\xC3");
}

TEST_F(LanguageText, NamesOfAnEnglishThreadAreIn1252)
{
    const ThreadLocale english(kEnglish);
    m_machine.configurations = {Config("caf\xE9", {"\x80 1"})};
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), Texts{L"caf\x00E9 [720X1200][4C][2B]"});
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"\x20AC 1"});
        editor.Edit(IDC_EDIT_NAME).Type(L"\x00FC\x6253");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).name, "\xFC?");
}
} // namespace
