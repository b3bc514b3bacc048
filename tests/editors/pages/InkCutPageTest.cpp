#include "tests/editors/fixtures/FactorySchemeFixture.h"

namespace
{
constexpr int kRows = 12;

class InkCutPage : public FactorySchemeFixture
{
protected:
    static Trackbar Slider(const FactoryEditor& editor, int row)
    {
        return editor.Slider(SchemePage::InkCut, IDC_SLIDER_INK_CUT_FIRST + 2 * row);
    }
    static EditField Number(const FactoryEditor& editor, int row)
    {
        return editor.Edit(SchemePage::InkCut, IDC_EDIT_INK_CUT_FIRST + 2 * row);
    }

    // The labels of the rows that are to be seen; an empty place for each hidden row. The four controls of a row show
    // together.
    static std::vector<std::optional<std::wstring>> Rows(const FactoryEditor& editor)
    {
        const Window page = editor.Open(SchemePage::InkCut);
        std::vector<std::optional<std::wstring>> labels(kRows);
        for (int row = 0; row < kRows; ++row)
        {
            const Window label = page.Control(IDC_STATIC_COLOR_FIRST + row);
            for (const Window& other : {Window(Slider(editor, row)), Window(Number(editor, row)),
                                        page.Control(IDC_STATIC_PERCENT_FIRST + row)})
                EXPECT_EQ(other.IsVisible(), label.IsVisible()) << row;
            if (label.IsVisible())
                labels[static_cast<std::size_t>(row)] = label.Text();
        }
        return labels;
    }

    static Texts ShownRows(const FactoryEditor& editor)
    {
        Texts shown;
        for (const std::optional<std::wstring>& label : Rows(editor))
            if (label)
                shown.push_back(*label);
        return shown;
    }

    // A group whose channels have the ids from the first on, one after the other.
    refhost::InkGroup Group(int id, int first, int count)
    {
        refhost::InkGroup group{
            "Group " + std::to_string(id), static_cast<std::uint16_t>(id), static_cast<std::uint8_t>(id), {}};
        for (int i = 0; i < count; ++i)
            group.channels.push_back(static_cast<std::uint16_t>(first + i));
        return group;
    }

