// What benchmarks measure and how they tell it to whoever collects the figures.
#pragma once

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

namespace bench {

/// A line for the collector. `name` without blanks; it stands behind the name of the program in the table of promises.
inline void tellFigure(const std::string& name, double value, const char* unit)
{
    std::printf("figure\t%s\t%.9g\t%s\n", name.c_str(), value, unit);
    std::fflush(stdout);
}

/// The value below which this part of all values lies, 0 the least and 1 the most; 0 where there are none.
inline double quantile(std::vector<double> values, double part)
{
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

/// Memory that this process has in use now, of its own and shared; 0 where the system does not tell.
inline double residentMegabytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word != "VmRSS:") continue;
        double kilobytes = 0;
        status >> kilobytes;
        return kilobytes / 1024;
    }
    return 0;
}

}  // namespace bench
