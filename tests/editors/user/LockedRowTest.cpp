#include "tests/editors/fixtures/UserSchemeFixture.h"

namespace
{
// The rows of the user editor that an operator cannot change: presets and the divider.
class LockedRow : public UserSchemeFixture
{
};

TEST_F(LockedRow, IsNotDeletedByAMessageOfTheButton)
{
    Run([](UserEditor& editor) {
        const Texts rows = editor.Schemes().Rows();
        for (int row : {kPoster, kDivider, kSign})
        {
            editor.Schemes().ClickRow(row);
            editor.Notify(IDC_BTN_DEL_SCHEME, BN_CLICKED);
            EXPECT_EQ(editor.Schemes().Rows(), rows) << row;
            EXPECT_EQ(editor.Schemes().Selected(), row);
        }
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("RemoveAt"), Calls());
}

// Beyond all that a page would accept from an operator.
void MakeExtreme(refhost::FactoryScheme& preset)
{
    preset.name = std::string(70, 'x');
    preset.speed = preset.direction = preset.material = preset.wave = 127;
    preset.defaultRangeSS = preset.defaultRangeS = preset.defaultRangeM = preset.defaultRangeL = 255;
    preset.dotMode = preset.eclosionType = preset.eclosionLevel = preset.customRange = preset.headEclosionType = 255;
    preset.channel = preset.layoutId = preset.headId = preset.waitStepStop = 255;
    preset.lampLL = preset.lampLR = preset.lampRL = preset.lampRR = 255;
    preset.inkMultiple.fill(65535);
    preset.inkCut.fill(255);
    preset.smallFormatMode = 255;
    preset.smallFormatOffset = 65535;
}

TEST_F(LockedRow, WithValuesOutOfRangeIsLeftWithoutAPrompt)
{
    MakeExtreme(Poster());
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kPoster);
        for (SchemePage page : kAllUserPages)
            editor.Open(page);
        for (int row : {kSign, kPoster, kDivider, kPoster, kMine, kPoster})
            editor.Schemes().ClickRow(row);
        NewChanges();
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), StoredScheme("0", Poster()).SmallFormat() + kUserSchemesSaved);
}
} // namespace
