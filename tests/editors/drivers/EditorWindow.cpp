#include "tests/editors/drivers/EditorWindow.h"

void EditorWindow::Notify(int controlId, UINT notice) const
{
    const HWND control = m_dialog.Control(controlId).Handle();
    PostMessageW(m_dialog.Handle(), WM_COMMAND, MAKEWPARAM(controlId, notice), reinterpret_cast<LPARAM>(control));
    m_operator.Settle();
}

// The hidden placeholder has the same id as the tab control over it.
TabStrip EditorWindow::Tab() const
{
    for (const Window& child : m_dialog.Children())
        if (child.ClassName() == L"SysTabControl32")
            return {m_operator, child.Handle()};
    throw OperatorFailure("the editor has no tab control");
}

Window EditorWindow::PageWith(int knownControl) const
{
    for (const Window& child : Tab().Children())
        if (child.Has(knownControl))
            return child;
    throw OperatorFailure("no page has control " + std::to_string(knownControl));
}

ConfigDialog EditorWindow::OpenConfig(int row) const
{
    Configs().DoubleClickRow(row);
    return ConfigDialog(m_operator.ExpectDialog(kAddConfigCaption));
}

void EditorWindow::Confirm(const Window& dialog, int buttonId) const
{
    dialog.Control(buttonId).Click();
    m_operator.ExpectClosed(dialog);
}

void EditorWindow::Quit(int buttonId) const
{
    Press(buttonId);
    m_operator.ExpectClosed(m_dialog);
}
