// The set-up page: what typing and Enter do in its fields.
#pragma once

namespace screen {

/// Turns the typed character into a capital.
void typeCapital(char32_t& KeyAscii);

/// Enter stores the field and moves on; F1 does nothing in the station's fields.
void TxtMyCall_KeyDown(int& KeyCode);
void txtMyQRA_KeyDown(int& KeyCode);
void TxtMyName_KeyDown(int& KeyCode);
void TxtMyName_KeyUp(int& KeyCode);
void TxtRpNr_KeyDown(int& KeyCode);
void TxtTime_KeyDown(int& KeyCode);

}  // namespace screen
