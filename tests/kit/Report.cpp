#include "tests/kit/Report.h"

#include "tests/kit/SystemFacts.h"
#include "tests/kit/Text.h"

namespace
{
constexpr char kHead[] = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Quorvane test report</title>
<style>
body { font-family: sans-serif; margin: 2em; }
td, th { text-align: left; vertical-align: top; padding: 0.1em 1em 0.1em 0; }
pre { white-space: pre-wrap; background: #f4f4f4; padding: 0.5em; }
img { max-width: 100%; border: 1px solid #888; }
.failed { color: #b00000; }
.skipped { color: #806000; }
</style>
</head>
<body>
<h1>Quorvane test report</h1>
)";

const char* NameOf(Outcome outcome)
{
    switch (outcome)
    {
    case Outcome::Passed:
        return "passed";
    case Outcome::Failed:
        return "failed";
    default:
        return "skipped";
    }
}

std::string SystemTable()
{
    std::string html = "<h2>System</h2>\n<table>\n";
    for (const auto& [name, value] : SystemFacts())
        html += "<tr><th>" + HtmlOf(name) + "</th><td>" + HtmlOf(value) + "</td></tr>\n";
    return html + "</table>\n";
}

std::string TitleOf(const ProgramResult& program)
{
    return HtmlOf(program.arch + " " + program.name);
}

std::string ProgramTable(const std::vector<ProgramResult>& programs)
{
    std::string html = "<h2>Programs</h2>\n<table>\n";
    for (const ProgramResult& program : programs)
    {
        Counts counts;
        Count(program, counts);
        html += "<tr><th>" + TitleOf(program) + "</th><td>" + TextOf(counts) + "</td></tr>\n";
    }
    return html + "</table>\n";
}

std::string Picture(const TestResult& test)
{
    if (test.picture.empty())
        return {};
    return "<p><img alt=\"The screen at the failure\" src=\"data:image/png;base64," + Base64Of(test.picture) +
           "\"></p>\n";
}

std::string Section(const ProgramResult& program, const TestResult& test)
{
    return std::string("<h3 class=\"") + NameOf(test.outcome) + "\">" + TitleOf(program) + ": " + HtmlOf(test.name) +
           "</h3>\n<pre>" + HtmlOf(test.text) + "</pre>\n" + Picture(test);
}

// Every test of one outcome, with what is told of it.
std::string Sections(const std::vector<ProgramResult>& programs, Outcome outcome, const std::string& title)
{
    std::string html;
    for (const ProgramResult& program : programs)
        for (const TestResult& test : program.tests)
            if (test.outcome == outcome)
                html += Section(program, test);
    return html.empty() ? "" : "<h2>" + title + "</h2>\n" + html;
}

std::string TestTable(const std::vector<ProgramResult>& programs)
{
    std::string html = "<h2>All tests</h2>\n<table>\n";
    for (const ProgramResult& program : programs)
        for (const TestResult& test : program.tests)
            html += std::string("<tr class=\"") + NameOf(test.outcome) + "\"><td>" + TitleOf(program) + "</td><td>" +
                    HtmlOf(test.name) + "</td><td>" + NameOf(test.outcome) + "</td></tr>\n";
    return html + "</table>\n";
}
} // namespace

std::string ReportOf(const std::vector<ProgramResult>& programs, const Counts& counts, Progress progress)
{
    const std::string title = TextOf(counts) + (progress == Progress::Running ? " so far; the run has not ended" : "");
    return kHead + ("<p><strong>" + title) + "</strong></p>\n" + SystemTable() + ProgramTable(programs) +
           Sections(programs, Outcome::Failed, "Failed") + Sections(programs, Outcome::Skipped, "Skipped") +
           TestTable(programs) + "</body>\n</html>\n";
}
