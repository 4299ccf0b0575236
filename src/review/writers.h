// The writers of logs: one band or the Maraton log goes out row by row, to a text file, an EDI file, an archive or the
// printer. `OutMode`, `OutFormat` and `ArhFormat` of the form say where and how.
#pragma once

namespace review {

/// Write the log of a band, both stages where the contest has them, and set `BandCur` to the band (the GHz log: 1).
/// Whatever fails is passed over with a notice; a file that failed is not there. Files in the folder Log and on drive
/// A: are closed behind it; an archive stays open for the band that follows.
void PLog144();
void PLog432();
void PLog1296();
void PLogGHz();

/// Writes the Maraton log, of all bands.
void PLogYO2();

/// The name of the file into `OutFile`, or the head of a printed page. Without a drive A: it tells the operator and
/// goes on; other errors end it.
void LPrint0();

/// The head of a text log, or of an ADIF archive, into the open file.
void PCapTab();

/// `LineBuf` into the open file, or the row of `LogRec` to the printer.
void LPrint();

/// The header of an EDI file into the open file.
void HeaderEDI();

/// `LogRec` as a line of an EDI file, and as an ADIF record, in `LineBuf`.
void TransfEDI();
void TransfADIF();

}  // namespace review
