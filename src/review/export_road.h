// The road to the files of a contest: where to, the band, the station's data, what the operator declares, and the order
// in which the files are written. From `CmdGata` on the EDI files and the printed summary come along here too.
#pragma once

namespace review {

/// Text files in the folder Log. Where each band is a report of its own, the band comes first.
void mnuFormTXT_Click();

/// The same files on drive A:.
void MnuASCIIDATEI_Click();

/// The band of a file in the folder Log, or of an archive.
void OpB0144_Click();
void Opb0432_Click();
void OpB01296_Click();

/// Behind that choice: the station's data for a file, the frame of the archive for an archive.
void Viz();

/// The band of a file on drive A:.
void OpBDsk144_Click();
void OpBDsk432_Click();
void OpBDsk1296_Click();

/// Ends the input: what stands in the boxes is taken over, and the questions follow.
void CmdGata_Click();

/// Enter in the last box of the station's data takes all of them, and goes on as CmdGata_Click() does.
void TxtClub_KeyDown(int& KeyCode);

/// "ARE YOUR ENTER FINISHED?" A No sets `EnterAgain` and leads back to the boxes. A Yes writes the set-up file, and on
/// the way to the printer the summary sheet.
void Message5();

/// The declaration. Without it no file is written.
void Message6();

/// Writes the files of the contest, as `OutMode` and `OutFormat` say, and ends the job.
void Message1();

}  // namespace review
