#pragma once

#include <string>
#include <vector>

// Milliseconds since some moment.
double Now();
// Milliseconds of processor time that this process has taken; counted by the system in steps of several.
double ProcessorTime();

// One figure, measured again and again.
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

// The exponent with which a cost grows: the slope of the straight line through the logarithms.
double GrowthExponent(const std::vector<double>& sizes, const std::vector<double>& costs);
