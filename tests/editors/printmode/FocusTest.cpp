#include "tests/editors/fixtures/PrintModeFixture.h"

#include <algorithm>
#include <set>

namespace
{
constexpr KeyModifiers kControl{true, false, false};
constexpr KeyModifiers kControlShift{true, true, false};

const Calls kWritten = {"IPrintMode[0.0].SetSmallDotCompensation(1.5, 0)"};
const Calls kSaved = {"IHostControl.SaveParameters(2)"};

class EditorFocus : public PrintModeFixture
{
protected:
    static void Cancel(PrintModeEditor& editor) { editor.Cancel(); }

    // Types a compensation and lets the script take the focus away.
    void LeaveValue(const Script& leave, const Script& quit = Cancel)
    {
        Run([&](PrintModeEditor& editor) {
            editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
            EXPECT_EQ(Changes(), Calls());
            leave(editor);
            EXPECT_EQ(ChangesWith("Compensation"), kWritten);
            quit(editor);
        });
        EXPECT_EQ(ChangesWith("Compensation"), kWritten);
    }

    // Types what is no number over a stored 2.5 and does what makes the field lose the focus: one prompt must come.
    void LeaveBadValue(const Script& leave, const Script& afterwards)
    {
        m_machine.configurations[0].modes[0].smallDotCompensation = {2.5f};
        Run([&](PrintModeEditor& editor) {
            editor.Edit(IDC_EDIT_SMALL).Type(L"much");
            leave(editor);
            editor.Op().AnswerMessageBox();
            editor.Op().Settle();
            afterwards(editor);
        });
    }

    void ExpectBackInTheField(const PrintModeEditor& editor)
    {
        EXPECT_TRUE(editor.Edit(IDC_EDIT_SMALL).HasFocus());
        EXPECT_TRUE(editor.Edit(IDC_EDIT_SMALL).IsAllSelected());
        EXPECT_EQ(editor.Edit(IDC_EDIT_SMALL).Text(), L"much");
        EXPECT_EQ(editor.Tab().Selected(), 0);
        EXPECT_TRUE(editor.CommonPage().IsVisible());
        // The handler writes the value that the member still holds.
        EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetSmallDotCompensation(2.5, 0)"});
    }
};

TEST_F(EditorFocus, AnotherFieldTakesTheFocusAndTheValueIsWrittenOnce)
{
    LeaveValue([](PrintModeEditor& editor) { editor.Edit(IDC_EDIT_NAME).Click(); });
}

TEST_F(EditorFocus, AnotherValueFieldTakesTheFocusAndTheValueIsWrittenOnce)
{
    LeaveValue([](PrintModeEditor& editor) { editor.Edit(IDC_EDIT_MEDIUM).Click(); },
               [](PrintModeEditor& editor) { editor.Op().Key(VK_ESCAPE); });
}

TEST_F(EditorFocus, AComboBoxTakesTheFocusAndTheValueIsWrittenOnce)
{
    LeaveValue([](PrintModeEditor& editor) { editor.Combo(IDC_CMB_PASS).Pick(0); });
}

TEST_F(EditorFocus, ATabTakesTheFocusAndTheValueIsWrittenOnce)
{
    LeaveValue([](PrintModeEditor& editor) {
        editor.Tab().ClickTab(1);
        EXPECT_EQ(editor.Tab().VisiblePage(), editor.DataPage());
    });
}

TEST_F(EditorFocus, ControlTabTakesTheFocusAndTheValueIsWrittenOnce)
{
    LeaveValue([](PrintModeEditor& editor) {
        editor.Op().Key(VK_TAB, kControl);
        EXPECT_EQ(editor.Tab().VisiblePage(), editor.DataPage());
    });
}

TEST_F(EditorFocus, ControlPageDownTakesTheFocusAndTheValueIsWrittenOnce)
{
    LeaveValue([](PrintModeEditor& editor) {
        editor.Op().Key(VK_NEXT, kControl);
        EXPECT_EQ(editor.Tab().VisiblePage(), editor.DataPage());
    });
}

TEST_F(EditorFocus, TheModeListTakesTheFocusAndTheValueIsWrittenOnceBeforeTheStore)
{
    Run([this](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.Modes().ClickRow(1);
        EXPECT_EQ(Changes(), kWritten + StoredMode({"0.0", "Fast-1"}));
        editor.Cancel();
    });
}

TEST_F(EditorFocus, CancelTakesTheFocusAndTheValueIsWrittenOnceButNotSaved)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.Cancel();
    });
    EXPECT_EQ(Changes(), kWritten);
}

