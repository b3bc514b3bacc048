// The window map, subclassing and message maps.
#include "TestWindow.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace
{
using namespace test;

enum Id : WORD
{
    kListId = 101,
    kComboId = 102,
    kEditId = 103,
    kButtonId = 104,
    kSliderId = 105,
    kCommandId = 201
};

const DialogTemplate kDialogTemplate(WS_POPUP | WS_VISIBLE | WS_CAPTION, 200, 150,
                                     {{L"LISTBOX", L"", WS_VISIBLE | LBS_NOTIFY, 5, 5, 50, 50, kListId},
                                      {L"COMBOBOX", L"", WS_VISIBLE | CBS_DROPDOWNLIST, 65, 5, 50, 50, kComboId},
                                      {L"EDIT", L"text", WS_VISIBLE, 5, 65, 50, 12, kEditId},
                                      {L"BUTTON", L"", WS_VISIBLE, 65, 65, 50, 14, kButtonId},
                                      {TRACKBAR_CLASS, L"", WS_VISIBLE, 5, 80, 100, 20, kSliderId}});

// A window that the framework knows nothing of.
class PlainWindow
{
public:
    explicit PlainWindow(const wchar_t* className = L"STATIC")
        : m_handle(::CreateWindowEx(0, className, L"plain", WS_POPUP, 10, 10, 100, 100, nullptr, nullptr,
                                    AfxGetInstanceHandle(), nullptr))
    {
    }
    ~PlainWindow() { ::DestroyWindow(m_handle); }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    operator HWND() const { return m_handle; }
    LONG_PTR Procedure() const { return ::GetWindowLongPtr(m_handle, GWLP_WNDPROC); }

private:
    HWND m_handle;
};

// The window map

TEST(WindowMap, NullHasNoObject)
{
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(nullptr));
}

TEST(WindowMap, AttachedWindowGivesItsObject)
{
    const PlainWindow window;
    CWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(window));
    EXPECT_EQ(&wnd, CWnd::FromHandle(window));
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(window));
}

TEST(WindowMap, OtherWindowGivesATemporaryObject)
{
    const PlainWindow window;
    CWnd* wnd = CWnd::FromHandle(window);
    ASSERT_NE(nullptr, wnd);
    EXPECT_EQ(window, wnd->m_hWnd);
    EXPECT_EQ(wnd, CWnd::FromHandle(window));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
}

TEST(WindowMap, AttachedObjectGoesBeforeATemporaryOne)
{
    const PlainWindow window;
    CWnd::FromHandle(window);
    CWnd wnd;
    EXPECT_TRUE(wnd.SubclassWindow(window));
    EXPECT_EQ(&wnd, CWnd::FromHandle(window));
}

TEST(WindowMap, GivesParentsAndItems)
{
    TestDialog dialog;
    dialog.Create(kDialogTemplate);
    CWnd* item = dialog.GetDlgItem(kEditId);
    ASSERT_NE(nullptr, item);
    EXPECT_EQ(kEditId, item->GetDlgCtrlID());
    EXPECT_EQ(&dialog, item->GetParent());
    EXPECT_EQ(nullptr, dialog.GetDlgItem(199));
}

// A child is remembered, but never for longer than it is one.
TEST(WindowMap, FollowsItemsThatChange)
{
    TestDialog dialog;
    dialog.Create(kDialogTemplate);
    HWND hWndOld;
    dialog.GetDlgItem(kEditId, &hWndOld);
    EXPECT_EQ(hWndOld, ::GetDlgItem(dialog.m_hWnd, kEditId));
    ::SetWindowLongPtr(hWndOld, GWLP_ID, kEditId + 50);
    EXPECT_EQ(nullptr, dialog.GetDlgItem(kEditId));
    EXPECT_EQ(hWndOld, dialog.GetDlgItem(kEditId + 50)->m_hWnd);

    ::DestroyWindow(hWndOld);
    EXPECT_EQ(nullptr, dialog.GetDlgItem(kEditId + 50));
    const RECT rect = {0, 0, 10, 10};
    CWnd edit;
    ASSERT_TRUE(edit.CreateEx(0, L"EDIT", L"", WS_CHILD, rect, &dialog, kEditId));
    EXPECT_EQ(&edit, dialog.GetDlgItem(kEditId));

    ::SetParent(edit.m_hWnd, dialog.GetDlgItem(kButtonId)->m_hWnd);
    EXPECT_EQ(nullptr, dialog.GetDlgItem(kEditId));
}

// Subclassing

