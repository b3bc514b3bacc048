#include "tests/robustness/BlindOperator.h"

#include "tests/robustness/ReachableControls.h"
#include "tests/support/Controls.h"
#include "tests/support/PopupMenu.h"

#include <algorithm>
#include <iterator>

namespace
{
// A refused value may ask once for each field of each page.
constexpr int kMostDialogsInARow = 60;

const std::wstring kTexts[] = {L"",     L"0", L"1",     L"-1",  L"250",      L"2147483648",
                               L"1e38", L"x", L"1.5e9", L" 7 ", L"\u540D%s", std::wstring(70, L'n')};
} // namespace

int BlindOperator::Act(int gestures)
{
    int done = 0;
    for (int i = 0; i < gestures && !m_operator.HasEditorEnded(); ++i)
    {
        try
        {
            Gesture();
            ++done;
        }
        catch (const OperatorFailure&)
        {
            // What the hand went for has gone meanwhile. A thread that handles no messages fails below too.
        }
        m_operator.Settle();
    }
    return done;
}

void BlindOperator::Leave()
{
    for (int i = 0; i < kMostDialogsInARow && !m_operator.HasEditorEnded(); ++i)
    {
        try
        {
            LeaveOnce(i > 3);
        }
        catch (const OperatorFailure&)
        {
        }
        m_operator.Settle();
    }
    if (m_operator.TopDialog().Exists())
        throw OperatorFailure("a dialog cannot be left: " + DescribeDialog(m_operator.TopDialog().Handle()));
    m_operator.WaitFor("the editor to end", [this] { return m_operator.HasEditorEnded(); });
}

void BlindOperator::Gesture()
{
    const Window dialog = m_operator.TopDialog();
    if (m_operator.OpenMenu().Exists())
        PressKey(m_chance.OneIn(2) ? VK_ESCAPE : m_chance.OneIn(2) ? VK_DOWN : VK_RETURN);
    else if (dialog.Exists() && IsMessageBox(dialog.Handle()))
        PressButtonOf(dialog);
    else if (dialog.Exists() && dialog.IsEnabled())
        ActOn(dialog);
}

void BlindOperator::ActOn(const Window& dialog)
{
    const std::vector<HWND> controls = ReachableControls(dialog.Handle());
    const unsigned choice = m_chance.Below(10);
    if (choice == 0)
        PressSomeKey();
    else if (choice == 1)
        TurnWheel();
    else if (!controls.empty())
        ActOnControl({m_operator, m_chance.OneOf(controls)});
}

void BlindOperator::ActOnControl(const Window& control)
{
    const std::wstring name = control.ClassName();
    const int id = control.Id();
    if ((id == IDOK || id == IDCANCEL) && !m_chance.OneIn(4))
        return; // the run would end too soon
    if (name == L"ListBox")
        ActOnList(control);
    else if (name == L"Edit")
        TypeInto(control);
    else if (name == L"ComboBox")
        ChooseFrom(control);
    else if (name == L"msctls_trackbar32")
        ActOnTrackbar(control);
    else
        m_operator.Click(control, PointIn(control));
}

void BlindOperator::ActOnList(const Window& list)
{
    const POINT at = PointIn(list);
    const unsigned choice = m_chance.Below(8);
    if (choice == 0)
        m_operator.DoubleClick(list, at);
    else if (choice == 1)
        m_operator.RightClick(list, at);
    else
        m_operator.Click(list, at);
    if (m_chance.OneIn(4))
        PressKey(m_chance.OneIn(2) ? VK_DOWN : VK_END);
}

void BlindOperator::ActOnTrackbar(const Window& trackbar)
{
    const Trackbar control(m_operator, trackbar.Handle());
    const int keys[] = {VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_LEFT, VK_RIGHT};
    if (m_chance.OneIn(2))
        control.Press(m_chance.OneOf(keys));
    else
        control.Track(static_cast<int>(m_chance.Below(300)));
}

void BlindOperator::TypeInto(const Window& edit)
{
    EditField(m_operator, edit.Handle()).Type(m_chance.OneOf(kTexts));
}

void BlindOperator::ChooseFrom(const Window& combo)
{
    m_operator.Click(combo, PointIn(combo));
    for (unsigned steps = m_chance.Below(4); steps > 0; --steps)
        PressKey(m_chance.OneIn(3) ? VK_UP : VK_DOWN);
    PressKey(m_chance.OneIn(4) ? VK_ESCAPE : VK_RETURN);
}

void BlindOperator::PressSomeKey()
{
    const int keys[] = {VK_TAB,  VK_RETURN, VK_ESCAPE, VK_SPACE, VK_F4,   VK_UP,    VK_DOWN,
                        VK_LEFT, VK_RIGHT,  VK_HOME,   VK_END,   VK_NEXT, VK_PRIOR, VK_DELETE};
    if (m_chance.OneIn(4))
        m_operator.Key(m_chance.OneIn(2) ? VK_TAB : VK_NEXT, {true, m_chance.OneIn(2), false});
    else if (m_chance.OneIn(4))
        m_operator.TypeCharacters(m_chance.OneOf(kTexts));
    else
        PressKey(m_chance.OneOf(keys));
}

void BlindOperator::TurnWheel()
{
    const Window focus = m_operator.Focus();
    const int delta = m_chance.OneIn(2) ? WHEEL_DELTA : -WHEEL_DELTA;
    if (focus.Exists())
        PostMessageW(focus.Handle(), WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, delta)), 0);
}

void BlindOperator::LeaveOnce(bool byForce)
{
    const Window dialog = m_operator.TopDialog();
    const unsigned way = byForce ? 1 + m_chance.Below(2) : m_chance.Below(4);
    if (m_operator.OpenMenu().Exists())
        PressKey(VK_ESCAPE);
    else if (!dialog.Exists())
        m_operator.OnUi([] {});
    else if (IsMessageBox(dialog.Handle()))
        PressButtonOf(dialog);
    else if (way == 1)
        dialog.Control(IDCANCEL).Click();
    else if (way == 2)
        m_operator.Close(dialog);
    else if (way == 3)
        PressKey(VK_ESCAPE);
    else
        dialog.Control(IDOK).Click();
}

void BlindOperator::PressButtonOf(const Window& box)
{
    for (const Window& child : box.Children())
        if (child.ClassName() == L"Button")
            return child.Click();
}

POINT BlindOperator::PointIn(const Window& window)
{
    const RECT area = window.ClientArea();
    const auto within = [this](LONG size) {
        return static_cast<LONG>(m_chance.Below(static_cast<unsigned>(std::max(1L, size))));
    };
    return {within(area.right), within(area.bottom)};
}

void BlindOperator::PressKey(int virtualKey)
{
    const Window focus = m_operator.Focus();
    if (focus.Exists())
        PostMessageW(focus.Handle(), WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1);
    m_operator.Settle();
}
