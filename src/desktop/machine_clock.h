// The clock of this computer.
#pragma once

#include <functional>
#include <stop_token>
#include <utility>

#include "platform/machine.h"

namespace desktop {

class MachineClock final : public platform::Clock {
 public:
    /// `programStops` ends a sleep early, with ProgramEnd. `slept` is called behind every sleep.
    explicit MachineClock(std::stop_token programStops = {}, std::function<void()> slept = {})
        : programStops_(std::move(programStops)), slept_(std::move(slept))
    {
    }

    platform::LocalTime now() const override;
    std::chrono::milliseconds timeOfDay() const override;
    platform::MonotonicTime monotonic() const override;
    void sleepUntil(platform::MonotonicTime deadline) override;

 private:
    std::stop_token programStops_;
    std::function<void()> slept_;
};

}  // namespace desktop
