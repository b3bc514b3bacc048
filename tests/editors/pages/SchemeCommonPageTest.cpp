#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
class SchemeCommonPage : public FactorySchemeFixture
{
protected:
    static ComboBox Combo(const SchemeEditor& editor, int controlId)
    {
        return editor.Combo(SchemePage::Common, controlId);
    }
    static EditField Name(const SchemeEditor& editor) { return editor.Edit(SchemePage::Common, IDC_EDIT_NAME); }

    // Picks each row in turn, and gives what the setter receives for it.
    Calls StoredByRow(const FactoryEditor& editor, int controlId, const std::string& setter)
    {
        const ComboBox combo = Combo(editor, controlId);
        NewChanges();
        for (int row = 0; row < combo.RowCount(); ++row)
        {
            combo.Pick(row);
            editor.Apply();
        }
        return ChangesWith(setter);
    }

    static Calls SetterCalls(const std::string& setter, const std::vector<int>& values)
    {
        Calls calls;
        for (int value : values)
            calls.push_back("IPrintScheme[0]." + setter + "(" + std::to_string(value) + ")");
        return calls;
    }

    // The rows that are selected for each of the values, which the host has one after the other.
    template <class Value>
    std::vector<int> SelectedFor(const FactoryEditor& editor, int controlId, void (IPrintScheme::*set)(Value),
                                 const std::vector<int>& values)
    {
        std::vector<int> rows;
        for (int value : values)
        {
            editor.Schemes().ClickRow(1);
            InHost(editor,
                   [&](IHostData& data) { (data.GetFactorySchemeList()->GetAt(0)->*set)(static_cast<Value>(value)); });
            editor.Schemes().ClickRow(0);
            rows.push_back(Combo(editor, controlId).Selected());
        }
        return rows;
    }
};

using Rows = std::vector<int>;

