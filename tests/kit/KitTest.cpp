#include "tests/kit/ChildProgram.h"
#include "tests/kit/Options.h"
#include "tests/kit/Report.h"
#include "tests/kit/SkipList.h"
#include "tests/kit/TestOutput.h"
#include "tests/kit/Text.h"
#include "tests/support/BesideProgram.h"
#include "tests/support/FailurePictures.h"
#include "tests/support/FileContent.h"
#include "tests/support/Screenshot.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace
{
using Names = std::vector<std::string>;

TEST(KitText, GivesHtmlNothingToRead)
{
    EXPECT_EQ(HtmlOf("<b a=\"1\">R&D\x1B</b>\n"), "&lt;b a=&quot;1&quot;&gt;R&amp;D &lt;/b&gt;\n");
}

TEST(KitText, IsUtf8WhateverWasPrinted)
{
    EXPECT_EQ(AsUtf8("a\xE4\xB8\xAD"), "a\xE4\xB8\xAD");
    EXPECT_EQ(AsUtf8("a\xFFz"), "a\xEF\xBF\xBDz");
}

TEST(KitText, HasEveryLengthInBase64)
{
    EXPECT_EQ(Base64Of(""), "");
    EXPECT_EQ(Base64Of("f"), "Zg==");
    EXPECT_EQ(Base64Of("fo"), "Zm8=");
    EXPECT_EQ(Base64Of("foo"), "Zm9v");
    EXPECT_EQ(Base64Of("\xFB\xFF\xFE!"), "+//+IQ==");
}

TEST(KitText, MatchesAsFiltersDo)
{
    EXPECT_TRUE(Matches("Seeds/Paint.Comes/17", "*Paint.*"));
    EXPECT_TRUE(Matches("Paint.Comes", "Pa?nt.Comes*"));
    EXPECT_FALSE(Matches("Paint.Comes", "Paint"));
    EXPECT_FALSE(Matches("Paint.Comes", "?Paint.Comes"));
}

TEST(KitOptions, AreTakenOrRefused)
{
    EXPECT_EQ(OptionsOf({})->filter, "*");
    EXPECT_EQ(OptionsOf({"--filter", "A.*", "--timeout", "5"})->filter, "A.*");
    EXPECT_EQ(OptionsOf({"--filter", "A.*", "--timeout", "5"})->timeoutSeconds, 5u);
    EXPECT_TRUE(OptionsOf({"--probe"})->probe);
    for (const Names& bad : {Names{"--filter"}, Names{"--filter", ""}, Names{"--timeout", "0"}, Names{"x", "y"}})
        EXPECT_FALSE(OptionsOf(bad)) << testing::PrintToString(bad);
}

const char kSkips[] = "# why\r\n\nwindows A.* No such thing here\nwine B.b Needs Windows\n";

TEST(KitSkipList, HoldsForItsSystem)
{
    const SkipList windows(kSkips, "windows");
    EXPECT_EQ(windows.ReasonFor("A.a"), "No such thing here");
    EXPECT_EQ(windows.ReasonFor("B.b"), "");
    EXPECT_EQ(SkipList(kSkips, "wine").ReasonFor("B.b"), "Needs Windows");
    EXPECT_TRUE(SkipList("# windows A.* why", "windows").IsEmpty());
}

TEST(KitSkipList, NarrowsAFilter)
{
    const SkipList list("windows A.* x\nwindows B.b y\n", "windows");
    EXPECT_EQ(list.Narrowed("*"), "*-A.*:B.b");
    EXPECT_EQ(list.Narrowed("C*-C.c"), "C*-C.c:A.*:B.b");
}

TEST(KitSkipList, NeedsTheNamesThatAProgramLists)
{
    EXPECT_EQ(ListedTests("Running main()\nA.\n  a\n  b\nS/B/0.  # TypeParam = int\n  c/1  # GetParam() = 4\n"),
              (Names{"A.a", "A.b", "S/B/0.c/1"}));
}

const char kJson[] = R"({"testsuites": [{"name": "A", "testsuite": [
    {"name": "good", "result": "COMPLETED"},
    {"name": "left", "result": "SKIPPED"},
    {"name": "bad", "result": "COMPLETED", "failures": [{"failure": "why"}]}]}]})";
const char kLog[] = "[ RUN      ] A.good\n[       OK ] A.good (0 ms)\n"
                    "[ RUN      ] A.left\nwhy not\n[  SKIPPED ] A.left (0 ms)\n"
                    "[ RUN      ] A.bad\nwhy\n[  FAILED  ] A.bad (1 ms)\n";
const char kEnd[] =
    "[----------] 3 tests from A (1 ms total)\n[==========] 3 tests from 1 test suite ran. (1 ms total)\n";

