#include "bench/Report.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace
{
// Linear, plus the scatter of such measurements.
constexpr double kSteepestGrowth = 1.1;

std::string Number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, value < 1 ? "%.4f" : value < 100 ? "%.2f" : "%.0f", value);
    return text;
}

// The system counts processor time too coarsely for short actions.
std::string Processor(double value)
{
    return value > 0 ? Number(value) : "";
}

std::string Verdict(double value, double target)
{
    if (target == 0)
        return "";
    return Number(target) + (value <= target ? " kept" : " **missed**");
}

nlohmann::ordered_json Json(const Samples& samples)
{
    return {{"median", samples.Median()}, {"p95", samples.Percentile95()}};
}
} // namespace

void Comparison::Add(double subjectTime, double baselineTime)
{
    subject.Add(subjectTime);
    baseline.Add(baselineTime);
    ratios.Add(subjectTime / baselineTime);
}

void Report::WriteMarkdown(std::ostream& out) const
{
    out << "### " << title << "\n\n"
        << "| Case | ms | 95% | CPU | baseline ms | 95% | CPU | ratio | 95% | target |\n"
        << "|---|--:|--:|--:|--:|--:|--:|--:|--:|---|\n";
    for (const Comparison& one : comparisons)
        out << "| " << one.name << " | " << Number(one.subject.Median()) << " | " << Number(one.subject.Percentile95())
            << " | " << Processor(one.subjectProcessor) << " | " << Number(one.baseline.Median()) << " | "
            << Number(one.baseline.Percentile95()) << " | " << Processor(one.baselineProcessor) << " | "
            << Number(one.ratios.Median()) << " | " << Number(one.ratios.Percentile95()) << " | "
            << Verdict(one.ratios.Median(), one.target) << " |\n";
    out << "\n| Growth, ms by rows |";
    for (double size : growths.empty() ? std::vector<double>() : growths.front().sizes)
        out << ' ' << static_cast<int>(size) << " |";
    out << " exponent | last step | of the baseline | last step | target |\n|---|";
    for (std::size_t i = 0; !growths.empty() && i < growths.front().sizes.size(); ++i)
        out << "--:|";
    out << "--:|--:|--:|--:|---|\n";
    for (const Growth& one : growths)
    {
        out << "| " << one.name << " |";
        for (double cost : one.subject)
            out << ' ' << Number(cost) << " |";
        for (double exponent : {one.Exponent(), one.LastStep(), one.BaselineExponent(), one.BaselineLastStep()})
            out << ' ' << Number(exponent) << " |";
        out << ' ' << Verdict(std::max(one.Exponent(), one.LastStep()), kSteepestGrowth) << " |\n";
    }
    out << "\n| Value | | target |\n|---|--:|---|\n";
    for (const Value& one : values)
        out << "| " << one.name << " | " << Number(one.value) << ' ' << one.unit << " | "
            << Verdict(one.value, one.target) << " |\n";
    out << '\n';
}

void Report::WriteJson(std::ostream& out) const
{
    nlohmann::ordered_json json = {{"title", title}};
    for (const Comparison& one : comparisons)
        json["comparisons"].push_back({{"name", one.name},
                                       {"ms", Json(one.subject)},
                                       {"baselineMs", Json(one.baseline)},
                                       {"ratio", Json(one.ratios)},
                                       {"processorMs", one.subjectProcessor},
                                       {"baselineProcessorMs", one.baselineProcessor},
                                       {"target", one.target}});
    for (const Growth& one : growths)
        json["growth"].push_back({{"name", one.name},
                                  {"rows", one.sizes},
                                  {"ms", one.subject},
                                  {"baselineMs", one.baseline},
                                  {"exponent", one.Exponent()},
                                  {"exponentOfLastStep", one.LastStep()},
                                  {"baselineExponent", one.BaselineExponent()},
                                  {"baselineExponentOfLastStep", one.BaselineLastStep()},
                                  {"target", kSteepestGrowth}});
    for (const Value& one : values)
        json["values"].push_back(
            {{"name", one.name}, {"value", one.value}, {"unit", one.unit}, {"target", one.target}});
    out << json.dump(2) << '\n';
}
