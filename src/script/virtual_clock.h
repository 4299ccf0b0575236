// The clock of a scripted machine: it stands still until somebody waits.
#pragma once

#include <functional>

#include "platform/machine.h"

namespace script {

class VirtualClock final : public platform::Clock {
 public:
    /// Lets time go by until a deadline, with everything that is due on the way.
    using Sleeper = std::function<void(platform::MonotonicTime deadline)>;

    /// The calendar shows 2026-01-01 12:00:00.
    VirtualClock();

    platform::LocalTime now() const override;
    std::chrono::milliseconds timeOfDay() const override;
    platform::MonotonicTime monotonic() const override { return elapsed_; }
    void sleepUntil(platform::MonotonicTime deadline) override;

    /// Sets the calendar; the monotonic time stays.
    void setCalendar(platform::LocalTime now);

    /// Puts the monotonic time forward, and the calendar with it. Never goes back.
    void moveTo(platform::MonotonicTime time);

    /// Who decides what happens while the program sleeps. Without one the clock just moves.
    void setSleeper(Sleeper sleeper) { sleeper_ = std::move(sleeper); }

 private:
    platform::MonotonicTime elapsed_{};
    std::chrono::local_time<platform::MonotonicTime> calendarAtStart_;
    Sleeper sleeper_;
};

}  // namespace script
