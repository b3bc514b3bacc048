#include "ModalDialog.h"
#include "OwnerWindow.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;
using Calls = std::vector<std::string>;

TEST(DialogPage, IsAHiddenChildUntilItIsShown)
{
    Owner owner;
    Page page;
    EXPECT_TRUE(page.Create(IDD_PAGE, &owner));
    EXPECT_EQ(&owner, page.GetParent());
    EXPECT_FALSE(page.IsWindowVisible());
    page.ShowWindow(SW_SHOW);
    EXPECT_TRUE(page.IsWindowVisible());
}

TEST(DialogPage, WithoutATemplateIsNotCreated)
{
    Owner owner;
    Page page;
    EXPECT_FALSE(page.Create(IDD_NO_TEMPLATE, &owner));
    EXPECT_EQ(nullptr, page.m_hWnd);
}

TEST(DialogPage, DiesWithItsParentAndIsCreatedAgain)
{
    Page page;
    {
        Owner owner;
        page.Create(IDD_PAGE, &owner);
    }
    EXPECT_EQ(nullptr, page.m_hWnd);
    Owner owner;
    EXPECT_TRUE(page.Create(IDD_PAGE, &owner));
}

class ExchangingPage : public Page
{
public:
    int saves = 0;

protected:
    void DoDataExchange(CDataExchange* dx) override { saves += dx->m_bSaveAndValidate; }
};

TEST(DialogPage, IgnoresOkAndCancelOfItsOwn)
{
    Owner owner;
    ExchangingPage page;
    page.Create(IDD_PAGE, &owner);
    page.ShowWindow(SW_SHOW);
    for (const int id : {IDOK, IDCANCEL})
    {
        page.SendMessage(WM_COMMAND, static_cast<WPARAM>(id));
        EXPECT_TRUE(page.IsWindowVisible()) << id;
    }
    EXPECT_EQ(0, page.saves);
}

// Between the editor and its page stands the tab control, which is no dialog.
class EditorWithPage : public testing::Test
{
protected:
    INT_PTR RunWithFocusInThePage(const std::function<void()>& step)
    {
        dialog.onInit = [this] {
            const RECT rect = {0, 40, 300, 100};
            tabs.CreateEx(WS_EX_CONTROLPARENT, L"STATIC", L"", WS_CHILD | WS_VISIBLE, rect, &dialog, 301);
            page.Create(IDD_PAGE, &tabs);
            page.ShowWindow(SW_SHOW);
            page.GetDlgItem(IDC_NUMBER)->SetFocus();
            return FALSE;
        };
        return RunWith(dialog, step);
    }

    CWnd tabs;
    Page page;
    ModalDialog dialog;
};

TEST_F(EditorWithPage, EnterInThePageActsOnTheEditor)
{
    EXPECT_EQ(IDOK, RunWithFocusInThePage([] { ModalDialog::Press(VK_RETURN); }));
    EXPECT_EQ((Calls{"load", "OK", "save"}), dialog.calls);
}

TEST_F(EditorWithPage, EscInThePageActsOnTheEditor)
{
    EXPECT_EQ(IDCANCEL, RunWithFocusInThePage([] { ModalDialog::Press(VK_ESCAPE); }));
}
} // namespace