    // The active set-up consists of these groups.
    void UseGroups(const std::vector<refhost::InkGroup>& groups)
    {
        m_machine.inkGroups = groups;
        m_machine.inkChannels.clear();
        for (std::uint16_t id = 0; id < 100; ++id)
            m_machine.inkChannels.push_back({"Ink", id, 0});
        m_machine.activeSetup.groups.clear();
        for (const refhost::InkGroup& group : groups)
            m_machine.activeSetup.groups.push_back(group.id);
    }
};

TEST_F(InkCutPage, ShowsARowForEachChannelWithItsGroup)
{
    Run([this](FactoryEditor& editor) {
        EXPECT_EQ(ShownRows(editor), (Texts{L"Colours", L"Colours", L"Dark", L"Dark", L"White"}));
        for (int row = 0; row < 5; ++row)
        {
            const std::size_t colors[] = {7, 7, 8, 8, 9};
            const int percent = Poster().inkCut[colors[row]];
            EXPECT_EQ(Number(editor, row).Text(), std::to_wstring(percent)) << row;
            EXPECT_EQ(Slider(editor, row).Position(), percent) << row;
            EXPECT_EQ(Slider(editor, row).Lowest(), 0);
            EXPECT_EQ(Slider(editor, row).Highest(), 100);
            EXPECT_TRUE(Number(editor, row).HasStyle(ES_READONLY));
        }
        editor.Cancel();
    });
}

TEST_F(InkCutPage, RowWithoutAGroupStaysHidden)
{
    UseGroups({Group(1, 0, 1), Group(2, 3, 2)});
    Run([](FactoryEditor& editor) {
        using Row = std::optional<std::wstring>;
        std::vector<Row> expected(kRows);
        expected[0] = L"Group 1";
        expected[3] = expected[4] = L"Group 2";
        EXPECT_EQ(Rows(editor), expected);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetInkCut").size(), 3u);
}

TEST_F(InkCutPage, TrackbarUpdatesItsNumberAtOnceAndTheHostOnlyWhenStored)
{
    Run([this](FactoryEditor& editor) {
        const Trackbar slider = Slider(editor, 4);
        slider.Track(50);
        EXPECT_EQ(Number(editor, 4).Text(), L"50");
        const std::pair<int, std::wstring> keys[] = {
            {VK_RIGHT, L"51"}, {VK_LEFT, L"50"}, {VK_HOME, L"0"}, {VK_END, L"100"}};
        for (const auto& [key, shown] : keys)
        {
            slider.Press(key);
            EXPECT_EQ(Number(editor, 4).Text(), shown);
        }
        slider.LetGo(42);
        EXPECT_EQ(Number(editor, 4).Text(), L"42");
        EXPECT_EQ(Number(editor, 3).Text(), std::to_wstring(Poster().inkCut[8]));
        EXPECT_EQ(Changes(), Calls());
        editor.SaveAndQuit();
    });
    Poster().inkCut[9] = 42;
    EXPECT_EQ(Changes(), Stored(0) + kFactorySchemesSaved);
}

TEST_F(InkCutPage, LastRowOfAGroupWins)
{
    Run([](FactoryEditor& editor) {
        Slider(editor, 0).Track(20);
        Slider(editor, 1).Track(30);
        editor.SaveAndQuit();
    });
    const Calls stored = ChangesWith("SetInkCut");
    EXPECT_EQ(stored.at(0), "IPrintScheme[0].SetInkCut(20, 7)");
    EXPECT_EQ(stored.at(1), "IPrintScheme[0].SetInkCut(30, 7)");
    EXPECT_EQ(Factory(0).inkCut[7], 30);
}

// The number beside it has no say.
TEST_F(InkCutPage, TrackbarIsWhatIsStored)
{
    Run([this](FactoryEditor& editor) {
        SetWindowTextW(Number(editor, 4).Handle(), L"3");
        editor.Apply();
        EXPECT_EQ(ChangesWith("SetInkCut"), StoredPages(0).InkCuts());
        editor.Cancel();
    });
}

TEST_F(InkCutPage, MoreThanHundredPercentIsShownAndStoredAsHundred)
{
    Poster().inkCut[9] = 150;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Number(editor, 4).Text(), L"150");
        EXPECT_EQ(Slider(editor, 4).Position(), 100);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetInkCut").back(), "IPrintScheme[0].SetInkCut(100, 9)");
}

TEST_F(InkCutPage, MissingGroupsShowNoRowsAndStoreNothing)
{
    m_faults.failing = {"IHostData.GetInkGroups()"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(ShownRows(editor), Texts());
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetInkCut"), Calls());
}

TEST_F(InkCutPage, MoreThanTwelveRowsAreCutAtTwelve)
{
    UseGroups({Group(1, 0, 40)});
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(ShownRows(editor), Texts(12, L"Group 1"));
        Slider(editor, 11).Track(5);
        EXPECT_EQ(Number(editor, 11).Text(), L"5");
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetInkCut").size(), 12u);
    EXPECT_EQ(Factory(0).inkCut[1], 5);
}

TEST_F(InkCutPage, ColourBeyondTheValuesIsPassedAsItIs)
{
    m_machine.inkGroups[2].colorIndex = 200;
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(Number(editor, 4).Text(), L"0");
        Slider(editor, 4).Track(5);
        editor.Apply();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetInkCut").back(), "IPrintScheme[0].SetInkCut(5, 200)");
}

TEST_F(InkCutPage, GroupNamesAreLookedUpInTheLanguageFile)
{
    m_language.WriteBytes("[DLG_PRINT_SCHEME]\nDark=Black\n");
    m_faults.failing = {"IInkGroup[2].GetName()"};
    Run([](FactoryEditor& editor) {
        EXPECT_EQ(ShownRows(editor), (Texts{L"Colours", L"Colours", L"Black", L"Black", L""}));
        editor.Cancel();
    });
}

TEST_F(InkCutPage, WithoutSchemeTheTrackbarsAreDisabledAndTheNumbersStay)
{
    Run([](FactoryEditor& editor) {
        editor.Open(SchemePage::InkCut);
        editor.Configs().ClickRow(2);
        for (int row = 0; row < kRows; ++row)
            EXPECT_FALSE(Slider(editor, row).IsEnabled()) << row;
        EXPECT_TRUE(Number(editor, 0).IsVisible());
        editor.Cancel();
    });
}
} // namespace
