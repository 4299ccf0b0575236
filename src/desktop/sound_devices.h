// The sound devices of this computer.
#pragma once

#include <istream>

#include "platform/machine.h"

namespace desktop {

/// Number of lines of the kernel's list of sound streams that name a device which can play.
int playbackDevices(std::istream& streams);

class SoundDevices final : public platform::Sound {
 public:
    int outputDevices() const override;
};

}  // namespace desktop
