#pragma once

#include "Script.h"
#include "TestResource.h"
#include "TestWindow.h"

#include <afxdialogex.h>

namespace test
{
// An editor with two numbers. It keeps what was called, and runs what the test gives it.
class ModalDialog : public CDialogEx
{
public:
    explicit ModalDialog(CWnd* parent = nullptr, UINT templateId = IDD_MODAL) : CDialogEx(templateId, parent) {}

    int number = 1;
    int other = 2;
    bool hasAllControls = true;
    std::function<BOOL()> onInit;
    std::function<void()> onOk;
    std::function<void()> onPush;
    std::function<void(UINT)> onMessage;
    std::vector<std::string> calls;

    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }
    void Command(int id) const { PostMessage(WM_COMMAND, static_cast<WPARAM>(id)); }
    static void Press(int key) { ::PostMessage(::GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(key), 1); }

    void OnOK() override
    {
        calls.emplace_back("OK");
        if (onOk)
            onOk();
        else
            CDialogEx::OnOK();
    }

protected:
    DECLARE_MESSAGE_MAP()

    void DoDataExchange(CDataExchange* dx) override
    {
        calls.emplace_back(dx->m_bSaveAndValidate ? "save" : "load");
        DDX_Text(dx, IDC_NUMBER, number);
        DDX_Text(dx, hasAllControls ? IDC_OTHER : IDC_NUMBER + 100, other);
    }

    BOOL OnInitDialog() override
    {
        const BOOL result = CDialogEx::OnInitDialog();
        return onInit ? onInit() : result;
    }

    void OnCancel() override
    {
        calls.emplace_back("Cancel");
        CDialogEx::OnCancel();
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (onMessage)
            onMessage(message);
        return CDialogEx::WindowProc(message, wParam, lParam);
    }

private:
    void OnPush()
    {
        calls.emplace_back("push");
        if (onPush)
            onPush();
    }
    void OnNumberLeft() { calls.emplace_back("number left"); }
};

bool IsShown(const CWnd& wnd);

// Runs a dialog that ends by itself.
INT_PTR RunAlone(ModalDialog& dialog);
// Runs the dialog with one step inside.
INT_PTR RunWith(ModalDialog& dialog, const std::function<void()>& step);

// A child page as the editors have them.
class Page : public CDialogEx
{
public:
    Page() : CDialogEx(IDD_PAGE) {}
};
} // namespace test
