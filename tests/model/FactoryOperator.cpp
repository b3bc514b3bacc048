#include "tests/model/FactoryOperator.h"

#include <algorithm>

FactoryOperator::FactoryOperator(const FactoryEditor& editor, FactoryModel& model, SeededRun& run)
    : SchemeOperator(editor, model, run, IDD_SCHEME_FACTORY), m_editor(editor), m_model(model)
{
}

void FactoryOperator::ActBesides()
{
    if (Luck().OneIn(3))
        RightClickBeside();
    else
        UseMenu();
}

// The row is shown before the menu opens.
void FactoryOperator::UseMenu()
{
    const ListBox schemes = m_editor.Schemes();
    if (schemes.RowCount() == 0)
        return;
    const int row = Luck().Below(schemes.RowCount());
    const bool copies = !Luck().OneIn(4);
    Do("right clicks row " + std::to_string(row) + (copies ? " and chooses to copy" : ""), [&] {
        schemes.RightClickRow(row);
        HearAllButTexts();
        m_model.PointAt(row);
        const bool isAsked = m_model.OpenPrompts() > 0;
        Listen();
        // A prompt that has closed just before may end the menu by its last change of the focus.
        const PopupMenu menu(Op(), isAsked ? Op().OpenMenu().Handle() : m_editor.OpenedMenuOn(row).Handle());
        if (copies && !isAsked)
            menu.Choose(0);
        else
            menu.Dismiss();
    });
}

// Outside of the list no menu opens, but the row at that height is shown.
void FactoryOperator::RightClickBeside()
{
    const Window target = Luck().OneIn(2) ? Window(m_editor.Configs()) : m_editor.Dialog().Control(IDOK);
    const RECT area = target.ClientArea();
    const POINT at = {area.right / 2, Luck().Below(static_cast<int>(area.bottom))};
    POINT onScreen = at;
    ClientToScreen(target.Handle(), &onScreen);
    const int row = RowAtHeight(onScreen.y);
    Do("right clicks beside the list at the height of row " + std::to_string(row), [&] {
        Op().RightClick(target, at);
        HearAllButTexts();
        m_model.PointAt(row);
    });
}

int FactoryOperator::RowAtHeight(LONG y) const
{
    const HWND list = m_editor.Schemes().Handle();
    RECT row{};
    SendMessageW(list, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    POINT top{};
    ClientToScreen(list, &top);
    const LONG height = row.bottom - row.top;
    return height == 0 ? -1 : (height * GetScrollPos(list, SB_VERT) - top.y + y) / height;
}

void FactoryOperator::WorkOnOther(int)
{
    const Window dialog = m_editor.ExpectCopyDialog();
    const ListBox list = dialog.Control<ListBox>(IDC_LIST_CFG);
    if (list.Rows() != m_model.OfferedConfigs())
        throw OperatorFailure("the dialog offers other configurations than the model");
    const std::vector<int> configs = ChooseConfigs(list);
    if (Luck().OneIn(5))
    {
        Note("cancels");
        CloseDialog(dialog);
        m_model.CancelCopying();
        return;
    }
    Note("presses OK");
    m_model.CopyTo(configs);
    dialog.Control(IDOK).Click();
    Op().ExpectClosed(dialog);
    Listen();
}

// A click on a row that is chosen already takes it back.
std::vector<int> FactoryOperator::ChooseConfigs(const ListBox& list)
{
    std::vector<int> chosen;
    for (int left = Luck().Between(0, 3); left > 0 && list.RowCount() > 0; --left)
    {
        const int row = Luck().Below(list.RowCount());
        Note("clicks row " + std::to_string(row));
        list.ClickRow(row);
        const auto found = std::find(chosen.begin(), chosen.end(), row);
        if (found == chosen.end())
            chosen.push_back(row);
        else
            chosen.erase(found);
    }
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}
