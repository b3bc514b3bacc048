#include <gtest/gtest.h>

#include <typeinfo>

#include "refhost/MachineFileError.h"
#include "refhost/MachineText.h"
#include "refhost/TextConversion.h"
#include "tests/fuzz/CurrentInput.h"
#include "tests/fuzz/MachineInputs.h"
#include "tests/fuzz/MachineValues.h"
#include "tests/support/RunLength.h"

using namespace refhost;

namespace
{

constexpr unsigned kInputsPerSeed = 1000;
constexpr std::size_t kLongestMessage = 1000;

bool NamesAPlace(const std::string& message)
{
    const std::size_t colon = message.find(": ");
    const bool isLine = message.find("line ") != std::string::npos;
    return isLine || (colon != std::string::npos && colon > 0) || message.find(" is no object") != std::string::npos;
}

void ExpectReadable(const std::string& message)
{
    EXPECT_TRUE(NamesAPlace(message)) << message;
    EXPECT_LE(message.size(), kLongestMessage);
    EXPECT_EQ(Utf8FromWide(WideFromUtf8(message)), message) << "is no UTF-8";
}

void ExpectToComeBack(const Machine& machine)
{
    const std::string text = FormatMachine(machine);
    const Machine again = ParseMachine(text);
    EXPECT_EQ(MachineValues(again), MachineValues(machine)) << text;
}

class MachineFuzz : public testing::TestWithParam<unsigned>
{
protected:
    // Refused with a message to read, or accepted and the same after being saved and read again.
    void Try(const MachineInputs::Input& input)
    {
        try
        {
            const Machine machine = ParseMachine(input.text);
            m_acceptedChanged += input.isIntact ? 0u : 1u;
            ExpectToComeBack(machine);
            EXPECT_TRUE(!input.isIntact || FormatMachine(machine) == input.text);
        }
        catch (const CMachineFileError& error)
        {
            ExpectReadable(error.what());
            EXPECT_FALSE(input.isIntact) << error.what();
        }
        catch (const std::exception& error)
        {
            ADD_FAILURE() << "another exception, " << typeid(error).name() << ": " << error.what();
        }
    }

    unsigned m_acceptedChanged = 0;
};

const MachineInputs& Inputs()
{
    static const MachineInputs inputs("samples/machine.json");
    return inputs;
}

} // namespace

TEST_P(MachineFuzz, IsRefusedWithAPlaceOrComesBack)
{
    const unsigned seed = GetParam();
    for (unsigned number = 0; number < kInputsPerSeed; ++number)
    {
        Random random(std::uint64_t{seed} << 32 | number);
        const MachineInputs::Input input = Inputs().Text(random);
        CurrentInput() = {"MachineFuzz", seed, number, input.text};
        Try(input);
        ASSERT_FALSE(HasFailure()) << KeepCurrentInput();
    }
    // Both roads must be travelled, and not only by the inputs that nothing was done to.
    EXPECT_GT(m_acceptedChanged, kInputsPerSeed / 50);
    EXPECT_LT(m_acceptedChanged, kInputsPerSeed / 2);
}

INSTANTIATE_TEST_SUITE_P(Seeds, MachineFuzz,
                         testing::Range(FirstSeed(), FirstSeed() + RunCount(20'000, 1'000'000) / kInputsPerSeed),
                         [](const auto& test) { return std::to_string(test.param); });
