#include "tests/editors/CustomEclosionDialog.h"
#include "tests/editors/FactoryEditor.h"
#include "tests/editors/PrintModeEditor.h"
#include "tests/editors/UserEditor.h"
#include "tests/msabi/ForeignHostTest.h"

#include <algorithm>

namespace
{
// The library has no use for it: a scheme that is copied takes the whole parameter block.
const Lines kPositionsWithoutUse = {"IUserScheme 37 GetCustomEclosionId"};

// Each road goes through one editor, so that together they call every operation of the host.
class ForeignHostRoads : public ForeignHostTest
{
protected:
    void FactorySchemes()
    {
        Edit(Editor::FactorySchemes, ExpectFactoryEditor, [this](FactoryEditor& editor) {
            StoreWhatIsShown(editor, {1, 2, 0});
            ChangeFactoryScheme(editor);
            MakeCustomEclosion(editor);
            AddCopyAndDelete(editor);
            editor.SaveAndQuit();
        });
        ExpectLastChanges({"factory schemes.RemoveAt(1)", "control.SaveParameters(2)"});
    }

    void UserSchemes()
    {
        Edit(Editor::UserSchemes, ExpectUserEditor, [this](UserEditor& editor) {
            StoreWhatIsShown(editor, {kMine, kYours, kMine});
            ChangeUserScheme(editor);
            AddUserSchemes(editor);
            editor.DeleteScheme(kYours);
            editor.SaveAndQuit();
        });
        ExpectLastChanges({"user schemes.RemoveAt(1)", "control.SaveParameters(3)"});
    }

    void PrintModes()
    {
        Edit(Editor::PrintModes, ExpectPrintModeEditor, [this](PrintModeEditor& editor) {
            ShowModes(editor);
            ChangeMode(editor);
            AddAndDeleteMode(editor);
            AddRenameAndDeleteConfig(editor);
            editor.SaveAndQuit();
        });
        ExpectLastChanges({"control.SaveParameters(2)"});
    }

private:
    // Rows of the user editor after the factory editor's road: "Poster" is disabled there and "Banner" deleted.
    enum UserRow
    {
        kSign,
        kDivider,
        kMine,
        kYours
    };

    // Every value that a page shows goes back when another scheme is selected: nothing may be lost on the way.
    template <class SchemeEditor>
    void StoreWhatIsShown(SchemeEditor& editor, std::initializer_list<int> rows)
    {
        const Lines before = m_host.Values();
        for (int row : rows)
            editor.Schemes().ClickRow(row);
        EXPECT_EQ(m_host.Values(), before);
        m_host.TakeChanges();
    }

    template <class SchemeEditor>
    static void ChangeSharedPages(SchemeEditor& editor)
    {
        editor.Edit(SchemePage::Common, IDC_EDIT_NAME).Type(L"Changed");
        editor.Combo(SchemePage::Common, IDC_CMB_SPEED).Pick(3);
        editor.Combo(SchemePage::Common, IDC_CMB_DIRECTION).Pick(2);
        editor.Combo(SchemePage::Common, IDC_CMB_MATERIAL).Pick(0);
        editor.Combo(SchemePage::Common, IDC_CMB_CHANNEL).Pick(1);
        editor.Combo(SchemePage::Eclosion, IDC_CMB_ELC_TYPE).Pick(0);
        editor.Combo(SchemePage::Eclosion, IDC_CMB_ELC_LEVEL).Pick(5);
        editor.Slider(SchemePage::Eclosion, IDC_SLIDER_CUSTOM_RANGE).Track(199);
        editor.Combo(SchemePage::Eclosion, IDC_CMB_DOT_MODE).Pick(3);
        editor.Combo(SchemePage::Eclosion, IDC_CMB_HEAD_ELC_TYPE).Pick(0);
        editor.Combo(SchemePage::InkMultiple, IDC_CMB_INK_MUL_FIRST + 2).Pick(7);
        editor.Slider(SchemePage::InkCut, IDC_SLIDER_INK_CUT_FIRST + 8).Track(12);
        for (int lamp : {IDC_CHECK_LPRINT_LLIGHT, IDC_CHECK_LPRINT_RLIGHT, IDC_CHECK_RPRINT_RLIGHT})
            editor.Check(SchemePage::UvLamps, lamp).Click();
        editor.Edit(SchemePage::SmallFormat, IDC_EDIT_SMALL_OFFSET).Type(L"65535");
    }

