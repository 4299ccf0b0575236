// Which of the keys that long work asks for are down. The window thread tells, the program thread asks.
#pragma once

#include <array>
#include <atomic>

#include "platform/machine.h"

namespace desktop {

class PolledKeys final : public platform::KeyState {
 public:
    bool pressed(platform::PolledKey key) override;
    void forget() override;

    /// Window thread: the key went down in a window of the program.
    void wentDown(platform::PolledKey key);
    /// Window thread: the key is up again, wherever that happened.
    void wentUp(platform::PolledKey key);
    /// Window thread: the keys belong to another application now.
    void allUp();

 private:
    struct State {
        std::atomic<bool> down = false;
        std::atomic<bool> wentDownSinceLook = false;
    };

    State& stateOf(platform::PolledKey key) { return states_.at(static_cast<std::size_t>(key)); }

    std::array<State, 2> states_;
};

}  // namespace desktop
