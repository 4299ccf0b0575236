// Choosing band and mode.
#pragma once

namespace band {

/// Choose a band: lamps, codes, totals; they open the entry when all that the contest requires is chosen.
void B144();
void B432();
void B1296();
/// Opens the list of microwave bands.
void BGHz();

/// Choose a mode.
void MCw();
void MSsb();
void MFm();
void MMixt();

/// Repaints the lamps of the modes.
void InitMode();

/// Fills the list of microwave bands.
void GHzList();

void Cmd144_Click();
void Cmd432_Click();
void Cmd1296_Click();
void CmdGHz_Click();
void CmdCW_Click();
void CmdSSB_Click();
void CmdFm_Click();
void CmdMixt_Click();
void List1_Click();

}  // namespace band
