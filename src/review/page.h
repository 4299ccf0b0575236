// The page of the review form: how it looks when it is loaded, and what of it each contest shows.
//
// A contest takes buttons away and renames others when the job that they belong to begins; nothing brings a button back
// but a fresh load of the form. What a button does in a contest is a matter of its job.
#pragma once

namespace review {

/// Load of the form, a fresh one each time: the size of the screen, the databases, the places of the contest. Notes
/// band and stage, which go back to the first page when the form is left for it. The Maraton contest has a wider log
/// and no EDI export.
void FrmAnzeigen_Load();

/// Gives the frame "VIEW" the buttons of the contest.
void showViewButtons();

/// Gives the frame "DELETE LOG" the buttons of the contest.
void showEmptyingButtons();

/// Gives the frame "PRINT" the buttons of the contest. In the contests of one band and one stage it also takes stage b
/// out of the frame "DELETE LOG".
void showPrintButtons();

/// Gives the frame "BAND EDI" the bands of the contest.
void showEdiBands();

/// Gives the frame "DISKETA" the bands of the contest.
void showDisketteBands();

}  // namespace review
