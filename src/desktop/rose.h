// The compass rose behind the controls. Its needle is a line of the form.
#pragma once

#include "desktop/look.h"

namespace desktop {

/// Whether there is a heading to be seen.
bool needleIsSeen(const app::Picture& picture);

/// The rose has one size on all screens, so on a large one it is small. There a dial around it repeats the heading: its
/// radius in pixels by the room that the other controls leave, 0 where there is too little.
double radiusOfDial(const app::Picture& picture, const FormScale& scale);

/// Pixels of the window that the rose with its letters and a dial of this radius covers.
QRect placeOfRose(const screen::Rose& rose, double dial, const FormScale& scale);

void paintRose(Canvas& canvas, const app::Picture& picture);

}  // namespace desktop
