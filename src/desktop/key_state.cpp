#include "desktop/key_state.h"

namespace desktop {

bool PolledKeys::pressed(platform::PolledKey key)
{
    State& state = stateOf(key);
    const bool since = state.wentDownSinceLook.exchange(false);
    return since || state.down;
}

void PolledKeys::forget()
{
    for (State& state : states_)
        state.wentDownSinceLook = false;
}

void PolledKeys::wentDown(platform::PolledKey key)
{
    stateOf(key).down = true;
    stateOf(key).wentDownSinceLook = true;
}

void PolledKeys::wentUp(platform::PolledKey key)
{
    stateOf(key).down = false;
}

void PolledKeys::allUp()
{
    for (State& state : states_)
        state.down = false;
}

}  // namespace desktop
