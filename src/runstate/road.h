// The road between the three forms, and the way out.
#pragma once

namespace runstate {

/// From the set-up page to the first QSO: takes the page over, writes both set-up files, shows the entry form and
/// brings back band, stage and mode.
void QSOFahr();

void mnuQSOfahren_Click();
void mnuLOG_Click();

/// The exit question. Yes ends the program.
void Message10();

namespace init {
void mnuExit_Click();
void mnuInit_Click();
void mnuInDat_Click();
void mnuOutInit_Click();
}  // namespace init

namespace qso {
void mnuAnfang_Click();
void mnuBeenden_Click();
void mnuDescr_Click();
void mnuSchimb_Click();
void mnuInDat_Click();
void mnuModif_Click();
void mnuOutPag_Click();
}  // namespace qso

namespace review {
void mnuAnfang_Click();
void mnuBeenden_Click();
void mnuVizLog_Click();
void mnuTipLog_Click();
void mnuMemLog_Click();
void MnuStergLog_Click();
void mnuOutPrel_Click();
}  // namespace review

}  // namespace runstate
