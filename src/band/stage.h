// Stages A and B: the totals on the screen, and the codes read back from the log.
#pragma once

namespace band {

/// Stage A, or B: sums what is not summed yet, fills the score rows and prepares the next code.
void EA();
void EB();
/// Stage A, as the band procedures of the contests without stages choose it.
void EtapaA();

void CmdA_Click();
void CmdB_Click();

/// Read the last code of a table back. On an empty table the result is empty text.
void CitStart144();
void CitStart144a();
void CitStart144b();
void CitStart432a();
void CitStart432b();
void CitStart1296a();
void CitStart1296b();
void CitStartGHz();

/// The one running number of the contest over three bands.
void MaxConc3();
/// The one running number over both stages of 144.
void MaxConcAB();
/// The code that the championship goes on with on a band.
void Dute144AB();
void Dute432AB();
void Dute1296AB();

}  // namespace band
