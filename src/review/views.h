// Looking through the logs: one grid at a time, with count and points of its table.
#pragma once

namespace review {

/// Begins the job: the buttons of the contest, and the delete button armed for the first row that is touched.
void mnuLogAnzeigen_Click();

/// Show a log. Which one a button means depends on the contest. Whatever fails is passed over: an empty table shows an
/// empty grid.
void OpB144a_Click();
void Opb144b_Click();
void OpB432a_Click();
void OpB432b_Click();
void OpB1296a_Click();
void OpB1296b_Click();

/// Shows the locator memory, sorted by call; `BandCur` 22 stands for it.
void OpBQRALoc_Click();

/// The Maraton log of the band `BandYO`.
void ViewLogGen();

/// A row of a grid was touched: the first touch of the job offers to delete it.
void rowTouched();

/// The grid set-up of the locator memory, sorted by call.
void SortQRA();

/// Hides all grids.
void GrInv();

}  // namespace review
