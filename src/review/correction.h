// Deleting one QSO of a log, or one entry of the locator memory, on the review form.
#pragma once

namespace review {

/// Asks, and deletes the current row of what is in view: the log of `BandCur` and `Etapa`, the locator memory, or the
/// Maraton log. QSO numbers and the score in view stay until the log is shown again. A No ends the job.
void OpBDelete_Click();

/// The question before it. A Yes arms `PrintSel`, anything else ends the job.
void Message3();

}  // namespace review
