// The summary sheet: station, figures of the contest, and a line to sign by hand.
#pragma once

namespace review {

/// Counts the contest anew and prints its sheet, that of `BandCur` where each band is a report of its own. Hides the
/// station data. Nothing prints after the printer was refused (`PrintSel` 25); a printer that fails is passed over with
/// a notice.
void PSummary();

}  // namespace review
