#include "refhost/MachineText.h"
#include "tests/editors/fixtures/PrintModeFixture.h"
#include "tests/machines/SampleMachine.h"
#include "tests/support/ThreadLocale.h"

#include <algorithm>
#include <set>

namespace
{
constexpr std::size_t kMany = 10000;
const std::string kLongName(10000, 'x');

std::string Number(std::size_t i)
{
    return std::to_string(i);
}

// Where it is there: each editor shows less in a host that gives little.
void PickFirst(const ComboBox& combo)
{
    if (combo.RowCount() > 0)
        combo.Pick(0);
}

void PressIfEnabled(const PrintModeEditor& editor, int button)
{
    if (editor.IsEnabled(button))
        editor.Press(button);
}

void UseCommonPage(const PrintModeEditor& editor)
{
    for (int id :
         {IDC_CMB_ENABLE, IDC_CMB_PASS, IDC_CMB_XDPI, IDC_CMB_RESIDENT, IDC_CMB_SMALL_GROUP, IDC_CMB_MEDIUM_GROUP,
          IDC_CMB_LARGE_GROUP, IDC_CMB_FRONT_GROUP, IDC_CMB_FRONT, IDC_CMB_BACK_GROUP, IDC_CMB_BACK})
        PickFirst(editor.Combo(id));
    for (int id : {IDC_EDIT_SMALL, IDC_EDIT_MEDIUM, IDC_EDIT_LARGE})
        editor.Edit(id).Type(L"1");
    editor.Edit(IDC_EDIT_NAME).Type(L"Name");
}

void UseDataPage(const PrintModeEditor& editor)
{
    if (editor.Grid().RowCount() > 0)
    {
        editor.Grid().Choose(0, editor.Grid().Options(0).back());
        editor.Grid().Choose(0, L"No");
    }
    editor.Tab().ClickTab(0);
}

void UseLists(const PrintModeEditor& editor)
{
    for (int row = 0; row < editor.Configs().RowCount(); ++row)
        editor.Configs().ClickRow(row);
    for (int id : {IDC_BTN_ADD_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN, IDC_BTN_DEL_MODE})
        PressIfEnabled(editor, id);
    editor.Confirm(editor.OpenAddConfig());
    for (int id : {IDC_BTN_ADD_MODE, IDC_BTN_DEL_MODE, IDC_BTN_DEL_CFG})
        PressIfEnabled(editor, id);
}

void UseEverything(const PrintModeEditor& editor)
{
    UseCommonPage(editor);
    UseDataPage(editor);
    UseLists(editor);
    UseCommonPage(editor);
    UseDataPage(editor);
    PressIfEnabled(editor, IDC_BTN_DEL_CFG);
    editor.SaveAndQuit();
}

class BadInput : public PrintModeFixture
{
protected:
    // Opens and leaves the editor by Cancel; the script looks in between.
    void Look(const Script& script)
    {
        Run([&](PrintModeEditor& editor) {
            script(editor);
            editor.Cancel();
        });
    }
};

// A host whose calls that match the pattern give null.
class NullFromHost : public BadInput, public testing::WithParamInterface<const char*>
{
};

TEST_P(NullFromHost, IsSurvivedByEveryHandler)
{
    for (int i = 0; i < 3; ++i)
    {
        m_machine.factorySchemes.push_back(FactorySchemeOf(i));
        m_machine.userSchemes.push_back(UserSchemeOf(i));
    }
    m_faults.failing = {GetParam()};
    Run([](PrintModeEditor& editor) { UseEverything(editor); });
    EXPECT_EQ(Changes().back(), "IHostControl.SaveParameters(2)");
}

INSTANTIATE_TEST_SUITE_P(
    EachGetter, NullFromHost,
    testing::Values("", "*", "IHostData.*", "IHostData.GetConfigList()", "IHostData.GetFactorySchemeList()",
                    "IHostData.GetUserSchemeList()", "IHostData.GetXResolutionList()", "IHostData.GetInkGroups()",
                    "IHostData.GetHeadLayoutList()", "IConfigList.GetAt(*)", "IConfigList.GetAt(0)",
                    "IConfigList.GetAt(1)", "IPrintConfig[*].GetName()", "IPrintConfig[*].GetMode(*)",
                    "IPrintConfig[*].GetMode(0)", "IPrintMode[*].GetName()", "IXResolutionList.GetAt(*)",
                    "IXResolution[*].GetName()", "IInkGroupTable.GetAt(*)", "IInkGroup[*].GetName()",
                    "IHeadLayoutList.GetAt(*)", "IHeadLayoutList.GetAt(0)", "IHeadLayoutList.FindById(*)",
                    "IHeadLayout[*].GetName()", "IHeadLayout[*].GetDataMode(*)", "IHeadLayout[*].GetDataMode(1)",
                    "IDataMode[*].GetName()", "ISchemeList[*].GetAt(*)", "IPrintConfig[*].AddMode()"));

TEST_F(BadInput, NullConfigurationKeepsItsRowAndIsNotOpened)
{
    m_faults.failing = {"IConfigList.GetAt(1)"};
    Look([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), (Texts{L"Fast [720X1200][4C][2B]", L"", L"Draft [720X1200][4C][2B]"}));
        editor.Configs().DoubleClickRow(1);
        EXPECT_EQ(editor.Modes().RowCount(), 0);
        editor.Press(IDC_BTN_ADD_MODE);
        EXPECT_EQ(editor.Modes().RowCount(), 0);
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(BadInput, NullModeIsPassedOver)
{
    m_machine.configurations = {Config("A", {"1", "2", "3"})};
    m_faults.failing = {"IPrintConfig[0].GetMode(1)"};
    Look([](PrintModeEditor& editor) { EXPECT_EQ(editor.Modes().Rows(), (Texts{L"1", L"3"})); });
}

TEST_F(BadInput, NullResolutionKeepsItsRow)
{
    m_faults.failing = {"IXResolutionList.GetAt(1)"};
    m_machine.configurations[0].modes[0].xResolutionIndex = 2;
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).Rows(), (Texts{L"360", L"", L"1440"}));
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).SelectedText(), L"1440");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).xResolutionIndex, 2);
}