    void ChangeFactoryScheme(FactoryEditor& editor)
    {
        ChangeSharedPages(editor);
        editor.Combo(SchemePage::Common, IDC_CMB_ENABLE).Pick(0);
        editor.Combo(SchemePage::Common, IDC_CMB_WAIT_STEP).Pick(0);
        editor.Combo(SchemePage::Common, IDC_CMB_WAVE).Pick(3);
        editor.Combo(SchemePage::Common, IDC_CMB_HEAD).Pick(0);
        editor.Combo(SchemePage::Mode, IDC_CMB_PRINT_MODE).Pick(2);
        editor.Edit(SchemePage::Eclosion, IDC_EDIT_RANGE_SS).Type(L"1");
        editor.Edit(SchemePage::Eclosion, IDC_EDIT_RANGE_S).Type(L"2");
        editor.Edit(SchemePage::Eclosion, IDC_EDIT_RANGE_M).Type(L"3");
        editor.Edit(SchemePage::Eclosion, IDC_EDIT_RANGE_L).Type(L"200");
        editor.Combo(SchemePage::SmallFormat, IDC_CMB_SMALL_MODE).Pick(1);
        m_host.TakeChanges();
        editor.Schemes().ClickRow(1);
        ExpectChanges(ChangedFactoryScheme());
        ExpectValue("factory scheme Changed: ConfigIndex 0 Speed 2 Direction 2 Material -1 DotMode 3 DefaultRangeSS 1 "
                    "DefaultRangeS 2 DefaultRangeM 3 DefaultRangeL 200 EclosionType 0 CustomEclosionId 70000 "
                    "EclosionLevel 4 CustomRange 199 HeadEclosionType 0 LampLL 0 LampLR 1 LampRL 1 LampRR 1 Channel 1 "
                    "multiples 10 80 30 40 50 60 70 80 10 20 30 40 50 60 70 80" +
                    Cuts(60) +
                    " ModeIndex 2 WaitStepStop 0 Wave 2 Enabled 0 LayoutId 40 HeadId 210 SmallFormatMode 1 "
                    "SmallFormatOffset 65535");
        editor.Schemes().ClickRow(0);
        editor.Combo(SchemePage::Common, IDC_CMB_LAYOUT).Pick(1);
        ExpectLastChanges({"Poster.SetLayoutId(41)"});
        EXPECT_EQ(editor.Combo(SchemePage::Common, IDC_CMB_HEAD).Rows(), Texts{L"Single"});
        editor.Combo(SchemePage::Common, IDC_CMB_LAYOUT).Pick(0);
    }

    // What the host's own compiler made of the arguments.
    void ExpectValue(const std::string& line)
    {
        const Lines values = m_host.Values();
        EXPECT_NE(std::find(values.begin(), values.end(), line), values.end()) << line << "\nis not among\n"
                                                                               << Text(values);
    }

    // Ink cuts as the host has them: one more each, until the last, which was changed.
    static std::string Cuts(int first)
    {
        std::string text = " cuts";
        for (int i = 0; i < 31; ++i)
            text += " " + std::to_string(first + i);
        return text + " 12";
    }

