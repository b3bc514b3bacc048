#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
constexpr int kRows = 12;

class InkMultiplePage : public FactorySchemeFixture
{
protected:
    static ComboBox Multiple(const FactoryEditor& editor, int row)
    {
        return editor.Combo(SchemePage::InkMultiple, IDC_CMB_INK_MUL_FIRST + row);
    }
    static Window Label(const FactoryEditor& editor, int row)
    {
        return editor.Open(SchemePage::InkMultiple).Control(IDC_STATIC_COLOR_FIRST + row);
    }

    // The labels of the rows that are to be seen. Label and list of a row show together.
    static Texts ShownRows(const FactoryEditor& editor)
    {
        Texts labels;
        for (int row = 0; row < kRows; ++row)
        {
            EXPECT_EQ(Label(editor, row).IsVisible(), Multiple(editor, row).IsVisible()) << row;
            if (Label(editor, row).IsVisible())
                labels.push_back(Label(editor, row).Text());
        }
        return labels;
    }

    // A layout of that many channels, whose colour indices are their numbers.
    void UseLayoutOf(int channels)
    {
        m_machine.inkChannels.clear();
        m_machine.layouts[0].channels.clear();
        for (int i = 0; i < channels; ++i)
        {
            const auto id = static_cast<std::uint16_t>(500 + i);
            m_machine.inkChannels.push_back({"Ink " + std::to_string(i), id, static_cast<std::uint8_t>(i)});
            m_machine.layouts[0].channels.push_back(id);
        }
    }
};

TEST_F(InkMultiplePage, ShowsARowForEachChannelOfTheLayout)
{
    Banner().layoutId = 41;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(ShownRows(editor), (Texts{L"Cyan", L"Magenta", L"Yellow", L"Black"}));
        EXPECT_EQ(Multiple(editor, 0).Rows(), (Texts{L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8"}));
        editor.Schemes().ClickRow(1);
        EXPECT_EQ(ShownRows(editor), (Texts{L"White", L"Varnish"}));
        editor.Cancel();
    });
}

TEST_F(InkMultiplePage, ShowsTheMultipleOfTheChannelsColour)
{
    Poster().inkMultiple = {10, 20, 30, 80};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Multiple(editor, 0).SelectedText(), L"8"); // colour 3
        EXPECT_EQ(Multiple(editor, 1).SelectedText(), L"3");
        EXPECT_EQ(Multiple(editor, 2).SelectedText(), L"2");
        EXPECT_EQ(Multiple(editor, 3).SelectedText(), L"1");
        editor.Cancel();
    });
}

TEST_F(InkMultiplePage, StoresTenthsUnderTheChannelsColour)
{
    Run([](FactoryEditor& editor) {
        for (int row = 0; row < 4; ++row)
            Multiple(editor, row).Pick(7 - row);
        editor.SaveAndQuit();
    });
    Poster().inkMultiple[3] = 80;
    Poster().inkMultiple[2] = 70;
    Poster().inkMultiple[1] = 60;
    Poster().inkMultiple[0] = 50;
    EXPECT_EQ(Changes(), Stored(0) + kFactorySchemesSaved);
}

TEST_F(InkMultiplePage, ShowsWholeMultiplesAndStoresWhatItShows)
{
    const int values[][3] = {{0, 1, 10},  {9, 1, 10},  {10, 1, 10}, {25, 2, 20},
                             {35, 3, 30}, {89, 8, 80}, {90, 1, 10}, {65535, 1, 10}};
    for (const auto& [held, shown, stored] : values)
    {
        Poster().inkMultiple[3] = static_cast<std::uint16_t>(held);
        Run([shown = shown](FactoryEditor& editor) {
            EXPECT_EQ(Multiple(editor, 0).SelectedText(), std::to_wstring(shown));
            editor.Apply();
            editor.Cancel();
        });
        EXPECT_EQ(ChangesWith("SetInkMultiple").at(0),
                  "IPrintScheme[0].SetInkMultiple(" + std::to_string(stored) + ", 3)");
    }
}

TEST_F(InkMultiplePage, LayoutThatDoesNotExistShowsNoRowsAndStoresNothing)
{
    Banner().layoutId = 99;
    Run([this](FactoryEditor& editor) {
        // Behind a scheme with channels.
        EXPECT_EQ(ShownRows(editor).size(), 4u);
        editor.Schemes().ClickRow(1);
        EXPECT_EQ(ShownRows(editor), Texts());
        NewChanges();
        editor.Apply();
        EXPECT_EQ(ChangesWith("SetInkMultiple"), Calls());
        editor.Cancel();
    });
}

TEST_F(InkMultiplePage, MoreThanTwelveChannelsAreCutAtTwelve)
{
    UseLayoutOf(20);
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(ShownRows(editor).size(), 12u);
        EXPECT_EQ(Label(editor, 11).Text(), L"Ink 11");
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetInkMultiple").size(), 12u);
}

TEST_F(InkMultiplePage, ColourBeyondTheValuesIsPassedAsItIs)
{
    m_machine.inkChannels[0].colorIndex = 200;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Multiple(editor, 0).SelectedText(), L"1");
        Multiple(editor, 0).Pick(4);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetInkMultiple").at(0), "IPrintScheme[0].SetInkMultiple(50, 200)");
}

TEST_F(InkMultiplePage, ChannelWithoutNameHasARowWithoutLabel)
{
    m_machine.inkChannels[1].name.clear();
    m_faults.failing = {"IInkChannel[2].GetName()"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(ShownRows(editor), (Texts{L"Cyan", L"", L"", L"Black"}));
        EXPECT_TRUE(Multiple(editor, 1).IsVisible());
        editor.Cancel();
    });
}

TEST_F(InkMultiplePage, ChannelNamesAreLookedUpInTheLanguageFile)
{
    m_language.WriteBytes("[DLG_PRINT_SCHEME]\nCyan=Blue\n");
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(ShownRows(editor), (Texts{L"Blue", L"Magenta", L"Yellow", L"Black"}));
        editor.Cancel();
    });
}

TEST_F(InkMultiplePage, NewLayoutShowsItsChannelsWhenTheSchemeIsLoadedAgain)
{
    Run([](FactoryEditor& editor) {
        editor.Combo(SchemePage::Common, IDC_CMB_LAYOUT).Pick(1);
        EXPECT_EQ(ShownRows(editor).size(), 4u);
        editor.Schemes().ClickRow(0);
        EXPECT_EQ(ShownRows(editor), (Texts{L"White", L"Varnish"}));
        editor.Cancel();
    });
}

TEST_F(InkMultiplePage, WithoutSchemeTheListsAreDisabled)
{
    Run([](FactoryEditor& editor) {
        EXPECT_TRUE(Multiple(editor, 0).IsEnabled());
        editor.Configs().ClickRow(2);
        for (int row = 0; row < kRows; ++row)
            EXPECT_FALSE(Multiple(editor, row).IsEnabled()) << row;
        editor.Cancel();
    });
}

TEST_F(InkMultiplePage, SchemeThatVanishedShowsNoRows)
{
    Run([this](FactoryEditor& editor) {
        InHost(editor, [](IHostData& data) { data.GetFactorySchemeList()->RemoveAt(3); });
        editor.Schemes().ClickRow(2);
        EXPECT_EQ(ShownRows(editor), Texts());
        editor.Cancel();
    });
}
} // namespace
