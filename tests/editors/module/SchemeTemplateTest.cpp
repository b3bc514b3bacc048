#include "resources/resource.h"
#include "tests/editors/module/DialogTemplate.h"

#include <commctrl.h>
#include <gtest/gtest.h>

namespace
{
constexpr wchar_t kStatic[] = L"Static";
constexpr wchar_t kButton[] = L"Button";
constexpr wchar_t kCombo[] = L"ComboBox";
constexpr wchar_t kEdit[] = L"Edit";
constexpr wchar_t kList[] = L"ListBox";
constexpr wchar_t kSlider[] = L"msctls_trackbar32";
constexpr int kInkRows = 12;

struct ExpectedControl
{
    int id;
    const wchar_t* className;
    std::wstring text;
};

struct PlacedControl
{
    int id;
    const wchar_t* className;
    std::wstring text;
    LONG x;
    LONG y;
    LONG width;
    LONG height;
};

const TemplateControl& Control(const DialogTemplate& dialog, int id)
{
    const TemplateControl* control = dialog.Find(id);
    if (!control)
        throw std::out_of_range("no control " + std::to_string(id));
    return *control;
}

template <class Expected>
void ExpectControls(const DialogTemplate& dialog, const std::vector<Expected>& controls)
{
    for (const Expected& expected : controls)
    {
        const TemplateControl& control = Control(dialog, expected.id);
        EXPECT_EQ(lstrcmpiW(control.className.c_str(), expected.className), 0) << expected.id;
        EXPECT_EQ(control.text, expected.text) << expected.id;
    }
}

// All controls, each at its place.
void ExpectPlaces(const DialogTemplate& dialog, const std::vector<PlacedControl>& controls)
{
    EXPECT_EQ(dialog.controls.size(), controls.size());
    ExpectControls(dialog, controls);
    for (const PlacedControl& expected : controls)
    {
        const RECT place = {expected.x, expected.y, expected.x + expected.width, expected.y + expected.height};
        EXPECT_TRUE(EqualRect(&Control(dialog, expected.id).area, &place)) << expected.id;
    }
}

void ExpectSize(const DialogTemplate& dialog, const wchar_t* caption, LONG width, LONG height)
{
    EXPECT_EQ(dialog.caption, caption);
    EXPECT_EQ(dialog.size.cx, width);
    EXPECT_EQ(dialog.size.cy, height);
}

std::vector<int> ControlsWith(const DialogTemplate& dialog, DWORD style, const std::vector<int>& ids)
{
    std::vector<int> found;
    for (int id : ids)
        if (Control(dialog, id).style & style)
            found.push_back(id);
    return found;
}

// Right-aligned and vertically centred.
void ExpectLabels(const DialogTemplate& dialog, const std::vector<int>& ids)
{
    for (int id : ids)
    {
        EXPECT_EQ(Control(dialog, id).style & SS_TYPEMASK, static_cast<DWORD>(SS_RIGHT)) << id;
        EXPECT_TRUE(Control(dialog, id).style & SS_CENTERIMAGE) << id;
    }
}

TEST(SchemeTemplates, FactoryEditor)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_FACTORY);
    ExpectSize(dialog, L"打印方案(厂家模式)", 444, 250);
    ExpectPlaces(dialog, {{IDOK, kButton, L"应用并退出", 332, 229, 50, 14},
                          {IDCANCEL, kButton, L"取消", 387, 229, 50, 14},
                          {IDC_STATIC_CFG, kStatic, L"打印配置:", 7, 5, 70, 14},
                          {IDC_LIST_CFG, kList, L"", 7, 20, 86, 203},
                          {IDC_STATIC_MODE, kStatic, L"打印方案:", 103, 5, 70, 14},
                          {IDC_LIST_SCHEME, kList, L"", 102, 20, 125, 203},
                          {IDC_BTN_ADD_SCHEME, kButton, L"+", 196, 5, 15, 14},
                          {IDC_BTN_DEL_SCHEME, kButton, L"X", 212, 5, 15, 14},
                          {IDC_TAB, kStatic, L"", 235, 7, 202, 217},
                          {IDC_BTN_APPLY, kButton, L"应用", 272, 229, 50, 14}});
    EXPECT_TRUE(dialog.style & WS_POPUP);
    EXPECT_TRUE(dialog.style & WS_SYSMENU);
    EXPECT_TRUE(dialog.style & DS_MODALFRAME);
    EXPECT_EQ(dialog.style & WS_CAPTION, static_cast<DWORD>(WS_CAPTION));
    EXPECT_TRUE(Control(dialog, IDC_BTN_DEL_SCHEME).style & WS_DISABLED);
    EXPECT_FALSE(Control(dialog, IDC_TAB).style & WS_VISIBLE);
    EXPECT_TRUE(Control(dialog, IDOK).style & BS_DEFPUSHBUTTON);
    for (int id : {IDC_LIST_CFG, IDC_LIST_SCHEME})
    {
        const DWORD style = Control(dialog, id).style;
        EXPECT_EQ(style & (LBS_NOTIFY | WS_VSCROLL | WS_BORDER | LBS_NOINTEGRALHEIGHT),
                  static_cast<DWORD>(LBS_NOTIFY | WS_VSCROLL | WS_BORDER | LBS_NOINTEGRALHEIGHT));
        EXPECT_FALSE(style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL));
    }
}

