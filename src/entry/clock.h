// The clock in the caption of the entry form.
#pragma once

#include <string>

namespace entry {

/// Once a second: shows the date and time in UTC behind the caption that the form had when it was loaded.
void tmrTimer_Tick();

/// The caption for a UTC date and time as text; `wide` on screens of the design width and above.
std::string clockCaption(const std::string& baseCaption, const std::string& utc, bool wide);

}  // namespace entry
