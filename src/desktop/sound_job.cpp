#include "desktop/sound_job.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace desktop {

/// Belongs to both threads: whichever is the last takes it away.
struct SoundJob::State {
    std::mutex mutex;
    std::condition_variable_any changed;
    std::stop_source stopping;
    bool done = false;
    std::string failure;
};

SoundJob::SoundJob(Work work) : state_(std::make_shared<State>())
{
    std::thread([state = state_, work = std::move(work)] {
        std::string failure = work(state->stopping.get_token());
        {
            const std::lock_guard lock(state->mutex);
            state->failure = std::move(failure);
            state->done = true;
        }
        state->changed.notify_all();
    }).detach();
}

SoundJob::Outcome SoundJob::wait(std::chrono::nanoseconds limit, const std::stop_token& programStops)
{
    std::unique_lock lock(state_->mutex);
    if (state_->changed.wait_for(lock, programStops, limit, [this] { return state_->done; })) return Outcome::done;
    state_->stopping.request_stop();
    return programStops.stop_requested() ? Outcome::stopped : Outcome::late;
}

bool SoundJob::stop(std::chrono::nanoseconds limit)
{
    state_->stopping.request_stop();
    std::unique_lock lock(state_->mutex);
    return state_->changed.wait_for(lock, limit, [this] { return state_->done; });
}

const std::string& SoundJob::failure() const
{
    return state_->failure;
}

}  // namespace desktop