TEST(SchemeTemplates, UserEditor)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_USER);
    ExpectSize(dialog, L"打印方案(用户模式)", 444, 250);
    EXPECT_EQ(dialog.fontName, L"MS Shell Dlg");
    ExpectPlaces(dialog, {{IDOK, kButton, L"应用并退出", 332, 229, 50, 14},
                          {IDCANCEL, kButton, L"取消", 387, 229, 50, 14},
                          {IDC_STATIC_CFG, kStatic, L"打印配置:", 7, 5, 66, 14},
                          {IDC_LIST_CFG, kList, L"", 7, 20, 86, 203},
                          {IDC_STATIC_MODE, kStatic, L"打印方案:", 103, 5, 64, 14},
                          {IDC_LIST_SCHEME, kList, L"", 102, 20, 125, 203},
                          {IDC_BTN_ADD_SCHEME, kButton, L"+", 196, 5, 15, 14},
                          {IDC_BTN_DEL_SCHEME, kButton, L"X", 212, 5, 15, 14},
                          {IDC_TAB, kStatic, L"", 235, 7, 202, 217},
                          {IDC_BTN_APPLY, kButton, L"应用", 272, 229, 50, 14}});
    EXPECT_TRUE(Control(dialog, IDC_BTN_DEL_SCHEME).style & WS_DISABLED);
    EXPECT_FALSE(Control(dialog, IDC_TAB).style & WS_VISIBLE);
    EXPECT_TRUE(Control(dialog, IDOK).style & BS_DEFPUSHBUTTON);
}

TEST(SchemeTemplates, DialogForANewUserScheme)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_USER_ADD_SCHEME);
    ExpectSize(dialog, L"新建方案-用户", 286, 98);
    EXPECT_EQ(dialog.fontName, L"MS Shell Dlg");
    ExpectPlaces(dialog, {{IDOK, kButton, L"确定", 124, 77, 61, 14},
                          {IDCANCEL, kButton, L"取消", 200, 77, 61, 14},
                          {IDC_STATIC_SCHEME_NAME, kStatic, L"方案名称:", 19, 23, 69, 8},
                          {IDC_STATIC_SOURCE, kStatic, L"方案来源:", 19, 45, 69, 8},
                          {IDC_EDIT_NAME, kEdit, L"", 91, 20, 169, 14},
                          {IDC_CMB_SOURCE, kCombo, L"", 91, 43, 169, 135}});
    EXPECT_TRUE(Control(dialog, IDOK).style & BS_DEFPUSHBUTTON);
    EXPECT_TRUE(Control(dialog, IDC_EDIT_NAME).style & ES_AUTOHSCROLL);
}

TEST(SchemeTemplates, OfTheUserEditorHaveTheirNumbers)
{
    EXPECT_EQ((std::vector<int>{IDD_USER_ADD_SCHEME, IDD_SCHEME_USER, IDC_STATIC_SCHEME_NAME, IDC_STATIC_SOURCE,
                                IDC_EDIT_NAME, IDC_CMB_SOURCE}),
              (std::vector<int>{25007, 25009, 25168, 25169, 25007, 25139}));
}

