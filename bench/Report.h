#pragma once

#include "bench/Samples.h"

#include <ostream>
#include <string>
#include <vector>

// The editor's times beside those of its baseline, taken in turn.
struct Comparison
{
    explicit Comparison(std::string itsName, double itsTarget = 0) : name(std::move(itsName)), target(itsTarget) {}

    std::string name;
    double target; // the ratio to stay below; 0: none
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
