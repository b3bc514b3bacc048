#include "tests/msabi/ForeignHostRoads.h"

namespace
{
// Rows of the user editor after the factory editor's road: "Poster" is disabled there and "Banner" deleted.
enum UserRow
{
    kSign,
    kDivider,
    kMine,
    kYours
};

Lines ChangedUserScheme()
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

// Every value of "Sign", which stands third by now.
Lines CopiedPreset()
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
} // namespace

void ForeignHostRoads::UserSchemes()
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

void ForeignHostRoads::ChangeUserScheme(UserEditor& editor)
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

void ForeignHostRoads::AddUserSchemes(UserEditor& editor)
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
