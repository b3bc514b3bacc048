#include "tests/msabi/ForeignHostRoads.h"

namespace
{
void EnterDot(PrintModeEditor& editor, int groupId, int group, const wchar_t* shown, int editId, const wchar_t* value)
{
    editor.Combo(groupId).Pick(group);
    EXPECT_EQ(editor.Edit(editId).Text(), shown);
    editor.Edit(editId).Type(value);
    editor.Op().Key(VK_TAB);
}

void SwitchOver(PrintModeEditor& editor, int groupId, int group, int switchId, int row)
{
    editor.Combo(groupId).Pick(group);
    EXPECT_EQ(editor.Combo(switchId).Selected(), 1 - row);
    editor.Combo(switchId).Pick(row);
}

Lines AddedConfig()
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
} // namespace

void ForeignHostRoads::PrintModes()
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

// The first mode is loaded first, and has a data mode that is stored anew.
void ForeignHostRoads::ShowModes(PrintModeEditor& editor)
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

void ForeignHostRoads::ChangeMode(PrintModeEditor& editor)
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
                   "Fast-2.SetBackCompensation(0, 1)", "Fast-2.SetHeadDataMode(1, 0)", "Fast-2.SetHeadDataMode(2, 1)",
                   "Fast-2.SetPassCount(16)", "Fast-2.SetXResolutionIndex(0)", "Fast-2.SetName(\"Renamed\")",
                   "Fast-2.SetDisabled(1)", "Fast-2.SetResident(0)"});
    ExpectValue("mode Renamed: pass 16, disabled 1, resident 0, resolution 0, heads 1 2 255, small 11.500 3.250 "
                "13.500, medium -2.250 -3.250 -0.500, large 1000.125 101.125 102.125, front 1 0 1, back 0 0 0");
}

void ForeignHostRoads::AddAndDeleteMode(PrintModeEditor& editor)
{
    editor.Press(IDC_BTN_ADD_MODE);
    ExpectFirstChanges({"Fast.AddMode()", "new mode.SetName(\"Fast-4\")"});
    editor.Press(IDC_BTN_DEL_MODE);
    ExpectChanges({"Fast.RemoveMode(3)"});
}

void ForeignHostRoads::AddRenameAndDeleteConfig(PrintModeEditor& editor)
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