TEST_F(BadInput, NullInkGroupKeepsItsRow)
{
    m_faults.failing = {"IInkGroupTable.GetAt(0)"};
    Look([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_SMALL_GROUP).Rows(), (Texts{L"", L"Magenta", L"Yellow", L"Black"}));
        editor.Combo(IDC_CMB_SMALL_GROUP).Pick(1);
        editor.Edit(IDC_EDIT_SMALL).Type(L"2");
        editor.Op().Key(VK_TAB);
    });
    EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetSmallDotCompensation(2, 1)"});
}

TEST_F(BadInput, NullHeadLayoutHasNoRowButCounts)
{
    m_faults.failing = {"IHeadLayoutList.GetAt(0)"};
    Look([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().RowCount(), 1);
        editor.Grid().Choose(0, L"Sharp");
    });
    EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(1, 1)"});
}

TEST_F(BadInput, NullDataModeIsNotOffered)
{
    m_faults.failing = {"IHeadLayout[0].GetDataMode(1)"};
    Look([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Grid().Options(0), (Texts{L"No", L"Fine"}));
        editor.Grid().Choose(0, L"Fine");
    });
    EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(2, 0)"});
}

TEST_F(BadInput, NullConfigurationNameIsFormattedAsANullText)
{
    m_faults.failing = {"IPrintConfig[0].GetName()"};
    Look([](PrintModeEditor& editor) { EXPECT_EQ(editor.Configs().Row(0), L"(null) [720X1200][4C][2B]"); });
}

TEST_F(BadInput, NullModeNameIsEmpty)
{
    m_faults.failing = {"IPrintMode[0.0].GetName()"};
    Look([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Modes().Rows(), (Texts{L"", L"Fast-2"}));
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"");
    });
}

TEST_F(BadInput, EmptyNamesAreShownAndKept)
{
    m_machine.configurations = {Config("", {""})};
    m_machine.xResolutions = {""};
    m_machine.inkGroups = {{"", 1, 0, {}}};
    m_machine.headLayouts = {{"", 10, 0, {"", ""}}};
    Run([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().Rows(), Texts{L" [720X1200][4C][2B]"});
        EXPECT_EQ(editor.Modes().Rows(), Texts{L""});
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).Rows(), Texts{L""});
        EXPECT_EQ(editor.Grid().RowCount(), 1);
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Mode(0, 0).name, "");
    EXPECT_EQ(Machine().configurations[0].name, "");
}

