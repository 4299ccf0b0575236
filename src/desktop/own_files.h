// What the program brings along for its look: its icon, and fonts for a system that has none.
#pragma once

#include <QString>

namespace desktop {

/// Gives all windows the icon of the program, and the name of the menu entry that they belong to.
void showOwnIcon();

/// Takes in those fonts in the folder `fonts` of `ownFolder`, where the program stands, whose family the system lacks.
/// How many files were taken; none where there is no such folder.
int addOwnFonts(const QString& ownFolder);

}  // namespace desktop