Counts CountsOf(const std::vector<TestResult>& tests)
{
    Counts counts;
    Count({"x64", "a", tests}, counts);
    return counts;
}

TEST(KitResult, IsReadFromWhatAProgramWrote)
{
    const std::vector<TestResult> tests = TestsOf({kLog + std::string(kEnd), kJson, 1, false});
    EXPECT_EQ(TextOf(CountsOf(tests)), "1 passed, 1 failed, 1 skipped");
    EXPECT_EQ(tests.back().name, "A.bad");
    EXPECT_NE(tests.back().text.find("why\n"), std::string::npos);
    EXPECT_EQ(tests.back().text.find("why not"), std::string::npos);
}

TEST(KitResult, IsReadFromTheLogOfAProgramThatBrokeOff)
{
    const std::vector<TestResult> tests = TestsOf({kLog + std::string("[ RUN      ] A.crash\noh"), "", 70, false});
    EXPECT_EQ(TextOf(CountsOf(tests)), "1 passed, 2 failed, 1 skipped");
    EXPECT_EQ(tests.back().text, "The program ended with code 0x46. Last test: A.crash\n[ RUN      ] A.crash\noh");
}

TEST(KitResult, CountsAProgramThatBrokeOffBetweenItsTests)
{
    const std::vector<TestResult> tests = TestsOf({kLog, "", 70, false});
    EXPECT_EQ(TextOf(CountsOf(tests)), "1 passed, 2 failed, 1 skipped");
    EXPECT_EQ(tests.back().name, "(the program itself)");
}

TEST(KitResult, IsReadFromTheLogWhereThereIsNoOtherFile)
{
    EXPECT_EQ(TextOf(CountsOf(TestsOf({kLog + std::string(kEnd), "", 1, false}))), "1 passed, 1 failed, 1 skipped");
}

TEST(KitResult, FailsForAProgramThatEndsBadly)
{
    const std::string good = "[==========] 0 tests from 0 test suites ran. (0 ms total)\n";
    EXPECT_EQ(TestsOf({good, "{}", 0, false}).size(), 0u);
    EXPECT_EQ(CountsOf(TestsOf({good, "{}", 3, false})).failed, 1);
    EXPECT_EQ(TestsOf({"", "", 124, true}).back().text, "The program hung and was ended. Last test: none\n");
    EXPECT_EQ(CountsOf(TestsOf({"", "", 193, false})).failed, 1);
}

TEST(KitReport, TellsOfEachTest)
{
    const TestResult bad = {"A.<b>", Outcome::Failed, "1 < 2", "png"};
    const std::string html =
        ReportOf({{"x64", "a", {bad, {"A.ok", Outcome::Passed, {}, {}}}}}, {1, 1, 0}, Progress::Ended);
    for (const char* text :
         {"1 passed, 1 failed, 0 skipped", "A.&lt;b&gt;", "1 &lt; 2", "base64,cG5n\"", "A.ok", "Common controls"})
        EXPECT_NE(html.find(text), std::string::npos) << text;
    EXPECT_EQ(html.find("A.<b>"), std::string::npos);
}

TEST(KitReport, TellsThatTheRunGoesOn)
{
    const std::string sign = "1 passed, 0 failed, 0 skipped so far; the run has not ended";
    EXPECT_NE(ReportOf({}, {1, 0, 0}, Progress::Running).find(sign), std::string::npos);
    EXPECT_EQ(ReportOf({}, {1, 0, 0}, Progress::Ended).find("so far"), std::string::npos);
}

TEST(KitChild, ThatIsMissingTellsTheSystemsError)
{
    EXPECT_EQ(RunToEnd(BesideProgram(L"none.exe"), L"", L"NUL", 5).startError, DWORD{ERROR_FILE_NOT_FOUND});
}

TEST(FailurePicture, IsAFileOfItsTest)
{
    EXPECT_EQ(PictureName("Seeds/Paint.Comes/17"), L"Seeds-Paint.Comes-17.png");
}

// The width and the height of a PNG file stand at fixed places, the high byte first.
int NumberAt(const std::string& bytes, std::size_t place)
{
    return static_cast<unsigned char>(bytes[place + 2]) << 8 | static_cast<unsigned char>(bytes[place + 3]);
}

TEST(Screenshot, ShowsTheWholeScreen)
{
    const TempFolder folder;
    const std::wstring path = folder.PathOf(L"screen.png");
    ASSERT_TRUE(SaveScreenshot(path));
    const std::string bytes = ContentOf(path);
    EXPECT_EQ(bytes.substr(1, 3), "PNG");
    EXPECT_EQ(NumberAt(bytes, 16), GetSystemMetrics(SM_CXVIRTUALSCREEN));
    EXPECT_EQ(NumberAt(bytes, 20), GetSystemMetrics(SM_CYVIRTUALSCREEN));
}
} // namespace
