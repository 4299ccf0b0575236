// Deleting a row of the log from the entry form, through its grid.
#pragma once

namespace entry {

/// What touching a row of any grid raises: asks, deletes the current row of the table in view, and shows the log and
/// its recounted score. The codes stay: a warning tells the operator to look at the next one.
void Mesagge2();

/// Deletes the current row of the table of the band and stage, and recounts the table. Only a table that is in view is
/// touched. Without a current row the table is just recounted; a row that is gone already leaves everything as it is.
void Sterge();

}  // namespace entry
