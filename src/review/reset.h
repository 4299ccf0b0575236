// The end of every job of the review form.
#pragma once

namespace review {

/// Lets go of the buttons of the jobs, and hides grids and frames. The grids of 1296 and of the GHz log stay as they
/// are.
void Anulat();

/// Hides the frames of all jobs and the button that ends an input: a menu entry shows its own behind it. The log leaves
/// the foot of the page free for them.
void hideOtherJobs();

/// Lets the log reach down to the foot of the page, for a job that has nothing there.
void giveLogThePage();

}  // namespace review
