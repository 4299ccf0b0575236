// The code and the locator received: what a full field sets off, and where the operator goes on.
#pragma once

namespace entry {

void TxtRSTR2_GotFocus();
void TxtRSTR2_Click();
void TxtRSTR2_KeyDown(int& KeyCode);
void TxtRSTR2_KeyPress(char32_t& KeyAscii);
void TxtRSTR2_KeyUp(int& KeyCode);

void TxtRSTr3_KeyDown(int& KeyCode);
void TxtRSTr3_KeyPress(char32_t& KeyAscii);
void TxtRSTr3_KeyUp(int& KeyCode);

}  // namespace entry