TEST_F(SchemeCommonPage, ShowsTheSchemesValues)
{
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Name(editor).Text(), L"Poster");
        const std::pair<int, std::wstring> shown[] = {
            {IDC_CMB_ENABLE, L"On"},      {IDC_CMB_SPEED, L"Slow"},   {IDC_CMB_DIRECTION, L"Left"},
            {IDC_CMB_MATERIAL, L"Paper"}, {IDC_CMB_CHANNEL, L"CMYK"}, {IDC_CMB_WAIT_STEP, L"On"},
            {IDC_CMB_WAVE, L"Wave0"},     {IDC_CMB_LAYOUT, L"Four"},  {IDC_CMB_HEAD, L"Right"},
        };
        for (const auto& [id, text] : shown)
        {
            EXPECT_EQ(Combo(editor, id).SelectedText(), text) << id;
            EXPECT_TRUE(Combo(editor, id).IsEnabled()) << id;
        }
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, ListsTheHostsValuesInItsOrder)
{
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_ENABLE).Rows(), (Texts{L"Off", L"On"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_SPEED).Rows(), (Texts{L"Any", L"Slow", L"Medium", L"Quick"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_DIRECTION).Rows(), (Texts{L"Any", L"Left", L"Right", L"Both"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_MATERIAL).Rows(), (Texts{L"Any", L"Paper", L"Foil"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).Rows(), (Texts{L"CMYK", L"CMYKW"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_WAIT_STEP).Rows(), (Texts{L"Off", L"On"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).Rows(), (Texts{L"Any", L"Wave0", L"Wave1", L"Wave2"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_LAYOUT).Rows(), (Texts{L"Four", L"Two"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).Rows(), (Texts{L"Left", L"Right"}));
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, WithoutLanguageFileItsOwnTextsAreEmpty)
{
    RemoveTexts();
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_SPEED).Rows(), Texts(4));
        EXPECT_EQ(Combo(editor, IDC_CMB_DIRECTION).Rows(), Texts(4));
        EXPECT_EQ(Combo(editor, IDC_CMB_ENABLE).Rows(), Texts(2));
        EXPECT_EQ(Combo(editor, IDC_CMB_MATERIAL).Rows(), (Texts{L"", L"Paper", L"Foil"}));
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).Rows(), (Texts{L"", L"波形0", L"波形1", L"波形2"}));
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, SpeedDirectionAndMaterialAreStoredByTheirItemData)
{
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(StoredByRow(editor, IDC_CMB_SPEED, "SetSpeed"), SetterCalls("SetSpeed", {255, 0, 1, 2}));
        EXPECT_EQ(StoredByRow(editor, IDC_CMB_DIRECTION, "SetDirection"), SetterCalls("SetDirection", {255, 1, 2, 3}));
        EXPECT_EQ(StoredByRow(editor, IDC_CMB_MATERIAL, "SetMaterial"), SetterCalls("SetMaterial", {255, 1, 2}));
        EXPECT_EQ(StoredByRow(editor, IDC_CMB_HEAD, "SetHeadId"), SetterCalls("SetHeadId", {10, 11}));
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, SwitchesWaveformAndChannelAreStoredByTheirRow)
{
    m_machine.channelSetups.insert(m_machine.channelSetups.begin(), {"Unfit", {6}});
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(StoredByRow(editor, IDC_CMB_ENABLE, "SetEnabled"), SetterCalls("SetEnabled", {0, 1}));
        EXPECT_EQ(StoredByRow(editor, IDC_CMB_WAIT_STEP, "SetWaitStepStop"), SetterCalls("SetWaitStepStop", {0, 1}));
        EXPECT_EQ(StoredByRow(editor, IDC_CMB_WAVE, "SetWave"), SetterCalls("SetWave", {-1, 0, 1, 2}));
        EXPECT_EQ(StoredByRow(editor, IDC_CMB_CHANNEL, "SetChannel"), SetterCalls("SetChannel", {0, 1}));
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, LoadsEveryValueIntoItsRow)
{
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(SelectedFor(editor, IDC_CMB_SPEED, &IPrintScheme::SetSpeed, {255, 254, 0, 1, 2, 3}),
                  (Rows{0, 0, 1, 2, 3, kNone}));
        EXPECT_EQ(SelectedFor(editor, IDC_CMB_DIRECTION, &IPrintScheme::SetDirection, {255, 0, 1, 2, 3, 4}),
                  (Rows{0, 0, 1, 2, 3, kNone}));
        EXPECT_EQ(SelectedFor(editor, IDC_CMB_MATERIAL, &IPrintScheme::SetMaterial, {255, 0, 1, 2, 3}),
                  (Rows{0, 0, 1, 2, 0}));
        EXPECT_EQ(SelectedFor(editor, IDC_CMB_WAIT_STEP, &IPrintScheme::SetWaitStepStop, {0, 1, 2}),
                  (Rows{0, 1, kNone}));
        EXPECT_EQ(SelectedFor(editor, IDC_CMB_WAVE, &IPrintScheme::SetWave, {-1, 0, 2, 3, -2}), (Rows{0, 1, 3, 0, 0}));
        EXPECT_EQ(SelectedFor(editor, IDC_CMB_HEAD, &IPrintScheme::SetHeadId, {10, 11, 12}), (Rows{0, 1, 0}));
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, SpeedWithoutARowIsStoredAsUnlimited)
{
    Poster().speed = 7;
    Run([](FactoryEditor& editor) {
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetSpeed"), Calls{"IPrintScheme[0].SetSpeed(255)"});
}

TEST_F(SchemeCommonPage, MaterialIsStoredInAByte)
{
    m_machine.materials = {{"Far", 300}};
    Run([](FactoryEditor& editor) {
        Combo(editor, IDC_CMB_MATERIAL).Pick(1);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetMaterial"), Calls{"IPrintScheme[0].SetMaterial(44)"});
}

// The stored index is taken for a row, whatever was left out before it.
TEST_F(SchemeCommonPage, ChannelIndexSelectsTheRowOfItsNumber)
{
    m_machine.channelSetups = {{"Unfit", {6}}, {"CMYK", {5}}, {"CMYKW", {5}}};
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).Rows(), (Texts{L"CMYK", L"CMYKW"}));
        EXPECT_EQ(SelectedFor(editor, IDC_CMB_CHANNEL, &IPrintScheme::SetChannel, {0, 1, 2, 3}),
                  (Rows{kNone, 1, kNone, kNone}));
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, ChannelWithoutARowIsStoredAsTheByteOfNone)
{
    Poster().channel = 9;
    Run([](FactoryEditor& editor) {
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetChannel"), Calls{"IPrintScheme[0].SetChannel(255)"});
}

TEST_F(SchemeCommonPage, ChannelNamesAreLookedUpInTheLanguageFile)
{
    m_language.WriteBytes("[DLG_PRINT_SCHEME]\nCMYK=Four colours\n");
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).Rows(), (Texts{L"Four colours", L"CMYKW"}));
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, NoWaveformLeavesUnlimitedAlone)
{
    m_machine.paramTables[0].entries = {0};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).Rows(), Texts{L"Any"});
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).Selected(), 0);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetWave"), Calls{"IPrintScheme[0].SetWave(-1)"});
}

