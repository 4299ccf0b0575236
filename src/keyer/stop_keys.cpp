#include "keyer/stop_keys.h"

#include "platform/machine.h"

namespace keyer {

bool stopKeyPressed()
{
    platform::KeyState& keys = platform::machine().keyState;
    const bool end = keys.pressed(platform::PolledKey::end);
    const bool escape = keys.pressed(platform::PolledKey::escape);
    return end || escape;
}

}  // namespace keyer
