#include "dialogs/base/LanguageText.h"

#include "tests/fuzz/CurrentInput.h"
#include "tests/fuzz/LanguageInputs.h"
#include "tests/fuzz/ReferenceLanguageText.h"
#include "tests/support/RunLength.h"

#include <gtest/gtest.h>

namespace
{
constexpr unsigned kInputsPerSeed = 1000;

class LanguageFuzz : public testing::TestWithParam<unsigned>
{
protected:
    void Try(const std::string& file)
    {
        const CLanguageText text(file);
        const ReferenceLanguageText reference(file);
        for (const LanguageQuestion& question : m_inputs.QuestionsFor(file))
        {
            const std::wstring answer = text.GetText(question.section, question.key, question.defaultText);
            ASSERT_EQ(answer, reference.GetText(question.section, question.key, question.defaultText))
                << "section \"" << question.section << "\", key \"" << question.key << "\"";
            m_found += answer != question.defaultText ? 1u : 0u;
        }
    }

    LanguageInputs m_inputs{"lang"};
    unsigned m_found = 0;
};

TEST_P(LanguageFuzz, AnswersAsTheReferenceDoes)
{
    const unsigned seed = GetParam();
    for (unsigned number = 0; number < kInputsPerSeed; ++number)
    {
        Random random(std::uint64_t{seed} << 32 | number);
        const std::string file = m_inputs.File(random);
        CurrentInput() = {"LanguageFuzz", seed, number, file};
        Try(file);
        ASSERT_FALSE(HasFatalFailure()) << KeepCurrentInput();
    }
    // Files that hold nothing to find would prove nothing.
    EXPECT_GT(m_found, kInputsPerSeed);
}

INSTANTIATE_TEST_SUITE_P(Seeds, LanguageFuzz,
                         testing::Range(FirstSeed(), FirstSeed() + RunCount(20'000, 1'000'000) / kInputsPerSeed),
                         [](const auto& test) { return std::to_string(test.param); });
} // namespace
