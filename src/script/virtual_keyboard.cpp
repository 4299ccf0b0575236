#include "script/virtual_keyboard.h"

#include <algorithm>
#include <utility>

namespace script {

using platform::Key;
using platform::PolledKey;

bool VirtualKeyboard::pressed(PolledKey key)
{
    Polled& state = polled_.at(static_cast<std::size_t>(key));
    const bool since = std::exchange(state.wentDownSinceLook, false);
    return since || state.down;
}

void VirtualKeyboard::forget()
{
    for (Polled& state : polled_)
        state.wentDownSinceLook = false;
}

void VirtualKeyboard::press(const Key& key)
{
    if (!isDown(key)) down_.push_back(key);
    hold(key);
}

void VirtualKeyboard::release(const Key& key)
{
    std::erase_if(down_, [&](const Key& down) { return down.sameKeyAs(key); });
    letGo(key);
}

bool VirtualKeyboard::isDown(const Key& key) const
{
    return std::any_of(down_.begin(), down_.end(), [&](const Key& down) { return down.sameKeyAs(key); });
}

void VirtualKeyboard::hold(const Key& key)
{
    if (Polled* state = polledStateOf(key)) *state = {.down = true, .wentDownSinceLook = true};
}

void VirtualKeyboard::letGo(const Key& key)
{
    if (Polled* state = polledStateOf(key)) state->down = false;
}

VirtualKeyboard::Polled* VirtualKeyboard::polledStateOf(const Key& key)
{
    switch (key.code) {
        case platform::keyEnd:
            return &polled_.at(static_cast<std::size_t>(PolledKey::end));
        case platform::keyEscape:
            return &polled_.at(static_cast<std::size_t>(PolledKey::escape));
        default:
            return nullptr;
    }
}

}  // namespace script
