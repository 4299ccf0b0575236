// The set-up page: what typing and Enter do in its fields.
#pragma once

#include <cstdint>

#include "screen/control.h"

namespace screen {

/// The number typed into a field that nobody checks. Empty, or no number of 16 bits, counts 0; what was typed and could
/// not be taken is told as a notice.
std::int16_t countIn(const TextBox& box);

/// Turns the typed character into a capital.
void typeCapital(char32_t& KeyAscii);

/// Enter stores the field and moves on; F1 does nothing in the station's fields.
void TxtMyCall_KeyDown(int& KeyCode);
void txtMyQRA_KeyDown(int& KeyCode);
void TxtMyName_KeyDown(int& KeyCode);
void TxtMyName_KeyUp(int& KeyCode);
void TxtRpNr_KeyDown(int& KeyCode);
void TxtTime_KeyDown(int& KeyCode);
void TxtSD_KeyDown(int& KeyCode);
void TxtST_KeyDown(int& KeyCode);
void TxtF1_KeyDown(int& KeyCode);
void TxtF2_KeyDown(int& KeyCode);
void TxtF3_KeyDown(int& KeyCode);
void TxtF4_KeyDown(int& KeyCode);
void TxtF5_KeyDown(int& KeyCode);
void TxtF6_KeyDown(int& KeyCode);
void TxtF7_KeyDown(int& KeyCode);
void TxtCP_KeyDown(int& KeyCode);

/// A paper log is about to be typed in: asks for its first date and time. Nothing is keyed from here on.
void mnuInputLog_Click();

}  // namespace screen
