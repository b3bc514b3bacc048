#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"
#include "tests/support/ThreadLocale.h"

namespace
{
// The language has no code page of its own, so that Wine narrows its texts as UTF-8. On Windows the process must have
// UTF-8 as its code page for that. Each of these characters takes three bytes.
constexpr LCID kHindi = 0x0439;
constexpr wchar_t kName[] = L"मुद्रण";
const std::string kNarrowName = "मुद्रण";
const std::string kLoggedName = "\"\\xE0\\xA4\\xAE\\xE0\\xA5\\x81\\xE0\\xA4\\xA6\\xE0\\xA5\\x8D"
                                "\\xE0\\xA4\\xB0\\xE0\\xA4\\xA3\"";

template <class Fixture>
class Utf8Name : public Fixture
{
protected:
    void SetUp() override
    {
        Fixture::SetUp();
        if (WideCharToMultiByte(CP_THREAD_ACP, 0, L"\x092E", 1, nullptr, 0, nullptr, nullptr) != 3)
            GTEST_SKIP() << "no locale gives the thread UTF-8 here";
    }

private:
    ThreadLocale m_hindi{kHindi};
};

using Utf8ConfigurationName = Utf8Name<PrintModeFixture>;
using Utf8ModeName = Utf8Name<PrintModeFixture>;
using Utf8FactorySchemeName = Utf8Name<FactorySchemeFixture>;
using Utf8UserSchemeName = Utf8Name<UserSchemeFixture>;

TEST_F(Utf8ConfigurationName, OfANewOneReachesTheHost)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenAddConfig();
        dialog.Type(IDC_EDIT_CFG_NAME, kName);
        editor.Confirm(dialog);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IPrintConfig[new.0].SetName"), Calls{"IPrintConfig[new.0].SetName(" + kLoggedName + ")"});
}

TEST_F(Utf8ConfigurationName, OfARenamedOneReachesTheHostAndTheList)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenRename(1);
        dialog.Type(IDC_EDIT_CFG_NAME, kName);
        editor.Confirm(dialog);
        EXPECT_EQ(editor.Configs().Row(1), std::wstring(kName) + L" [720X1200][4C][2B]");
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IPrintConfig"), Calls{"IPrintConfig[1].SetName(" + kLoggedName + ")"});
}

TEST_F(Utf8ModeName, IsShownAndStored)
{
    m_machine.configurations[0].modes[0].name = kNarrowName;
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Modes().Row(0), kName);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), kName);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).name, kNarrowName);
}

// As long as a name may be.
TEST_F(Utf8ModeName, MayHaveSixtyCharacters)
{
    std::wstring wide;
    std::string narrow;
    for (; wide.size() < 60; narrow += kNarrowName)
        wide += kName;
    Run([&](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(wide);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).name, narrow);
}

TEST_F(Utf8FactorySchemeName, ReachesTheHost)
{
    Run([](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(kName);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IPrintScheme[0].SetName(" + kLoggedName + ")"});
}

TEST_F(Utf8UserSchemeName, ReachesTheHost)
{
    Run([](UserEditor& editor) {
        editor.AddScheme(kName);
        EXPECT_EQ(editor.Schemes().Rows().back(), kName);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IUserScheme[3].SetName"), Calls{"IUserScheme[3].SetName(" + kLoggedName + ")"});
}
} // namespace
