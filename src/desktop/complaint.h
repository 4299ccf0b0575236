// What is wrong with the way in which the program was called.
#pragma once

#include <QString>

namespace desktop {

/// Tells whoever called the program, before it has a window: where it was called from.
void complain(const QString& text);

}  // namespace desktop
