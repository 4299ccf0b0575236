// The menu bar of the picture.
#pragma once

#include <QMenuBar>
#include <functional>
#include <vector>

#include "app/picture.h"

namespace desktop {

/// Picks an entry of the menu.
using MenuPicker = std::function<void(screen::Control*)>;

/// True when both menus look the same and lead to the same entries.
bool sameMenu(const std::vector<app::MenuPicture>& a, const std::vector<app::MenuPicture>& b);

/// Fills `bar` with the entries of the menu, in place of what it held.
void fillMenuBar(QMenuBar& bar, const std::vector<app::MenuPicture>& menu, const MenuPicker& pick);

/// The letters, as capitals, of the entries on the bar that open a menu.
QString lettersOfMenus(const std::vector<app::MenuPicture>& menu);

}  // namespace desktop
