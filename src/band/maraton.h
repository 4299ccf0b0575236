// The Maraton contest: one log for all bands.
#pragma once

#include <cstdint>

namespace band {

/// Stores the QSO under entry in the Maraton log.
void ScrieTabYO2();

/// Looks the call up under its band and day, and learns the name from earlier QSOs.
void IndicInfoDublYO2();

/// Counts QSOs and points of the three bands anew, and shows the log of the band in hand. The first time after the log
/// was emptied in this run it ends the program, with a message.
void SummeYO2();

/// Shows the three bands in the rows of the score, `band` first.
void showMaratonScore(std::int32_t band);

/// What a band procedure does in this contest: log, figures and score of that band.
void takeMaratonBand(std::int32_t band);

/// Shows the log of the band in hand, the newest QSO at the bottom.
void ViewLogGen();

}  // namespace band
