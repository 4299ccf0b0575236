#include "band/maraton_totals.h"

#include <algorithm>
#include <string>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/progress.h"
#include "storage/log_statements.h"

namespace band {

namespace {

using State = runstate::Modul1State;

constexpr int columnBand = 7;
constexpr int columnPoints = 10;

constexpr std::array maratonBands = {
    MaratonBand{144, "144", &State::QsoYO144, &State::PctYO144},
    MaratonBand{432, "432", &State::QsoYO432, &State::PctYO432},
    MaratonBand{1296, "1296", &State::QsoYO1296, &State::PctYO1296},
};

void clearTotals()
{
    for (const MaratonBand& row : maratonBands) {
        Modul1.*row.Qso = 0;
        Modul1.*row.Pct = 0;
    }
}

void refuseRowsThatAreGone()
{
    if (Modul1.maratonLogEmptied != 100) return;
    Modul1.maratonLogEmptied = 0;
    throw base::RuntimeError(base::rowGone, "The Maraton log was emptied in this run");
}

}  // namespace

MaratonBands maratonBandsFrom(std::int32_t band)
{
    MaratonBands rows = {&maratonBands[0], &maratonBands[1], &maratonBands[2]};
    std::stable_partition(rows.begin(), rows.end(), [&](const MaratonBand* row) { return row->band == band; });
    return rows;
}

void addToMaratonTotals(const std::string& band, const std::string& points)
{
    const double megahertz = base::numericValue(band);
    for (const MaratonBand& row : maratonBands) {
        if (row.band != megahertz) continue;
        Modul1.*row.Pct = base::roundToInt32(Modul1.*row.Pct + base::numericValue(points));
        Modul1.*row.Qso = base::toInt16(Modul1.*row.Qso + 1LL);
    }
}

void recountMaratonLog(screen::DataControl& data, std::size_t pointsCharacters)
{
    clearTotals();
    refuseRowsThatAreGone();
    data.RecordSource = storage::showTable("UusLGYO2");
    data.Refresh();
    storage::RecordSet& rows = data.Recordset;
    platform::LongWork work("Recount");
    for (long row = 1; !rows.IsEof(); rows.MoveNext(), ++row) {
        work.done(row);
        const std::string band = rows.Field(columnBand);
        addToMaratonTotals(band, base::left(rows.Field(columnPoints), pointsCharacters));
    }
}

}  // namespace band
