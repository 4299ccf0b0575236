// The entry form driven by the keyboard: the key, click and focus handlers of its fields.
#pragma once

namespace entry {

/// Switches the entry fields on, once a band is chosen. Nothing else does.
void YesEnabl();

/// True when one of the four modes is chosen.
bool modeIsChosen();

/// Switches the entry fields on when band, mode and stage are all chosen, in whatever order.
void openWhenAllIsChosen();

/// Switches them off until band, mode and stage are chosen.
void NoEnabl();

/// Resets the lamps of bands and stages, the grids and the frame of the microwave bands.
void Init();

void txtIndic_GotFocus();
void txtIndic_Click();
void txtIndic_KeyDown(int& KeyCode);
void txtIndic_KeyPress(char32_t& KeyAscii);
void txtIndic_KeyUp(int& KeyCode);

void TxtRSTR2_GotFocus();
void TxtRSTR2_Click();
void TxtRSTR2_KeyDown(int& KeyCode);
void TxtRSTR2_KeyPress(char32_t& KeyAscii);
void TxtRSTR2_KeyUp(int& KeyCode);

void TxtRSTr3_KeyDown(int& KeyCode);
void TxtRSTr3_KeyPress(char32_t& KeyAscii);
void TxtRSTr3_KeyUp(int& KeyCode);

void TxtRSTR1_Click();
void TxtRSTR1_KeyDown(int& KeyCode);
void TxtRSTR1_KeyPress(char32_t& KeyAscii);
void TxtRSTE1_Click();
void TxtRSTE1_KeyDown(int& KeyCode);
void TxtRSTE1_KeyPress(char32_t& KeyAscii);
void txtRSTE2_KeyDown(int& KeyCode);
void txtRSTE2_KeyPress(char32_t& KeyAscii);
void txtRSTE2_KeyUp(int& KeyCode);
void txtRSTe3_KeyDown(int& KeyCode);
void txtRSTe3_KeyPress(char32_t& KeyAscii);
void TxtYourName_KeyDown(int& KeyCode);
void TxtYourName_KeyPress(char32_t& KeyAscii);

/// Fields in which F1 does nothing, not even open the help.
void swallowF1(int& KeyCode);

}  // namespace entry