TEST_F(SchemeCommonPage, TableEntryMayBeLargerThanItsNumber)
{
    m_faults.paramEntryBytes = 64;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).RowCount(), 4);
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, WithoutActiveSetupHasNoMaterialsAndChannels)
{
    m_faults.failing = {"IDeviceState.GetActiveSetup()"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_MATERIAL).Rows(), Texts{L"Any"});
        EXPECT_EQ(Combo(editor, IDC_CMB_MATERIAL).Selected(), 0);
        EXPECT_EQ(Combo(editor, IDC_CMB_CHANNEL).RowCount(), 0);
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, MissingListsLeaveTheirFirstRow)
{
    m_faults.failing = {"IHostData.GetMaterialList()", "IHostData.GetChannelList()", "IHostData.GetLayoutList()",
                        "IHostData.GetHeadLayoutList()", "IHostData.GetParamTable(*)"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_MATERIAL).Rows(), Texts{L"Any"});
        EXPECT_EQ(Combo(editor, IDC_CMB_WAVE).Rows(), Texts{L"Any"});
        for (int id : {IDC_CMB_CHANNEL, IDC_CMB_LAYOUT, IDC_CMB_HEAD})
            EXPECT_EQ(Combo(editor, id).RowCount(), 0) << id;
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetLayoutId"), Calls());
    EXPECT_EQ(ChangesWith("SetHeadId"), Calls{"IPrintScheme[0].SetHeadId(255)"});
}

TEST_F(SchemeCommonPage, NullItemsAreNotOffered)
{
    m_faults.failing = {"IMaterialList.GetAt(0)", "IHeadLayoutList.GetAt(0)", "IMaterial[1].GetName()"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_MATERIAL).Rows(), (Texts{L"Any", L""}));
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).Rows(), Texts{L"Right"});
        editor.Cancel();
    });
}

TEST_F(SchemeCommonPage, NewLayoutIsWrittenAtOnceAndShowsItsHeads)
{
    Run([this](FactoryEditor& editor) {
        Combo(editor, IDC_CMB_LAYOUT).Pick(1);
        EXPECT_EQ(Changes(), Calls{"IPrintScheme[0].SetLayoutId(41)"});
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).Rows(), Texts{L"Single"});
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).Selected(), 0);
        editor.Cancel();
    });
    EXPECT_EQ(Factory(0).layoutId, 41);
}

TEST_F(SchemeCommonPage, LayoutThatDoesNotExistShowsTheFirstAndIsStoredAsThat)
{
    Poster().layoutId = 99;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_LAYOUT).Selected(), 0);
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).Rows(), (Texts{L"Left", L"Right"}));
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetLayoutId"), Calls{"IPrintScheme[0].SetLayoutId(40)"});
}

TEST_F(SchemeCommonPage, LayoutWithoutHeadsStoresTheByteOfNone)
{
    m_machine.headLayouts.clear();
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Combo(editor, IDC_CMB_HEAD).RowCount(), 0);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetHeadId"), Calls{"IPrintScheme[0].SetHeadId(255)"});
}

TEST_F(SchemeCommonPage, NameTakesSixtyCharacters)
{
    Run([](FactoryEditor& editor) {
        Name(editor).Type(std::wstring(70, L'x'));
        EXPECT_EQ(Name(editor).Text(), std::wstring(60, L'x'));
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(Factory(0).name, std::string(60, 'x'));
}

TEST_F(SchemeCommonPage, LongerNameOfTheHostIsShownWholeAndRefusedWithOnePrompt)
{
    Poster().name = std::string(70, 'x');
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(Name(editor).Text(), std::wstring(70, L'x'));
        editor.Schemes().ClickRow(1);
        editor.Op().AnswerMessageBox();
        Calls others = Stored(0);
        others.erase(others.begin()); // the name
        EXPECT_EQ(Changes(), others);
        EXPECT_EQ(Name(editor).Text(), L"Banner");
        editor.Cancel();
    });
    EXPECT_EQ(Factory(0).name, std::string(70, 'x'));
}

TEST_F(SchemeCommonPage, EmptyNameIsAccepted)
{
    Run([](FactoryEditor& editor) {
        Name(editor).Type(L"");
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(Factory(0).name, "");
}

TEST_F(SchemeCommonPage, NullNameIsEmpty)
{
    m_faults.failing = {"IPrintScheme[0].GetName()"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(editor.Schemes().Row(0), L"");
        EXPECT_EQ(Name(editor).Text(), L"");
        editor.Cancel();
    });
}
} // namespace
