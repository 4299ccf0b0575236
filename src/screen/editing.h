// Editing the text of a box: caret, selection, typing, cut and paste, undo of typing.
#pragma once

#include <string>

#include "platform/keys.h"
#include "screen/control.h"

namespace screen {

/// Puts a character in place of the selection, or at the caret.
void typeCharacter(TextBox& box, char32_t character);

/// Takes the selection away, or the character in front of the caret.
void eraseBackwards(TextBox& box);

/// The text as eraseBackwards would leave it.
std::string textAfterBackspace(const TextBox& box);

/// Does what an editing key does: arrows, Home, End (with Shift they select), Delete, and with Ctrl A, C, X, Z.
/// Other keys do nothing. Copied text goes to the clipboard of the machine.
void editWithKey(TextBox& box, const platform::Key& key);

/// Puts the caret in front of character `caret` (from 0); with `extend` it selects from where the caret was.
void placeCaret(TextBox& box, std::size_t caret, bool extend);

}  // namespace screen
