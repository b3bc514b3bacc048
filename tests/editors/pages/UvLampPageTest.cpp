#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
constexpr int kLamps[] = {IDC_CHECK_LPRINT_LLIGHT, IDC_CHECK_LPRINT_RLIGHT, IDC_CHECK_RPRINT_LLIGHT,
                          IDC_CHECK_RPRINT_RLIGHT};

CheckBox Lamp(const SchemeEditor& editor, int controlId)
{
    return editor.Check(SchemePage::UvLamps, controlId);
}

std::vector<bool> Lit(const SchemeEditor& editor)
{
    std::vector<bool> lit;
    for (int id : kLamps)
        lit.push_back(Lamp(editor, id).IsChecked());
    return lit;
}

class UvLampPage : public FactorySchemeFixture
{
};

TEST_F(UvLampPage, ShowsTheFourFlagsOfEachDirectionAndLamp)
{
    Poster().lampLL = Poster().lampRR = 1;
    Poster().lampLR = Poster().lampRL = 0;
    Banner().lampLL = Banner().lampRL = Banner().lampRR = 0;
    Banner().lampLR = 1;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Lit(editor), (std::vector<bool>{true, false, false, true}));
        editor.Schemes().ClickRow(1);
        EXPECT_EQ(Lit(editor), (std::vector<bool>{false, true, false, false}));
        for (int id : kLamps)
            EXPECT_TRUE(Lamp(editor, id).IsEnabled()) << id;
        editor.Cancel();
    });
}

TEST_F(UvLampPage, EachBoxIsStoredInItsFlag)
{
    Run([this](FactoryEditor& editor) {
        std::uint8_t* const flags[] = {&Poster().lampLL, &Poster().lampLR, &Poster().lampRL, &Poster().lampRR};
        for (std::size_t i = 0; i < 4; ++i)
        {
            Lamp(editor, kLamps[i]).Click();
            *flags[i] = *flags[i] == 0;
            NewChanges();
            editor.Apply();
            EXPECT_EQ(ChangesWith("SetLamp"), StoredPages(0).Lamps());
        }
        editor.Cancel();
    });
}

TEST_F(UvLampPage, SchemeThatVanishedLeavesTheBoxesAsTheyWere)
{
    Run([this](FactoryEditor& editor) {
        const std::vector<bool> before = Lit(editor);
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(3); });
        editor.Schemes().ClickRow(2);
        EXPECT_EQ(Lit(editor), before);
        EXPECT_TRUE(Lamp(editor, IDC_CHECK_LPRINT_LLIGHT).IsEnabled());
        editor.Cancel();
    });
}

TEST_F(UvLampPage, WithoutSchemeTheBoxesKeepTheirTicksAndAreDisabled)
{
    Run([](FactoryEditor& editor) {
        const std::vector<bool> before = Lit(editor);
        editor.Configs().ClickRow(2);
        EXPECT_EQ(Lit(editor), before);
        for (int id : kLamps)
            EXPECT_FALSE(Lamp(editor, id).IsEnabled()) << id;
        editor.Cancel();
    });
}
} // namespace
