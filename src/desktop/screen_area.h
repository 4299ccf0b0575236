// The part of the screen that a window can have.
#pragma once

#include <mutex>

#include "platform/machine.h"

namespace desktop {

class ScreenArea final : public platform::Screen {
 public:
    platform::ScreenSize size() const override;

    /// Window thread: takes the size of the primary screen without the desktop's own bars.
    void measure();

 private:
    mutable std::mutex mutex_;
    platform::ScreenSize size_;
};

}  // namespace desktop
