#include "fuzz/recount.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace fuzz {

namespace {

constexpr std::size_t pointsOfBandLog = 8;
constexpr std::size_t bandInMaratonLog = 6;
constexpr std::size_t pointsOfMaratonLog = 9;

/// Counts rows, and rounds to a whole number at each step as a running total does.
class Counter {
 public:
    void add(const std::string& points)
    {
        constexpr std::size_t seenByReview = 6;
        constexpr double most = 2147483647.0;
        ++counted_.count;
        if (!counted_.points) return;
        const double sum = std::nearbyint(*counted_.points + numberIn(points));
        counted_.points = sum;
        if (points.size() > seenByReview || std::abs(sum) > most) counted_.points.reset();
    }

    const Counted& result() const { return counted_; }

 private:
    Counted counted_{.count = 0, .points = 0.0};
};

/// The rows of a band and stage.
Counted countedIn(const Rows& rows)
{
    Counter counter;
    for (const auto& [key, row] : rows)
        counter.add(row.at(pointsOfBandLog));
    return counter.result();
}

/// Those rows of the Maraton log that are of this band.
Counted countedIn(const Rows& maratonLog, const std::string& band)
{
    Counter counter;
    for (const auto& [key, row] : maratonLog)
        if (numberIn(row.at(bandInMaratonLog)) == numberIn(band)) counter.add(row.at(pointsOfMaratonLog));
    return counter.result();
}

}  // namespace

const Figures* figuresOf(const std::string& table)
{
    const auto* const found =
        std::find_if(figures.begin(), figures.end(), [&](const Figures& row) { return row.table == table; });
    return found == figures.end() ? nullptr : found;
}

void countInto(Counts& counts, const std::string& table, const Rows& rows)
{
    if (table != maratonTable) {
        counts[table] = countedIn(rows);
        return;
    }
    counts[table] = {.count = static_cast<long>(rows.size()), .points = std::nullopt};
    for (const char* band : maratonBands)
        counts[band] = countedIn(rows, band);
}

double numberIn(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of(' ');
    if (begin == std::string::npos) return 0;
    std::string number(1, text[begin]);
    if (text[begin] != '-' && text[begin] != '+') number = "+" + number;
    bool point = text[begin] == '.';
    for (std::size_t at = begin + 1; at < text.size(); ++at) {
        const bool isPoint = text[at] == '.' && !point;
        point = point || isPoint;
        if (!isPoint && (text[at] < '0' || text[at] > '9')) break;
        number.push_back(text[at]);
    }
    return std::strtod(number.c_str(), nullptr);
}

}  // namespace fuzz
