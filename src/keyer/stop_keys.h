// The keys that stop what is being sent, wherever the focus is.
#pragma once

namespace keyer {

/// True when End or Escape is down, or went down since the last look. Both are looked at, so that a press of either is
/// used up.
bool stopKeyPressed();

}  // namespace keyer