TEST_F(BadInput, NamesOfTenThousandBytesAreShownAndLeftToTheHost)
{
    m_machine.configurations = {Config(kLongName, {kLongName})};
    m_machine.xResolutions = {kLongName};
    m_machine.inkGroups = {{kLongName, 1, 0, {}}};
    m_machine.headLayouts = {{kLongName, 10, 0, {"None", kLongName}}};
    Run([](PrintModeEditor& editor) {
        const std::wstring name(kLongName.begin(), kLongName.end());
        EXPECT_EQ(editor.Configs().Rows(), Texts{name + L" [720X1200][4C][2B]"});
        EXPECT_EQ(editor.Modes().Rows(), Texts{name});
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).Rows(), Texts{name});
        EXPECT_EQ(editor.Combo(IDC_CMB_SMALL_GROUP).Rows(), Texts{name});
        editor.Grid().Choose(0, name);
        editor.Press(IDOK);
        editor.Op().AnswerMessageBox(); // no name may have more than 60 characters
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Mode(0, 0).name, kLongName);
    EXPECT_EQ(Mode(0, 0).headDataModes, std::vector<std::uint8_t>{1});
    EXPECT_EQ(Machine().configurations[0].name, kLongName);
}

TEST_F(BadInput, BytesThatAreNoTextOfTheCodePageAreShownSomehow)
{
    const ThreadLocale chinese(0x0804);
    const std::string noText = "\x81\xFF\xFF\x80\xFE";
    m_machine.configurations = {Config(noText, {noText, "\x81"})};
    m_machine.inkGroups = {{noText, 1, 0, {}}};
    m_machine.headLayouts = {{noText, 10, 0, {"None", noText}}};
    Look([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().RowCount(), 1);
        EXPECT_NE(editor.Configs().Row(0).find(L" [720X1200][4C][2B]"), std::wstring::npos);
        EXPECT_EQ(editor.Modes().RowCount(), 2);
        editor.Grid().Choose(0, editor.Grid().Options(0).back());
    });
    EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(1, 0)"});
    EXPECT_EQ(Machine().configurations[0].name, noText);
}

TEST_F(BadInput, TenThousandConfigurationsAreListed)
{
    m_machine.configurations.clear();
    for (std::size_t i = 0; i < kMany; ++i)
        m_machine.configurations.push_back(Config(Number(i)));
    Look([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Configs().RowCount(), static_cast<int>(kMany));
        EXPECT_EQ(editor.Configs().Row(9999), L"9999 [720X1200][4C][2B]");
        editor.Configs().ClickRow(9999);
        editor.Press(IDC_BTN_DEL_CFG);
        EXPECT_EQ(editor.Configs().Selected(), 9998);
    });
    EXPECT_EQ(Changes(), Calls{"IConfigList.RemoveAt(9999)"});
}

TEST_F(BadInput, TenThousandModesAreListed)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kMany; ++i)
        names.push_back("Mode " + Number(i));
    m_machine.configurations = {Config("A", names)};
    Look([this](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Modes().RowCount(), static_cast<int>(kMany));
        EXPECT_EQ(editor.Modes().Row(9999), L"Mode 9999");
        editor.Modes().ClickRow(9999);
        EXPECT_EQ(editor.Edit(IDC_EDIT_NAME).Text(), L"Mode 9999");
        editor.Press(IDC_BTN_ADD_MODE);
        EXPECT_EQ(editor.Modes().Row(10000), L"A-10001");
        editor.Press(IDC_BTN_DEL_MODE);
        EXPECT_EQ(Changes().back(), "IPrintConfig[0].RemoveMode(10000)");
        EXPECT_EQ(editor.Modes().Selected(), 9999);
    });
}

TEST_F(BadInput, TenThousandResolutionsAndInkGroupsAreOffered)
{
    m_machine.inkGroups.clear();
    m_machine.xResolutions.clear();
    for (std::size_t i = 0; i < kMany; ++i)
    {
        m_machine.inkGroups.push_back({Number(i), static_cast<std::uint16_t>(i), 0, {}});
        m_machine.xResolutions.push_back(Number(i));
    }
    Look([](PrintModeEditor& editor) {
        EXPECT_EQ(editor.Combo(IDC_CMB_XDPI).RowCount(), static_cast<int>(kMany));
        EXPECT_EQ(editor.Combo(IDC_CMB_BACK_GROUP).RowCount(), static_cast<int>(kMany));
        editor.Combo(IDC_CMB_SMALL_GROUP).Pick(9999);
        editor.Edit(IDC_EDIT_SMALL).Type(L"4");
        editor.Op().Key(VK_TAB);
    });
    EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetSmallDotCompensation(4, 9999)"});
}

