// Keys as the program knows them.
#pragma once

#include <string>

namespace platform {

/// Virtual key codes as the handlers see them. Letters and digits have the code of the capital letter and the digit.
enum KeyCode : int {
    keyNone = 0,
    keyBackspace = 8,
    keyTab = 9,
    keyEnter = 13,
    keyEscape = 27,
    keySpace = 32,
    keyPageUp = 33,
    keyPageDown = 34,
    keyEnd = 35,
    keyHome = 36,
    keyLeft = 37,
    keyUp = 38,
    keyRight = 39,
    keyDown = 40,
    keyInsert = 45,
    keyDelete = 46,
    keyF1 = 112,
    keyF2 = 113,
    keyF3 = 114,
    keyF4 = 115,
    keyF7 = 118,
    keyF8 = 119,
    keyF9 = 120,
    keyF11 = 122,
    keyF12 = 123,
};

/// Characters of keys that have one without leaving one: what KeyPress gets.
enum KeyCharacter : char32_t { charBackspace = 8, charTab = 9, charEnter = 13, charEscape = 27 };

/// One key of the keyboard, as it went down or up.
struct Key {
    int code = keyNone;      ///< virtual key code; 0 for a character that has none
    char32_t character = 0;  ///< what it types, with Shift applied; 0 when it types nothing
    bool shift = false;
    bool ctrl = false;
    bool alt = false;

    /// The same key of the keyboard, whatever Shift, Ctrl and Alt do meanwhile.
    bool sameKeyAs(const Key& other) const
    {
        return code != keyNone ? code == other.code : character == other.character;
    }
};

}  // namespace platform