TEST(SchemeTemplates, CommonPage)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_CMMN);
    ExpectSize(dialog, L"", 201, 197);
    ExpectPlaces(dialog, {{IDC_STATIC_ENABLE, kStatic, L"是否启用:", 12, 11, 54, 13},
                          {IDC_CMB_ENABLE, kCombo, L"", 69, 11, 123, 93},
                          {IDC_STATIC_NAME, kStatic, L"方案名称:", 12, 29, 54, 14},
                          {IDC_EDIT_NAME, kEdit, L"", 69, 29, 123, 12},
                          {IDC_STATIC_SPEED, kStatic, L"速度选择:", 12, 47, 54, 13},
                          {IDC_CMB_SPEED, kCombo, L"", 69, 47, 123, 93},
                          {IDC_STATIC_DIRECTION, kStatic, L"方向选择:", 12, 65, 54, 13},
                          {IDC_CMB_DIRECTION, kCombo, L"", 69, 65, 123, 93},
                          {IDC_STATIC_MATERIAL, kStatic, L"材料选择:", 12, 83, 54, 13},
                          {IDC_CMB_MATERIAL, kCombo, L"", 69, 83, 123, 93},
                          {IDC_STATIC_CHANNEL, kStatic, L"颜色控制:", 12, 101, 54, 13},
                          {IDC_CMB_CHANNEL, kCombo, L"", 69, 101, 123, 93},
                          {IDC_STATIC_WAIT_STEP, kStatic, L"等待步进停止:", 2, 119, 64, 13},
                          {IDC_CMB_WAIT_STEP, kCombo, L"", 69, 119, 123, 93},
                          {IDC_STATIC_WAVE, kStatic, L"波形选择:", 12, 137, 54, 13},
                          {IDC_CMB_WAVE, kCombo, L"", 69, 137, 123, 93},
                          {IDC_STATIC_LAYOUT, kStatic, L"布局选择:", 12, 158, 54, 8},
                          {IDC_CMB_LAYOUT, kCombo, L"", 69, 155, 123, 189},
                          {IDC_STATIC_HEAD, kStatic, L"喷头选择:", 12, 173, 54, 13},
                          {IDC_CMB_HEAD, kCombo, L"", 69, 173, 123, 93}});
    ExpectLabels(dialog,
                 {IDC_STATIC_ENABLE, IDC_STATIC_NAME, IDC_STATIC_SPEED, IDC_STATIC_DIRECTION, IDC_STATIC_MATERIAL,
                  IDC_STATIC_CHANNEL, IDC_STATIC_WAIT_STEP, IDC_STATIC_WAVE, IDC_STATIC_LAYOUT, IDC_STATIC_HEAD});
}

TEST(SchemeTemplates, ModePage)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_MODE);
    ExpectSize(dialog, L"", 200, 206);
    ExpectPlaces(dialog, {{IDC_CMB_PRINT_MODE, kCombo, L"", 71, 7, 121, 93},
                          {IDC_CMB_PASS, kCombo, L"", 71, 26, 121, 93},
                          {IDC_CMB_RESIDENT, kCombo, L"", 71, 45, 121, 93},
                          {IDC_STATIC_PRINT_MODE, kStatic, L"打印模式:", 14, 7, 54, 13},
                          {IDC_STATIC_PASS, kStatic, L"PASS数:", 14, 26, 54, 13},
                          {IDC_STATIC_RESIDENT, kStatic, L"驻留式:", 14, 45, 54, 13}});
    EXPECT_EQ(ControlsWith(dialog, WS_DISABLED, {IDC_CMB_PRINT_MODE, IDC_CMB_PASS, IDC_CMB_RESIDENT}),
              (std::vector<int>{IDC_CMB_PASS, IDC_CMB_RESIDENT}));
    ExpectLabels(dialog, {IDC_STATIC_PRINT_MODE, IDC_STATIC_PASS, IDC_STATIC_RESIDENT});
}

