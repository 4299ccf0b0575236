// The call field: a call is typed, narrows the log, is taken, and at the end of the QSO logged from here.
#pragma once

namespace entry {

void txtIndic_GotFocus();
void txtIndic_Click();
void txtIndic_KeyDown(int& KeyCode);
void txtIndic_KeyPress(char32_t& KeyAscii);
void txtIndic_KeyUp(int& KeyCode);

}  // namespace entry
