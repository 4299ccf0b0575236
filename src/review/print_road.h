// The print job: the frame "PRINT", a log or the station data for a summary behind each of its buttons.
//
// In the international contest the buttons stand for other logs than their names say.
#pragma once

#include <cstdint>

namespace review {

/// `PrintSel` in the print job, and once the printer was refused: no button prints any more until the menu entry is
/// used again.
constexpr std::int16_t printJob = 10;
constexpr std::int16_t printerRefused = 25;

/// Begins the print job.
void mnuLOGDrucken_Click();

/// Show a log with its sum and print it, once the printer is ready. Whatever fails is passed over with a notice.
void OpBD144a_Click();
void OpBD144b_Click();
void OpBD432a_Click();
void OpBD432b_Click();
void OpBD1296a_Click();
void OpBD1296b_Click();

/// Show the station data for the summary of a band, or of the whole contest.
void OpBDSumm144_Click();
void OpBDSumm432_Click();
void OpbDSumm1296_Click();

/// Asks for the printer. Anything but a Yes ends the job and refuses the printer.
void Message4();

}  // namespace review
