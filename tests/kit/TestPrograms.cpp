#include "tests/kit/TestPrograms.h"

#include "tests/kit/ChildProgram.h"
#include "tests/kit/Text.h"
#include "tests/support/FailurePictures.h"

#include <algorithm>
#include <windows.h>

namespace
{
std::string WithUnixLines(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return AsUtf8(text);
}

std::wstring FilterArgument(const std::string& filter)
{
    return L"\"--gtest_filter=" + std::wstring(filter.begin(), filter.end()) + L"\"";
}
} // namespace

TestPrograms::TestPrograms(const Options& options, const SkipList& skips) : m_options(options), m_skips(skips)
{
    SetEnvironmentVariableW(kPictureFolder, m_work.Path().c_str());
}

std::vector<TestResult> TestPrograms::Run(const std::wstring& program)
{
    SetEnvironmentVariableW(kPictureLimit, std::to_wstring(m_picturesLeft).c_str());
    std::vector<TestResult> tests = TestsOf(OutputOf(program));
    TakePictures(tests);
    const std::vector<TestResult> skipped = SkippedTests(program);
    tests.insert(tests.end(), skipped.begin(), skipped.end());
    return tests;
}

TestOutput TestPrograms::OutputOf(const std::wstring& program) const
{
    const std::wstring arguments = FilterArgument(m_skips.Narrowed(m_options.filter)) +
                                   L" --gtest_color=no \"--gtest_output=json:" + m_work.PathOf(L"json") + L"\"";
    const ChildEnd end = RunToEnd(program, arguments, m_work.PathOf(L"log"), m_options.timeoutSeconds);
    TestOutput output;
    output.log = WithUnixLines(m_work.Take(L"log"));
    output.json = AsUtf8(m_work.Take(L"json"));
    output.exitCode = end.startError != 0 ? end.startError : end.exitCode;
    output.hung = end.hung;
    return output;
}

// Which tests a pattern of the list means, only the program can tell.
std::vector<TestResult> TestPrograms::SkippedTests(const std::wstring& program) const
{
    std::vector<TestResult> tests;
    if (m_skips.IsEmpty())
        return tests;
    const std::wstring arguments = FilterArgument(m_options.filter) + L" --gtest_list_tests";
    RunToEnd(program, arguments, m_work.PathOf(L"log"), m_options.timeoutSeconds);
    for (const std::string& name : ListedTests(WithUnixLines(m_work.Take(L"log"))))
        if (const std::string reason = m_skips.ReasonFor(name); !reason.empty())
            tests.push_back({name, Outcome::Skipped, reason, {}});
    return tests;
}

void TestPrograms::TakePictures(std::vector<TestResult>& tests)
{
    for (TestResult& test : tests)
    {
        test.picture = m_work.Take(PictureName(test.name));
        m_picturesLeft -= !test.picture.empty();
    }
}
