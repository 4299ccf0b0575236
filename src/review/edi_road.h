// The way to an EDI file: the band, and the two pages of its header.
#pragma once

namespace review {

/// Begins the job, with the bands of the contest. Makes the folder Log when it is missing.
void mnuFormEDI_Click();

/// Choose the band: fill the pages with what the log says, and show the first one. An empty log is told and ends the
/// road; the choice of the band then stays. `BandCur` is the band behind them, 1 for the microwaves.
void OpB144Edi_Click();
void OpB432Edi_Click();
void OpB1296Edi_Click();
void OpBGHzEdi_Click();

/// The band multiplier into `TxtCQSOs2`, for the contests that announce one on `BandCur`; it stays as it is for others.
void MultBand();

/// Turn the page. The input can be ended on the second one.
void CmdNextPage_Click();
void CmdRetur_Click();

}  // namespace review
