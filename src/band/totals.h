// The figures behind the score on the screen, recounted from the log.
#pragma once

namespace band {

/// Sum the table of the band for the stage in hand. Each sets `BandCur` to its band; a caller that needs it restores
/// it.
void Summe144();
void Summe432();
void Summe1296();

/// Sums the GHz log and sets `BandCur` to 1.
void SummeGHz();

/// The Maraton figures into the score rows. Nothing calls it.
void Rezult();

/// What a sum says before it ends the program; the one of 144 says it in two languages.
inline constexpr const char* restartMessage = "DUPA GOLIRE LOG ROG RESTART PROGRAM !";

/// What a sum does when it fails: the log was emptied in this run while the grid still stood on its rows (3167), which
/// ends the program after `message`; any other error leaves the sums as far as they got.
void afterSumError(int error, const char* message);

}  // namespace band
