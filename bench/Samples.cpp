#include "bench/Samples.h"

#include <algorithm>
#include <cmath>
#include <windows.h>

double Now()
{
    static const double ticksPerMillisecond = [] {
        LARGE_INTEGER frequency;
        QueryPerformanceFrequency(&frequency);
        return static_cast<double>(frequency.QuadPart) / 1000;
    }();
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return static_cast<double>(counter.QuadPart) / ticksPerMillisecond;
}

double ProcessorTime()
{
    constexpr double kUnitsPerMillisecond = 10000;
    FILETIME created, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    const auto units = [](const FILETIME& time) {
        return static_cast<double>(static_cast<ULONGLONG>(time.dwHighDateTime) << 32 | time.dwLowDateTime);
    };
    return (units(kernel) + units(user)) / kUnitsPerMillisecond;
}

double Samples::Quantile(double share) const
{
    std::vector<double> sorted = m_values;
    std::sort(sorted.begin(), sorted.end());
    const double place = share * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    return sorted[below] + (sorted[above] - sorted[below]) * (place - static_cast<double>(below));
}

double GrowthExponent(const std::vector<double>& sizes, const std::vector<double>& costs)
{
    const auto count = static_cast<double>(sizes.size());
    double sumX = 0, sumY = 0, sumXX = 0, sumXY = 0;
    for (std::size_t i = 0; i < sizes.size(); ++i)
    {
        const double x = std::log(sizes[i]);
        const double y = std::log(costs[i]);
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
}
