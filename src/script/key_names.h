// Names of keys, and the key that types a character.
#pragma once

#include <optional>
#include <string_view>

#include "platform/keys.h"

namespace script {

/// The key that types a character. Letters and digits have the code of the capital and the digit, the signs of the
/// usual keyboard that of their key, all else 0. Shift is down for capitals and for signs that need it.
platform::Key keyTyping(char32_t character);

/// The key of a name: Tab, Enter, Esc, Space, Backspace, Delete, Insert, Home, End, Left, Right, Up, Down, PageUp,
/// PageDown, F1 to F12, or a single character; in front of it any of Ctrl+, Alt+ and Shift+. Nothing for other names.
/// Names are case-blind, a single character is not.
std::optional<platform::Key> keyNamed(std::string_view name);

}  // namespace script
