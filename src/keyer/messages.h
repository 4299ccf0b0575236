// The seven stored messages under F1 to F7: texts with placeholders in CW, sound files in voice.
#pragma once

#include <string>
#include <string_view>

namespace keyer {

/// A code as it is keyed in the contests that abbreviate: leading zeros as T, as far as two of them, and the characters
/// behind. `code` with other contests comes back as it is.
std::string abbreviatedCode(std::string_view code, int contest);

/// What the placeholders of a message stand for.
struct Placeholders {
    std::string myCall;     ///< #1
    std::string yourCall;   ///< #2
    std::string code;       ///< #3
    std::string myLocator;  ///< #4
};

/// A message with its placeholders filled. "#" with anything else behind it, or nothing, disappears with it.
std::string filledMessage(std::string_view message, const Placeholders& placeholders);

/// Fills the placeholders of `TxtCw` in place, and gives the call field the focus, caret at its end.
void DescTxtCw();

/// Sends the message of F1 as `Indic` stands.
void sendCall();

/// Where #2 comes from when a function key is pressed: the call field as it stands, or the call that was taken.
enum class Call { fromField, asTaken };

/// The beginning of a KeyDown: F1 is swallowed, and arms the calling message when it can be sent.
void armOnF1(int& KeyCode);

/// The function keys of a KeyDown: F2 to F7 send their message, an armed F1 sends its own and may go on calling.
/// Nothing happens while a message is under way.
void sendOnFunctionKey(int KeyCode, Call call);

/// Page Up and Page Down: the speed for the next message, 10 to 40 words a minute.
void changeSpeed(int KeyCode);

/// Any key in a pause field leads back to the call.
void pauseField_KeyPress(char32_t& KeyAscii);

/// Enter in a message field of the entry form stores it and moves on.
void TxtF1_KeyDown(int& KeyCode);
void TxtF2_KeyDown(int& KeyCode);
void TxtF3_KeyDown(int& KeyCode);
void TxtF4_KeyDown(int& KeyCode);
void TxtF5_KeyDown(int& KeyCode);
void TxtF6_KeyDown(int& KeyCode);
void TxtF7_KeyDown(int& KeyCode);

}  // namespace keyer
