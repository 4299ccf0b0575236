// What sound libraries write to the terminal by themselves.
#pragma once

namespace desktop {

/// Keeps them from it: a computer without a sound card is no fault, and what fails in a message is told as a notice.
/// Before the first sound, as often as one likes.
void silenceSoundLibraries();

}  // namespace desktop
