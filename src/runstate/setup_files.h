// The two set-up files beside the program, which carry the station's data from one run to the next.
//
// One value per line, in the order of the tables in the source. There is no header and no version: a comma in a text
// shifts all later values by one.
#pragma once

namespace runstate {

/// Read a file into the run state. Error 53 without the file; a file that is too short (62) or has text where a number
/// should be (13) leaves the later values as they were.
void ReadInitDat();
void ReadTextCw();

/// Write all values of a file.
void WriteInitDat();
void WriteTextCw();

}  // namespace runstate
