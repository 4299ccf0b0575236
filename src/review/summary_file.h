// The summary file: who worked the contest with what, and the figures of each band.
#pragma once

namespace review {

/// Writes the summary of the contest into the folder Log or onto drive A:. Without that folder or drive nothing
/// happens. A file that cannot be opened there is told, and the program ends. Other errors end the procedure; the file
/// is then not there.
void PSumm();

}  // namespace review