    static Lines ChangedFactoryScheme()
    {
        return {"Poster.SetName(\"Changed\")",
                "Poster.SetSpeed(2)",
                "Poster.SetDirection(2)",
                "Poster.SetMaterial(255)",
                "Poster.SetEnabled(0)",
                "Poster.SetWaitStepStop(0)",
                "Poster.SetWave(2)",
                "Poster.SetChannel(1)",
                "Poster.SetLayoutId(40)",
                "Poster.SetHeadId(210)",
                "Poster.SetModeIndex(2)",
                "Poster.SetEclosionType(0)",
                "Poster.SetEclosionLevel(4)",
                "Poster.SetCustomRange(199)",
                "Poster.SetDefaultRangeSS(1)",
                "Poster.SetDefaultRangeS(2)",
                "Poster.SetDefaultRangeM(3)",
                "Poster.SetDefaultRangeL(200)",
                "Poster.SetDotMode(3)",
                "Poster.SetHeadEclosionType(0)",
                "Poster.SetInkMultiple(40, 3)",
                "Poster.SetInkMultiple(30, 2)",
                "Poster.SetInkMultiple(80, 1)",
                "Poster.SetInkMultiple(10, 0)",
                "Poster.SetInkCut(67, 7)",
                "Poster.SetInkCut(67, 7)",
                "Poster.SetInkCut(68, 8)",
                "Poster.SetInkCut(68, 8)",
                "Poster.SetInkCut(12, 31)",
                "Poster.SetLampLL(0)",
                "Poster.SetLampLR(1)",
                "Poster.SetLampRL(1)",
                "Poster.SetLampRR(1)",
                "Poster.SetSmallFormatMode(1)",
                "Poster.SetSmallFormatOffset(65535)"};
    }

    void MakeCustomEclosion(FactoryEditor& editor)
    {
        m_host.TakeChanges();
        const CustomEclosionDialog dialog(editor, editor.OpenCustomEclosion());
        ExpectChanges(Lines{"first eclosion.SetLocked(1)"} + AddedEclosion() + AddedEclosion() +
                      Lines{"eclosions.SetCurrentIndex(0)"});
        EXPECT_EQ(dialog.Range(), L"77");
        EXPECT_EQ(dialog.Element1(), (std::vector<int>{3, 5}));
        dialog.Slider(IDC_SLIDER_ECLO_RANGE).Track(200);
        dialog.Slider(IDC_SLIDER_ELEMENT1_W).Track(8);
        dialog.Slider(IDC_SLIDER_ELEMENT1_H).Track(7);
        for (int button : {IDC_BTN_ADD_ELEMENT, IDC_BTN_DEL_ELEMENT, IDC_BTN_ADD_ECL_MODE, IDC_BTN_DEL_ECL_MODE})
            dialog.Press(button);
        dialog.Save();
        ExpectChanges({"first eclosion.SetRange(200)", "new element.SetWidth(8)", "new element.SetHeight(7)",
                       "new eclosion mode.AddElement()", "new eclosion mode.DeleteElement(0)",
                       "first eclosion.AddMode()", "first eclosion.SetCurrentMode(1)", "first eclosion.DeleteMode(1)",
                       "first eclosion.SetCurrentMode(0)", "control.SaveCustomEclosionSet()",
                       "Poster.SetCustomEclosionId(0)"});
    }

    // The library brings the set to four, of a shape of its own.
    static Lines AddedEclosion()
    {
        const Lines element = {"new eclosion mode.AddElement()", "new element.SetWidth(1)", "new element.SetHeight(1)"};
        const Lines mode = Lines{"new eclosion.AddMode()"} + element + element;
        return Lines{"eclosions.AddEclosion()", "new eclosion.SetLocked(1)", "new eclosion.SetCurrentMode(0)"} + mode +
               mode;
    }

    void AddCopyAndDelete(FactoryEditor& editor)
    {
        editor.CopyTo({2}, 1);
        ExpectLastChanges({"factory schemes.AddScheme()", "new scheme.CopyFrom(Banner)", "new scheme.SetConfigIndex(2)",
                           "new scheme.SetName(\"360X180_Copy\")"});
        editor.Press(IDC_BTN_DEL_SCHEME);
        m_host.TakeChanges();
        editor.Press(IDC_BTN_ADD_SCHEME);
        ExpectFirstChanges(
            {"factory schemes.AddScheme()", "new scheme.SetName(\"F-6\")", "new scheme.SetConfigIndex(0)"});
    }

