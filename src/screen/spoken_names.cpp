#include "screen/spoken_names.h"

#include <algorithm>
#include <iterator>

#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace screen {

namespace {

const SpokenName setUpNames[] = {
    {&FrmInit.TxtMyCall, {&FrmInit.LblMyCall}, ""},
    {&FrmInit.txtMyQRA, {&FrmInit.LblQraLoc}, ""},
    {&FrmInit.TxtTime, {&FrmInit.LblTime}, ""},
    {&FrmInit.TxtMyName, {&FrmInit.LblMyName}, ""},
    {&FrmInit.TxtRpNr, {&FrmInit.LblRpNr, &FrmInit.LblInscr}, ""},
    {&FrmInit.TxtSD, {&FrmInit.LblSD}, ""},
    {&FrmInit.TxtST, {&FrmInit.LblST}, ""},
    {&FrmInit.TxtCP, {&FrmInit.LblCP}, ""},
    {&FrmInit.TxtF1, {&FrmInit.LblF1}, ""},
    {&FrmInit.TxtF2, {&FrmInit.LblF2}, ""},
    {&FrmInit.TxtF3, {&FrmInit.LblF3}, ""},
    {&FrmInit.TxtF4, {&FrmInit.LblF4}, ""},
    {&FrmInit.TxtF5, {&FrmInit.LblF5}, ""},
    {&FrmInit.TxtF6, {&FrmInit.LblF6}, ""},
    {&FrmInit.TxtF7, {&FrmInit.LblF7}, ""},
};

// One label stands above the three or four fields of an exchange: each takes its part of it.
const SpokenName entryNames[] = {
    {&FrmQSO.txtIndic, {&FrmQSO.LblCall}, ""},
    {&FrmQSO.TxtRSTR1, {}, "RSTR"},
    {&FrmQSO.TxtRSTR2, {}, "CODR"},
    {&FrmQSO.TxtRSTr3, {}, "QTHLOCR"},
    {&FrmQSO.TxtYourName, {}, "NameR"},
    {&FrmQSO.TxtRSTE1, {}, "RSTS"},
    {&FrmQSO.txtRSTE2, {}, "CODS"},
    {&FrmQSO.txtRSTe3, {}, "QTHLOCS"},
    {&FrmQSO.TxtMyName, {}, "NameS"},
    {&FrmQSO.TxtUTC, {&FrmQSO.LblUTC}, ""},
    {&FrmQSO.TxtDate, {&FrmQSO.LblDate}, ""},
    {&FrmQSO.TxtPauseSSB, {&FrmQSO.LblPause}, "SSB"},
    {&FrmQSO.txtPauseCW, {&FrmQSO.LblPause}, "CW"},
    {&FrmQSO.TxtPauseFm, {&FrmQSO.LblPause}, "Fm"},
    {&FrmQSO.TxtFGHz, {&FrmQSO.Frame3}, "band"},
    {&FrmQSO.List1, {&FrmQSO.Frame3}, "bands"},
    {&FrmQSO.TxtCwCurent, {}, "CW sent"},
    {&FrmQSO.TxtF1, {&FrmQSO.LblF1}, ""},
    {&FrmQSO.TxtF2, {&FrmQSO.LblF2}, ""},
    {&FrmQSO.TxtF3, {&FrmQSO.LblF3}, ""},
    {&FrmQSO.TxtF4, {&FrmQSO.LblF4}, ""},
    {&FrmQSO.TxtF5, {&FrmQSO.LblF5}, ""},
    {&FrmQSO.TxtF6, {&FrmQSO.LblF6}, ""},
    {&FrmQSO.TxtF7, {&FrmQSO.LblF7}, ""},
    {&FrmQSO.LblCod, {&FrmQSO.LblLastCode}, ""},
    {&FrmQSO.LblCod432, {&FrmQSO.LblLastCode}, ""},
    {&FrmQSO.LblCod1296, {&FrmQSO.LblLastCode}, ""},
    {&FrmQSO.LblCodGhz, {&FrmQSO.LblLastCode}, ""},
    {&FrmQSO.LblPkt, {&FrmQSO.LblBand, &FrmQSO.LblPktCol}, ""},
    {&FrmQSO.LblQSO, {&FrmQSO.LblBand, &FrmQSO.LblQSOCol}, ""},
    {&FrmQSO.LblPkt1, {&FrmQSO.LblBand1, &FrmQSO.LblPktCol}, ""},
    {&FrmQSO.LblQSO1, {&FrmQSO.LblBand1, &FrmQSO.LblQSOCol}, ""},
    {&FrmQSO.LblPkt2, {&FrmQSO.LblBand2, &FrmQSO.LblPktCol}, ""},
    {&FrmQSO.LblQSO2, {&FrmQSO.LblBand2, &FrmQSO.LblQSOCol}, ""},
    {&FrmQSO.LblPkt3, {&FrmQSO.LblBand3, &FrmQSO.LblPktCol}, ""},
    {&FrmQSO.LblQSO3, {&FrmQSO.LblBand3, &FrmQSO.LblQSOCol}, ""},
    {&FrmQSO.lblWPM, {&FrmQSO.LblSpeedUnit}, ""},
    {&FrmQSO.Frame2, {}, "Score"},
    {&FrmQSO.Frame6, {}, "Keys"},
    {&FrmQSO.DBGrid1, {}, "Log 144 MHz A"},
    {&FrmQSO.DBGrid2, {}, "Log 144 MHz B"},
    {&FrmQSO.DBGrid3, {}, "Log 432 MHz A"},
    {&FrmQSO.DBGrid4, {}, "Log 432 MHz B"},
    {&FrmQSO.DBGrid5, {}, "Locators"},
    {&FrmQSO.DBGrid6, {}, "Log 1296 MHz A"},
    {&FrmQSO.DBGrid7, {}, "Log 1296 MHz B"},
    {&FrmQSO.DBGrid8, {}, "Log GHz"},
    {&FrmQSO.DBGrid9, {}, "Log"},
};

const SpokenName reviewNames[] = {
    {&FrmAnzeigen.LblQSO1, {&FrmAnzeigen.LblQSO}, ""},
    {&FrmAnzeigen.LblPkt1, {&FrmAnzeigen.LblPkt}, ""},
    {&FrmAnzeigen.DBGrid1, {}, "Log 144 MHz A"},
    {&FrmAnzeigen.DBGrid2, {}, "Log 144 MHz B"},
    {&FrmAnzeigen.DBGrid3, {}, "Log 432 MHz A"},
    {&FrmAnzeigen.DBGrid4, {}, "Log 432 MHz B"},
    {&FrmAnzeigen.DBGrid5, {}, "Locators"},
    {&FrmAnzeigen.DBGrid6, {}, "Log 1296 MHz A"},
    {&FrmAnzeigen.DBGrid7, {}, "Log 1296 MHz B"},
    {&FrmAnzeigen.DBGrid8, {}, "Log GHz"},
    {&FrmAnzeigen.DBGrid9, {}, "Log"},
    {&FrmAnzeigen.TxtNameDat, {&FrmAnzeigen.LblNumeFis}, ""},
    {&FrmAnzeigen.DrvList, {}, "Drives"},
    {&FrmAnzeigen.DirList, {}, "Folders"},
    {&FrmAnzeigen.FilList, {}, "Files"},
    {&FrmAnzeigen.TxtSection, {&FrmAnzeigen.LblSection}, ""},
    {&FrmAnzeigen.TxtOp, {&FrmAnzeigen.LblOp}, ""},
    {&FrmAnzeigen.TxtNo, {&FrmAnzeigen.LblNo}, ""},
    {&FrmAnzeigen.TxtQTH, {&FrmAnzeigen.LblQTH}, ""},
    {&FrmAnzeigen.TxtAds, {&FrmAnzeigen.LblAds}, ""},
    {&FrmAnzeigen.TxtTx, {&FrmAnzeigen.LblTx}, ""},
    {&FrmAnzeigen.TxtRx, {&FrmAnzeigen.LblRx}, ""},
    {&FrmAnzeigen.TxtAnt, {&FrmAnzeigen.LblAnt}, ""},
    {&FrmAnzeigen.TxtAnt2, {&FrmAnzeigen.LblAnt2}, ""},
    {&FrmAnzeigen.TxtAnt3, {&FrmAnzeigen.LblAnt3}, ""},
    {&FrmAnzeigen.TxtAnt4, {&FrmAnzeigen.LblAnt4}, ""},
    {&FrmAnzeigen.TxtClub, {&FrmAnzeigen.LblClub}, ""},
};

const SpokenName ediNames[] = {
    {&FrmAnzeigen.TxtTName, {&FrmAnzeigen.LblTName}, ""},   {&FrmAnzeigen.TxtTDate1, {&FrmAnzeigen.LblTDate1}, ""},
    {&FrmAnzeigen.TxtTDate2, {&FrmAnzeigen.LblTDate2}, ""}, {&FrmAnzeigen.TxtPCall, {&FrmAnzeigen.LblPCall}, ""},
    {&FrmAnzeigen.TxtPWWLo, {&FrmAnzeigen.LblPWWLo}, ""},   {&FrmAnzeigen.TxtPExch, {&FrmAnzeigen.LblPExch}, ""},
    {&FrmAnzeigen.TxtPSect, {&FrmAnzeigen.LblPSect}, ""},   {&FrmAnzeigen.TxtPBand, {&FrmAnzeigen.LblPBand}, ""},
    {&FrmAnzeigen.TxtPAdr1, {&FrmAnzeigen.LblPAdr1}, ""},   {&FrmAnzeigen.TxtPAdr2, {&FrmAnzeigen.LblPAdr2}, ""},
    {&FrmAnzeigen.TxtRClub, {&FrmAnzeigen.LblRClub}, ""},   {&FrmAnzeigen.TxtRName, {&FrmAnzeigen.LblRName}, ""},
    {&FrmAnzeigen.TxtRCall, {&FrmAnzeigen.LblRCall}, ""},   {&FrmAnzeigen.TxtRAdr1, {&FrmAnzeigen.LblRAdr1}, ""},
    {&FrmAnzeigen.TxtRAdr2, {&FrmAnzeigen.LblRAdr2}, ""},   {&FrmAnzeigen.TxtRPoCo, {&FrmAnzeigen.LblRPoCo}, ""},
    {&FrmAnzeigen.TxtRCity, {&FrmAnzeigen.LblRCity}, ""},   {&FrmAnzeigen.TxtRCoun, {&FrmAnzeigen.LblRCoun}, ""},
    {&FrmAnzeigen.TxtRPhon, {&FrmAnzeigen.LblRPhon}, ""},   {&FrmAnzeigen.TxtRHBBS, {&FrmAnzeigen.LblRHBBS}, ""},
    {&FrmAnzeigen.TxtMOpe1, {&FrmAnzeigen.LblMOpe1}, ""},   {&FrmAnzeigen.TxtMOpe2, {&FrmAnzeigen.LblMOpe2}, ""},
    {&FrmAnzeigen.TxtSTxEq, {&FrmAnzeigen.LblSTXEq}, ""},   {&FrmAnzeigen.TxtSPowe, {&FrmAnzeigen.LblSPowe}, ""},
    {&FrmAnzeigen.TxtSRXEq, {&FrmAnzeigen.LblSRXEq}, ""},   {&FrmAnzeigen.TxtSAnte, {&FrmAnzeigen.LblSAnte}, ""},
    {&FrmAnzeigen.TxtSAntH1, {&FrmAnzeigen.LblSAntH1}, ""}, {&FrmAnzeigen.TxtSAntH2, {&FrmAnzeigen.LblSAntH2}, ""},
    {&FrmAnzeigen.TxtCQSOs1, {&FrmAnzeigen.LblCQSOs1}, ""}, {&FrmAnzeigen.TxtCQSOs2, {&FrmAnzeigen.LblCQSOs2}, ""},
    {&FrmAnzeigen.TxtCQSOP, {&FrmAnzeigen.LblCQSOP}, ""},   {&FrmAnzeigen.TxtCWWLs1, {&FrmAnzeigen.LblCWWLs1}, ""},
    {&FrmAnzeigen.TxtCWWLs2, {&FrmAnzeigen.LblCWWLs2}, ""}, {&FrmAnzeigen.TxtCWWLs3, {&FrmAnzeigen.LblCWWLs3}, ""},
    {&FrmAnzeigen.TxtCWWLB, {&FrmAnzeigen.LblCWWLB}, ""},   {&FrmAnzeigen.TxtCExcs1, {&FrmAnzeigen.LblCExcs1}, ""},
    {&FrmAnzeigen.TxtCExcs2, {&FrmAnzeigen.LblCExcs2}, ""}, {&FrmAnzeigen.TxtCExcs3, {&FrmAnzeigen.LblCExcs3}, ""},
    {&FrmAnzeigen.TxtCExcB, {&FrmAnzeigen.LblCExcB}, ""},   {&FrmAnzeigen.TxtCDXCs1, {&FrmAnzeigen.LblCDXCs1}, ""},
    {&FrmAnzeigen.TxtCDXCs2, {&FrmAnzeigen.LblCDXCs2}, ""}, {&FrmAnzeigen.TxtCDXCs3, {&FrmAnzeigen.LblCDXCs3}, ""},
    {&FrmAnzeigen.TxtCDXCB, {&FrmAnzeigen.LblCDXCB}, ""},   {&FrmAnzeigen.TxtCToSc, {&FrmAnzeigen.LblCToSc}, ""},
    {&FrmAnzeigen.TxtCODXC1, {&FrmAnzeigen.LblCODXC1}, ""}, {&FrmAnzeigen.TxtCODXC2, {&FrmAnzeigen.LblCODXC2}, ""},
    {&FrmAnzeigen.TxtCODXC3, {&FrmAnzeigen.LblCODXC3}, ""}, {&FrmAnzeigen.TxtFRem1, {&FrmAnzeigen.LblFRem1}, "1"},
    {&FrmAnzeigen.TxtFRem2, {&FrmAnzeigen.LblFRem2}, "2"},  {&FrmAnzeigen.TxtFRem3, {&FrmAnzeigen.LblFRem3}, "3"},
};

struct Lamp {
    const Control* lamp;
    const Control* button;
};

const Lamp lamps[] = {
    {&FrmQSO.Lbl144, &FrmQSO.Cmd144}, {&FrmQSO.Lbl432, &FrmQSO.Cmd432},   {&FrmQSO.Lbl1296, &FrmQSO.Cmd1296},
    {&FrmQSO.LblGHz, &FrmQSO.CmdGHz}, {&FrmQSO.LblSSB, &FrmQSO.CmdSSB},   {&FrmQSO.LblCW, &FrmQSO.CmdCW},
    {&FrmQSO.LblFm, &FrmQSO.CmdFm},   {&FrmQSO.LblMixt, &FrmQSO.CmdMixt}, {&FrmQSO.LblA, &FrmQSO.CmdA},
    {&FrmQSO.LblB, &FrmQSO.CmdB},
};

const Control* const announced[] = {&FrmInit.LblAnunt, &FrmQSO.LblAnunt, &FrmQSO.Frame4};

template <typename Rows>
const SpokenName* rowOf(const Rows& rows, const Control* control)
{
    const auto* row = std::ranges::find(rows, control, &SpokenName::control);
    return row == std::end(rows) ? nullptr : row;
}

}  // namespace

const SpokenName* spokenNameOf(const Control* control)
{
    if (const SpokenName* row = rowOf(entryNames, control)) return row;
    if (const SpokenName* row = rowOf(setUpNames, control)) return row;
    if (const SpokenName* row = rowOf(reviewNames, control)) return row;
    return rowOf(ediNames, control);
}

const Control* buttonOfLamp(const Control* control)
{
    const auto* row = std::ranges::find(lamps, control, &Lamp::lamp);
    return row == std::end(lamps) ? nullptr : row->button;
}

std::string_view spokenNameOfForm(std::string_view form)
{
    if (form == "FrmInit") return "Set-up";
    if (form == "FrmQSO") return "QSO entry";
    return form == "FrmAnzeigen" ? "Log review" : "";
}

bool isAnnounced(const Control* control)
{
    return std::ranges::find(announced, control) != std::end(announced);
}

bool tellsVerdict(const Control* control)
{
    return control == &FrmQSO.txtIndic || control == &FrmQSO.TxtRSTR2;
}

}  // namespace screen
