// QSOs and points of the Maraton contest by band, counted from its one log. Both forms count with this.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "runstate/modul1.h"
#include "screen/control.h"

namespace band {

/// A band of the contest and where its figures stand.
struct MaratonBand {
    std::int32_t band;  ///< MHz
    const char* name;   ///< as the log and the score write it
    std::int16_t runstate::Modul1State::*Qso;
    std::int32_t runstate::Modul1State::*Pct;
};

using MaratonBands = std::array<const MaratonBand*, 3>;

/// The three bands as the score shows them: this one first, the others behind it from the lowest up. A band that is
/// none of the contest's changes nothing of the order.
MaratonBands maratonBandsFrom(std::int32_t band);

/// Takes one QSO into the figures of its band, both as columns of the log: `band` a number in MHz, the numeric value of
/// `points` rounded to a whole number. A band that is none of the contest's counts nowhere. Error 6 when a figure
/// overflows.
void addToMaratonTotals(const std::string& band, const std::string& points);

constexpr std::size_t wholeValue = std::numeric_limits<std::size_t>::max();

/// Counts the figures of all bands anew from the rows of `data`, which shows the whole log afterwards. Of the points of
/// a row only the first `pointsCharacters` are looked at. Error 3167 the first time after the log was emptied in this
/// run (`maratonLogEmptied` 100): the grids still stand on rows that are gone. After an error the figures are as far as
/// they got.
void recountMaratonLog(screen::DataControl& data, std::size_t pointsCharacters = wholeValue);

}  // namespace band