    void ChangeUserScheme(UserEditor& editor)
    {
        ChangeSharedPages(editor);
        m_host.TakeChanges();
        editor.Schemes().ClickRow(kDivider);
        ExpectChanges(ChangedUserScheme());
        ExpectValue("user scheme Changed: ConfigIndex 0 Speed 2 Direction 2 Material -1 DotMode 3 DefaultRangeSS 115 "
                    "DefaultRangeS 126 DefaultRangeM 137 DefaultRangeL 148 EclosionType 0 CustomEclosionId 70004 "
                    "EclosionLevel 4 CustomRange 199 HeadEclosionType 0 LampLL 0 LampLR 1 LampRL 0 LampRR 0 Channel 1 "
                    "multiples 50 80 70 80 10 20 30 40 50 60 70 80 10 20 30 40" +
                    Cuts(64) + " BaseScheme 0");
    }

    static Lines ChangedUserScheme()
    {
        return {"Mine.SetName(\"Changed\")",
                "Mine.SetSpeed(2)",
                "Mine.SetDirection(2)",
                "Mine.SetMaterial(255)",
                "Mine.SetChannel(1)",
                "Mine.SetEclosionType(0)",
                "Mine.SetEclosionLevel(4)",
                "Mine.SetCustomRange(199)",
                "Mine.SetDefaultRangeSS(115)",
                "Mine.SetDefaultRangeS(126)",
                "Mine.SetDefaultRangeM(137)",
                "Mine.SetDefaultRangeL(148)",
                "Mine.SetDotMode(3)",
                "Mine.SetHeadEclosionType(0)",
                "Mine.SetInkMultiple(80, 3)",
                "Mine.SetInkMultiple(70, 2)",
                "Mine.SetInkMultiple(80, 1)",
                "Mine.SetInkMultiple(50, 0)",
                "Mine.SetInkCut(71, 7)",
                "Mine.SetInkCut(71, 7)",
                "Mine.SetInkCut(72, 8)",
                "Mine.SetInkCut(72, 8)",
                "Mine.SetInkCut(12, 31)",
                "Mine.SetLampLL(0)",
                "Mine.SetLampLR(1)",
                "Mine.SetLampRL(0)",
                "Mine.SetLampRR(0)",
                "Poster.SetSmallFormatMode(1)",
                "Poster.SetSmallFormatOffset(65535)"};
    }

    void AddUserSchemes(UserEditor& editor)
    {
        editor.Schemes().ClickRow(kSign);
        m_host.TakeChanges();
        editor.AddScheme(L"From preset");
        ExpectChanges(CopiedPreset() + Lines{"new scheme.SetName(\"From preset\")", "Sign.SetSmallFormatMode(1)",
                                             "Sign.SetSmallFormatOffset(40003)"});
        editor.Schemes().ClickRow(kYours);
        m_host.TakeChanges();
        editor.AddScheme(L"From yours");
        ExpectFirstChanges(
            {"user schemes.AddScheme()", "new scheme.CopyFrom(Yours)", "new scheme.SetName(\"From yours\")"});
    }

    // Every value of "Sign", which stands third by now.
    static Lines CopiedPreset()
    {
        Lines calls = {"user schemes.AddScheme()",
                       "new scheme.SetConfigIndex(0)",
                       "new scheme.SetBaseScheme(2)",
                       "new scheme.SetSpeed(2)",
                       "new scheme.SetDirection(1)",
                       "new scheme.SetMaterial(2)",
                       "new scheme.SetDotMode(3)",
                       "new scheme.SetDefaultRangeSS(114)",
                       "new scheme.SetDefaultRangeS(125)",
                       "new scheme.SetDefaultRangeM(136)",
                       "new scheme.SetDefaultRangeL(147)",
                       "new scheme.SetEclosionType(0)",
                       "new scheme.SetCustomEclosionId(70003)",
                       "new scheme.SetEclosionLevel(1)",
                       "new scheme.SetCustomRange(158)",
                       "new scheme.SetHeadEclosionType(1)"};
        const auto indexed = [](const char* name, int value, int index) {
            return "new scheme." + std::string(name) + "(" + std::to_string(value) + ", " + std::to_string(index) + ")";
        };
        for (int i = 0; i < 16; ++i)
            calls.push_back(indexed("SetInkMultiple", 10 * (1 + (i + 3) % 8), i));
        for (int i = 0; i < 32; ++i)
            calls.push_back(indexed("SetInkCut", 63 + i, i));
        return calls + Lines{"new scheme.SetLampLL(0)", "new scheme.SetLampLR(1)", "new scheme.SetLampRL(1)",
                             "new scheme.SetLampRR(0)", "new scheme.SetChannel(1)"};
    }

