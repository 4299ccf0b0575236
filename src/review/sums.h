// The final score: every log counted and added up from its stored rows. Points were given when a QSO was logged; here
// they are only added.
#pragma once

#include <cstdint>

namespace review {

/// Count one table into its totals of the run state, set `BandCur` to its band (the GHz log leaves it), and show
/// points and count in `Frame4`. Whatever fails is passed over: an empty table counts 0. The newest row is current
/// behind it. Points are read as the first six characters of their column.
void Summe144a();
void Summe144b();
void Summe432a();
void Summe432b();
void Summe1296a();
void Summe1296b();
void SummeGHz();

/// Shows points and count in `Frame4`, with its labels, which the station data hide.
void showSum(std::int32_t points, long qsos);

/// Counts the Maraton log by band into its totals. Ends the program, after telling why, when that log was emptied in
/// this run.
void SummeYO2();

/// Counts what the contest consists of. Where each band is a report of its own, `SumQso` and `SumPct` are those of both
/// stages of `BandCur`. Nothing for contests of one table.
void ClcSum();

}  // namespace review
