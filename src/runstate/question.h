// Message boxes that the run state keeps: every question about the log and about leaving, and all of the review form.
#pragma once

#include <string>

#include "platform/machine.h"

namespace runstate {

/// Asks, and returns the answer. `MsgText`, `MsgTitle`, `MsgStyle` and `MsgResp` of the run state take the question and
/// the number of the button.
platform::Button ask(const std::string& text, const std::string& title, int style = platform::styleYesNoQuestion);

/// Tells something in a box with one button, without a title. The run state takes it like a question.
void tell(const std::string& text, int style = platform::styleOk);

}  // namespace runstate
