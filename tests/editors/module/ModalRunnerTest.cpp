#include "frame/ModalRunner.h"
#include "resources/resource.h"
#include "tests/editors/drivers/PrintModeEditor.h"
#include "tests/support/EditorRun.h"

#include <afxdialogex.h>
#include <gtest/gtest.h>

namespace
{
// Remembers which resources are current while it runs.
class ProbeDialog : public CDialogEx
{
public:
    ProbeDialog() : CDialogEx(IDD_PRINT_MODE_ADD_MODE) {}

    HINSTANCE resources = nullptr;

protected:
    BOOL OnInitDialog() override
    {
        resources = AfxGetResourceHandle();
        return CDialogEx::OnInitDialog();
    }
};

class ModalRunner : public testing::Test
{
protected:
    ModalRunner() { AfxSetResourceHandle(m_hostResources); }

    int RunAndPress(CDialog& dialog, int button)
    {
        return RunEditor([&] { return RunModal(&dialog, L"Quorvane.dll"); },
                         [&](Operator& op) {
                             const Window window = op.ExpectDialog(L"添加模式");
                             window.Control(button).Click();
                             op.ExpectClosed(window);
                         });
    }

    const HINSTANCE m_hostResources = GetModuleHandleW(L"user32.dll");
};

TEST_F(ModalRunner, NullDialogGivesMinusOne)
{
    EXPECT_EQ(RunModal(nullptr, L"Quorvane.dll"), -1);
    EXPECT_EQ(AfxGetResourceHandle(), m_hostResources);
}

TEST_F(ModalRunner, TakesTheDialogFromTheLibraryAndPutsTheResourcesBack)
{
    ProbeDialog dialog;
    EXPECT_EQ(RunAndPress(dialog, IDOK), IDOK);
    EXPECT_EQ(dialog.resources, GetModuleHandleW(L"Quorvane.dll"));
    EXPECT_EQ(AfxGetResourceHandle(), m_hostResources);
}

TEST_F(ModalRunner, GivesTheDialogsResult)
{
    ProbeDialog dialog;
    EXPECT_EQ(RunAndPress(dialog, IDCANCEL), IDCANCEL);
}

TEST_F(ModalRunner, ShowsNothingWhenTheLibraryIsMissing)
{
    ProbeDialog dialog;
    EXPECT_EQ(RunEditor([&] { return RunModal(&dialog, L"NoSuchLibrary.dll"); }, [](Operator&) {}), -1);
    EXPECT_EQ(AfxGetResourceHandle(), m_hostResources);
}

TEST_F(ModalRunner, KeepsTheCurrentResourcesWithoutAFileName)
{
    AfxSetResourceHandle(LoadLibraryW(L"Quorvane.dll"));
    ProbeDialog dialog;
    const int result = RunEditor([&] { return RunModal(&dialog, nullptr); },
                                 [&](Operator& op) {
                                     const Window window = op.ExpectDialog(L"添加模式");
                                     op.Key(VK_ESCAPE);
                                     op.ExpectClosed(window);
                                 });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(dialog.resources, GetModuleHandleW(L"Quorvane.dll"));
}
} // namespace