    // The first mode is loaded first, and has a data mode that is stored anew.
    void ShowModes(PrintModeEditor& editor)
    {
        ExpectChanges({"Fast-1.SetHeadDataMode(255, 1)"});
        EXPECT_EQ(editor.Configs().Rows(),
                  (Texts{L"Fast [720X1200][4C][2B]", L"Fine [60000X360][200C][1B]", L"Draft [360X180][3C][1B]"}));
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"Fast-1", L"Fast-2", L"Fast-3"}));
        const Lines before = m_host.Values();
        editor.Modes().ClickRow(2);
        editor.Modes().ClickRow(1);
        EXPECT_EQ(m_host.Values(), before);
        EXPECT_EQ(editor.Combo(IDC_CMB_PASS).SelectedText(), L"6");
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).SelectedText(), L"1440");
        EXPECT_EQ(editor.Combo(IDC_CMB_RESIDENT).Selected(), 1);
        EXPECT_EQ(editor.Combo(IDC_CMB_ENABLE).Selected(), 1);
        EXPECT_EQ(editor.Combo(IDC_CMB_FRONT).Selected(), 1);
        EXPECT_EQ(editor.Combo(IDC_CMB_BACK).Selected(), 0);
        EXPECT_EQ(editor.Edit(IDC_EDIT_SMALL).Text(), L"11.5");
        EXPECT_EQ(editor.Edit(IDC_EDIT_MEDIUM).Text(), L"-2.25");
        EXPECT_EQ(editor.Edit(IDC_EDIT_LARGE).Text(), L"100.125");
        m_host.TakeChanges();
    }

    void ChangeMode(PrintModeEditor& editor)
    {
        EnterDot(editor, IDC_CMB_SMALL_GROUP, 1, L"12.5", IDC_EDIT_SMALL, L"3.25");
        EnterDot(editor, IDC_CMB_MEDIUM_GROUP, 2, L"-4.25", IDC_EDIT_MEDIUM, L"-0.5");
        EnterDot(editor, IDC_CMB_LARGE_GROUP, 0, L"100.125", IDC_EDIT_LARGE, L"1000.125");
        SwitchOver(editor, IDC_CMB_FRONT_GROUP, 2, IDC_CMB_FRONT, 1);
        SwitchOver(editor, IDC_CMB_BACK_GROUP, 1, IDC_CMB_BACK, 0);
        editor.Combo(IDC_CMB_PASS).Pick(7);
        editor.Combo(IDC_CMB_XDPI).Pick(0);
        editor.Combo(IDC_CMB_ENABLE).Pick(0);
        editor.Combo(IDC_CMB_RESIDENT).Pick(0);
        editor.Edit(IDC_EDIT_NAME).Type(L"Renamed");
        EXPECT_EQ(editor.Grid().Values(), (Texts{L"Fine", L"Sharp"}));
        editor.Grid().Choose(0, L"Normal");
        editor.Grid().Choose(1, L"Soft");
        editor.Modes().ClickRow(0);
        ExpectChanges({"Fast-2.SetSmallDotCompensation(3.250, 1)", "Fast-2.SetMediumDotCompensation(-0.500, 2)",
                       "Fast-2.SetLargeDotCompensation(1000.125, 0)", "Fast-2.SetFrontCompensation(1, 2)",
                       "Fast-2.SetBackCompensation(0, 1)", "Fast-2.SetHeadDataMode(1, 0)",
                       "Fast-2.SetHeadDataMode(2, 1)", "Fast-2.SetPassCount(16)", "Fast-2.SetXResolutionIndex(0)",
                       "Fast-2.SetName(\"Renamed\")", "Fast-2.SetDisabled(1)", "Fast-2.SetResident(0)"});
        ExpectValue("mode Renamed: pass 16, disabled 1, resident 0, resolution 0, heads 1 2 255, small 11.500 3.250 "
                    "13.500, medium -2.250 -3.250 -0.500, large 1000.125 101.125 102.125, front 1 0 1, back 0 0 0");
    }

    static void EnterDot(PrintModeEditor& editor, int groupId, int group, const wchar_t* shown, int editId,
                         const wchar_t* value)
    {
        editor.Combo(groupId).Pick(group);
        EXPECT_EQ(editor.Edit(editId).Text(), shown);
        editor.Edit(editId).Type(value);
        editor.Op().Key(VK_TAB);
    }

    static void SwitchOver(PrintModeEditor& editor, int groupId, int group, int switchId, int row)
    {
        editor.Combo(groupId).Pick(group);
        EXPECT_EQ(editor.Combo(switchId).Selected(), 1 - row);
        editor.Combo(switchId).Pick(row);
    }

    void AddAndDeleteMode(PrintModeEditor& editor)
    {
        editor.Press(IDC_BTN_ADD_MODE);
        ExpectFirstChanges({"Fast.AddMode()", "new mode.SetName(\"Fast-4\")"});
        editor.Press(IDC_BTN_DEL_MODE);
        ExpectChanges({"Fast.RemoveMode(3)"});
    }

    void AddRenameAndDeleteConfig(PrintModeEditor& editor)
    {
        const ConfigDialog adding = editor.OpenAddConfig();
        adding.Type(IDC_EDIT_CFG_NAME, L"Added");
        adding.Type(IDC_EDIT_CFG_XDPI, L"60001");
        adding.Type(IDC_EDIT_CFG_YDPI, L"1440");
        adding.Type(IDC_EDIT_CFG_COLORS, L"12");
        adding.Type(IDC_EDIT_CFG_DOT_BITS, L"3");
        editor.Confirm(adding);
        ExpectChanges(AddedConfig());
        const std::wstring row = editor.Configs().Row(3);
        EXPECT_EQ(row.substr(row.find(L" [")), L" [60001X1440][12C][3B]");
        const ConfigDialog renaming = editor.OpenRename(0);
        renaming.Type(IDC_EDIT_CFG_NAME, L"Quick");
        m_host.TakeChanges();
        editor.Confirm(renaming);
        ExpectFirstChanges({"Fast.SetName(\"Quick\")"});
        editor.Configs().ClickRow(1);
        m_host.TakeChanges();
        editor.Press(IDC_BTN_DEL_CFG);
        ExpectFirstChanges({"configurations.RemoveAt(1)", "factory schemes.RemoveAt(1)", "user schemes.RemoveAt(1)"});
    }

    static Lines AddedConfig()
    {
        return {"machine.CreateConfig()",
                "lent configuration.SetXResolution(60001)",
                "lent configuration.SetYResolution(1440)",
                "lent configuration.SetColorCount(12)",
                "lent configuration.SetDotBits(3)",
                "lent configuration.SetEnabled(1)",
                "lent configuration.SetName(\"Added\")",
                "configurations.AddConfig(lent configuration)",
                "machine.DestroyConfig(lent configuration)"};
    }
};

TEST_F(ForeignHostRoads, CallEveryOperationByItsPosition)
{
    FactorySchemes();
    UserSchemes();
    PrintModes();
    EXPECT_EQ(Text(m_host.UncalledPositions()), Text(kPositionsWithoutUse));
    m_host.Release();
    EXPECT_EQ(m_host.Faults(), Lines());
}
} // namespace
