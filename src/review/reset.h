// The end of every job of the review form.
#pragma once

namespace review {

/// Lets go of the buttons of the jobs, and hides grids and frames. The grids of 1296 and of the GHz log stay as they
/// are.
void Anulat();

}  // namespace review
