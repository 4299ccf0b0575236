// The widest values that an operator meets, put into a page where the state at hand has shorter ones.
#pragma once

#include "app/picture.h"

namespace layout {

/// The page with the widest plausible values in its fields, figures, lists and grids.
app::Picture filledIn(const app::Picture& page);

/// Whether there is a widest value for this text box, which then has to be seen as a whole.
bool showsAll(const app::ControlPicture& box);

}  // namespace layout