TEST(SchemeTemplates, SmallFormatPage)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_SAPP);
    ExpectSize(dialog, L"", 200, 206);
    ExpectPlaces(dialog, {{IDC_CMB_SMALL_MODE, kCombo, L"", 70, 7, 121, 93},
                          {IDC_EDIT_SMALL_OFFSET, kEdit, L"", 70, 25, 121, 14},
                          {IDC_STATIC_SMALL_MODE, kStatic, L"小幅面打印:", 7, 7, 60, 13},
                          {IDC_STATIC_SMALL_OFFSET, kStatic, L"小幅面偏移:", 7, 25, 60, 14}});
    EXPECT_TRUE(Control(dialog, IDC_EDIT_SMALL_OFFSET).style & ES_AUTOHSCROLL);
    EXPECT_TRUE(Control(dialog, IDC_EDIT_SMALL_OFFSET).style & WS_BORDER);
    EXPECT_FALSE(Control(dialog, IDC_EDIT_SMALL_OFFSET).style & ES_NUMBER); // negative offsets are typed
    ExpectLabels(dialog, {IDC_STATIC_SMALL_MODE, IDC_STATIC_SMALL_OFFSET});
}

TEST(SchemeTemplates, UvLampPage)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_UV);
    ExpectSize(dialog, L"", 195, 206);
    ExpectPlaces(dialog, {{IDC_STATIC_LPRINT, kStatic, L"向左打印<---:", 9, 7, 54, 13},
                          {IDC_CHECK_LPRINT_LLIGHT, kButton, L"左灯", 72, 9, 51, 10},
                          {IDC_CHECK_LPRINT_RLIGHT, kButton, L"右灯", 126, 9, 51, 10},
                          {IDC_STATIC_RPRINT, kStatic, L"向右打印--->:", 9, 25, 54, 14},
                          {IDC_CHECK_RPRINT_LLIGHT, kButton, L"左灯", 72, 28, 51, 10},
                          {IDC_CHECK_RPRINT_RLIGHT, kButton, L"右灯", 126, 28, 51, 10}});
    for (int id : {IDC_CHECK_LPRINT_LLIGHT, IDC_CHECK_LPRINT_RLIGHT, IDC_CHECK_RPRINT_LLIGHT, IDC_CHECK_RPRINT_RLIGHT})
        EXPECT_EQ(Control(dialog, id).style & BS_TYPEMASK, static_cast<DWORD>(BS_AUTOCHECKBOX)) << id;
    ExpectLabels(dialog, {IDC_STATIC_LPRINT, IDC_STATIC_RPRINT});
}

TEST(SchemeTemplates, CopyDialog)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_COPY);
    ExpectSize(dialog, L"打印配置选择", 194, 249);
    ExpectPlaces(dialog, {{IDOK, kButton, L"确定", 49, 228, 61, 14},
                          {IDCANCEL, kButton, L"取消", 125, 228, 61, 14},
                          {IDC_STATIC_CFG, kStatic, L"打印配置:", 7, 5, 36, 14},
                          {IDC_LIST_CFG, kList, L"", 7, 20, 179, 196}});
    EXPECT_TRUE(Control(dialog, IDC_LIST_CFG).style & LBS_MULTIPLESEL);
    EXPECT_TRUE(Control(dialog, IDOK).style & BS_DEFPUSHBUTTON);
}

TEST(SchemeTemplates, EclosionPage)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_ELC);
    ExpectSize(dialog, L"", 201, 206);
    const std::vector<ExpectedControl> controls = {{IDC_STATIC_DOT_MODE, kStatic, L"点模式:"},
                                                   {IDC_CMB_DOT_MODE, kCombo, L""},
                                                   {IDC_STATIC_RANGE_DEFAULT, kStatic, L"默认幅度:"},
                                                   {IDC_STATIC_RD_SS, kStatic, L"超强"},
                                                   {IDC_STATIC_RD_S, kStatic, L"强"},
                                                   {IDC_STATIC_RD_M, kStatic, L"中"},
                                                   {IDC_STATIC_RD_L, kStatic, L"弱"},
                                                   {IDC_EDIT_RANGE_SS, kEdit, L""},
                                                   {IDC_EDIT_RANGE_S, kEdit, L""},
                                                   {IDC_EDIT_RANGE_M, kEdit, L""},
                                                   {IDC_EDIT_RANGE_L, kEdit, L""},
                                                   {IDC_STATIC_TYPE, kStatic, L"羽化类型:"},
                                                   {IDC_CMB_ELC_TYPE, kCombo, L""},
                                                   {IDC_STATIC_RANGE_SELECT, kStatic, L"幅度类型:"},
                                                   {IDC_CMB_ELC_LEVEL, kCombo, L""},
                                                   {IDC_STATIC_RANGE_CUSTOM, kStatic, L"自定义幅度:"},
                                                   {IDC_EDIT_CUSTOM_RANGE, kEdit, L""},
                                                   {IDC_SLIDER_CUSTOM_RANGE, kSlider, L""},
                                                   {IDC_STATIC_HEAD_ELC_TYPE, kStatic, L"喷头间羽化类型:"},
                                                   {IDC_CMB_HEAD_ELC_TYPE, kCombo, L""},
                                                   {IDC_STATIC_TYPE_CUSTOM, kStatic, L"自定义类型:"},
                                                   {IDC_CMB_CUSTOM_TYPE, kCombo, L""},
                                                   {IDC_BTN_CUSTOM_ELC, kButton, L"自定义羽化"}};
    EXPECT_EQ(dialog.controls.size(), controls.size());
    ExpectControls(dialog, controls);
    EXPECT_TRUE(Control(dialog, IDC_EDIT_CUSTOM_RANGE).style & ES_READONLY);
    EXPECT_TRUE(Control(dialog, IDC_SLIDER_CUSTOM_RANGE).style & TBS_NOTICKS);
}

