#include "tests/kit/TestOutput.h"

#include "tests/kit/Text.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

namespace
{
using Json = nlohmann::json;

constexpr char kRun[] = "[ RUN      ] ";
constexpr char kProgram[] = "(the program itself)";

// What was printed between a test's first line and the next one's.
std::string LogOf(const std::string& log, const std::string& test)
{
    const std::size_t start = log.find(kRun + test + "\n");
    if (start == std::string::npos)
        return {};
    const std::size_t next = log.find(kRun, start + 1);
    const std::size_t suite = log.find("[----------]", start);
    return log.substr(start, std::min(next, suite) - start);
}

Outcome OutcomeOf(const Json& test)
{
    if (test.contains("failures"))
        return Outcome::Failed;
    return test.value("result", "") == "SKIPPED" ? Outcome::Skipped : Outcome::Passed;
}

std::vector<TestResult> TestsOfJson(const std::string& text)
{
    std::vector<TestResult> tests;
    const Json json = Json::parse(text, nullptr, false);
    if (!json.is_object())
        return tests;
    for (const Json& suite : json.value("testsuites", Json::array()))
        for (const Json& test : suite.value("testsuite", Json::array()))
            tests.push_back({suite.value("name", "") + "." + test.value("name", ""), OutcomeOf(test), {}, {}});
    return tests;
}

// The name behind a sign such as "[       OK ] ", without the time behind it.
std::string NameBehind(const std::string& sign, const std::string& line)
{
    if (line.compare(0, sign.size(), sign) != 0)
        return {};
    const std::string name = line.substr(sign.size());
    return name.substr(0, name.find(" ("));
}

std::vector<TestResult> TestsOfLog(const std::string& log)
{
    std::vector<TestResult> tests;
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);)
        if (const std::string name = NameBehind(kRun, line); !name.empty())
            tests.push_back({name, Outcome::Failed, {}, {}}); // until it says that it is not
        else if (tests.empty())
            continue;
        else if (NameBehind("[       OK ] ", line) == tests.back().name)
            tests.back().outcome = Outcome::Passed;
        else if (NameBehind("[  SKIPPED ] ", line) == tests.back().name)
            tests.back().outcome = Outcome::Skipped;
    return tests;
}

bool HasFinished(const std::string& log)
{
    return log.find(" ran. (") != std::string::npos;
}

bool HasFailed(const std::vector<TestResult>& tests)
{
    for (const TestResult& test : tests)
        if (test.outcome == Outcome::Failed)
            return true;
    return false;
}

std::string LastTest(const std::string& log)
{
    const std::size_t last = log.rfind(kRun);
    return last == std::string::npos ? "none" : NameBehind(kRun, log.substr(last, log.find('\n', last) - last));
}

// Whether the last test began and did not end.
bool IsInTest(const std::string& log)
{
    const std::size_t last = log.rfind(kRun);
    const auto ends = [&](const char* sign) { return log.find(sign, last) != std::string::npos; };
    return last != std::string::npos && !ends("[       OK ] ") && !ends("[  FAILED  ] ") && !ends("[  SKIPPED ] ");
}

std::string EndOf(const TestOutput& output)
{
    std::ostringstream text;
    if (output.hung)
        text << "The program hung and was ended.";
    else
        text << "The program ended with code 0x" << std::hex << output.exitCode << ".";
    text << " Last test: " << LastTest(output.log);
    return text.str();
}
} // namespace

std::vector<TestResult> TestsOf(const TestOutput& output)
{
    std::vector<TestResult> tests = TestsOfJson(output.json);
    if (tests.empty())
        tests = TestsOfLog(output.log);
    for (TestResult& test : tests)
        if (test.outcome != Outcome::Passed)
            test.text = LogOf(output.log, test.name);
    const bool isBad = output.hung || output.exitCode != 0;
    if (!tests.empty() && IsInTest(output.log))
        tests.back().text = EndOf(output) + "\n" + tests.back().text;
    else if (!HasFinished(output.log) || (isBad && !HasFailed(tests)))
        tests.push_back({kProgram, Outcome::Failed, EndOf(output) + "\n" + output.log, {}});
    return tests;
}

// Suites end with a dot, their tests follow in lines of their own. Behind a number sign comes a parameter.
std::vector<std::string> ListedTests(const std::string& list)
{
    std::vector<std::string> names;
    std::string suite;
    std::istringstream lines(list);
    for (std::string line; std::getline(lines, line);)
    {
        std::string word;
        std::istringstream(line) >> word;
        if (line.compare(0, 2, "  ") == 0)
            names.push_back(suite + word);
        else if (!word.empty() && word.back() == '.')
            suite = word;
    }
    return names;
}
