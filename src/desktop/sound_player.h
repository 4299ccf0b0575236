// Playing a sound through the default device of this computer. Every call may hang as long as the device does.
#pragma once

#include <stop_token>
#include <string>

#include "platform/sound_file.h"

namespace desktop {

/// Number of devices that can play, without one that only pretends to.
int playingDevices();

/// Plays a sound to the end of what can be heard of it. Returns what failed, empty when nothing did. Ends within some
/// hundredths of a second when a stop is asked for.
std::string playSound(const platform::SoundFile& sound, const std::stop_token& stopped);

}  // namespace desktop