// Each range stands below its head.
TEST(SchemeTemplates, EclosionRangesStandBelowTheirHeads)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_ELC);
    const std::pair<int, int> columns[] = {{IDC_STATIC_RD_SS, IDC_EDIT_RANGE_SS},
                                           {IDC_STATIC_RD_S, IDC_EDIT_RANGE_S},
                                           {IDC_STATIC_RD_M, IDC_EDIT_RANGE_M},
                                           {IDC_STATIC_RD_L, IDC_EDIT_RANGE_L}};
    LONG right = 0;
    for (const auto& [head, edit] : columns)
    {
        const RECT headArea = Control(dialog, head).area;
        const RECT editArea = Control(dialog, edit).area;
        EXPECT_EQ(headArea.left + headArea.right, editArea.left + editArea.right) << edit;
        EXPECT_LE(headArea.bottom, editArea.top) << edit;
        EXPECT_GE(editArea.left, right) << edit;
        right = editArea.right;
        EXPECT_TRUE(Control(dialog, edit).style & ES_NUMBER) << edit;
        EXPECT_TRUE(Control(dialog, edit).style & ES_CENTER) << edit;
    }
}

TEST(SchemeTemplates, InkMultiplePage)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_INK_MUL);
    ExpectSize(dialog, L"", 200, 206);
    EXPECT_EQ(dialog.controls.size(), 2u * kInkRows);
    LONG bottom = 0;
    for (int row = 0; row < kInkRows; ++row)
    {
        const std::wstring caption = L"颜色" + std::to_wstring(row) + L":";
        const TemplateControl& label = Control(dialog, IDC_STATIC_COLOR_FIRST + row);
        const TemplateControl& combo = Control(dialog, IDC_CMB_INK_MUL_FIRST + row);
        ExpectControls<ExpectedControl>(dialog, {{label.id, kStatic, caption}, {combo.id, kCombo, L""}});
        EXPECT_LE(label.area.right, combo.area.left) << row;
        EXPECT_GT(combo.area.top, bottom) << row;
        bottom = label.area.bottom;
    }
}

TEST(SchemeTemplates, InkCutPage)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_SCHEME_INK_CUT);
    ExpectSize(dialog, L"", 201, 206);
    EXPECT_EQ(dialog.controls.size(), 4u * kInkRows);
    LONG bottom = 0;
    for (int row = 0; row < kInkRows; ++row)
    {
        const std::wstring caption = L"颜色" + std::to_wstring(row) + L":";
        const TemplateControl& label = Control(dialog, IDC_STATIC_COLOR_FIRST + row);
        const TemplateControl& edit = Control(dialog, IDC_EDIT_INK_CUT_FIRST + 2 * row);
        const TemplateControl& slider = Control(dialog, IDC_SLIDER_INK_CUT_FIRST + 2 * row);
        ExpectControls<ExpectedControl>(dialog, {{label.id, kStatic, caption},
                                                 {edit.id, kEdit, L""},
                                                 {IDC_STATIC_PERCENT_FIRST + row, kStatic, L"%"},
                                                 {slider.id, kSlider, L""}});
        EXPECT_TRUE(edit.style & ES_READONLY) << row;
        EXPECT_TRUE(edit.style & ES_CENTER) << row;
        EXPECT_TRUE(slider.style & TBS_NOTICKS) << row;
        EXPECT_GE(edit.area.top, bottom) << row;
        bottom = edit.area.bottom;
    }
}

