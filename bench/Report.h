#pragma once

#include "bench/Samples.h"

#include <ostream>
#include <string>
#include <vector>

// The editor's times and those of its baseline, measured alternately.
struct Comparison
{
    explicit Comparison(std::string itsName, double itsTarget = 0) : name(std::move(itsName)), target(itsTarget) {}

    std::string name;
    double target; // the highest ratio; 0: none
    Samples subject;
    Samples baseline;
    Samples ratios;              // round by round
    double subjectProcessor = 0; // per run
    double baselineProcessor = 0;

    void Add(double subjectTime, double baselineTime);
};

struct Growth
{
    std::string name;
    std::vector<double> sizes;
    std::vector<double> subject; // medians
    std::vector<double> baseline;

    double Exponent() const { return GrowthExponent(sizes, subject); }
    // Between the two largest sizes, where constant costs matter least.
    double LastStep() const { return LastStep(subject); }
    double BaselineExponent() const { return GrowthExponent(sizes, baseline); }
    double BaselineLastStep() const { return LastStep(baseline); }

private:
    double LastStep(const std::vector<double>& costs) const
    {
        return GrowthExponent({sizes.end() - 2, sizes.end()}, {costs.end() - 2, costs.end()});
    }
};

struct Value
{
    std::string name;
    double value;
    std::string unit;
    double target; // 0: none
};

struct Report
{
    std::string title;
    std::vector<Comparison> comparisons;
    std::vector<Growth> growths;
    std::vector<Value> values;

    void WriteMarkdown(std::ostream& out) const;
    void WriteJson(std::ostream& out) const;
};
