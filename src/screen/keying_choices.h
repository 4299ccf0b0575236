// Whether the computer keys CW and plays voice messages: the choices of the set-up page and what follows from them.
#pragma once

namespace screen {

/// CW by the computer, or by hand.
void OpbCwJ_Click();
void OpbCwN_Click();

/// Voice messages by the computer, or by the operator.
void OpbSSBJ_Click();
void OpbSSBN_Click();

/// Automatic repeat of calling, in CW and in voice. The box of the entry form that belongs to it is green while it is
/// on, yellow while it is off.
void ChkCwRpt_Click();
void ChkSSBRpt_Click();

/// Makes sure that the folder of the voice files is there. A new one is told, with what belongs into it.
void OrdWav();

/// Sets `flag` when the machine has a device that plays sound. Else it leaves it as it is.
void Soundkarte(bool& flag);

}  // namespace screen