TEST_F(EditorFocus, SaveTakesTheFocusAndTheValueIsWrittenOnce)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.SaveAndQuit();
    });
    EXPECT_EQ(Changes(), kWritten + StoredMode({"0.0", "Fast-1"}) + kSaved);
}

TEST_F(EditorFocus, ADialogTakesTheFocusAndTheValueIsWrittenOnce)
{
    LeaveValue([](PrintModeEditor& editor) { editor.Confirm(editor.OpenAddConfig(), IDCANCEL); });
}

TEST_F(EditorFocus, EnterSavesWhatWasTyped)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_NAME).Type(L"By Enter");
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.Op().Key(VK_RETURN);
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes(), kWritten + StoredMode({"0.0", "By Enter"}) + kSaved);
}

TEST_F(EditorFocus, EnterInAListSaves)
{
    Run([](PrintModeEditor& editor) {
        editor.Configs().ClickRow(0);
        editor.Op().Key(VK_RETURN);
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes().back(), kSaved.front());
}

TEST_F(EditorFocus, EnterOnTheGridActsOnTheEditorAndThePageStays)
{
    Run([](PrintModeEditor& editor) {
        editor.Grid().OpenRow(0);
        editor.Op().Key(VK_ESCAPE);
        EXPECT_TRUE(editor.DataPage().IsVisible());
        editor.Op().Key(VK_RETURN);
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes().back(), kSaved.front());
}

TEST_F(EditorFocus, EscapeWritesNothingOfAHalfTypedValue)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Type(L"1.5");
        editor.Op().Key(VK_ESCAPE);
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(EditorFocus, EscapeAsksNothingOverABadValue)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Type(L"much");
        editor.Op().Key(VK_ESCAPE);
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(EditorFocus, TheCloseBoxWritesNothingAndAsksNothing)
{
    Run([](PrintModeEditor& editor) {
        editor.Edit(IDC_EDIT_SMALL).Type(L"much");
        editor.Op().Close(editor.Dialog());
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(EditorFocus, EscapeOnTheDataPageEndsTheEditor)
{
    Run([](PrintModeEditor& editor) {
        editor.Grid().OpenRow(0);
        editor.Op().Key(VK_ESCAPE);
        editor.Op().Key(VK_ESCAPE);
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Changes(), Calls());
}

TEST_F(EditorFocus, ABadValueIsAskedForOnceAndKeepsTheFocus)
{
    LeaveBadValue([](PrintModeEditor& editor) { editor.Edit(IDC_EDIT_NAME).Click(); },
                  [this](PrintModeEditor& editor) {
                      ExpectBackInTheField(editor);
                      NewChanges();
                      editor.Op().TypeCharacters(L"3");
                      editor.Op().Key(VK_TAB);
                      EXPECT_EQ(Changes(), Calls{"IPrintMode[0.0].SetSmallDotCompensation(3, 0)"});
                      editor.Cancel();
                  });
}

TEST_F(EditorFocus, ABadValueIsAskedForOnceWhenAnotherValueFieldIsClicked)
{
    LeaveBadValue([](PrintModeEditor& editor) { editor.Edit(IDC_EDIT_LARGE).Click(); },
                  [this](PrintModeEditor& editor) {
                      ExpectBackInTheField(editor);
                      editor.Op().Key(VK_ESCAPE);
                  });
}

TEST_F(EditorFocus, ABadValueKeepsItsPageWhenATabIsClicked)
{
    LeaveBadValue([](PrintModeEditor& editor) { editor.Tab().ClickTab(1); },
                  [this](PrintModeEditor& editor) {
                      ExpectBackInTheField(editor);
                      editor.Op().Key(VK_ESCAPE);
                  });
}

TEST_F(EditorFocus, ABadValueKeepsItsPageAtControlTab)
{
    LeaveBadValue([](PrintModeEditor& editor) { editor.Op().Key(VK_TAB, kControl); },
                  [this](PrintModeEditor& editor) {
                      ExpectBackInTheField(editor);
                      editor.Op().Key(VK_ESCAPE);
                  });
}

TEST_F(EditorFocus, ABadValueIsAskedForOnceWhenCancelIsClicked)
{
    LeaveBadValue([](PrintModeEditor& editor) { editor.Press(IDCANCEL); },
                  [this](PrintModeEditor& editor) {
                      ExpectBackInTheField(editor);
                      editor.Op().Key(VK_ESCAPE);
                  });
}

TEST_F(EditorFocus, EnterWithABadValueAsksOnceStoresTheRestAndSaves)
{
    LeaveBadValue([](PrintModeEditor& editor) { editor.Op().Key(VK_RETURN); },
                  [](PrintModeEditor& editor) { editor.Op().ExpectClosed(editor.Dialog()); });
    EXPECT_EQ(Changes(),
              Calls{"IPrintMode[0.0].SetSmallDotCompensation(2.5, 0)"} + StoredMode({"0.0", "Fast-1"}) + kSaved);
}

TEST_F(EditorFocus, SaveByMessageWithABadValueAsksOnceStoresTheRestAndSaves)
{
    LeaveBadValue([](PrintModeEditor& editor) { PostMessageW(editor.Dialog().Control(IDOK).Handle(), BM_CLICK, 0, 0); },
                  [](PrintModeEditor& editor) { editor.Op().ExpectClosed(editor.Dialog()); });
    EXPECT_EQ(ChangesWith("Set"),
              Calls{"IPrintMode[0.0].SetSmallDotCompensation(2.5, 0)"} + StoredMode({"0.0", "Fast-1"}));
    EXPECT_EQ(Changes().back(), kSaved.front());
}

TEST_F(EditorFocus, AnotherModeWithABadValueStoresTheRestAndShowsTheMode)
{
    LeaveBadValue([](PrintModeEditor& editor) { editor.Modes().ClickRow(1); },
                  [this](PrintModeEditor& editor) {
                      editor.Modes().ClickRow(1);
                      editor.Op().AnswerMessageBox();
                      editor.Op().Key(VK_ESCAPE);
                      EXPECT_EQ(ChangesWith("much"), Calls());
                  });
}

TEST_F(EditorFocus, ControlTabGoesRoundThePagesInBothDirections)
{
    Run([](PrintModeEditor& editor) {
        editor.Op().Key(VK_TAB, kControl);
        EXPECT_EQ(editor.Tab().Selected(), 1);
        editor.Op().Key(VK_TAB, kControl);
        EXPECT_EQ(editor.Tab().Selected(), 0);
        editor.Op().Key(VK_TAB, kControlShift);
        EXPECT_EQ(editor.Tab().Selected(), 1);
        editor.Op().Key(VK_PRIOR, kControl);
        EXPECT_EQ(editor.Tab().Selected(), 0);
        editor.Cancel();
    });
}

TEST_F(EditorFocus, TabReachesEveryControlOfTheShownPageAndComesRound)
{
    Run([](PrintModeEditor& editor) {
        editor.Configs().Click();
        const Window start = editor.Op().Focus();
        std::vector<HWND> visited;
        do
        {
            visited.push_back(editor.Op().Focus().Handle());
            editor.Op().Key(VK_TAB);
        } while (editor.Op().Focus() != start && visited.size() < 100);
        EXPECT_EQ(editor.Op().Focus(), start);
        for (int id : {IDC_CMB_ENABLE, IDC_EDIT_NAME, IDC_CMB_PASS, IDC_CMB_XDPI, IDC_CMB_RESIDENT, IDC_CMB_SMALL_GROUP,
                       IDC_EDIT_SMALL, IDC_CMB_MEDIUM_GROUP, IDC_EDIT_MEDIUM, IDC_CMB_LARGE_GROUP, IDC_EDIT_LARGE,
                       IDC_CMB_FRONT_GROUP, IDC_CMB_FRONT, IDC_CMB_BACK_GROUP, IDC_CMB_BACK})
            EXPECT_EQ(std::count(visited.begin(), visited.end(), editor.Edit(id).Handle()), 1) << id;
        for (int id : {IDC_LIST_CFG, IDC_BTN_ADD_CFG, IDC_BTN_DEL_CFG, IDC_LIST_MODE, IDC_BTN_ADD_MODE,
                       IDC_BTN_DEL_MODE, IDC_BTN_MODE_UP, IDC_BTN_MODE_DOWN, IDOK, IDCANCEL})
            EXPECT_EQ(std::count(visited.begin(), visited.end(), editor.Dialog().Control(id).Handle()), 1) << id;
        for (HWND window : visited)
            EXPECT_TRUE(IsWindowVisible(window));
        editor.Op().Key(VK_ESCAPE);
    });
}

TEST_F(EditorFocus, TheKeyboardStaysAliveWhenTheLastModeIsDeleted)
{
    m_machine.configurations = {Config("Fine", {"Fine-1"})};
    Run([](PrintModeEditor& editor) {
        editor.Press(IDC_BTN_DEL_MODE);
        EXPECT_FALSE(editor.IsEnabled(IDC_BTN_DEL_MODE));
        const Window focus = editor.Op().Focus();
        EXPECT_TRUE(focus.Exists());
        EXPECT_TRUE(focus.IsEnabled());
        editor.Op().Key(VK_ESCAPE);
        editor.Op().ExpectClosed(editor.Dialog());
    });
}

TEST_F(EditorFocus, ArrowKeysInTheListsSelectAsTheMouseDoes)
{
    Run([this](PrintModeEditor& editor) {
        editor.Configs().ClickRow(0);
        NewChanges();
        editor.Op().Key(VK_DOWN);
        EXPECT_EQ(editor.Configs().Selected(), 1);
        EXPECT_EQ(editor.Modes().Rows(), Texts{L"Fine-1"});
        EXPECT_EQ(Changes(), Calls(StoredMode{"0.0", "Fast-1"}));
        editor.Cancel();
    });
}

TEST_F(EditorFocus, ArrowKeysStayAmongTheButtons)
{
    Run([](PrintModeEditor& editor) {
        const auto walk = [&](int first, int key) {
            std::set<int> reached;
            editor.Op().MoveFocus(editor.Dialog().Control(first));
            for (int i = 0; i < 6; ++i)
            {
                editor.Op().Key(key);
                reached.insert(GetDlgCtrlID(editor.Op().Focus().Handle()));
            }
            return reached;
        };
        for (const int key : {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN})
        {
            EXPECT_EQ(walk(IDC_BTN_ADD_CFG, key), (std::set<int>{IDC_BTN_ADD_CFG, IDC_BTN_DEL_CFG}));
            EXPECT_EQ(walk(IDOK, key), (std::set<int>{IDOK, IDCANCEL}));
            for (const int id : walk(IDC_BTN_ADD_MODE, key))
                EXPECT_TRUE(id == IDC_BTN_ADD_MODE || id == IDC_BTN_DEL_MODE || id == IDC_BTN_MODE_UP ||
                            id == IDC_BTN_MODE_DOWN)
                    << id;
        }
        editor.Cancel();
    });
}
} // namespace
