#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"
#include "tests/support/ImportHook.h"

#include <cwchar>

namespace
{
constexpr wchar_t kName[] = L"Unconvertible";
decltype(&WideCharToMultiByte) narrow;

// No code page fails for a name that an operator can type, so the system's call does.
int WINAPI NarrowAllButTheName(UINT codePage, DWORD flags, const wchar_t* text, int size, char* target, int room,
                               const char* standIn, BOOL* usedStandIn)
{
    if (text && std::wcscmp(text, kName) == 0)
        return 0;
    return narrow(codePage, flags, text, size, target, room, standIn, usedStandIn);
}

template <class Fixture>
class UnconvertibleName : public Fixture
{
protected:
    UnconvertibleName() { narrow = m_hook.template Original<decltype(narrow)>(); }

private:
    ImportHook m_hook{Library::Loaded().Module(), "WideCharToMultiByte",
                      reinterpret_cast<const void*>(&NarrowAllButTheName)};
};

using UnconvertibleConfigurationName = UnconvertibleName<PrintModeFixture>;
using UnconvertibleModeName = UnconvertibleName<PrintModeFixture>;
using UnconvertibleFactorySchemeName = UnconvertibleName<FactorySchemeFixture>;
using UnconvertibleUserSchemeName = UnconvertibleName<UserSchemeFixture>;

TEST_F(UnconvertibleConfigurationName, OfANewOneReachesTheHostAsNull)
{
    Run([](PrintModeEditor& editor) {
        const ConfigDialog dialog = editor.OpenAddConfig();
        dialog.Type(IDC_EDIT_CFG_NAME, kName);
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
        dialog.Type(IDC_EDIT_CFG_NAME, kName);
        editor.Confirm(dialog);
        EXPECT_EQ(editor.Configs().Row(1), L" [720X1200][4C][2B]");
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IPrintConfig"), Calls{"IPrintConfig[1].SetName(null)"});
}

TEST_F(UnconvertibleModeName, ReachesTheHostAsNull)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(kName);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IPrintMode[0.0].SetName(null)"});
    EXPECT_EQ(ChangesWith("SaveParameters").size(), 1u);
}

TEST_F(UnconvertibleFactorySchemeName, ReachesTheHostAsNull)
{
    Run([](FactoryEditor& editor) {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(kName);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IPrintScheme[0].SetName(null)"});
}

TEST_F(UnconvertibleUserSchemeName, ReachesTheHostAsNull)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(kName);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IUserScheme[0].SetName(null)"});
}

TEST_F(UnconvertibleUserSchemeName, OfANewSchemeReachesTheHostAsNullAndItsRowIsEmpty)
{
    Run([](UserEditor& editor) {
        editor.AddScheme(kName);
        EXPECT_EQ(editor.Schemes().Rows().back(), L"");
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("IUserScheme[3].SetName"), Calls{"IUserScheme[3].SetName(null)"});
}
} // namespace