TEST(Subclassing, TakesOneObjectPerWindowAndOneWindowPerObject)
{
    const PlainWindow window;
    const PlainWindow other;
    CWnd first;
    CWnd second;
    ASSERT_TRUE(first.SubclassWindow(window));
    EXPECT_FALSE(second.SubclassWindow(window));
    EXPECT_EQ(nullptr, second.m_hWnd);
    EXPECT_FALSE(first.SubclassWindow(other));
    EXPECT_EQ(window, first.m_hWnd);
    EXPECT_FALSE(second.SubclassWindow(nullptr));
}

TEST(Subclassing, GivesTheProcedureBack)
{
    const PlainWindow window;
    const LONG_PTR before = window.Procedure();
    CWnd wnd;
    wnd.SubclassWindow(window);
    EXPECT_NE(before, window.Procedure());
    EXPECT_EQ(window, wnd.UnsubclassWindow());
    EXPECT_EQ(before, window.Procedure());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
    EXPECT_EQ(nullptr, wnd.UnsubclassWindow());
}

TEST(Subclassing, EndsWithTheObjectAndLeavesTheWindow)
{
    const PlainWindow window;
    const LONG_PTR before = window.Procedure();
    {
        CWnd wnd;
        wnd.SubclassWindow(window);
    }
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_EQ(before, window.Procedure());
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
}

// Says what it was when its window had gone.
class Mourner : public CWnd
{
public:
    explicit Mourner(int& deaths) : m_deaths(deaths) {}
    HWND handleAtDeath = reinterpret_cast<HWND>(1);

protected:
    void PostNcDestroy() override
    {
        ++m_deaths;
        handleAtDeath = m_hWnd;
    }

private:
    int& m_deaths;
};

TEST(Subclassing, EndsWithTheWindow)
{
    int deaths = 0;
    const PlainWindow window;
    Mourner wnd(deaths);
    wnd.SubclassWindow(window);
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(1, deaths);
    EXPECT_EQ(nullptr, wnd.handleAtDeath);
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(Subclassing, OfChildrenEndsWithTheParent)
{
    int deaths = 0;
    TestDialog dialog;
    dialog.Create(kDialogTemplate);
    Mourner child(deaths);
    child.SubclassWindow(dialog.Item(kEditId));
    dialog.DestroyWindow();
    EXPECT_EQ(1, deaths);
    EXPECT_EQ(nullptr, child.m_hWnd);
}

class SelfDeleting : public CWnd
{
public:
    explicit SelfDeleting(bool& deleted) : m_deleted(deleted) {}
    ~SelfDeleting() override { m_deleted = true; }

protected:
    void PostNcDestroy() override { delete this; }

private:
    bool& m_deleted;
};

TEST(Subclassing, ObjectMayDeleteItselfAfterTheWindow)
{
    bool deleted = false;
    const PlainWindow window;
    auto wnd = std::make_unique<SelfDeleting>(deleted);
    wnd->SubclassWindow(window);
    wnd.release()->DestroyWindow();
    EXPECT_TRUE(deleted);
}

TEST(Window, IsCreatedWithItsObject)
{
    TestDialog dialog;
    dialog.Create(kDialogTemplate);
    CWnd wnd;
    const RECT rect = {10, 20, 110, 70};
    ASSERT_TRUE(wnd.CreateEx(WS_EX_CLIENTEDGE, L"STATIC", L"made", WS_CHILD | WS_VISIBLE, rect, &dialog, 301));
    EXPECT_EQ(&wnd, dialog.GetDlgItem(301));
    EXPECT_EQ(static_cast<DWORD>(WS_VISIBLE), wnd.GetStyle() & WS_VISIBLE);
    CString text;
    wnd.GetWindowText(text);
    EXPECT_STREQ(L"made", text);
}

TEST(Window, OfAnUnknownClassIsNotCreated)
{
    CWnd wnd;
    EXPECT_FALSE(wnd.CreateEx(0, L"NoSuchWindowClass", L"", WS_POPUP, RECT{}, nullptr, 0));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
}

TEST(Window, RectanglesGoFromScreenToClientAndBack)
{
    TestDialog dialog;
    dialog.Create(kDialogTemplate);
    RECT screen;
    dialog.GetDlgItem(kEditId)->GetWindowRect(&screen);
    RECT rect = screen;
    dialog.ScreenToClient(&rect);
    EXPECT_LT(rect.left, screen.left);
    dialog.GetDlgItem(kEditId)->MoveWindow(rect);
    dialog.ClientToScreen(&rect);
    EXPECT_TRUE(::EqualRect(&screen, &rect));
    dialog.GetDlgItem(kEditId)->GetWindowRect(&rect);
    EXPECT_TRUE(::EqualRect(&screen, &rect)) << "moved to where it stood";
}

// Message maps

const UINT kRegisteredMessage = ::RegisterWindowMessage(L"QuorvaneFrameworkTest");

class BaseDialog : public TestDialog
{
public:
    std::vector<std::string> calls;
    std::vector<int> sizes;
    HWND scrollSender = nullptr;
    int paints = 0;
    bool reachedDefault = false;

protected:
    DECLARE_MESSAGE_MAP()

    void OnList() { calls.emplace_back("list selection"); }
    void OnListDouble() { calls.emplace_back("list double click"); }
    void OnCombo() { calls.emplace_back("combo selection"); }
    void OnEditLeft() { calls.emplace_back("edit left"); }
    void OnButton() { calls.emplace_back("button"); }
    void OnMenu() { calls.emplace_back("menu"); }
    void OnShared() { calls.emplace_back("base"); }
    LRESULT OnPlain(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    LRESULT OnRegistered(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) * lParam; }
    LRESULT OnThrow(WPARAM, LPARAM) { throw std::runtime_error("host"); }

    void OnSize(UINT type, int cx, int cy)
    {
        sizes = {static_cast<int>(type), cx, cy};
        TestDialog::OnSize(type, cx, cy);
    }
    void OnHScroll(UINT code, UINT position, CScrollBar* sender)
    {
        sizes = {static_cast<int>(code), static_cast<int>(position)};
        scrollSender = sender ? sender->m_hWnd : nullptr;
        TestDialog::OnHScroll(code, position, sender);
    }
    void OnPaint()
    {
        ++paints;
        const CPaintDC dc(this);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_HSCROLL || message == WM_APP + 9)
            reachedDefault = true;
        return TestDialog::DefWindowProc(message, wParam, lParam);
    }
};

