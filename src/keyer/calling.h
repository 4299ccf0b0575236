// Automatic calling: the message of F1 again and again, with a pause in which the answer can be typed.
#pragma once

namespace keyer {

/// Waits `txtPauseCW` seconds and sends the message of F1, until a key in an entry field, End or Escape breaks the
/// wait. Events are served meanwhile, so the handler that called it stays open.
void Pauza();

/// The same in voice, where `WavPath` is played. `TxtPauseSSB` holds the pause in Fm as well.
void PauzaSSB();

}  // namespace keyer
