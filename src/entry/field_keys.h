// What the fields of the entry form have in common when a key comes.
#pragma once

#include <cstddef>

#include "screen/frm_qso.h"

namespace entry {

/// Length of the text without the blanks at its ends.
std::size_t trimmedLength(const screen::TextBox& box);

/// `NextField` for a key that went down: 100 for Tab and Space, else 0.
void markNextField(int keyCode);

/// The focus to the call, with the caret behind it.
void toCall();

/// Empties a field and gives it the focus.
void emptyAndFocus(screen::TextBox& box);

/// F1 does nothing in the field, not even open the help.
void swallowF1(int& KeyCode);

/// The KeyDown of a field that only waits for Tab or Space.
void sideFieldKeyDown(int& keyCode);

/// The KeyDown of a field of the exchange: the stored messages can be sent from it, and Esc gives the QSO up.
void exchangeFieldKeyDown(int& keyCode);

/// Esc gives the QSO up, unless it has just stopped a message.
void abortOnEscape(int keyCode);

/// The release of Esc: the next one aborts again.
void clearKeyerBusyOnEscape(int keyCode);

}  // namespace entry
