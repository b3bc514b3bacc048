// Each net under the tests catches what it is there for.
#include "tests/faults/ChildRun.h"
#include "tests/support/FaultReport.h"

#include <gtest/gtest.h>

namespace
{
struct Fault
{
    std::string name;
    unsigned long exitCode;
    std::string report;
};

void PrintTo(const Fault& fault, std::ostream* stream)
{
    *stream << fault.name;
}

class FaultTest : public testing::TestWithParam<Fault>
{
};

std::string TestName(const testing::TestParamInfo<Fault>& info)
{
    std::string name;
    bool isFirst = true;
    for (const char c : info.param.name)
    {
        if (c != '-')
            name += isFirst ? static_cast<char>(c - 'a' + 'A') : c;
        isFirst = c == '-';
    }
    return name;
}

ChildRun RunFaulty(const std::string& fault)
{
    return RunChild(L"FaultyProgram.exe", std::wstring(fault.begin(), fault.end()));
}

const char kBadAddress[] = "Fault c0000005 at offset ";
#ifdef QUORVANE_CHECKED
const char kTrap[] = "Fault c000001d at offset ";
const auto& kNull = kTrap;
#else
const auto& kNull = kBadAddress;
#endif
const Fault kAlways[] = {
    {"write-to-null", kFaultExitCode, kNull},
    {"call-null", kFaultExitCode, kBadAddress},
    {"write-to-null-in-window-procedure", kFaultExitCode, kNull},
};
} // namespace

TEST_P(FaultTest, EndsTheProgramWithAReport)
{
    const ChildRun run = RunFaulty(GetParam().name);
    EXPECT_EQ(run.exitCode, GetParam().exitCode);
    EXPECT_NE(run.output.find(GetParam().report), std::string::npos) << run.output;
    EXPECT_EQ(run.output.find("survived"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Processor, FaultTest, testing::ValuesIn(kAlways), TestName);

TEST(NoFault, LetsTheProgramEndWell)
{
    const ChildRun run = RunFaulty("nothing");
    EXPECT_EQ(run.exitCode, 0u);
    EXPECT_EQ(run.output, "survived\r\n");
}

#ifdef QUORVANE_CHECKED
namespace
{
constexpr unsigned long kAborted = 3;
const Fault kHeapFaults[] = {
    {"write-past-block", kFaultExitCode, kBadAddress},
    {"read-past-block", kFaultExitCode, kBadAddress},
    {"copy-past-block", kFaultExitCode, kBadAddress},
    {"write-before-block", kFaultExitCode, "written in front of it"},
    {"read-freed-block", kFaultExitCode, kBadAddress},
    {"read-freed-block-in-window-procedure", kFaultExitCode, kBadAddress},
    {"free-twice", kFaultExitCode, "where no live block starts"},
    {"free-in-the-middle", kFaultExitCode, "where no live block starts"},
    {"free-what-nobody-allocated", kFaultExitCode, "did not allocate it"},
    {"read-resized-block", kFaultExitCode, kBadAddress},
};
const Fault kMisuses[] = {
    {"index-past-vector", kAborted, "Assertion '__n < this->size()' failed"},
    {"index-past-text", kAborted, "Assertion '__pos <= size()' failed"},
};
const Fault kUndefined[] = {
    {"overflow-integer", kFaultExitCode, kTrap},
    {"overflow-integer-in-window-procedure", kFaultExitCode, kTrap},
    {"shift-too-far", kFaultExitCode, kTrap},
    {"index-past-array", kFaultExitCode, kTrap},
};
const Fault kStackFaults[] = {
    {"write-past-local-buffer", kFaultExitCode, kTrap},
};
} // namespace

INSTANTIATE_TEST_SUITE_P(Heap, FaultTest, testing::ValuesIn(kHeapFaults), TestName);
INSTANTIATE_TEST_SUITE_P(StandardLibrary, FaultTest, testing::ValuesIn(kMisuses), TestName);
INSTANTIATE_TEST_SUITE_P(UndefinedBehaviour, FaultTest, testing::ValuesIn(kUndefined), TestName);
INSTANTIATE_TEST_SUITE_P(Stack, FaultTest, testing::ValuesIn(kStackFaults), TestName);
#endif
