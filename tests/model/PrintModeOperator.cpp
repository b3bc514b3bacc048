#include "tests/model/PrintModeOperator.h"

#include <algorithm>

namespace
{
const std::vector<int> kCombos = {IDC_CMB_ENABLE,       IDC_CMB_PASS,        IDC_CMB_XDPI,        IDC_CMB_RESIDENT,
                                  IDC_CMB_SMALL_GROUP,  IDC_CMB_SMALL_GROUP, IDC_CMB_FRONT_GROUP, IDC_CMB_FRONT,
                                  IDC_CMB_MEDIUM_GROUP, IDC_CMB_LARGE_GROUP, IDC_CMB_BACK_GROUP,  IDC_CMB_BACK};
const std::vector<int> kValues = {IDC_EDIT_SMALL, IDC_EDIT_MEDIUM, IDC_EDIT_LARGE};
const std::vector<int> kNumberFields = {IDC_EDIT_CFG_XDPI, IDC_EDIT_CFG_YDPI, IDC_EDIT_CFG_COLORS,
                                        IDC_EDIT_CFG_DOT_BITS};
const std::vector<int> kButtons = {IDC_BTN_ADD_CFG,  IDC_BTN_ADD_MODE, IDC_BTN_ADD_MODE,  IDC_BTN_DEL_MODE,
                                   IDC_BTN_MODE_UP,  IDC_BTN_MODE_UP,  IDC_BTN_MODE_DOWN, IDC_BTN_MODE_DOWN,
                                   IDC_BTN_DEL_MODE, IDC_BTN_DEL_CFG};

const Texts kNumbers = {L"0", L"1.5", L"-2.25", L" 7 ", L"1e3", L"123456.7", L"0.1", L".5"};
const Texts kNoNumbers = {L"", L"abc", L"1,5", L"1.5x"};
const Texts kIntegers = {L"0", L"720", L"-5", L"70000", L"300", L"99999999999", L" 8 "};
const Texts kNoIntegers = {L"", L"x", L"1.5", L"12abc"};

void RequireSame(const std::wstring& found, const std::wstring& wanted)
{
    if (found != wanted)
        throw OperatorFailure("the grid shows " + Utf8(found) + ", in the model " + Utf8(wanted));
}
} // namespace

PrintModeOperator::PrintModeOperator(const PrintModeEditor& editor, PrintModeModel& model, SeededRun& run)
    : RandomOperator(editor, model, run), m_editor(editor), m_model(model)
{
    Watch(editor.Dialog(), IDD_PRINT_MODE);
    Watch(editor.CommonPage(), IDD_PRINT_MODE_CMMN);
}

void PrintModeOperator::Act()
{
    switch (Luck().Below(10))
    {
    case 0:
    case 1:
        return UseLists();
    case 2:
        return Press(m_editor.Dialog(), Luck().OneOf(kButtons));
    case 3:
    case 4:
        return PressAnyKey();
    case 5:
        return UseDataPage();
    default:
        return UseCommonPage();
    }
}

void PrintModeOperator::UseLists()
{
    if (Luck().OneIn(4))
        return DoubleClickRow(m_editor.Configs());
    UseList(Either(m_editor.Configs(), m_editor.Modes()));
}

bool PrintModeOperator::OpenTab(int tab)
{
    if (m_editor.Tab().Selected() != tab)
        Do("opens tab " + std::to_string(tab), [&] { m_editor.Tab().ClickTab(tab); });
    return !m_model.HasEnded() && m_editor.Tab().Selected() == tab;
}

void PrintModeOperator::UseCommonPage()
{
    if (!OpenTab(0))
        return;
    switch (Luck().Below(4))
    {
    case 0:
        return Type(m_editor.Edit(IDC_EDIT_NAME), Luck().OneOf(Names()));
    case 1:
        return Type(m_editor.Edit(Luck().OneOf(kValues)), Luck().OneOf(Luck().OneIn(5) ? kNoNumbers : kNumbers));
    default:
        return UseCombo(m_editor.Combo(Luck().OneOf(kCombos)));
    }
}

void PrintModeOperator::UseDataPage()
{
    if (!OpenTab(1) || !m_model.ShowsMode() || m_model.DataRows().empty())
        return;
    const PropertyGrid grid = m_editor.Grid();
    Do("clicks into the grid", [&] { grid.Click(); });
    if (!m_model.HasEnded() && m_model.ShowsMode() && !m_model.DataRows().empty() && grid.HasFocus())
        ChooseDataMode(grid, Luck().Below(static_cast<int>(m_model.DataRows().size())));
}

void PrintModeOperator::ChooseDataMode(const PropertyGrid& grid, int row)
{
    const PrintModeModel::DataRow& wanted = m_model.DataRows()[static_cast<std::size_t>(row)];
    const std::wstring option = Luck().OneOf(wanted.options);
    Do("chooses \"" + Utf8(option) + "\" in row " + std::to_string(row) + " of the grid", [&] {
        const ListBox list = grid.OpenRow(row);
        const std::wstring value = list.Selected() == kNone ? std::wstring() : list.Row(list.Selected());
        RequireSame(Joined(list.Rows()), Joined(wanted.options));
        RequireSame(value, wanted.value);
        if (option == wanted.value)
            return Op().Key(VK_ESCAPE);
        list.ClickRow(
            static_cast<int>(std::find(wanted.options.begin(), wanted.options.end(), option) - wanted.options.begin()));
        m_model.ChooseDataMode(static_cast<std::size_t>(row), option);
    });
}

void PrintModeOperator::WorkOn(int)
{
    const ConfigDialog dialog(Op().ExpectDialog(kAddConfigCaption));
    RequireFields(dialog, m_model.OpenedConfig());
    const bool canChangeAll = dialog.Field(IDC_EDIT_CFG_XDPI).IsEnabled();
    if (!Luck().OneIn(3))
        TypeInto(dialog, IDC_EDIT_CFG_NAME, Luck().OneOf(Names()));
    for (int i = Luck().Below(4); canChangeAll && i > 0; --i)
        TypeInto(dialog, Luck().OneOf(kNumberFields), Luck().OneOf(Luck().OneIn(6) ? kNoIntegers : kIntegers));
    if (canChangeAll && Luck().OneIn(3))
        dialog.Field<CheckBox>(IDC_CHECK_CFG_ENABLE).Click();
    if (Luck().OneIn(4) || !Confirm(dialog))
        Cancel(dialog);
}

void PrintModeOperator::TypeInto(const ConfigDialog& dialog, int field, const std::wstring& text)
{
    Note("types \"" + Utf8(text) + "\" into field " + std::to_string(field));
    dialog.Type(field, text);
}

// False where the dialog has refused something and stays open.
bool PrintModeOperator::Confirm(const ConfigDialog& dialog)
{
    Note("presses OK");
    const bool isAccepted = m_model.ConfirmConfig(FieldsOf(dialog));
    if (Luck().OneIn(2))
        dialog.Dialog().Control(IDOK).Click();
    else
        Op().Key(VK_RETURN);
    if (isAccepted)
        Op().ExpectClosed(dialog.Dialog());
    Listen();
    return isAccepted;
}

void PrintModeOperator::Cancel(const ConfigDialog& dialog)
{
    Note("presses Cancel");
    CloseDialog(dialog.Dialog());
    m_model.CancelConfig();
}
