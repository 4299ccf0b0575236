// The Maraton contest: one log for all bands.
#pragma once

namespace band {

/// Stores the QSO under entry in the Maraton log.
void ScrieTabYO2();

/// Looks the call up under its band and day, and learns the name from earlier QSOs.
void IndicInfoDublYO2();

/// Shows the log of the band in hand, the newest QSO at the bottom.
void ViewLogGen();

}  // namespace band
