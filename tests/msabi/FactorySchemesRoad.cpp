#include "tests/editors/drivers/CustomEclosionDialog.h"
#include "tests/msabi/ForeignHostRoads.h"

namespace
{
Lines ChangedFactoryScheme()
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

// The library brings the set to four, of a shape of its own.
Lines AddedEclosion()
{
    const Lines element = {"new eclosion mode.AddElement()", "new element.SetWidth(1)", "new element.SetHeight(1)"};
    const Lines mode = Lines{"new eclosion.AddMode()"} + element + element;
    return Lines{"eclosions.AddEclosion()", "new eclosion.SetLocked(1)", "new eclosion.SetCurrentMode(0)"} + mode +
           mode;
}
} // namespace

void ForeignHostRoads::FactorySchemes()
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

void ForeignHostRoads::ChangeFactoryScheme(FactoryEditor& editor)
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

void ForeignHostRoads::MakeCustomEclosion(FactoryEditor& editor)
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
                   "new eclosion mode.AddElement()", "new eclosion mode.DeleteElement(0)", "first eclosion.AddMode()",
                   "first eclosion.SetCurrentMode(1)", "first eclosion.DeleteMode(1)",
                   "first eclosion.SetCurrentMode(0)", "control.SaveCustomEclosionSet()",
                   "Poster.SetCustomEclosionId(0)"});
}

void ForeignHostRoads::AddCopyAndDelete(FactoryEditor& editor)
{
    editor.CopyTo({2}, 1);
    ExpectLastChanges({"factory schemes.AddScheme()", "new scheme.CopyFrom(Banner)", "new scheme.SetConfigIndex(2)",
                       "new scheme.SetName(\"360X180_Copy\")"});
    editor.Press(IDC_BTN_DEL_SCHEME);
    m_host.TakeChanges();
    editor.Press(IDC_BTN_ADD_SCHEME);
    ExpectFirstChanges({"factory schemes.AddScheme()", "new scheme.SetName(\"F-6\")", "new scheme.SetConfigIndex(0)"});
}
