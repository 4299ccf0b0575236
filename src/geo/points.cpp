#include "geo/points.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/number.h"
#include "base/text.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace geo {

namespace {

/// A band on which the contest has no value of its own: the last points stay.
constexpr int keep = 0;
constexpr std::size_t bandCount = 9;

/// The microwave list offers 10368, this table is keyed on 10380: a QSO on 10368 meets no value and keeps the last one.
constexpr std::array<long, bandCount> bands = {144, 432, 1296, 2320, 5760, 10380, 24192, 47088, 76000};

struct PointsRow {
    int contest;
    std::array<int, bandCount> factors;  ///< points per kilometre
    PointsTail tail;
    bool flagOnlyWhereKept;  ///< the named bands end before the flag is looked at
};

constexpr PointsRow pointsRows[] = {
    //    144 432 1296 2320 5760 10380 24192 47088 76000
    {0, {{1, 1, 1, keep, keep, keep, keep, keep, keep}}, PointsTail::nothing, false},
    {1, {{1, 1, 1, 1, 1, 1, 1, 1, 1}}, PointsTail::nothing, false},
    {2, {{1, 1, 1, 1, 1, 1, 1, 1, 1}}, PointsTail::prefix, false},
    {3, {{1, 5, 10, keep, keep, keep, keep, keep, keep}}, PointsTail::nothing, false},
    {4, {{1, 1, 1, 1, 1, 1, 1, 1, 1}}, PointsTail::duplicateFlag, false},
    {5, {{1, 2, 4, keep, keep, keep, keep, keep, keep}}, PointsTail::prefix, false},
    {6, {{1, 1, 1, 1, 1, 1, 1, 1, 1}}, PointsTail::nothing, false},
    {7, {{1, 1, 1, 1, 1, 1, 1, 1, 1}}, PointsTail::nothing, false},
    {8, {{1, 5, 10, keep, keep, keep, keep, keep, keep}}, PointsTail::duplicateFlag, true},
    {100, {{1, 5, 10, 1, 3, 6, 9, 12, 15}}, PointsTail::duplicateFlag, true},
    {101, {{1, 1, 1, 1, 1, 1, 1, 1, 1}}, PointsTail::duplicateFlag, false},
};

struct MultiplierRow {
    int contest;
    long band;
    int multiplier;
};

/// The summary is made for 432 alone, so the rows of 1296 are never reached.
constexpr MultiplierRow multiplierRows[] = {
    {0, 432, 5},     {0, 1296, 3}, {3, 432, 5},  {100, 432, 5}, {3, 1296, 10},
    {100, 1296, 10}, {5, 432, 2},  {5, 1296, 4}, {7, 432, 2},
};

/// Contests whose rule does not name its bands give the distance on whatever band.
bool namesItsBands(const PointsRow& row)
{
    return std::find(row.factors.begin(), row.factors.end(), keep) != row.factors.end() || row.contest == 100;
}

int factorOf(const PointsRow& row, long band)
{
    const auto* const found = std::find(bands.begin(), bands.end(), band);
    if (found != bands.end()) return row.factors.at(static_cast<std::size_t>(found - bands.begin()));
    return namesItsBands(row) ? keep : 1;
}

}  // namespace

PointsRule pointsFor(int contest, long bandMHz, long km)
{
    const auto* const row = std::find_if(std::begin(pointsRows), std::end(pointsRows),
                                         [&](const PointsRow& candidate) { return candidate.contest == contest; });
    if (row == std::end(pointsRows)) return {};
    const int factor = factorOf(*row, bandMHz);
    if (factor == keep) return {std::nullopt, row->tail};
    return {factor * km, row->flagOnlyWhereKept ? PointsTail::nothing : row->tail};
}

bool isRomanianCall(std::string_view call)
{
    constexpr std::array<std::string_view, 4> prefixes = {"YO", "YR", "YQ", "YP"};
    return std::find(prefixes.begin(), prefixes.end(), call.substr(0, 2)) != prefixes.end();
}

std::optional<int> MultBand(int contest, long bandMHz)
{
    for (const MultiplierRow& row : multiplierRows)
        if (row.contest == contest && row.band == bandMHz) return row.multiplier;
    return std::nullopt;
}

void ClcPct()
{
    if (base::trim(FrmQSO.TxtRSTr3.Text) == base::trim(Modul1.MyQRA)) {
        Modul1.PctCur = "1";
        return;
    }
    const PointsRule rule = pointsFor(Modul1.ConcId, Modul1.BandCur, std::lround(Modul1.Qrb));
    if (rule.points) Modul1.PctCur = base::toText(*rule.points);
    if (rule.tail == PointsTail::prefix && !isRomanianCall(base::trim(Modul1.Indic))) Modul1.PctCur = "0";
    if (rule.tail == PointsTail::duplicateFlag && FrmQSO.DubActual == 10) {
        Modul1.PctCur = "0";
        FrmQSO.DubActual = 0;
    }
}

}  // namespace geo
