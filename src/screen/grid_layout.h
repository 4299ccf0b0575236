// The grid set-up: which grid shows, and how wide its columns are.
//
// Each table has a grid on the entry form and one on the review form. GridRebuild of the run state says which of the
// two the next set-up acts on: 100 the entry form, 1000 the review form, any other value neither. A set-up makes the
// table's grid visible and hides the others of that form; the counter column is never seen.
#pragma once

namespace screen {

void layOutUus144a();
void layOutUus144b();
void layOutUus432a();
void layOutUus432b();
void layOutUus1296a();
void layOutUus1296b();
void layOutUusGHz();
void layOutUusLGYO2();

/// Shows the locator memory on the review form, whatever GridRebuild says.
void layOutQra();

}  // namespace screen
