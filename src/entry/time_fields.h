// The fields of time and date, which an operator reaches when the time is not valid, and fills in on paper logs.
#pragma once

namespace entry {

void TxtUTC_GotFocus();
void TxtUTC_DblClick();
void TxtUTC_KeyDown(int& KeyCode);
void TxtUTC_KeyPress(char32_t& KeyAscii);

void TxtDate_GotFocus();
void TxtDate_DblClick();
void TxtDate_KeyDown(int& KeyCode);
void TxtDate_KeyPress(char32_t& KeyAscii);

}  // namespace entry