BEGIN_MESSAGE_MAP(BaseDialog, TestDialog)
    ON_LBN_SELCHANGE(kListId, &BaseDialog::OnList)
    ON_LBN_DBLCLK(kListId, &BaseDialog::OnListDouble)
    ON_CBN_SELCHANGE(kComboId, &BaseDialog::OnCombo)
    ON_EN_KILLFOCUS(kEditId, &BaseDialog::OnEditLeft)
    ON_BN_CLICKED(kButtonId, &BaseDialog::OnButton)
    ON_COMMAND(kCommandId, &BaseDialog::OnMenu)
    ON_MESSAGE(WM_APP, &BaseDialog::OnPlain)
    ON_MESSAGE(WM_APP + 1, &BaseDialog::OnThrow)
    ON_COMMAND(kCommandId + 1, &BaseDialog::OnShared)
    ON_REGISTERED_MESSAGE(kRegisteredMessage, &BaseDialog::OnRegistered)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_PAINT()
END_MESSAGE_MAP()

class DerivedDialog : public BaseDialog
{
protected:
    DECLARE_MESSAGE_MAP()

private:
    void OnShared() { calls.emplace_back("derived"); }
};

BEGIN_MESSAGE_MAP(DerivedDialog, BaseDialog)
    ON_COMMAND(kCommandId + 1, &DerivedDialog::OnShared)
END_MESSAGE_MAP()

class MessageMap : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.Create(kDialogTemplate);
        PumpMessages();
        dialog.calls.clear();
    }

    std::vector<std::string> Notify(Id id, int code)
    {
        dialog.calls.clear();
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(dialog.Item(id)));
        return dialog.calls;
    }

    using Calls = std::vector<std::string>;
    DerivedDialog dialog;
};

TEST_F(MessageMap, MatchesCodeAndControl)
{
    EXPECT_EQ(Calls{"list selection"}, Notify(kListId, LBN_SELCHANGE));
    EXPECT_EQ(Calls{"list double click"}, Notify(kListId, LBN_DBLCLK));
    EXPECT_EQ(Calls{"combo selection"}, Notify(kComboId, CBN_SELCHANGE));
    EXPECT_EQ(Calls{"edit left"}, Notify(kEditId, EN_KILLFOCUS));
    EXPECT_EQ(Calls{"button"}, Notify(kButtonId, BN_CLICKED));
}

TEST_F(MessageMap, IgnoresTheSameCodeOfAnotherControlAndAnotherCodeOfTheSame)
{
    EXPECT_EQ(Calls{}, Notify(kEditId, LBN_SELCHANGE));
    EXPECT_EQ(Calls{}, Notify(kComboId, CBN_DBLCLK));
    EXPECT_EQ(Calls{}, Notify(kButtonId, BN_DOUBLECLICKED));
    EXPECT_EQ(Calls{}, Notify(kEditId, EN_SETFOCUS));
}

