#include "tests/model/RandomOperator.h"

#include "tests/model/MachineDifference.h"

#include <algorithm>

namespace
{
constexpr int kFewestActions = 12;
constexpr int kMostActions = 30;
// Whatever has not ended the editor by then is given up.
constexpr int kMostAttemptsToLeave = 20;

std::wstring Wanted(const Shown& shown)
{
    const bool isText = shown.aspect == Aspect::Text || shown.aspect == Aspect::Rows;
    return isText ? Joined(shown.texts) : std::to_wstring(shown.number);
}

std::string Name(const Window& control)
{
    return std::to_string(control.Id());
}

int SelectedRow(const Window& control)
{
    const UINT question = control.ClassName() == L"ListBox" ? LB_GETCURSEL : CB_GETCURSEL;
    return static_cast<int>(SendMessageW(control.Handle(), question, 0, 0));
}
} // namespace

RandomOperator::RandomOperator(const EditorWindow& editor, EditorModel& model, SeededRun& run)
    : m_editor(editor), m_model(model), m_run(run)
{
}

void RandomOperator::Watch(const Window& dialog, int resourceId)
{
    m_dialogs[resourceId] = dialog.Handle();
    Op().OnUi([&] { m_run.tap.Attach(dialog.Handle(), resourceId); });
}

void RandomOperator::Work()
{
    Compare();
    for (int left = Luck().Between(kFewestActions, kMostActions); left > 0 && !m_model.HasEnded(); --left)
        Act();
    for (int left = kMostAttemptsToLeave; left > 0 && !m_model.HasEnded(); --left)
        LeaveEditor();
}

void RandomOperator::Do(const std::string& what, const std::function<void()>& gesture)
{
    if (m_model.HasEnded())
        return;
    Note(what);
    gesture();
    Listen();
    if (m_model.HasEnded())
        return Op().ExpectClosed(m_editor.Dialog());
    if (const int dialog = m_model.OpenDialog())
        WorkOn(dialog);
    Compare();
}

void RandomOperator::Listen()
{
    Hear();
    while (m_model.OpenPrompts() > 0)
    {
        Note("answers the prompt");
        Op().AnswerMessageBox();
        m_model.PromptAnswered();
        LetGo();
        Hear();
    }
}

// The mouse button was let go over the prompt; the control that it was pressed on still waits for that.
void RandomOperator::LetGo()
{
    Op().OnUi([] {
        if (const HWND waiting = GetCapture())
            PostMessageW(waiting, WM_LBUTTONUP, 0, MAKELPARAM(-1, -1));
    });
    Op().Settle();
}

void RandomOperator::Hear()
{
    const std::vector<Notice> notices = m_run.tap.Take();
    for (const Notice& notice : notices)
        if (!m_model.HasEnded()) // a dialog that goes deals with nothing any more
            m_model.Hear(notice);
}

void RandomOperator::HearAllButTexts()
{
    const std::vector<Notice> notices = m_run.tap.Take();
    for (const Notice& notice : notices)
        if (notice.code != EN_CHANGE)
            m_model.Hear(notice);
}

void RandomOperator::Compare()
{
    std::string difference;
    Op().OnUi([&] {
        difference = FirstDifference(m_model.Machine(), m_run.host());
        if (difference.empty())
            difference = DisplayDifference();
    });
    if (!difference.empty())
        throw OperatorFailure(difference);
    if (m_model.OpenDialog() == 0 && !m_editor.Dialog().IsEnabled())
        throw OperatorFailure("something is open that was not to be expected");
}

std::string RandomOperator::DisplayDifference() const
{
    for (const Shown& shown : m_model.Display())
    {
        const std::wstring wanted = Wanted(shown);
        const std::wstring found = Found(shown);
        if (wanted != found)
            return "control " + std::to_string(shown.control) + " of dialog " + std::to_string(shown.dialog) +
                   " in the model: " + Utf8(wanted) + "\n on the screen: " + Utf8(found);
    }
    return {};
}

std::wstring RandomOperator::Found(const Shown& shown) const
{
    const Window dialog(m_editor.Op(), m_dialogs.at(shown.dialog));
    switch (shown.aspect)
    {
    case Aspect::Row:
        return std::to_wstring(SelectedRow(dialog.Control(shown.control)));
    case Aspect::Text:
        return Joined({dialog.Control(shown.control).Text()});
    case Aspect::Rows:
        return Joined(dialog.Control<ListBox>(shown.control).Rows());
    case Aspect::Position:
        return std::to_wstring(dialog.Control<Trackbar>(shown.control).Position());
    case Aspect::Checked:
        return std::to_wstring(dialog.Control<CheckBox>(shown.control).IsChecked());
    case Aspect::Shown:
        break;
    }
    return std::to_wstring(dialog.Control(shown.control).HasStyle(WS_VISIBLE));
}

