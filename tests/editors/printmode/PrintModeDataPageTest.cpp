#include "tests/editors/fixtures/PrintModeFixture.h"

namespace
{
class PrintModeDataPage : public PrintModeFixture
{
protected:
    void StoredDataModes(const std::vector<std::uint8_t>& stored)
    {
        m_machine.configurations[0].modes[0].headDataModes = stored;
    }
};

TEST_F(PrintModeDataPage, HeadsItsTwoColumns)
{
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().ColumnTitles(), (Texts{L"喷头物理布局", L"数据处理模式"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, OffersNoInsteadOfTheFirstDataMode)
{
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().RowCount(), 2);
        EXPECT_EQ(editor.Grid().Options(0), (Texts{L"No", L"Normal", L"Fine"}));
        EXPECT_EQ(editor.Grid().Options(1), (Texts{L"No", L"Sharp"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, WritesAChoiceAtOnce)
{
    Run([this](PrintModeEditor& editor) {
        editor.Grid().Choose(0, L"Fine");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(2, 0)"});
        EXPECT_EQ(editor.Grid().Value(0), L"Fine");
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, ChoosingNoWrites255)
{
    StoredDataModes({1, 255});
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().Values(), (Texts{L"Normal", L"No"}));
        editor.Grid().Choose(0, L"No");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(255, 0)"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, ChoosingTheSameAgainWritesNothing)
{
    StoredDataModes({2, 255});
    Run([this](PrintModeEditor& editor) {
        editor.Grid().Choose(0, L"Fine");
        editor.Grid().Choose(1, L"No");
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, StoredZeroIsReadAsNoAndRewritten)
{
    StoredDataModes({0, 1});
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(255, 0)"});
        EXPECT_EQ(editor.Grid().Values(), (Texts{L"No", L"Sharp"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, UnknownStoredValueShowsNoAndIsLeft)
{
    StoredDataModes({7, 3});
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().Values(), (Texts{L"No", L"No"}));
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
    EXPECT_EQ(Mode(0, 0).headDataModes, (std::vector<std::uint8_t>{7, 3}));
}

TEST_F(PrintModeDataPage, LayoutWithoutDataModesHasNoRowButCounts)
{
    m_machine.headLayouts = {{"Bare", 10, 0, {}}, {"Right", 11, 0, {"None", "Sharp"}}};
    StoredDataModes({1, 1});
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().RowCount(), 1);
        EXPECT_EQ(editor.Grid().Value(0), L"Sharp");
        editor.Grid().Choose(0, L"No");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(255, 1)"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, LowerIndexWinsAmongDataModesOfOneName)
{
    m_machine.headLayouts = {{"Left", 10, 0, {"None", "Fine", "Normal", "FINE"}}};
    Run([this](PrintModeEditor& editor) {
        editor.Grid().Choose(0, L"Normal");
        NewChanges();
        editor.Grid().Choose(0, L"Fine");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(1, 0)"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, DataModeNamedNoMeansNone)
{
    m_machine.headLayouts = {{"Left", 10, 0, {"None", "Fine", "NO"}}};
    StoredDataModes({1});
    Run([this](PrintModeEditor& editor) {
        editor.Grid().Choose(0, L"NO");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(255, 0)"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, LayoutWithOnlyTheFirstDataModeOffersNoAlone)
{
    m_machine.headLayouts = {{"Left", 10, 0, {"None"}}};
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().Options(0), Texts{L"No"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, IsRebuiltForEachMode)
{
    StoredDataModes({2, 1});
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().Values(), (Texts{L"Fine", L"Sharp"}));
        editor.Modes().ClickRow(1);
        EXPECT_EQ(editor.Grid().Values(), (Texts{L"No", L"No"}));
        editor.Modes().ClickRow(0);
        EXPECT_EQ(editor.Grid().Values(), (Texts{L"Fine", L"Sharp"}));
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, SaysNothingOfAChoiceOnceItsLayoutIsGone)
{
    m_faults.failing = {"IHeadLayoutList.FindById(11)", "IHeadLayoutList.FindById(10)"};
    Run([this](PrintModeEditor& editor) {
        editor.Grid().Choose(0, L"Fine");
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, ChangesValuesByTheKeyboard)
{
    Run([this](PrintModeEditor& editor) {
        const ListBox list = editor.Grid().OpenRow(0);
        editor.Op().Key(VK_DOWN);
        EXPECT_EQ(list.Row(list.Selected()), L"Normal");
        EXPECT_EQ(Changes(), Calls());
        editor.Op().Key(VK_RETURN);
        EXPECT_FALSE(list.IsVisible());
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(1, 0)"});
        EXPECT_TRUE(editor.Dialog().IsVisible());
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, EscapeInTheListGivesUpTheChoiceOnly)
{
    Run([this](PrintModeEditor& editor) {
        const ListBox list = editor.Grid().OpenRow(0);
        editor.Op().Key(VK_DOWN);
        editor.Op().Key(VK_ESCAPE);
        EXPECT_FALSE(list.IsVisible());
        EXPECT_EQ(Changes(), Calls());
        EXPECT_EQ(editor.Grid().Value(0), L"No");
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, RowsBeyondThePageAreReached)
{
    m_machine.headLayouts.clear();
    for (int i = 0; i < 60; ++i)
        m_machine.headLayouts.push_back(
            {"Head " + std::to_string(i), static_cast<std::uint16_t>(100 + i), 0, {"None", "Fine"}});
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().RowCount(), 60);
        editor.Grid().Choose(59, L"Fine");
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(1, 59)"});
        editor.Cancel();
    });
}

TEST_F(PrintModeDataPage, DataModesThatNoByteCanNameAreNotStored)
{
    m_machine.headLayouts[0].dataModes.resize(300, "Spare");
    m_machine.headLayouts[0].dataModes[255] = "Mode 255";
    m_machine.headLayouts[0].dataModes[299] = "Mode 299";
    StoredDataModes({255, 255});
    Run([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().Values()[0], L"No");
        editor.Grid().Choose(0, L"Mode 299");
        editor.Grid().Choose(0, L"Mode 255");
        EXPECT_EQ(Changes(), Calls());
        editor.Cancel();
    });
}

} // namespace
