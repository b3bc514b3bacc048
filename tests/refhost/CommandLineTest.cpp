#include "refhost/program/CommandLine.h"

#include <gtest/gtest.h>

using namespace refhost;

namespace
{

std::string ErrorOf(const std::vector<std::wstring>& arguments)
{
    try
    {
        ParseCommandLine(arguments);
    }
    catch (const CCommandLineError& error)
    {
        return error.what();
    }
    return "was accepted";
}

} // namespace

TEST(CommandLine, NothingIsNeeded)
{
    const CommandLine line = ParseCommandLine({});
    EXPECT_EQ(line.machine, L"");
    EXPECT_EQ(line.open, nullptr);
}

TEST(CommandLine, OptionsComeInAnyOrder)
{
    const CommandLine line = ParseCommandLine(
        {L"--open", L"factory", L"--lang-dir", L"C:\\L", L"--lang", L"zh-CN", L"--machine", L"m.json"});
    EXPECT_EQ(line.machine, L"m.json");
    EXPECT_EQ(line.language, L"zh-CN");
    EXPECT_EQ(line.languageDir, L"C:\\L");
    EXPECT_EQ(line.open, &EDITORS[1]);
}

TEST(CommandLine, MistakesAreNamed)
{
    EXPECT_EQ(ErrorOf({L"machine.json"}), "Unknown option \"machine.json\".");
    EXPECT_EQ(ErrorOf({L"--machine"}), "The option --machine needs a value.");
    EXPECT_EQ(ErrorOf({L"--lang", L""}), "The option --lang needs a value.");
    EXPECT_EQ(ErrorOf({L"--lang", L"en", L"--lang", L"en"}), "The option --lang is given twice.");
    EXPECT_EQ(ErrorOf({L"--machine", L"m.json", L"--open", L"modes"}), "There is no editor \"modes\".");
    EXPECT_EQ(ErrorOf({L"--open", L"printmodes"}), "--open needs --machine.");
}
