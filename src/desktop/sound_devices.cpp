#include "desktop/sound_devices.h"

#include <chrono>
#include <string>
#include <utility>

#include "base/runtime_error.h"
#include "desktop/sound_player.h"
#include "platform/files.h"
#include "platform/sound_file.h"

namespace desktop {

namespace {

using namespace std::chrono_literals;

/// So long a device may take to begin and to end, on top of the sound.
constexpr auto patience = 1s;

}  // namespace

SoundDevices::SoundDevices(platform::Notices& notices, std::stop_token programStops)
    : notices_(notices), programStops_(std::move(programStops))
{
}

SoundDevices::~SoundDevices()
{
    if (latest_) latest_->stop(patience);
}

int SoundDevices::outputDevices() const
{
    const auto count = std::make_shared<int>(0);
    SoundJob job([count](const std::stop_token&) {
        *count = playingDevices();
        return std::string();
    });
    return job.wait(patience, programStops_) == SoundJob::Outcome::done ? *count : 0;
}

void SoundDevices::play(const std::string& path)
{
    auto sound = platform::readSound(platform::resolve(path));
    if (!sound) return;
    if (latest_ && !latest_->stop(0s)) return notices_.notice("The sound device still hangs from the message before");

    const auto limit = sound->length + patience;
    latest_ = std::make_shared<SoundJob>(
        [sound = std::move(*sound)](const std::stop_token& stopped) { return playSound(sound, stopped); });
    switch (latest_->wait(limit, programStops_)) {
        case SoundJob::Outcome::done:
            if (!latest_->failure().empty()) notices_.notice(latest_->failure());
            return;
        case SoundJob::Outcome::late:
            return notices_.notice("The sound device hangs: the message was cut off");
        case SoundJob::Outcome::stopped:
            throw base::ProgramEnd{};
    }
}

}  // namespace desktop
