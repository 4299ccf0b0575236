// What a screen reader is told when one picture follows another, or the form gets the focus.
#pragma once

#include <QAccessible>
#include <QWidget>

#include "app/picture.h"

namespace desktop {

class FormView;

/// Where news goes to: QAccessible::updateAccessibility, unless another place is set. Gives the place before.
using NewsSender = void (*)(QAccessibleEvent*);
NewsSender sendNewsTo(NewsSender sender);

/// Something reads the screen out and wants to be told. No more than a look at a flag.
bool isReadOut();

// To be called only while isReadOut(): nobody else waits for what they tell.

/// Tells how the picture in view differs from the one before.
void tellChanges(FormView& view, const app::Picture& before);

/// Tells which control of the form has the focus.
void tellFocus(FormView& view);

/// Tells that the notice line says something else.
void tellNotice(QWidget& line);

}  // namespace desktop
