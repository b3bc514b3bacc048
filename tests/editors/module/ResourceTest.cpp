#include "resources/resource.h"
#include "tests/editors/module/DialogTemplate.h"

#include <gtest/gtest.h>
#include <set>

namespace
{
constexpr int kNoId = -1;
constexpr LONG kFieldHeight = 14; // of a combo box, whose height in a template is the dropped one

struct ExpectedControl
{
    int id;
    const wchar_t* className;
    const wchar_t* text;
};

// The template's controls are these, in any order, and no others.
void ExpectControls(int dialogId, const std::vector<ExpectedControl>& expected)
{
    const DialogTemplate dialog = FindDialogTemplate(dialogId);
    EXPECT_EQ(dialog.controls.size(), expected.size());
    for (const ExpectedControl& control : expected)
    {
        const TemplateControl* found = dialog.Find(control.id);
        ASSERT_NE(found, nullptr) << control.id;
        EXPECT_EQ(found->className, control.className) << control.id;
        EXPECT_EQ(found->text, control.text) << control.id;
    }
}

void ExpectDialog(int dialogId, const wchar_t* caption, LONG width, LONG height)
{
    const DialogTemplate dialog = FindDialogTemplate(dialogId);
    EXPECT_EQ(dialog.caption, caption);
    EXPECT_EQ(dialog.size.cx, width);
    EXPECT_EQ(dialog.size.cy, height);
}

RECT ShownArea(const TemplateControl& control)
{
    RECT area = control.area;
    if (control.className == L"ComboBox")
        area.bottom = area.top + kFieldHeight;
    return area;
}

// Calls the check for each control of each template of the class.
template <class Check>
void ForEachControl(const wchar_t* className, Check check)
{
    for (const DialogTemplate& dialog : AllDialogTemplates())
        for (const TemplateControl& control : dialog.controls)
            if (control.className == className)
                check(control, "dialog " + std::to_string(dialog.id) + ", control " + std::to_string(control.id));
}

bool IsFrame(const TemplateControl& control)
{
    return control.className == L"Button" && (control.style & BS_TYPEMASK) == BS_GROUPBOX;
}

TEST(DialogTemplates, HaveTheirCaptionsAndSizes)
{
    ExpectDialog(IDD_PRINT_MODE, L"打印模式", 459, 251);
    ExpectDialog(IDD_PRINT_MODE_CMMN, L"", 195, 206);
    ExpectDialog(IDD_PRINT_MODE_DATA, L"", 197, 220);
    ExpectDialog(IDD_PRINT_MODE_ADD_CFG, L"添加配置", 207, 152);
    ExpectDialog(IDD_PRINT_MODE_ADD_MODE, L"添加模式", 207, 128);
}

TEST(DialogTemplates, OfThePrintModeEditorHasItsControls)
{
    ExpectControls(IDD_PRINT_MODE, {{IDOK, L"Button", L"应用并退出"},
                                    {IDCANCEL, L"Button", L"取消"},
                                    {IDC_STATIC_CFG, L"Static", L"打印配置:"},
                                    {IDC_LIST_CFG, L"ListBox", L""},
                                    {IDC_BTN_ADD_CFG, L"Button", L"+"},
                                    {IDC_BTN_DEL_CFG, L"Button", L"X"},
                                    {IDC_STATIC_MODE, L"Static", L"打印模式:"},
                                    {IDC_LIST_MODE, L"ListBox", L""},
                                    {IDC_BTN_ADD_MODE, L"Button", L"+"},
                                    {IDC_BTN_DEL_MODE, L"Button", L"X"},
                                    {IDC_BTN_MODE_UP, L"Button", L"U"},
                                    {IDC_BTN_MODE_DOWN, L"Button", L"D"},
                                    {IDC_TAB, L"Static", L""},
                                    {IDC_BTN_APPLY, L"Button", L"应用"}});
}

TEST(DialogTemplates, OfTheCommonPageHasItsControls)
{
    ExpectControls(IDD_PRINT_MODE_CMMN, {{IDC_STATIC_ENABLE, L"Static", L"是否启用:"},
                                         {IDC_CMB_ENABLE, L"ComboBox", L""},
                                         {IDC_STATIC_NAME, L"Static", L"模式名称:"},
                                         {IDC_EDIT_NAME, L"Edit", L""},
                                         {IDC_STATIC_PASS, L"Static", L"PASS数:"},
                                         {IDC_CMB_PASS, L"ComboBox", L""},
                                         {IDC_STATIC_XDPI, L"Static", L"横向精度:"},
                                         {IDC_CMB_XDPI, L"ComboBox", L""},
                                         {IDC_STATIC_RESIDENT, L"Static", L"驻留式:"},
                                         {IDC_CMB_RESIDENT, L"ComboBox", L""},
                                         {kNoId, L"Static", L""},
                                         {IDC_STATIC_SMALL, L"Static", L"羽化补偿-小点:"},
                                         {IDC_CMB_SMALL_GROUP, L"ComboBox", L""},
                                         {IDC_EDIT_SMALL, L"Edit", L""},
                                         {IDC_STATIC_MEDIUM, L"Static", L"羽化补偿-中点:"},
                                         {IDC_CMB_MEDIUM_GROUP, L"ComboBox", L""},
                                         {IDC_EDIT_MEDIUM, L"Edit", L""},
                                         {IDC_STATIC_LARGE, L"Static", L"羽化补偿-大点:"},
                                         {IDC_CMB_LARGE_GROUP, L"ComboBox", L""},
                                         {IDC_EDIT_LARGE, L"Edit", L""},
                                         {IDC_STATIC_FRONT, L"Static", L"羽化补偿-前补:"},
                                         {IDC_CMB_FRONT_GROUP, L"ComboBox", L""},
                                         {IDC_CMB_FRONT, L"ComboBox", L""},
                                         {IDC_STATIC_BACK, L"Static", L"羽化补偿-后补:"},
                                         {IDC_CMB_BACK_GROUP, L"ComboBox", L""},
                                         {IDC_CMB_BACK, L"ComboBox", L""}});
}

TEST(DialogTemplates, OfTheDataPageHasNothingButAHiddenFrame)
{
    ExpectControls(IDD_PRINT_MODE_DATA, {{IDC_STATIC_GRID, L"Static", L""}});
    EXPECT_FALSE(FindDialogTemplate(IDD_PRINT_MODE_DATA).controls[0].style & WS_VISIBLE);
}

TEST(DialogTemplates, OfTheConfigurationDialogHasItsControls)
{
    ExpectControls(IDD_PRINT_MODE_ADD_CFG, {{IDOK, L"Button", L"确定"},
                                            {IDCANCEL, L"Button", L"取消"},
                                            {kNoId, L"Button", L""},
                                            {IDC_STATIC_CFG_NAME, L"Static", L"配置名称:"},
                                            {IDC_EDIT_CFG_NAME, L"Edit", L""},
                                            {IDC_STATIC_CFG_XDPI, L"Static", L"横向精度:"},
                                            {IDC_EDIT_CFG_XDPI, L"Edit", L""},
                                            {IDC_STATIC_CFG_YDPI, L"Static", L"纵向精度:"},
                                            {IDC_EDIT_CFG_YDPI, L"Edit", L""},
                                            {IDC_STATIC_CFG_COLORS, L"Static", L"颜色数:"},
                                            {IDC_EDIT_CFG_COLORS, L"Edit", L""},
                                            {IDC_STATIC_CFG_DOT_BITS, L"Static", L"点位数:"},
                                            {IDC_EDIT_CFG_DOT_BITS, L"Edit", L""},
                                            {IDC_CHECK_CFG_ENABLE, L"Button", L"启用"}});
}

TEST(DialogTemplates, OfTheModeDialogHasTwoButtons)
{
    ExpectControls(IDD_PRINT_MODE_ADD_MODE, {{IDOK, L"Button", L"确定"}, {IDCANCEL, L"Button", L"取消"}});
}

TEST(DialogTemplates, HaveNoIdTwice)
{
    for (const DialogTemplate& dialog : AllDialogTemplates())
    {
        std::set<int> ids;
        for (const TemplateControl& control : dialog.controls)
            EXPECT_TRUE(control.id == kNoId || ids.insert(control.id).second)
                << "dialog " << dialog.id << ", control " << control.id;
    }
}

TEST(DialogTemplates, AreScaledByOneFont)
{
    for (const DialogTemplate& dialog : AllDialogTemplates())
    {
        EXPECT_TRUE(dialog.style & DS_SETFONT) << dialog.id;
        EXPECT_EQ(dialog.fontName, L"MS Shell Dlg") << dialog.id;
        EXPECT_EQ(dialog.fontSize, 8) << dialog.id;
    }
}

// A page that is visible from the start, or not marked as a page, takes the focus away while the editor opens.
TEST(DialogTemplates, OfPagesAreHiddenChildrenWithoutACaption)
{
    for (const DialogTemplate& dialog : AllDialogTemplates())
    {
        if (!(dialog.style & WS_CHILD))
            continue;
        EXPECT_TRUE(dialog.style & DS_CONTROL) << dialog.id;
        EXPECT_FALSE(dialog.style & WS_VISIBLE) << dialog.id;
        EXPECT_EQ(dialog.caption, L"") << dialog.id;
    }
}

TEST(DialogTemplates, KeepTheirControlsInside)
{
    for (const DialogTemplate& dialog : AllDialogTemplates())
        for (const TemplateControl& control : dialog.controls)
        {
            const RECT area = ShownArea(control);
            EXPECT_TRUE(area.left >= 0 && area.top >= 0 && area.right <= dialog.size.cx &&
                        area.bottom <= dialog.size.cy)
                << "dialog " << dialog.id << ", control " << control.id;
        }
}

// Lines and frames of the custom eclosion dialog meet on purpose.
TEST(DialogTemplates, LetNoControlCoverAnother)
{
    for (int id :
         {IDD_PRINT_MODE, IDD_PRINT_MODE_CMMN, IDD_PRINT_MODE_ADD_CFG, IDD_PRINT_MODE_ADD_MODE, IDD_SCHEME_FACTORY,
          IDD_SCHEME_USER, IDD_SCHEME_CMMN, IDD_SCHEME_MODE, IDD_SCHEME_ELC, IDD_SCHEME_INK_MUL, IDD_SCHEME_INK_CUT,
          IDD_SCHEME_UV, IDD_SCHEME_SAPP, IDD_SCHEME_COPY, IDD_USER_ADD_SCHEME})
    {
        const DialogTemplate dialog = FindDialogTemplate(id);
        for (auto one = dialog.controls.begin(); one != dialog.controls.end(); ++one)
            for (auto other = one + 1; other != dialog.controls.end(); ++other)
            {
                RECT common;
                const RECT first = ShownArea(*one);
                const RECT second = ShownArea(*other);
                EXPECT_TRUE(IsFrame(*one) || IsFrame(*other) || !IntersectRect(&common, &first, &second))
                    << "dialog " << id << ", controls " << one->id << " and " << other->id;
            }
    }
}

TEST(DialogTemplates, ListBoxesAreUnsortedAndTellOfTheirSelection)
{
    ForEachControl(L"ListBox", [](const TemplateControl& control, const std::string& where) {
        EXPECT_FALSE(control.style & LBS_SORT) << where;
        EXPECT_TRUE(control.style & LBS_NOTIFY) << where;
        EXPECT_TRUE(control.style & WS_VSCROLL) << where;
    });
}

TEST(DialogTemplates, ComboBoxesAreUnsortedDropDownLists)
{
    ForEachControl(L"ComboBox", [](const TemplateControl& control, const std::string& where) {
        EXPECT_EQ(control.style & 3, static_cast<DWORD>(CBS_DROPDOWNLIST)) << where;
        EXPECT_FALSE(control.style & CBS_SORT) << where;
    });
}

TEST(DialogTemplates, HaveTheirOkButtonAsTheDefault)
{
    ForEachControl(L"Button", [](const TemplateControl& control, const std::string& where) {
        const bool isDefault = (control.style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
        EXPECT_EQ(isDefault, control.id == IDOK) << where;
    });
}
} // namespace
