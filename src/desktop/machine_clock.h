// The clock of this computer.
#pragma once

#include "platform/machine.h"

namespace desktop {

class MachineClock final : public platform::Clock {
 public:
    platform::LocalTime now() const override;
    platform::MonotonicTime monotonic() const override;
    void sleepUntil(platform::MonotonicTime deadline) override;
};

}  // namespace desktop
