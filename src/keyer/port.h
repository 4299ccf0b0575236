// The serial port around a message, in CW and in voice.
#pragma once

#include "base/runtime_error.h"

namespace keyer {

/// Drops both lines and gives the port back, however a message ends.
class LinesDown {
 public:
    LinesDown() = default;
    LinesDown(const LinesDown&) = delete;
    LinesDown& operator=(const LinesDown&) = delete;
    ~LinesDown();
};

/// Takes the port of the set-up page into use: the transmitter goes on, the key is up. Error 8002 without it.
void openPort();

/// What an error does to a message. Without the port the operator is told and brought back to the set-up page, and
/// the error goes on up to end the handler that was sending. Any other one is a notice.
void giveUpWithoutPort(const base::RuntimeError& error);

}  // namespace keyer