TEST(SchemeTemplates, CustomEclosionDialog)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_CUSTOM_ECLOSION);
    ExpectSize(dialog, L"Custom eclosion", 391, 297);
    const std::vector<ExpectedControl> controls = {{IDOK, kButton, L"Save"},
                                                   {IDCANCEL, kButton, L"Cancel"},
                                                   {IDC_STATIC_ECLO_RANGE, kStatic, L"Eclosion range:"},
                                                   {IDC_SLIDER_ECLO_RANGE, kSlider, L""},
                                                   {IDC_EDIT_ECLO_RANGE, kEdit, L""},
                                                   {IDC_BTN_ADD_ECL_MODE, kButton, L"Add"},
                                                   {IDC_BTN_DEL_ECL_MODE, kButton, L"Delete"},
                                                   {IDC_STATIC_GROUP_ECLO_MODE, kButton, L"Eclosion mode"},
                                                   {IDC_RADIO_MODE1, kButton, L"Mode1"},
                                                   {IDC_RADIO_MODE2, kButton, L"Mode2"},
                                                   {IDC_RADIO_MODE3, kButton, L"Mode3"},
                                                   {IDC_BTN_ADD_ELEMENT, kButton, L"Add"},
                                                   {IDC_BTN_DEL_ELEMENT, kButton, L"Delete"},
                                                   {IDC_STATIC_GROUP_ECLO_ELEMENT, kButton, L"Eclosion element"},
                                                   {IDC_STATIC_ELEMENT1, kButton, L"Element1"},
                                                   {IDC_STATIC_ELEMENT1_W, kStatic, L"Width:"},
                                                   {IDC_SLIDER_ELEMENT1_W, kSlider, L""},
                                                   {IDC_STATIC_ELEMENT1_H, kStatic, L"Height:"},
                                                   {IDC_SLIDER_ELEMENT1_H, kSlider, L""},
                                                   {IDC_STATIC_PREVIEW1, kStatic, L""},
                                                   {IDC_STATIC_ELEMENT2, kButton, L"Element2"},
                                                   {IDC_STATIC_ELEMENT2_W, kStatic, L"Width:"},
                                                   {IDC_SLIDER_ELEMENT2_W, kSlider, L""},
                                                   {IDC_STATIC_ELEMENT2_H, kStatic, L"Height:"},
                                                   {IDC_SLIDER_ELEMENT2_H, kSlider, L""},
                                                   {IDC_STATIC_PREVIEW2, kStatic, L""}};
    constexpr std::size_t kLines = 6;
    EXPECT_EQ(dialog.controls.size(), controls.size() + kLines);
    ExpectControls(dialog, controls);
    for (int id : {IDC_RADIO_MODE1, IDC_RADIO_MODE2, IDC_RADIO_MODE3, IDC_STATIC_ELEMENT1, IDC_STATIC_ELEMENT2})
        EXPECT_FALSE(Control(dialog, id).style & WS_VISIBLE) << id;
    for (int id : {IDC_STATIC_PREVIEW1, IDC_STATIC_PREVIEW2})
    {
        const RECT area = Control(dialog, id).area;
        EXPECT_EQ(area.right - area.left, 124) << id;
        EXPECT_EQ(area.bottom - area.top, 67) << id;
    }
    EXPECT_TRUE(Control(dialog, IDC_EDIT_ECLO_RANGE).style & ES_READONLY);
}

// A group that began among them would end the exchange of the radios' value and the way of the arrow keys.
TEST(SchemeTemplates, ModeRadiosFormOneGroup)
{
    const DialogTemplate dialog = FindDialogTemplate(IDD_CUSTOM_ECLOSION);
    int groups = 0;
    for (const TemplateControl& control : dialog.controls)
    {
        groups += control.style & WS_GROUP ? 1 : 0;
        const bool beginsGroup = (control.style & WS_GROUP) != 0;
        if (control.className == kButton && (control.style & BS_TYPEMASK) == BS_AUTORADIOBUTTON)
        {
            EXPECT_EQ(beginsGroup, control.id == IDC_RADIO_MODE1) << control.id;
        }
    }
    EXPECT_GE(groups, 2); // one begins behind them
}

