// The best QSO of a band, and the first and last day of its log, for the EDI pages.
#pragma once

namespace review {

/// Walk the log of a band: `TxtTDate1` and `TxtTDate2` take the first and the last date, the boxes of the best QSO its
/// call, locator and points (of two with the same points, the first), the QSO counters of the run state the rows. Where
/// a contest has stages, stage B is read too. An empty table is told with "Fisier fara date !" and hides the first EDI
/// page. They set `BandCur` to their band.
void QRAMax144();
void QraMax432();
void QRAMax1296();

/// The same for the microwaves, without a best QSO.
void QRAMaxGHz();

}  // namespace review
