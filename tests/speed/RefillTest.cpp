#include "tests/editors/fixtures/FactorySchemeFixture.h"
#include "tests/editors/fixtures/UserSchemeFixture.h"
#include "tests/speed/MessageLog.h"

#include <set>

namespace
{
int Emptied(const std::vector<LoggedMessage>& messages, int listId)
{
    return Count(messages, listId, LB_RESETCONTENT);
}

int Added(const std::vector<LoggedMessage>& messages, int listId)
{
    return Count(messages, listId, LB_ADDSTRING) + Count(messages, listId, LB_INSERTSTRING);
}

// Rows that were put into a list while it was being drawn.
int AddedInSight(const std::vector<LoggedMessage>& messages, int listId)
{
    bool redraw = true;
    int added = 0;
    for (const LoggedMessage& one : messages)
        if (one.controlId == listId && one.message == WM_SETREDRAW)
            redraw = one.wParam != 0;
        else if (one.controlId == listId && AddsRow(one) && redraw)
            ++added;
    return added;
}

class FactoryRefill : public FactorySchemeFixture
{
protected:
    MessageLog m_log;
};

TEST_F(FactoryRefill, IsNotNeededToAddAScheme)
{
    Run([this](FactoryEditor& editor) {
        m_log.Take();
        editor.Press(IDC_BTN_ADD_SCHEME);
        const auto messages = m_log.Take();
        EXPECT_EQ(Emptied(messages, IDC_LIST_SCHEME), 0);
        EXPECT_EQ(Added(messages, IDC_LIST_SCHEME), 1);
        EXPECT_EQ(Added(messages, IDC_LIST_CFG), 0);
        editor.Cancel();
    });
}

TEST_F(FactoryRefill, IsNotNeededToDeleteAScheme)
{
    Run([this](FactoryEditor& editor) {
        m_log.Take();
        editor.Press(IDC_BTN_DEL_SCHEME);
        const auto messages = m_log.Take();
        EXPECT_EQ(Emptied(messages, IDC_LIST_SCHEME), 0);
        EXPECT_EQ(Added(messages, IDC_LIST_SCHEME), 0);
        EXPECT_EQ(Count(messages, IDC_LIST_SCHEME, LB_DELETESTRING), 1);
        editor.Cancel();
    });
}

TEST_F(FactoryRefill, IsNotNeededToCopyElsewhere)
{
    Run([this](FactoryEditor& editor) {
        m_log.Take();
        editor.CopyTo({1, 2}, 0);
        const auto messages = m_log.Take();
        EXPECT_EQ(Emptied(messages, IDC_LIST_SCHEME), 0);
        EXPECT_EQ(Added(messages, IDC_LIST_SCHEME), 0);
        editor.Cancel();
    });
}

TEST_F(FactoryRefill, HappensOnceForACopyIntoTheShownConfiguration)
{
    Run([this](FactoryEditor& editor) {
        const int before = editor.Schemes().RowCount();
        m_log.Take();
        editor.CopyTo({0, 1}, 0);
        const auto messages = m_log.Take();
        EXPECT_EQ(Emptied(messages, IDC_LIST_SCHEME), 1);
        EXPECT_EQ(Added(messages, IDC_LIST_SCHEME), before + 1);
        editor.Cancel();
    });
}

TEST_F(FactoryRefill, OfAListIsNotDrawnRowByRow)
{
    Run([this](FactoryEditor& editor) {
        editor.Configs().ClickRow(1);
        editor.Configs().ClickRow(0);
        editor.Schemes().ClickRow(1);
        const auto messages = m_log.Take();
        EXPECT_EQ(AddedInSight(messages, IDC_LIST_CFG), 0);
        EXPECT_EQ(AddedInSight(messages, IDC_LIST_SCHEME), 0);
        editor.Cancel();
    });
}

TEST_F(FactoryRefill, OfAPageIsNotDrawnRowByRow)
{
    Run([this](FactoryEditor& editor) {
        std::size_t filledLists = 0;
        for (SchemePage page : editor.Pages())
        {
            editor.Open(page);
            m_log.Take();
            editor.Schemes().ClickRow(page == SchemePage::Common ? 1 : 2);
            editor.Schemes().ClickRow(0);
            const auto messages = m_log.Take();
            std::set<int> filled;
            for (const LoggedMessage& one : messages)
                if (AddsRow(one) && one.visible)
                    filled.insert(one.controlId);
            for (int id : filled)
                EXPECT_EQ(AddedInSight(messages, id), 0) << "control " << id;
            filledLists += filled.size();
        }
        EXPECT_GT(filledLists, 0u);
        editor.Cancel();
    });
}

class UserRefill : public UserSchemeFixture
{
protected:
    MessageLog m_log;
};

TEST_F(UserRefill, IsNotNeededToAddAScheme)
{
    Run([this](UserEditor& editor) {
        m_log.Take();
        editor.AddScheme(L"Other");
        const auto messages = m_log.Take();
        EXPECT_EQ(Emptied(messages, IDC_LIST_SCHEME), 0);
        EXPECT_EQ(Added(messages, IDC_LIST_SCHEME), 1);
        editor.Cancel();
    });
}

TEST_F(UserRefill, IsNotNeededToDeleteAScheme)
{
    Run([this](UserEditor& editor) {
        editor.Schemes().ClickRow(kMine);
        m_log.Take();
        editor.Press(IDC_BTN_DEL_SCHEME);
        const auto messages = m_log.Take();
        EXPECT_EQ(Emptied(messages, IDC_LIST_SCHEME), 0);
        EXPECT_EQ(Added(messages, IDC_LIST_SCHEME), 0);
        editor.Cancel();
    });
}
} // namespace