// A check box or radio button, too.
bool IsButton(const TemplateControl& control)
{
    return control.className == kButton && (control.style & BS_TYPEMASK) != BS_GROUPBOX;
}

// Arrow keys move the focus from a button to the next control of its group, which on some systems may be a label.
TEST(SchemeTemplates, OnlyButtonsStandInAGroup)
{
    for (const DialogTemplate& dialog : AllDialogTemplates())
    {
        bool isLastButton = false;
        for (const TemplateControl& control : dialog.controls)
        {
            const bool beginsGroup = (control.style & WS_GROUP) != 0;
            EXPECT_TRUE(beginsGroup || (IsButton(control) && isLastButton))
                << "dialog " << dialog.id << ", control " << control.id;
            isLastButton = IsButton(control);
        }
    }
}

TEST(SchemeTemplates, CopyMenu)
{
    const HMODULE library = LoadLibraryW(L"Quorvane.dll");
    const HMENU menu = LoadMenuW(library, MAKEINTRESOURCEW(IDR_MENU_COPY));
    ASSERT_NE(menu, nullptr);
    const auto textOf = [](HMENU owner, UINT item) {
        wchar_t text[64]{};
        GetMenuStringW(owner, item, text, 64, MF_BYPOSITION);
        return std::wstring(text);
    };
    EXPECT_EQ(GetMenuItemCount(menu), 1);
    EXPECT_EQ(textOf(menu, 0), L"右击");
    const HMENU popup = GetSubMenu(menu, 0);
    EXPECT_EQ(GetMenuItemCount(popup), 1);
    EXPECT_EQ(textOf(popup, 0), L"复制到...");
    EXPECT_EQ(GetMenuItemID(popup, 0), static_cast<UINT>(IDM_COPY_SCHEME));
    DestroyMenu(menu);
}

