#include "tests/model/ModelFixture.h"

#include "tests/machines/RandomMachine.h"
#include "tests/model/MachineDifference.h"
#include "tests/support/ThreadLocale.h"

namespace
{
constexpr unsigned kChinesePage = 936;
// Of so many some end by saving, and some do not.
constexpr std::size_t kTellingRuns = 15;

// What makes the thread's code page that of the machine's names.
LCID LocaleOf(unsigned codePage)
{
    return codePage == kChinesePage ? MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED)
                                    : MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
}
} // namespace

ModelFixture::ModelFixture(Operation operation) : m_operation(operation), m_run(GetParam())
{
    m_machine = RandomMachine(m_run.chance);
    m_run.host = [this] { return Machine(); };
}

void ModelFixture::PlayAgainst(EditorModel& model, const Play& play)
{
    const ThreadLocale locale(LocaleOf(m_machine.codePage));
    RunOperation(m_operation, [&](Operator& op) { play(op, m_run); });
    EXPECT_TRUE(model.HasEnded()) << "the operator never got the editor closed";
    EXPECT_EQ(FirstDifference(model.Machine(), Machine()), "");
    EXPECT_EQ(ChangesWith("IHostControl."), model.Saves());
    if (HasFailure())
        ADD_FAILURE() << Reproduction();
    ++s_tally.runs;
    s_tally.actions += m_run.diary.Count();
    s_tally.changes += Changes().size();
    s_tally.savedRuns += ChangesWith("IHostControl.SaveParameters").size();
}

void ModelFixture::TearDownTestSuite()
{
    if (s_tally.runs < kTellingRuns)
        return;
    EXPECT_GT(s_tally.actions, 10 * s_tally.runs);
    EXPECT_GT(s_tally.changes, 3 * s_tally.runs);
    EXPECT_GT(s_tally.savedRuns, s_tally.runs / 10);
    EXPECT_LT(s_tally.savedRuns, s_tally.runs * 9 / 10);
}

std::string ModelFixture::Reproduction() const
{
    const std::string seed = std::to_string(GetParam());
    const std::string suite = testing::UnitTest::GetInstance()->current_test_info()->test_suite_name();
    return "seed " + seed + ", the operator's actions:\n" + m_run.diary.Text() +
           "to see it again: " + CommandToRepeat(GetParam(), suite + ".*/" + seed);
}
