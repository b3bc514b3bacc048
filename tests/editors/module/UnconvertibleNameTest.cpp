#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"
#include "tests/support/ThreadLocale.h"

namespace
{
// The language has no code page of its own, so that its texts are narrowed as UTF-8. These characters take three bytes
// each there, and a conversion has room for two.
constexpr LCID kHindi = 0x0439;
constexpr wchar_t kHindiName[] = L"मुद्रण";

template <class Fixture>
class UnconvertibleName : public Fixture
{
private:
    ThreadLocale m_hindi{kHindi};
};

using UnconvertibleConfigurationName = UnconvertibleName<PrintModeFixture>;
using UnconvertibleModeName = UnconvertibleName<PrintModeFixture>;
using UnconvertibleFactorySchemeName = UnconvertibleName<FactorySchemeFixture>;
using UnconvertibleUserSchemeName = UnconvertibleName<UserSchemeFixture>;

TEST_F(UnconvertibleConfigurationName, OfANewOneReachesTheHostAsNull)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenAddConfig();
        dialog.Type(IDC_EDIT_CFG_NAME, kHindiName);
        editor.Confirm(dialog);
        EXPECT_EQ(editor.Configs().RowCount(), 4);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IPrintConfig[new.0].SetName"), Calls{"IPrintConfig[new.0].SetName(null)"});
}

TEST_F(UnconvertibleConfigurationName, OfARenamedOneReachesTheHostAsNullAndTheListShowsItsAnswer)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenRename(1);
        dialog.Type(IDC_EDIT_CFG_NAME, kHindiName);
        editor.Confirm(dialog);
        EXPECT_EQ(editor.Configs().Row(1), L" [720X1200][4C][2B]");
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IPrintConfig"), Calls{"IPrintConfig[1].SetName(null)"});
}

TEST_F(UnconvertibleModeName, ReachesTheHostAsNull)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(kHindiName);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IPrintMode[0.0].SetName(null)"});
    EXPECT_EQ(ChangesWith("SaveParameters").size(), 1u);
}

TEST_F(UnconvertibleFactorySchemeName, ReachesTheHostAsNull)
{
    Run([](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(kHindiName);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IPrintScheme[0].SetName(null)"});
}

TEST_F(UnconvertibleUserSchemeName, ReachesTheHostAsNull)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(kHindiName);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IUserScheme[0].SetName(null)"});
}

TEST_F(UnconvertibleUserSchemeName, OfANewSchemeReachesTheHostAsNullAndItsRowIsEmpty)
{
    Run([](UserEditor& editor) {
        editor.AddScheme(kHindiName);
        EXPECT_EQ(editor.Schemes().Rows().back(), L"");
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IUserScheme[3].SetName"), Calls{"IUserScheme[3].SetName(null)"});
}
} // namespace
