#include "tests/editors/fixtures/PrintModeFixture.h"

namespace
{
// Two modes whose names the host has longer than the page takes.
class RefusedName : public PrintModeFixture
{
protected:
    RefusedName()
    {
        for (refhost::PrintMode& mode : m_machine.configurations[0].modes)
            mode.name = kLongName;
    }

    // Through a compensation field: leaving it reads the name too.
    static void RefuseInAField(const PrintModeEditor& editor)
    {
        editor.Edit(IDC_EDIT_SMALL).Click();
        editor.Op().Key(VK_TAB);
        editor.Op().AnswerMessageBox();
    }

    const std::string kLongName = std::string(61, 'n');
};

TEST_F(RefusedName, IsNotAskedForAgainDuringTheSameVisit)
{
    Run([](PrintModeEditor& editor) {
        RefuseInAField(editor);
        editor.Modes().ClickRow(1);
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetPassCount").size(), 1u);
    EXPECT_EQ(ChangesWith("SetName"), Calls());
}

TEST_F(RefusedName, IsAskedForAgainAtAnotherVisitOfTheMode)
{
    m_machine.configurations[0].modes[1].name = "Short";
    Run([](PrintModeEditor& editor) {
        RefuseInAField(editor);
        editor.Modes().ClickRow(1);
        editor.Modes().ClickRow(0);
        editor.Modes().ClickRow(1);
        editor.Op().AnswerMessageBox();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls{"IPrintMode[0.1].SetName(\"Short\")"});
}

TEST_F(RefusedName, IsAskedForAgainInAnotherModeOfThatName)
{
    Run([](PrintModeEditor& editor) {
        RefuseInAField(editor);
        editor.Modes().ClickRow(1);
        editor.Modes().ClickRow(0);
        editor.Op().AnswerMessageBox();
        editor.Cancel();
    });
    EXPECT_EQ(ChangesWith("SetName"), Calls());
}

TEST_F(RefusedName, IsAskedForAgainWhenSavedAtAnotherVisit)
{
    m_machine.configurations[0].modes[1].name = "Short";
    Run([](PrintModeEditor& editor) {
        RefuseInAField(editor);
        editor.Modes().ClickRow(1);
        editor.Modes().ClickRow(0);
        editor.Press(IDOK);
        editor.Op().AnswerMessageBox();
        editor.Op().ExpectClosed(editor.Dialog());
    });
    EXPECT_EQ(Mode(0, 0).name, kLongName);
    EXPECT_EQ(ChangesWith("SaveParameters").size(), 1u);
}
} // namespace
