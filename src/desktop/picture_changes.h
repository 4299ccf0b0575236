// What has to be painted anew when one picture follows another.
#pragma once

#include <QRegion>

#include "app/picture.h"
#include "desktop/form_scale.h"

namespace desktop {

/// Pixels of the window that a control covers.
QRect placeOfControl(const app::ControlPicture& control, const FormScale& scale);

/// True when both look the same in the window.
bool looksSame(const app::ControlPicture& a, const app::ControlPicture& b);

/// True when both have the same form in the same size, so that what did not change can stay.
bool sameForm(const app::Picture& a, const app::Picture& b);

/// The part of the window in which two pictures of the same form differ.
QRegion changedRegion(const app::Picture& before, const app::Picture& after, const FormScale& scale);

}  // namespace desktop
