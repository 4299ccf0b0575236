// The CW keyer: a text goes out as Morse code by switching two lines of a serial port. RTS holds the transmitter on for
// the whole message, DTR is the key.
//
// The message, the character and the element being sent are members of FrmQSO, which these procedures share.
#pragma once

namespace keyer {

/// Sends `TxtCw` to its end, with events served between characters; `PortOpen` is true meanwhile. However it ends, both
/// lines are down then. Without the port it tells the operator, brings the set-up page back and raises error 8002,
/// which ends the handler that was sending. Any other error ends the message only.
void GoCW();

/// The time units of the message from `Wpm` and `TickBase`, then the message.
void File();

/// All characters of the message, and the word space that closes it.
void FileSend();

/// One character, `SymCur`. One that is not in the table takes no time.
void GenMorse();

/// The character of row `TabIdx`, element by element. End and Escape stop it between two elements.
void MakeSound();

/// One element and the gap behind it.
void Ti1();

/// `SecNow` from the clock.
void Tmr();

/// Ends a message under way and automatic calling, from outside: the operator leaves the form.
void endSending();

}  // namespace keyer
