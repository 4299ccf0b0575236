// Voice messages: a sound file goes out through the sound card, with the transmitter held on by the line that the CW
// keyer uses.
#pragma once

namespace keyer {

/// Plays `WavPath` to its end, the transmitter on meanwhile; no events are served. A file that is missing plays
/// nothing. Without the port the sound goes out alone, so that the operator can let the voice switch the transmitter;
/// why there is no port is a notice.
void GoSSB();

/// True when the mode of work is a voice mode and the computer may play in it.
bool voiceAllowed();

}  // namespace keyer
