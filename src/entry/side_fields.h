// The fields that are reached by F11 or the pointer only: Tab or Space take their text and lead back to the call.
#pragma once

namespace entry {

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

}  // namespace entry
