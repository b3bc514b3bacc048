#pragma once

#include <string>
#include <vector>

// Milliseconds since a fixed moment.
double Now();
// Processor time of this process in milliseconds. The system counts it in steps of several.
double ProcessorTime();

// One figure, measured repeatedly.
class Samples
{
public:
    void Add(double value) { m_values.push_back(value); }

    double Median() const { return Quantile(0.5); }
    double Percentile95() const { return Quantile(0.95); }

private:
    double Quantile(double share) const;

    std::vector<double> m_values;
};

// The exponent with which a cost grows: the slope of the line through the logarithms.
double GrowthExponent(const std::vector<double>& sizes, const std::vector<double>& costs);
