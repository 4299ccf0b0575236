// The keyboard of a scripted machine: which keys are down, for repeats and for who polls them.
#pragma once

#include <array>
#include <vector>

#include "platform/keys.h"
#include "platform/machine.h"

namespace script {

class VirtualKeyboard final : public platform::KeyState {
 public:
    bool pressed(platform::PolledKey key) override;
    void forget() override;

    /// A key goes down, or comes up.
    void press(const platform::Key& key);
    void release(const platform::Key& key);
    bool isDown(const platform::Key& key) const;

    /// Changes only what is polled.
    void hold(const platform::Key& key);
    void letGo(const platform::Key& key);

 private:
    struct Polled {
        bool down = false;
        bool wentDownSinceLook = false;
    };

    Polled* polledStateOf(const platform::Key& key);

    std::vector<platform::Key> down_;
    std::array<Polled, 2> polled_;
};

}  // namespace script
