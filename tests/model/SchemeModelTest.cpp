#include "tests/model/FactoryOperator.h"
#include "tests/model/ModelTest.h"
#include "tests/model/UserOperator.h"
#include "tests/support/RunLength.h"

namespace
{
class RandomFactoryOperator : public ModelTest
{
protected:
    RandomFactoryOperator() : ModelTest(&IQuorvane::EditFactorySchemes) {}
};

TEST_P(RandomFactoryOperator, LeavesTheHostAsTheModelHasIt)
{
    FactoryModel model(m_machine);
    PlayAgainst(model, [&](Operator& op, SeededRun& run) {
        const FactoryEditor editor = ExpectFactoryEditor(op);
        FactoryOperator(editor, model, run).Work();
    });
}

RUN_WITH_EVERY_SEED(RandomFactoryOperator);

class RandomUserOperator : public ModelTest
{
protected:
    RandomUserOperator() : ModelTest(&IQuorvane::EditUserSchemes) {}
};

TEST_P(RandomUserOperator, LeavesTheHostAsTheModelHasIt)
{
    UserModel model(m_machine);
    PlayAgainst(model, [&](Operator& op, SeededRun& run) {
        const UserEditor editor = ExpectUserEditor(op);
        UserOperator(editor, model, run).Work();
    });
}

RUN_WITH_EVERY_SEED(RandomUserOperator);
} // namespace
