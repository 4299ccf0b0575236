// What a screen reader calls the controls of a picture, and what it says about them.
#pragma once

#include <QString>

#include "app/picture.h"

namespace desktop {

/// Name of a control: its caption without the mark of the access key, for a field the label that belongs to it, for a
/// value its heading and the value.
QString accessibleName(const app::ControlPicture& control, const app::Picture& picture);

/// What is to be said beside the name: the verdict on a call, then the tooltip. Empty for most.
QString accessibleDescription(const app::ControlPicture& control, const app::Picture& picture);

/// The keys that pick it, "Alt+4"; empty when there are none.
QString accessKeyText(const app::ControlPicture& control);

/// A control that a screen reader tells of. Lines and labels that say nothing are left out.
bool isAccessible(const app::ControlPicture& control, const app::Picture& picture);

/// The picture of a control, nullptr when it is not seen.
const app::ControlPicture* findControl(const app::Picture& picture, const screen::Control* control);

}  // namespace desktop
