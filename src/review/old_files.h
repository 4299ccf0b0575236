// Files that an earlier program left in the folder of logs, under names without contest and year.
#pragma once

namespace review {

/// Each deletes the file at `VerifPath`. One that is not there is passed over; one that cannot be deleted gives a
/// notice.
void Verif144();
void Verif432();
void Verif1296();
void VerifGHz();
void VerifMaraton();
void VerifSumm();

/// Deletes all of them for the own call.
void deleteOldFiles();

}  // namespace review
