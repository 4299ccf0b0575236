// Work with a sound device, on a thread of its own: a device may hang, the program may not.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>

namespace desktop {

class SoundJob {
 public:
    /// What to do. It ends soon after a stop is asked for; its result is a sentence on what failed, empty when nothing
    /// did. A copy of it lives on when the device hangs for ever.
    using Work = std::function<std::string(const std::stop_token& stopped)>;

    /// Begins at once.
    explicit SoundJob(Work work);

    enum class Outcome { done, late, stopped };

    /// Waits until the work is done, at most `limit`, or until `programStops` is asked for. But for the first outcome
    /// the work is asked to stop, and left to itself.
    Outcome wait(std::chrono::nanoseconds limit, const std::stop_token& programStops);

    /// Asks the work to stop, and waits for it at most `limit`. True when it has ended.
    bool stop(std::chrono::nanoseconds limit);

    /// What failed, empty when nothing did. Once the work is done.
    const std::string& failure() const;

 private:
    struct State;
    std::shared_ptr<State> state_;
};

}  // namespace desktop