TEST_F(BadInput, TenThousandHeadLayoutsAreListed)
{
    m_machine.headLayouts.clear();
    for (std::size_t i = 0; i < kMany; ++i)
        m_machine.headLayouts.push_back({Number(i), static_cast<std::uint16_t>(i), 0, {"None", "Fine"}});
    Look([](PrintModeEditor& editor) {
        const PropertyGrid grid = editor.Grid();
        EXPECT_EQ(grid.RowCount(), static_cast<int>(kMany));
        grid.Choose(0, L"Fine");
        editor.Op().Key(VK_END);
        editor.Op().Key(VK_F4);
        editor.Op().Key(VK_DOWN);
        editor.Op().Key(VK_RETURN);
    });
    EXPECT_EQ(Changes(), (Calls{"IPrintMode[0.0].SetHeadDataMode(1, 0)", "IPrintMode[0.0].SetHeadDataMode(1, 9999)"}));
}

TEST_F(BadInput, TenThousandDataModesAreOffered)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kMany; ++i)
        names.push_back("Mode " + Number(i));
    m_machine.headLayouts = {{"Left", 10, 0, names}};
    Look([](PrintModeEditor& editor) {
        const ListBox list = editor.Grid().OpenRow(0);
        EXPECT_EQ(list.RowCount(), static_cast<int>(kMany)); // "No" in place of the first
        EXPECT_EQ(list.Row(254), L"Mode 254");
        list.ClickRow(254);
    });
    EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetHeadDataMode(254, 0)"});
}

// What stays when a mode was shown and stored: a pass count that is not offered becomes one, and a data mode of 0 none.
void TakeAsShown(refhost::PrintMode& mode)
{
    const std::set<int> offered = {1, 2, 3, 4, 6, 8, 12, 16};
    if (offered.count(mode.passCount) == 0)
        mode.passCount = 1;
    std::replace(mode.headDataModes.begin(), mode.headDataModes.end(), std::uint8_t{0}, refhost::NO_DATA_MODE);
}

TEST_F(BadInput, WalkingThroughTheSampleMachineChangesOnlyWhatThePagesCannotShow)
{
    const ThreadLocale chinese(0x0804);
    m_machine = SampleMachine();
    Look([](PrintModeEditor& editor) {
        for (int config = 0; config < editor.Configs().RowCount(); ++config)
        {
            editor.Configs().ClickRow(config);
            for (int mode = 0; mode < editor.Modes().RowCount(); ++mode)
                editor.Modes().ClickRow(mode);
        }
        editor.Configs().ClickRow(0);
    });
    for (refhost::PrintConfig& config : m_machine.configurations)
        for (refhost::PrintMode& mode : config.modes)
            TakeAsShown(mode);
    EXPECT_TRUE(refhost::FormatMachine(Machine()) == refhost::FormatMachine(m_machine));
}

TEST_F(BadInput, DeletingANullConfigurationDoesNothing)
{
    m_faults.failing = {"IConfigList.GetAt(1)"};
    Look([this](PrintModeEditor& editor) {
        editor.Configs().ClickRow(1);
        NewChanges();
        PressIfEnabled(editor, IDC_BTN_DEL_CFG);
        EXPECT_EQ(NewChanges(), Calls());
        EXPECT_EQ(editor.Configs().RowCount(), 3);
    });
}

// The host dispatches messages while it saves: a second OK, and another selection, arrive meanwhile.
TEST_F(BadInput, NothingIsHandledWhileTheHostSaves)
{
    Run([this](PrintModeEditor& editor) {
        const HWND dialog = editor.Dialog().Handle();
        const HWND modes = editor.Modes().Handle();
        Host().OnSave([=](refhost::SaveRequest) {
            SendMessageW(dialog, WM_COMMAND, IDOK, 0);
            SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_LIST_MODE, LBN_SELCHANGE), reinterpret_cast<LPARAM>(modes));
        });
        editor.SaveAndQuit();
    });
    EXPECT_EQ(ChangesWith("SaveParameters"), Calls{"IHostControl.SaveParameters(2)"});
    EXPECT_EQ(Changes().back(), "IHostControl.SaveParameters(2)");
}

// The same with a head's data mode, which the operator changes by a double click.
TEST_F(BadInput, NoDataModeIsChangedWhileTheHostSaves)
{
    Run([this](PrintModeEditor& editor) {
        const PropertyGrid grid = editor.Grid();
        const HWND window = grid.Handle();
        RECT list;
        GetWindowRect(grid.OpenRow(0).Handle(), &list); // below the row
        editor.Op().Key(VK_ESCAPE);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&list), 2);
        const LPARAM inRow = MAKELPARAM(list.left + 5, list.top - 5);
        Host().OnSave([=](refhost::SaveRequest) { SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, inRow); });
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes().back(), "IHostControl.SaveParameters(2)");
}
} // namespace
