// The sound devices of this computer.
#pragma once

#include <functional>
#include <memory>
#include <stop_token>

#include "desktop/sound_job.h"
#include "platform/machine.h"
#include "platform/sound_file.h"

namespace desktop {

class SoundDevices final : public platform::Sound {
 public:
    /// `notices` outlives the devices. `programStops` ends a sound early, with ProgramEnd. `played` is called behind
    /// every sound.
    explicit SoundDevices(platform::Notices& notices, std::stop_token programStops = {},
                          std::function<void()> played = {});

    /// Ends a sound that still plays.
    ~SoundDevices() override;

    SoundDevices(const SoundDevices&) = delete;
    SoundDevices& operator=(const SoundDevices&) = delete;

    /// Begins to count the devices: it takes a while, in which the caller has other things to do. The next call of
    /// outputDevices() gives that count.
    void countAhead();

    int outputDevices() const override;
    void play(const std::string& path) override;

 private:
    SoundJob::Outcome playToItsEnd(platform::SoundFile sound);

    class Count;

    platform::Notices& notices_;
    std::stop_token programStops_;
    std::function<void()> played_;
    mutable std::unique_ptr<Count> ahead_;
    std::shared_ptr<SoundJob> latest_;  ///< may still be at work when its device hangs
};

}  // namespace desktop
