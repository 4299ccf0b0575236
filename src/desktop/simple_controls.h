// Labels, buttons, options, check boxes, frames and lines in the window.
#pragma once

#include "desktop/look.h"

namespace desktop {

void paintLabel(Canvas& canvas, const app::ControlPicture& label);
/// `pressed`: the pointer holds it down.
void paintCommandButton(Canvas& canvas, const app::ControlPicture& button, bool pressed);
void paintOptionButton(Canvas& canvas, const app::ControlPicture& option, bool pressed);
void paintCheckBox(Canvas& canvas, const app::ControlPicture& box, bool pressed);
void paintFrame(Canvas& canvas, const app::ControlPicture& frame);
void paintLine(Canvas& canvas, const app::ControlPicture& line);

/// Pixels of the window that a line covers.
QRect placeOfLine(const app::ControlPicture& line, const FormScale& scale);

}  // namespace desktop
