// The station's data for the summary: twelve boxes, filled from the set-up file and taken back into the run state.
#pragma once

namespace review {

/// Shows the boxes, filled from `KelvoInit.dat`, and the button that ends the input. A set-up file that is not there or
/// cannot be read to its end leaves the rest as the run state has it.
void DatInSumm();

/// All boxes into the station's values of the run state, in capital letters, which the boxes then show too; the number
/// of operators as a number. Only after DatInSumm() filled the boxes, and never for EDI files, which have pages of
/// their own; for the printer always.
void takeStationData();

/// Enter in one of the first eleven boxes: that box is taken, as above, and the focus goes to the next one.
void stationBox_KeyDown(int& KeyCode);

}  // namespace review