TEST_F(MessageMap, CommandsOfMenusAndAcceleratorsHaveTheCodeOfAClick)
{
    dialog.SendMessage(WM_COMMAND, kCommandId);
    dialog.SendMessage(WM_COMMAND, MAKEWPARAM(kCommandId, 1));
    EXPECT_EQ((Calls{"menu", "menu"}), dialog.calls);
}

TEST_F(MessageMap, DerivedClassGoesBeforeItsBase)
{
    dialog.SendMessage(WM_COMMAND, kCommandId + 1);
    EXPECT_EQ(Calls{"derived"}, dialog.calls);
}

TEST_F(MessageMap, BaseClassServesItsOwnObjects)
{
    BaseDialog base;
    base.Create(kDialogTemplate);
    base.calls.clear();
    base.SendMessage(WM_COMMAND, kCommandId + 1);
    EXPECT_EQ(Calls{"base"}, base.calls);
}

TEST_F(MessageMap, HandlersGetBothParametersAndGiveTheResult)
{
    EXPECT_EQ(12, dialog.SendMessage(WM_APP, 7, 5));
    EXPECT_EQ(35, dialog.SendMessage(kRegisteredMessage, 7, 5));
}

TEST_F(MessageMap, UnmappedMessagesGoToTheDefault)
{
    EXPECT_EQ(0, dialog.SendMessage(WM_APP + 9));
    EXPECT_TRUE(dialog.reachedDefault);
}

TEST_F(MessageMap, ExceptionsEndInTheWindowProcedure)
{
    EXPECT_EQ(0, dialog.SendMessage(WM_APP + 1));
    EXPECT_EQ(12, dialog.SendMessage(WM_APP, 7, 5)) << "the window works on";
}

TEST_F(MessageMap, SizesAreSigned)
{
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(-5, -7));
    EXPECT_EQ((std::vector<int>{SIZE_RESTORED, -5, -7}), dialog.sizes);
}

TEST_F(MessageMap, ScrollHandlerGetsCodePositionAndSender)
{
    const HWND slider = dialog.Item(kSliderId);
    dialog.SendMessage(WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, 40'000), reinterpret_cast<LPARAM>(slider));
    EXPECT_EQ((std::vector<int>{TB_THUMBTRACK, 40'000}), dialog.sizes);
    EXPECT_EQ(slider, dialog.scrollSender);
    EXPECT_TRUE(dialog.reachedDefault);
}

TEST_F(MessageMap, ScrollBarOfTheWindowHasNoSender)
{
    dialog.scrollSender = dialog.m_hWnd;
    dialog.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINEDOWN, 0));
    EXPECT_EQ(nullptr, dialog.scrollSender);
}

TEST_F(MessageMap, ContextOfAPaintHandlerValidatesTheWindow)
{
    dialog.paints = 0;
    dialog.Invalidate();
    EXPECT_TRUE(::GetUpdateRect(dialog.m_hWnd, nullptr, FALSE));
    ::UpdateWindow(dialog.m_hWnd);
    EXPECT_EQ(1, dialog.paints);
    EXPECT_FALSE(::GetUpdateRect(dialog.m_hWnd, nullptr, FALSE));
}

TEST_F(MessageMap, NotificationsOfAPageStayThere)
{
    TestDialog page;
    page.Create(DialogTemplate(WS_CHILD | WS_VISIBLE | DS_CONTROL, 60, 40,
                               {{L"BUTTON", L"", WS_VISIBLE, 5, 5, 40, 14, kButtonId}}),
                &dialog);
    ::SendMessage(page.Item(kButtonId), BM_CLICK, 0, 0);
    PumpMessages();
    EXPECT_EQ(Calls{}, dialog.calls);
}

// Reflection

class ReflectingEdit : public CEdit
{
public:
    std::vector<UINT> offered;
    bool takes = false;

protected:
    BOOL OnChildNotify(UINT message, WPARAM, LPARAM, LRESULT*) override
    {
        offered.push_back(message);
        return takes;
    }
};

TEST_F(MessageMap, ControlIsOfferedItsNotificationBeforeTheParent)
{
    ReflectingEdit edit;
    edit.SubclassWindow(dialog.Item(kEditId));
    edit.offered.clear();
    EXPECT_EQ(Calls{"edit left"}, Notify(kEditId, EN_KILLFOCUS));
    EXPECT_EQ(std::vector<UINT>{WM_COMMAND}, edit.offered);
    edit.takes = true;
    EXPECT_EQ(Calls{}, Notify(kEditId, EN_KILLFOCUS));
}
} // namespace
