#include "ModalDialog.h"

namespace test
{
BEGIN_MESSAGE_MAP(ModalDialog, CDialogEx)
    ON_BN_CLICKED(IDC_PUSH, &ModalDialog::OnPush)
    ON_EN_KILLFOCUS(IDC_NUMBER, &ModalDialog::OnNumberLeft)
END_MESSAGE_MAP()

bool IsShown(const CWnd& wnd)
{
    return wnd.m_hWnd && wnd.IsWindowVisible();
}

INT_PTR RunAlone(ModalDialog& dialog)
{
    const Script closesItInTheEnd;
    return dialog.DoModal();
}

INT_PTR RunWith(ModalDialog& dialog, const std::function<void()>& step)
{
    Script script;
    const auto isShown = [&] { return IsShown(dialog); };
    script.When("the dialog is shown", isShown, step);
    return dialog.DoModal();
}
} // namespace test
