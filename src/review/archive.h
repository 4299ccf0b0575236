// The archive: a finished log goes to a file of its own in the folder Arhiva, as text or as ADIF, under a name of the
// operator's choice.
#pragma once

namespace review {

/// Begins the job, where each band is a report of its own with the choice of the band. Makes the folder when it is
/// missing; the lists show what is in it.
void MnuArhiva_Click();

/// A key in the name: a capital. `ArhName` takes the text as it is in front of that key, without an extension, which it
/// is behind the last one only when another key follows.
void TxtNameDat_KeyPress(char32_t& KeyAscii);

/// Another drive. One that cannot be read changes nothing.
void DrvList_Click();

/// Into a folder, or back to the one above.
void DirList_Click();

/// Backspace leads to the folder above.
void DirList_KeyDown(int& KeyCode);

/// The name of a file into the box, with its extension.
void FilList_Click();

/// Write the archive, as text and as ADIF. An older file of that name is replaced.
void CmdMem_Click();
void CmdArhivADI_Click();

/// Deletes an archive, after a question. Its extension must have been seen at a key press in the name.
void CmdSterg_Click();

/// The logs of the contest into one file, band by band. Where each band is a report of its own, that of `BandCur`.
/// Nothing in the contest of the 6 m band.
void Mem();

}  // namespace review