// The numbers are part of the contract: programs look windows, controls and commands up by them.
TEST(SchemeTemplates, HaveTheirNumbers)
{
    EXPECT_EQ(
        (std::vector<int>{IDD_SCHEME_FACTORY, IDD_SCHEME_CMMN, IDD_SCHEME_ELC, IDD_SCHEME_INK_MUL, IDD_SCHEME_UV,
                          IDD_CUSTOM_ECLOSION, IDD_SCHEME_SAPP, IDD_SCHEME_MODE, IDD_SCHEME_INK_CUT, IDD_SCHEME_COPY}),
        (std::vector<int>{25008, 25010, 25011, 25012, 25013, 25016, 25018, 25019, 25020, 25022}));
    EXPECT_EQ((std::vector<int>{IDC_LIST_CFG, IDC_STATIC_CFG, IDC_TAB, IDC_STATIC_MODE, IDC_LIST_SCHEME,
                                IDC_BTN_ADD_SCHEME, IDC_BTN_DEL_SCHEME, IDC_BTN_APPLY, IDR_MENU_COPY, IDM_COPY_SCHEME}),
              (std::vector<int>{25000, 25003, 25004, 25008, 25009, 25010, 25011, 25171, 4, 32771}));
    EXPECT_EQ((std::vector<int>{IDC_CMB_ENABLE,       IDC_EDIT_NAME,        IDC_CMB_WAIT_STEP,   IDC_CMB_WAVE,
                                IDC_CMB_HEAD,         IDC_CMB_CHANNEL,      IDC_CMB_SPEED,       IDC_CMB_DIRECTION,
                                IDC_CMB_MATERIAL,     IDC_CMB_LAYOUT,       IDC_STATIC_ENABLE,   IDC_STATIC_NAME,
                                IDC_STATIC_WAIT_STEP, IDC_STATIC_WAVE,      IDC_STATIC_HEAD,     IDC_STATIC_CHANNEL,
                                IDC_STATIC_SPEED,     IDC_STATIC_DIRECTION, IDC_STATIC_MATERIAL, IDC_STATIC_LAYOUT}),
              (std::vector<int>{25005, 25007, 25031, 25033, 25035, 25037, 25039, 25041, 25043, 25139,
                                25006, 25008, 25030, 25032, 25034, 25036, 25038, 25040, 25042, 25170}));
    EXPECT_EQ((std::vector<int>{IDC_CMB_PRINT_MODE, IDC_CMB_PASS, IDC_CMB_RESIDENT, IDC_STATIC_PRINT_MODE,
                                IDC_STATIC_PASS, IDC_STATIC_RESIDENT}),
              (std::vector<int>{25045, 25010, 25013, 25044, 25009, 25014}));
    EXPECT_EQ((std::vector<int>{IDC_CHECK_LPRINT_LLIGHT, IDC_CHECK_LPRINT_RLIGHT, IDC_CHECK_RPRINT_LLIGHT,
                                IDC_CHECK_RPRINT_RLIGHT, IDC_STATIC_LPRINT, IDC_STATIC_RPRINT, IDC_CMB_SMALL_MODE,
                                IDC_EDIT_SMALL_OFFSET, IDC_STATIC_SMALL_MODE, IDC_STATIC_SMALL_OFFSET}),
              (std::vector<int>{25046, 25047, 25048, 25049, 25050, 25051, 25053, 25055, 25052, 25054}));
    EXPECT_EQ((std::vector<int>{IDC_STATIC_COLOR_FIRST, IDC_CMB_INK_MUL_FIRST, IDC_EDIT_INK_CUT_FIRST,
                                IDC_SLIDER_INK_CUT_FIRST, IDC_STATIC_PERCENT_FIRST}),
              (std::vector<int>{25056, 25068, 25098, 25099, 25122}));
    EXPECT_EQ((std::vector<int>{
                  IDC_STATIC_DOT_MODE,    IDC_CMB_DOT_MODE,        IDC_STATIC_RANGE_DEFAULT, IDC_STATIC_RD_SS,
                  IDC_STATIC_RD_S,        IDC_STATIC_RD_M,         IDC_STATIC_RD_L,          IDC_EDIT_RANGE_SS,
                  IDC_EDIT_RANGE_S,       IDC_EDIT_RANGE_M,        IDC_EDIT_RANGE_L,         IDC_STATIC_TYPE,
                  IDC_CMB_ELC_TYPE,       IDC_STATIC_RANGE_SELECT, IDC_CMB_ELC_LEVEL,        IDC_STATIC_RANGE_CUSTOM,
                  IDC_EDIT_CUSTOM_RANGE,  IDC_SLIDER_CUSTOM_RANGE, IDC_STATIC_HEAD_ELC_TYPE, IDC_CMB_HEAD_ELC_TYPE,
                  IDC_STATIC_TYPE_CUSTOM, IDC_CMB_CUSTOM_TYPE,     IDC_BTN_CUSTOM_ELC}),
              (std::vector<int>{25076, 25077, 25083, 25094, 25095, 25096, 25097, 25090, 25091, 25092, 25093, 25080,
                                25081, 25082, 25089, 25086, 25087, 25174, 25140, 25139, 25084, 25085, 25137}));
    EXPECT_EQ((std::vector<int>{IDC_STATIC_ECLO_RANGE, IDC_SLIDER_ECLO_RANGE, IDC_EDIT_ECLO_RANGE,
                                IDC_BTN_ADD_ECL_MODE,  IDC_BTN_DEL_ECL_MODE,  IDC_STATIC_GROUP_ECLO_MODE,
                                IDC_RADIO_MODE1,       IDC_RADIO_MODE2,       IDC_RADIO_MODE3,
                                IDC_BTN_ADD_ELEMENT,   IDC_BTN_DEL_ELEMENT,   IDC_STATIC_GROUP_ECLO_ELEMENT,
                                IDC_STATIC_ELEMENT1,   IDC_STATIC_ELEMENT1_W, IDC_SLIDER_ELEMENT1_W,
                                IDC_STATIC_ELEMENT1_H, IDC_SLIDER_ELEMENT1_H, IDC_STATIC_PREVIEW1,
                                IDC_STATIC_ELEMENT2,   IDC_STATIC_ELEMENT2_W, IDC_SLIDER_ELEMENT2_W,
                                IDC_STATIC_ELEMENT2_H, IDC_SLIDER_ELEMENT2_H, IDC_STATIC_PREVIEW2}),
              (std::vector<int>{25143, 25141, 25142, 25146, 25147, 25165, 25144, 25145, 25152, 25149, 25150, 25166,
                                25153, 25154, 25155, 25156, 25157, 25163, 25158, 25159, 25160, 25161, 25162, 25164}));
}
} // namespace
