#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
// The common page over lists of the machine with ids that are not unique and with items that are missing.
class OddMachineList : public FactorySchemeFixture
{
protected:
    // What the page shows of the first scheme, and what it stores of that unchanged.
    void Expect(int controlId, const Texts& rows, int selected, const std::string& setter, const Calls& stored)
    {
        Run([&](FactoryEditor& editor) {
            const ComboBox combo = editor.Combo(SchemePage::Common, controlId);
            EXPECT_EQ(combo.Rows(), rows);
            EXPECT_EQ(combo.Selected(), selected);
            editor.Apply();
            editor.Cancel();
        });
        EXPECT_EQ(ChangesWith(setter), stored);
    }
};

TEST_F(OddMachineList, OfEqualMaterialIdsTheLastIsSelected)
{
    Poster().material = 1;
    m_machine.materials = {{"Paper", 1}, {"Foil", 2}, {"Other paper", 1}, {"Glass", 3}};
    Expect(IDC_CMB_MATERIAL, {L"Any", L"Paper", L"Foil", L"Other paper", L"Glass"}, 3, "SetMaterial",
           {"IPrintScheme[0].SetMaterial(1)"});
}

TEST_F(OddMachineList, OfEqualLayoutIdsTheLastIsSelected)
{
    m_machine.layouts = {{"Four", 40, {}}, {"Two", 41, {}}, {"Other four", 40, {}}, {"One", 42, {}}};
    Expect(IDC_CMB_LAYOUT, {L"Four", L"Two", L"Other four", L"One"}, 2, "SetLayoutId",
           {"IPrintScheme[0].SetLayoutId(40)"});
}

TEST_F(OddMachineList, OfEqualHeadIdsTheLastOfTheLayoutIsSelected)
{
    Poster().headId = 11;
    m_machine.headLayouts = {
        {"Left", 10, 40, {}}, {"Right", 11, 40, {}}, {"Twin", 11, 40, {}}, {"Far", 11, 41, {}}, {"End", 12, 40, {}}};
    Expect(IDC_CMB_HEAD, {L"Left", L"Right", L"Twin", L"End"}, 2, "SetHeadId", {"IPrintScheme[0].SetHeadId(11)"});
}

TEST_F(OddMachineList, NullLayoutKeepsItsRow)
{
    Poster().layoutId = 41;
    m_faults.failing = {"ILayoutList.GetAt(0)"};
    Expect(IDC_CMB_LAYOUT, {L"", L"Two"}, 1, "SetLayoutId", {"IPrintScheme[0].SetLayoutId(41)"});
}

TEST_F(OddMachineList, NullLayoutThatIsSelectedHasNoHeadsAndIsNotStored)
{
    Poster().layoutId = 40;
    m_faults.failing = {"ILayoutList.GetAt(0)"};
    Expect(IDC_CMB_LAYOUT, {L"", L"Two"}, 0, "SetLayoutId", {});
    Expect(IDC_CMB_HEAD, {}, kNone, "SetHeadId", {"IPrintScheme[0].SetHeadId(255)"});
}

TEST_F(OddMachineList, NullSetUpHasNoRowAndTheNextOnesIndexIsTakenForARow)
{
    m_machine.channelSetups = {{"CMYK", {5}}, {"CMYKW", {5}}, {"CMYKV", {5}}};
    m_faults.failing = {"IChannelList.GetAt(0)"};
    Poster().channel = 1;
    Expect(IDC_CMB_CHANNEL, {L"CMYKW", L"CMYKV"}, 1, "SetChannel", {"IPrintScheme[0].SetChannel(1)"});
    Poster().channel = 2;
    Expect(IDC_CMB_CHANNEL, {L"CMYKW", L"CMYKV"}, kNone, "SetChannel", {"IPrintScheme[0].SetChannel(255)"});
}

TEST_F(OddMachineList, NullSetUpThatIsTheSchemesSelectsNoRow)
{
    m_faults.failing = {"IChannelList.GetAt(0)"};
    Poster().channel = 0;
    Expect(IDC_CMB_CHANNEL, {L"CMYKW"}, kNone, "SetChannel", {"IPrintScheme[0].SetChannel(255)"});
}
} // namespace
