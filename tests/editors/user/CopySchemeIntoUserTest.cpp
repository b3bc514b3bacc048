#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
const std::string kNew = "IUserScheme[3].";

std::string NumberArguments(std::initializer_list<int> values)
{
    std::string text;
    for (int value : values)
        text += (text.empty() ? "" : ", ") + std::to_string(value);
    return "(" + text + ")";
}

std::string NewCall(const std::string& setter, int value)
{
    return kNew + setter + NumberArguments({value});
}

// The setters in the order of the user record, one for each value and one for each colour.
Calls CopyOf(const refhost::FactoryScheme& source, int sourceId)
{
    Calls calls = {NewCall("SetConfigIndex", source.configIndex),
                   NewCall("SetBaseScheme", sourceId),
                   NewCall("SetSpeed", source.speed),
                   NewCall("SetDirection", source.direction),
                   NewCall("SetMaterial", source.material),
                   NewCall("SetDotMode", source.dotMode),
                   NewCall("SetDefaultRangeSS", source.defaultRangeSS),
                   NewCall("SetDefaultRangeS", source.defaultRangeS),
                   NewCall("SetDefaultRangeM", source.defaultRangeM),
                   NewCall("SetDefaultRangeL", source.defaultRangeL),
                   NewCall("SetEclosionType", source.eclosionType),
                   NewCall("SetCustomEclosionId", static_cast<int>(source.customEclosionId)),
                   NewCall("SetEclosionLevel", source.eclosionLevel),
                   NewCall("SetCustomRange", source.customRange),
                   NewCall("SetHeadEclosionType", source.headEclosionType)};
    for (int color = 0; color < 16; ++color)
        calls.push_back(kNew + "SetInkMultiple" +
                        NumberArguments({source.inkMultiple[static_cast<std::size_t>(color)], color}));
    for (int color = 0; color < 32; ++color)
        calls.push_back(kNew + "SetInkCut" + NumberArguments({source.inkCut[static_cast<std::size_t>(color)], color}));
    return calls + Calls{NewCall("SetLampLL", source.lampLL), NewCall("SetLampLR", source.lampLR),
                         NewCall("SetLampRL", source.lampRL), NewCall("SetLampRR", source.lampRR),
                         NewCall("SetChannel", source.channel)};
}

const Calls kAdded = {"ISchemeList[user].AddScheme()"};
const Calls kNamed = {kNew + "SetName(\"Fresh\")"};

class CopySchemeIntoUser : public UserSchemeFixture
{
protected:
    // Adds "Fresh" from the source on a row of the dialog; nothing is selected in the editor.
    void AddFrom(int sourceRow)
    {
        Run([&](UserEditor& editor) {
            const AddUserSchemeDialog dialog = editor.OpenAddScheme();
            dialog.Source().Pick(sourceRow);
            dialog.Name().Type(L"Fresh");
            editor.Confirm(dialog);
            editor.Cancel();
        });
    }

    // Adds "Fresh" from the selected row, which the host loses while the dialog is open.
    Calls AddFromLost(int row, const std::function<void(IHostData&)>& loss)
    {
        Calls calls;
        Run([&](UserEditor& editor) {
            editor.Schemes().ClickRow(row);
            const AddUserSchemeDialog dialog = editor.OpenAddScheme();
            dialog.Name().Type(L"Fresh");
            InHost(editor, loss);
            editor.Confirm(dialog);
            calls = Changes();
            editor.Cancel();
        });
        return calls;
    }
};

TEST_F(CopySchemeIntoUser, PresetIsCopiedValueByValueInOrder)
{
    AddFrom(1);
    EXPECT_EQ(Changes(), kAdded + CopyOf(Sign(), 3) + kNamed);
}

TEST_F(CopySchemeIntoUser, UserSchemeIsCopiedAsABlock)
{
    AddFrom(3);
    EXPECT_EQ(Changes(), kAdded + Calls{"ISchemeParams[user.3].CopyFrom(user.1)"} + kNamed);
    EXPECT_EQ(User(3).baseScheme, 3);
    EXPECT_EQ(User(3).inkCut, Yours().inkCut);
    EXPECT_EQ(UserSchemeNames(), (std::vector<std::string>{"Mine", "Yours", "Album", "Fresh"}));
}

TEST_F(CopySchemeIntoUser, CopyIsTakenBeforeThePagesStoreTheirEdits)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        editor.Check(SchemePage::UvLamps, IDC_CHECK_LPRINT_LLIGHT).Click();
        editor.AddScheme(L"Fresh");
        editor.Cancel();
    });
    const int before = Mine().lampLL;
    Mine().lampLL = !before;
    EXPECT_EQ(Changes(), kAdded + Calls{"ISchemeParams[user.3].CopyFrom(user.0)"} + kNamed + StoredMine());
    EXPECT_EQ(User(3).lampLL, before);
}

TEST_F(CopySchemeIntoUser, SchemeOfASchemeThatWasJustAddedHasItsBase)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kSign);
        editor.AddScheme(L"Fresh");
        editor.AddScheme(L"Second");
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("CopyFrom"), Calls{"ISchemeParams[user.4].CopyFrom(user.3)"});
    EXPECT_EQ(User(4).baseScheme, 3);
    EXPECT_EQ(User(4).name, "Second");
}

TEST_F(CopySchemeIntoUser, PresetsSmallFormatIsNotCopiedButShown)
{
    Run([](UserEditor& editor) {
        editor.Schemes().ClickRow(kSign);
        editor.AddScheme(L"Fresh");
        EXPECT_EQ(editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET).Text(), L"40003");
        editor.Cancel();
    });
}

TEST_F(CopySchemeIntoUser, PresetThatTheHostHasLostLeavesItsDefaults)
{
    EXPECT_EQ(AddFromLost(kSign, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(3); }), kAdded + kNamed);
}
} // namespace
