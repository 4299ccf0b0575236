// A figure that a benchmark has measured, told to whoever collects them.
#pragma once

#include <algorithm>
#include <cstdio>
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

}  // namespace bench
