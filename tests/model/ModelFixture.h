#pragma once

#include "tests/editors/fixtures/EditorFixture.h"
#include "tests/model/RandomOperator.h"
#include "tests/support/RunLength.h"

// One run of an editor over a random machine: the seed is the test's parameter. Afterwards the host must have the
// model's machine and the model's save requests, no more and no fewer.
class ModelFixture : public EditorFixture, public testing::WithParamInterface<unsigned>
{
protected:
    explicit ModelFixture(Operation operation);

    static void SetUpTestSuite() { s_tally = {}; }
    // Operators who never do anything, or end all in the same way, would prove nothing.
    static void TearDownTestSuite();

    using Play = std::function<void(Operator&, SeededRun&)>;
    void PlayAgainst(EditorModel& model, const Play& play);

private:
    struct Tally
    {
        std::size_t runs;
        std::size_t actions;
        std::size_t changes;
        std::size_t savedRuns;
    };

    std::string Reproduction() const;

    static inline Tally s_tally{};

    Operation m_operation;
    SeededRun m_run;
};

// Seeds as ./test.sh sets them: from the first one on, 10000 in a long run over the three editors.
#define RUN_WITH_EVERY_SEED(Suite)                                                                                     \
    INSTANTIATE_TEST_SUITE_P(Seeds, Suite, testing::Range(FirstSeed(), FirstSeed() + RunCount(60, 3334)),              \
                             testing::PrintToStringParamName())
