// The compass rose behind the controls. Its needle is a line of the form.
#pragma once

#include "desktop/look.h"

namespace desktop {

/// Pixels of the window that the rose with its letters covers.
QRect placeOfRose(const screen::Rose& rose, const FormScale& scale);

void paintRose(Canvas& canvas, const screen::Rose& rose);

}  // namespace desktop
