// The sound devices of this computer.
#pragma once

#include <memory>
#include <stop_token>

#include "desktop/sound_job.h"
#include "platform/machine.h"

namespace desktop {

class SoundDevices final : public platform::Sound {
 public:
    /// `notices` outlives the devices. `programStops` ends a sound early, with ProgramEnd.
    explicit SoundDevices(platform::Notices& notices, std::stop_token programStops = {});

    /// Ends a sound that still plays.
    ~SoundDevices() override;

    SoundDevices(const SoundDevices&) = delete;
    SoundDevices& operator=(const SoundDevices&) = delete;

    int outputDevices() const override;
    void play(const std::string& path) override;

 private:
    platform::Notices& notices_;
    std::stop_token programStops_;
    std::shared_ptr<SoundJob> latest_;  ///< may still be at work when its device hangs
};

}  // namespace desktop
