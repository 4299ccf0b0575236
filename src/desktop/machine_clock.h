// The clock of this computer.
#pragma once

#include <stop_token>
#include <utility>

#include "platform/machine.h"

namespace desktop {

class MachineClock final : public platform::Clock {
 public:
    /// `programStops` ends a sleep early, with ProgramEnd.
    explicit MachineClock(std::stop_token programStops = {}) : programStops_(std::move(programStops)) {}

    platform::LocalTime now() const override;
    std::chrono::milliseconds timeOfDay() const override;
    platform::MonotonicTime monotonic() const override;
    void sleepUntil(platform::MonotonicTime deadline) override;

 private:
    std::stop_token programStops_;
};

}  // namespace desktop