ConfigFields RandomOperator::FieldsOf(const ConfigDialog& dialog)
{
    const auto text = [&](int field) { return dialog.Field(field).Text(); };
    return {text(IDC_EDIT_CFG_NAME),     text(IDC_EDIT_CFG_XDPI),
            text(IDC_EDIT_CFG_YDPI),     text(IDC_EDIT_CFG_COLORS),
            text(IDC_EDIT_CFG_DOT_BITS), dialog.Field<CheckBox>(IDC_CHECK_CFG_ENABLE).IsChecked()};
}

void RandomOperator::RequireFields(const ConfigDialog& dialog, const ConfigFields& wanted) const
{
    if (FieldsOf(dialog) != wanted)
        throw OperatorFailure("the dialog for a configuration shows other values than the model, for \"" +
                              Utf8(wanted.name) + "\"");
}

void RandomOperator::CloseDialog(const Window& dialog)
{
    switch (Luck().Below(3))
    {
    case 0:
        Op().Key(VK_ESCAPE);
        break;
    case 1:
        Op().Close(dialog);
        break;
    default:
        dialog.Control(IDCANCEL).Click();
    }
    Op().ExpectClosed(dialog);
}

void RandomOperator::Press(const Window& dialog, int button)
{
    const Window control = dialog.Control(button);
    if (CanUse(control))
        Do("presses button " + Name(control), [&] { control.Click(); });
}

void RandomOperator::UseList(const ListBox& list)
{
    if (list.RowCount() == 0)
        return;
    const int row = Luck().Below(list.RowCount());
    Do("clicks row " + std::to_string(row) + " of list " + Name(list), [&] { list.ClickRow(row); });
}

// The first click alone may bring a prompt.
void RandomOperator::DoubleClickRow(const ListBox& list)
{
    if (list.RowCount() == 0)
        return;
    const int row = Luck().Below(list.RowCount());
    Do("clicks row " + std::to_string(row) + " of list " + Name(list), [&] { list.ClickRow(row); });
    if (list.Exists() && list.HasFocus())
        Do("double clicks it", [&] { list.ClickRowAgain(row); });
}

void RandomOperator::UseCombo(const ComboBox& combo)
{
    if (!CanUse(combo) || combo.RowCount() == 0)
        return;
    if (Luck().OneIn(4))
        return Do("turns the wheel over combo box " + Name(combo), [&] { Op().TurnWheel(combo, Either(1, -1)); });
    PickRow(combo, Luck().Below(combo.RowCount()));
}

void RandomOperator::PickRow(const ComboBox& combo, int row)
{
    if (!CanUse(combo) || row < 0)
        return;
    Do("opens combo box " + Name(combo), [&] { combo.Click(); });
    if (combo.IsDropped())
        Do("clicks row " + std::to_string(row), [&] { combo.List().ClickRow(row); });
}

void RandomOperator::Type(const EditField& field, const std::wstring& text)
{
    if (!CanUse(field))
        return;
    Do("clicks into field " + Name(field), [&] { field.Click(); });
    if (field.Exists() && field.HasFocus())
        Do("types \"" + Utf8(text) + "\"", [&] { field.Type(text); });
}

void RandomOperator::PressAnyKey()
{
    static const std::vector<int> kKeys = {VK_UP,  VK_DOWN, VK_LEFT,  VK_RIGHT, VK_HOME,
                                           VK_END, VK_NEXT, VK_PRIOR, VK_SPACE, VK_DELETE};
    static const std::vector<std::wstring> kUsable = {L"ListBox", L"ComboBox",          L"Edit",
                                                      L"Button",  L"msctls_trackbar32", L"SysTabControl32"};
    const std::wstring focus = Op().Focus().ClassName();
    const bool usable = std::find(kUsable.begin(), kUsable.end(), focus) != kUsable.end();
    if (Luck().OneIn(3) || !usable)
    {
        const bool back = Luck().OneIn(4);
        return Do(back ? "presses Shift and Tab" : "presses Tab", [&] { Op().Key(VK_TAB, {false, back, false}); });
    }
    const int key = Luck().OneOf(kKeys);
    Do("presses key " + std::to_string(key) + " in " + Utf8(focus) + " " + Name(Op().Focus()), [&] { Op().Key(key); });
}

const Texts& RandomOperator::Names()
{
    static const Texts names = {
        L"", L"Poster", L"  padded  ", L"\u6253\u5370", L"\u00C9t\u00E9", std::wstring(70, L'x')};
    return names;
}

void RandomOperator::LeaveEditor()
{
    const Window& dialog = m_editor.Dialog();
    switch (Luck().Below(6))
    {
    case 0:
        return Do("presses Enter", [&] { Op().Key(VK_RETURN); });
    case 1:
        return Do("presses Esc", [&] { Op().Key(VK_ESCAPE); });
    case 2:
        return Do("closes the window", [&] { Op().Close(dialog); });
    case 3:
        return Press(dialog, IDCANCEL);
    default:
        return Press(dialog, IDOK);
    }
}
