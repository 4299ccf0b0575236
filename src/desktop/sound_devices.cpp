#include "desktop/sound_devices.h"

#include <chrono>
#include <string>
#include <utility>

#include "base/runtime_error.h"
#include "desktop/sound_player.h"
#include "platform/files.h"
#include "platform/progress.h"
#include "platform/sound_file.h"

namespace desktop {

namespace {

using namespace std::chrono_literals;

/// So long a device may take to begin and to end, on top of the sound.
constexpr auto patienceWithTheDevice = 1s;

}  // namespace

/// The devices as they are counted on a thread of its own.
class SoundDevices::Count {
 public:
    Count() = default;
    /// The program does not end under a library at work.
    ~Count() { job_.stop(patienceWithTheDevice); }
    Count(const Count&) = delete;
    Count& operator=(const Count&) = delete;

    /// Their number, 0 when nothing is heard of them in time.
    int wait(const std::stop_token& programStops)
    {
        return job_.wait(patienceWithTheDevice, programStops) == SoundJob::Outcome::done ? *number_ : 0;
    }

 private:
    std::shared_ptr<int> number_ = std::make_shared<int>(0);
    SoundJob job_{[number = number_](const std::stop_token&) {
        *number = playingDevices();
        return std::string();
    }};
};

SoundDevices::SoundDevices(platform::Notices& notices, std::stop_token programStops, std::function<void()> played)
    : notices_(notices), programStops_(std::move(programStops)), played_(std::move(played))
{
}

SoundDevices::~SoundDevices()
{
    if (latest_) latest_->stop(patienceWithTheDevice);
}

void SoundDevices::countAhead()
{
    ahead_ = std::make_unique<Count>();
}

int SoundDevices::outputDevices() const
{
    const std::unique_ptr<Count> count = ahead_ ? std::move(ahead_) : std::make_unique<Count>();
    return count->wait(programStops_);
}

void SoundDevices::play(const std::string& path)
{
    auto sound = platform::readSound(platform::resolve(path));
    if (!sound) return;
    if (latest_ && !latest_->stop(0s)) return notices_.notice("The sound device still hangs from the message before");

    switch (playToItsEnd(std::move(*sound))) {
        case SoundJob::Outcome::done:
            if (!latest_->failure().empty()) notices_.notice(latest_->failure());
            return;
        case SoundJob::Outcome::late:
            return notices_.notice("The sound device hangs: the message was cut off");
        case SoundJob::Outcome::stopped:
            throw base::ProgramEnd{};
    }
}

SoundJob::Outcome SoundDevices::playToItsEnd(platform::SoundFile sound)
{
    const auto limit = sound.length + patienceWithTheDevice;
    // The form says itself that a message goes out.
    const platform::LongWork nothingToShow("");
    latest_ = std::make_shared<SoundJob>(
        [sound = std::move(sound)](const std::stop_token& stopped) { return playSound(sound, stopped); });
    const SoundJob::Outcome outcome = latest_->wait(limit, programStops_);
    if (played_) played_();
    return outcome;
}

}  // namespace desktop
