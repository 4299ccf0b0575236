// Reading back what was keyed: the changes of the serial lines as text.
#pragma once

#include <string>
#include <vector>

#include "script/machine_record.h"

namespace script {

/// The text of whole messages, joined by one blank. `events` are changes of the lines as the record holds them, in
/// order. Each mark and each space must be one that is keyed at `wpm` words a minute, to the millisecond: StepFailed
/// with the first that is not. A code that no row of the table has reads as "*"; a letter that was cut reads as what
/// was sent of it. Messages without a whole mark, voice among them, say nothing.
std::string keyedText(const std::vector<TimedEvent>& events, float wpm);

}  // namespace script
