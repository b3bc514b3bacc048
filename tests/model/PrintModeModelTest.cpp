#include "tests/model/ModelFixture.h"
#include "tests/model/PrintModeOperator.h"
#include "tests/support/RunLength.h"

namespace
{
class RandomPrintModeOperator : public ModelFixture
{
protected:
    RandomPrintModeOperator() : ModelFixture(&IQuorvane::EditPrintModes) {}
};

TEST_P(RandomPrintModeOperator, LeavesTheHostAsTheModelHasIt)
{
    PrintModeModel model(m_machine);
    PlayAgainst(model, [&](Operator& op, SeededRun& run) {
        const PrintModeEditor editor = ExpectPrintModeEditor(op);
        PrintModeOperator(editor, model, run).Work();
    });
}

RUN_WITH_EVERY_SEED(RandomPrintModeOperator);
} // namespace
