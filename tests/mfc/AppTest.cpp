#include "MessageBoxes.h"
#include "TestWindow.h"

#include <gtest/gtest.h>

namespace
{
using namespace test;

LPARAM IconOf(HWND box)
{
    HWND label = nullptr;
    while ((label = ::FindWindowEx(box, label, L"STATIC", nullptr)) != nullptr)
        if (const LRESULT icon = ::SendMessage(label, STM_GETICON, 0, 0))
            return icon;
    return 0;
}

TEST(App, IsKnownWhileItLives)
{
    {
        CWinApp app(L"Print host");
        EXPECT_EQ(&app, AfxGetApp());
        EXPECT_TRUE(app.InitInstance());
    }
    EXPECT_EQ(nullptr, AfxGetApp());
}

TEST(App, NameIsTheCaptionOfMessageBoxes)
{
    const CWinApp app(L"Print host");
    const MessageBoxes boxes;
    EXPECT_EQ(IDOK, AfxMessageBox(L"Saved."));
    ASSERT_EQ(1u, boxes.Count());
    EXPECT_EQ(L"Saved.", boxes.Shown()[0].text);
    EXPECT_EQ(L"Print host", boxes.Shown()[0].caption);
}

TEST(App, MessageBoxWithoutAnAppHasNoCaption)
{
    const MessageBoxes boxes;
    AfxMessageBox(L"Saved.");
    ASSERT_EQ(1u, boxes.Count());
    EXPECT_EQ(L"", boxes.Shown()[0].caption);
}

TEST(App, MessageBoxShowsTheWarningIconUnlessToldOtherwise)
{
    LPARAM icon = 0;
    const MessageBoxes boxes([&] { icon = IconOf(OpenMessageBox()); });
    AfxMessageBox(L"Careful.");
    EXPECT_EQ(reinterpret_cast<LPARAM>(::LoadIcon(nullptr, IDI_EXCLAMATION)), icon);
    AfxMessageBox(L"Broken.", MB_OK | MB_ICONSTOP);
    EXPECT_EQ(reinterpret_cast<LPARAM>(::LoadIcon(nullptr, IDI_HAND)), icon);
}

TEST(App, MessageBoxGivesTheOperatorsAnswer)
{
    const MessageBoxes boxes;
    EXPECT_EQ(IDOK, AfxMessageBox(L"Delete?", MB_OKCANCEL));
}

TEST(App, MessageBoxBelongsToTheActiveWindow)
{
    TestDialog window;
    window.Create(DialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 100, 50, {}));
    ::SetActiveWindow(window.m_hWnd);
    BOOL enabled = TRUE;
    HWND owner = nullptr;
    const MessageBoxes boxes([&] {
        owner = ::GetWindow(OpenMessageBox(), GW_OWNER);
        enabled = window.IsWindowEnabled();
    });
    AfxMessageBox(L"Saved.");
    EXPECT_EQ(window.m_hWnd, owner);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(window.IsWindowEnabled());
}
} // namespace
