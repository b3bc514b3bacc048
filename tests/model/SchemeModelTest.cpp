#include "tests/model/FactoryOperator.h"
#include "tests/model/ModelFixture.h"
#include "tests/model/UserOperator.h"
#include "tests/support/RunLength.h"

namespace
{
class RandomFactoryOperator : public ModelFixture
{
protected:
    RandomFactoryOperator() : ModelFixture(&IQuorvane::EditFactorySchemes) {}
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

class RandomUserOperator : public ModelFixture
{
protected:
    RandomUserOperator() : ModelFixture(&IQuorvane::EditUserSchemes) {}
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
