#include "app/events.h"

#include "band/stage.h"
#include "band/switching.h"
#include "entry/call_field.h"
#include "entry/clock.h"
#include "entry/commit.h"
#include "entry/deletion.h"
#include "entry/duplicate.h"
#include "entry/field_keys.h"
#include "entry/received_fields.h"
#include "entry/side_fields.h"
#include "entry/time_fields.h"
#include "entry/undo.h"
#include "keyer/messages.h"
#include "review/archive.h"
#include "review/correction.h"
#include "review/edi_road.h"
#include "review/emptying.h"
#include "review/export_road.h"
#include "review/page.h"
#include "review/print_road.h"
#include "review/station_data.h"
#include "review/views.h"
#include "runstate/contests.h"
#include "runstate/road.h"
#include "runstate/start_up.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "screen/keying_choices.h"
#include "screen/setup_page.h"

namespace app {

namespace {

void wireContests()
{
    FrmInit.OpBCampNatUUS.Click = runstate::OpBCampNatUUS_Click;
    FrmInit.OpbCarpati.Click = runstate::OpbCarpati_Click;
    FrmInit.OpbCluj.Click = runstate::OpbCluj_Click;
    FrmInit.OpBFloareademina.Click = runstate::OpBFloareademina_Click;
    FrmInit.OpbOltenia.Click = runstate::OpbOltenia_Click;
    FrmInit.OpBConstrMas.Click = runstate::OpBConstrMas_Click;
    FrmInit.OpBTelecom.Click = runstate::OpBTelecom_Click;
    FrmInit.OpBMaraton.Click = runstate::OpBMaraton_Click;
    FrmInit.OpbZPV.Click = runstate::OpbZPV_Click;
    FrmInit.OpBCampInternUUS.Click = runstate::OpBCampInternUUS_Click;
    FrmInit.OpbOltenia6m.Click = runstate::OpbOltenia6m_Click;
    FrmInit.OpbConcurs.Click = runstate::OpbConcurs_Click;
    FrmInit.OpbTest.Click = runstate::OpbTest_Click;
}

void wireKeyingChoices()
{
    FrmInit.OpbCwJ.Click = screen::OpbCwJ_Click;
    FrmInit.OpbCwN.Click = screen::OpbCwN_Click;
    FrmInit.OpbSSBJ.Click = screen::OpbSSBJ_Click;
    FrmInit.OpbSSBN.Click = screen::OpbSSBN_Click;
    FrmInit.ChkCwRpt.Click = screen::ChkCwRpt_Click;
    FrmInit.ChkSSBRpt.Click = screen::ChkSSBRpt_Click;
}

void wireSetUpFields()
{
    for (screen::TextBox* box : {&FrmInit.TxtMyCall, &FrmInit.TxtMyName, &FrmInit.txtMyQRA, &FrmInit.TxtRpNr,
                                 &FrmInit.TxtSD, &FrmInit.TxtST, &FrmInit.TxtF1, &FrmInit.TxtF2, &FrmInit.TxtF3,
                                 &FrmInit.TxtF4, &FrmInit.TxtF5, &FrmInit.TxtF6, &FrmInit.TxtF7})
        box->KeyPress = screen::typeCapital;
    FrmInit.TxtMyCall.KeyDown = screen::TxtMyCall_KeyDown;
    FrmInit.txtMyQRA.KeyDown = screen::txtMyQRA_KeyDown;
    FrmInit.TxtMyName.KeyDown = screen::TxtMyName_KeyDown;
    FrmInit.TxtMyName.KeyUp = screen::TxtMyName_KeyUp;
    FrmInit.TxtRpNr.KeyDown = screen::TxtRpNr_KeyDown;
    FrmInit.TxtTime.KeyDown = screen::TxtTime_KeyDown;
    FrmInit.TxtSD.KeyDown = screen::TxtSD_KeyDown;
    FrmInit.TxtST.KeyDown = screen::TxtST_KeyDown;
    FrmInit.TxtF1.KeyDown = screen::TxtF1_KeyDown;
    FrmInit.TxtF2.KeyDown = screen::TxtF2_KeyDown;
    FrmInit.TxtF3.KeyDown = screen::TxtF3_KeyDown;
    FrmInit.TxtF4.KeyDown = screen::TxtF4_KeyDown;
    FrmInit.TxtF5.KeyDown = screen::TxtF5_KeyDown;
    FrmInit.TxtF6.KeyDown = screen::TxtF6_KeyDown;
    FrmInit.TxtF7.KeyDown = screen::TxtF7_KeyDown;
    FrmInit.TxtCP.KeyDown = screen::TxtCP_KeyDown;
}

void wireFrmInit()
{
    FrmInit.mnuExit.Click = runstate::init::mnuExit_Click;
    FrmInit.mnuQSOfahren.Click = runstate::mnuQSOfahren_Click;
    FrmInit.mnuLOG.Click = runstate::mnuLOG_Click;
    FrmInit.mnuInputLog.Click = screen::mnuInputLog_Click;
    FrmInit.mnuInit.Click = runstate::init::mnuInit_Click;
    FrmInit.mnuInDat.Click = runstate::init::mnuInDat_Click;
    FrmInit.mnuOutInit.Click = runstate::init::mnuOutInit_Click;
    wireContests();
    wireKeyingChoices();
    wireSetUpFields();
}

void wireChoices()
{
    FrmQSO.Cmd144.Click = band::Cmd144_Click;
    FrmQSO.Cmd432.Click = band::Cmd432_Click;
    FrmQSO.Cmd1296.Click = band::Cmd1296_Click;
    FrmQSO.CmdGHz.Click = band::CmdGHz_Click;
    FrmQSO.CmdCW.Click = band::CmdCW_Click;
    FrmQSO.CmdSSB.Click = band::CmdSSB_Click;
    FrmQSO.CmdFm.Click = band::CmdFm_Click;
    FrmQSO.CmdMixt.Click = band::CmdMixt_Click;
    FrmQSO.CmdA.Click = band::CmdA_Click;
    FrmQSO.CmdB.Click = band::CmdB_Click;
    FrmQSO.List1.Click = band::List1_Click;
    FrmQSO.OBtActual.Click = entry::OBtActual_Click;
    FrmQSO.OBtAnterior.Click = entry::OBtAnterior_Click;
    FrmQSO.CmdEnterCall.Click = entry::CmdEnterCall_Click;
    FrmQSO.CmdAbbruchX.Click = entry::CmdAbbruchX_Click;
}

void wireMessages()
{
    FrmQSO.TxtF1.KeyDown = keyer::TxtF1_KeyDown;
    FrmQSO.TxtF2.KeyDown = keyer::TxtF2_KeyDown;
    FrmQSO.TxtF3.KeyDown = keyer::TxtF3_KeyDown;
    FrmQSO.TxtF4.KeyDown = keyer::TxtF4_KeyDown;
    FrmQSO.TxtF5.KeyDown = keyer::TxtF5_KeyDown;
    FrmQSO.TxtF6.KeyDown = keyer::TxtF6_KeyDown;
    FrmQSO.TxtF7.KeyDown = keyer::TxtF7_KeyDown;
    for (screen::TextBox* box :
         {&FrmQSO.TxtF1, &FrmQSO.TxtF2, &FrmQSO.TxtF3, &FrmQSO.TxtF4, &FrmQSO.TxtF5, &FrmQSO.TxtF6, &FrmQSO.TxtF7})
        box->KeyPress = screen::typeCapital;
    for (screen::TextBox* box : {&FrmQSO.txtPauseCW, &FrmQSO.TxtPauseSSB, &FrmQSO.TxtPauseFm})
        box->KeyPress = keyer::pauseField_KeyPress;
}

void wireFields()
{
    FrmQSO.txtIndic.GotFocus = entry::txtIndic_GotFocus;
    FrmQSO.txtIndic.Click = entry::txtIndic_Click;
    FrmQSO.txtIndic.KeyDown = entry::txtIndic_KeyDown;
    FrmQSO.txtIndic.KeyPress = entry::txtIndic_KeyPress;
    FrmQSO.txtIndic.KeyUp = entry::txtIndic_KeyUp;
    FrmQSO.TxtRSTR2.GotFocus = entry::TxtRSTR2_GotFocus;
    FrmQSO.TxtRSTR2.Click = entry::TxtRSTR2_Click;
    FrmQSO.TxtRSTR2.KeyDown = entry::TxtRSTR2_KeyDown;
    FrmQSO.TxtRSTR2.KeyPress = entry::TxtRSTR2_KeyPress;
    FrmQSO.TxtRSTR2.KeyUp = entry::TxtRSTR2_KeyUp;
    FrmQSO.TxtRSTr3.KeyDown = entry::TxtRSTr3_KeyDown;
    FrmQSO.TxtRSTr3.KeyPress = entry::TxtRSTr3_KeyPress;
    FrmQSO.TxtRSTr3.KeyUp = entry::TxtRSTr3_KeyUp;
    FrmQSO.TxtRSTR1.Click = entry::TxtRSTR1_Click;
    FrmQSO.TxtRSTR1.KeyDown = entry::TxtRSTR1_KeyDown;
    FrmQSO.TxtRSTR1.KeyPress = entry::TxtRSTR1_KeyPress;
    FrmQSO.TxtRSTE1.Click = entry::TxtRSTE1_Click;
    FrmQSO.TxtRSTE1.KeyDown = entry::TxtRSTE1_KeyDown;
    FrmQSO.TxtRSTE1.KeyPress = entry::TxtRSTE1_KeyPress;
    FrmQSO.txtRSTE2.KeyDown = entry::txtRSTE2_KeyDown;
    FrmQSO.txtRSTE2.KeyPress = entry::txtRSTE2_KeyPress;
    FrmQSO.txtRSTE2.KeyUp = entry::txtRSTE2_KeyUp;
    FrmQSO.txtRSTe3.KeyDown = entry::txtRSTe3_KeyDown;
    FrmQSO.txtRSTe3.KeyPress = entry::txtRSTe3_KeyPress;
    FrmQSO.TxtYourName.KeyDown = entry::TxtYourName_KeyDown;
    FrmQSO.TxtYourName.KeyPress = entry::TxtYourName_KeyPress;
    FrmQSO.TxtUTC.GotFocus = entry::TxtUTC_GotFocus;
    FrmQSO.TxtUTC.DblClick = entry::TxtUTC_DblClick;
    FrmQSO.TxtUTC.KeyDown = entry::TxtUTC_KeyDown;
    FrmQSO.TxtUTC.KeyPress = entry::TxtUTC_KeyPress;
    FrmQSO.TxtDate.GotFocus = entry::TxtDate_GotFocus;
    FrmQSO.TxtDate.DblClick = entry::TxtDate_DblClick;
    FrmQSO.TxtDate.KeyDown = entry::TxtDate_KeyDown;
    FrmQSO.TxtDate.KeyPress = entry::TxtDate_KeyPress;
    wireMessages();
    for (screen::TextBox* box :
         {&FrmQSO.TxtFGHz, &FrmQSO.txtPauseCW, &FrmQSO.TxtPauseSSB, &FrmQSO.TxtPauseFm, &FrmQSO.TxtCwCurent})
        box->KeyDown = entry::swallowF1;
}

void wireFrmQSO()
{
    FrmQSO.mnuBeenden.Click = runstate::qso::mnuBeenden_Click;
    FrmQSO.mnuAnfang.Click = runstate::qso::mnuAnfang_Click;
    FrmQSO.mnuRecup.Click = entry::mnuRecup_Click;
    FrmQSO.mnuDescr.Click = runstate::qso::mnuDescr_Click;
    FrmQSO.mnuSchimb.Click = runstate::qso::mnuSchimb_Click;
    FrmQSO.mnuInDat.Click = runstate::qso::mnuInDat_Click;
    FrmQSO.mnuModif.Click = runstate::qso::mnuModif_Click;
    FrmQSO.mnuOutPag.Click = runstate::qso::mnuOutPag_Click;
    FrmQSO.tmrTimer.Tick = entry::tmrTimer_Tick;
    for (screen::Grid* grid : {&FrmQSO.DBGrid1, &FrmQSO.DBGrid2, &FrmQSO.DBGrid3, &FrmQSO.DBGrid4, &FrmQSO.DBGrid5,
                               &FrmQSO.DBGrid6, &FrmQSO.DBGrid7, &FrmQSO.DBGrid8, &FrmQSO.DBGrid9})
        grid->RowTouched = entry::Mesagge2;
    wireChoices();
    wireFields();
}

void wireViews()
{
    FrmAnzeigen.mnuLogAnzeigen.Click = review::mnuLogAnzeigen_Click;
    FrmAnzeigen.OpB144a.Click = review::OpB144a_Click;
    FrmAnzeigen.Opb144b.Click = review::Opb144b_Click;
    FrmAnzeigen.OpB432a.Click = review::OpB432a_Click;
    FrmAnzeigen.OpB432b.Click = review::OpB432b_Click;
    FrmAnzeigen.OpB1296a.Click = review::OpB1296a_Click;
    FrmAnzeigen.OpB1296b.Click = review::OpB1296b_Click;
    FrmAnzeigen.OpBQRALoc.Click = review::OpBQRALoc_Click;
    for (screen::Grid* grid :
         {&FrmAnzeigen.DBGrid1, &FrmAnzeigen.DBGrid2, &FrmAnzeigen.DBGrid3, &FrmAnzeigen.DBGrid4, &FrmAnzeigen.DBGrid5,
          &FrmAnzeigen.DBGrid6, &FrmAnzeigen.DBGrid7, &FrmAnzeigen.DBGrid8, &FrmAnzeigen.DBGrid9})
        grid->RowTouched = review::rowTouched;
}

void wireCorrection()
{
    FrmAnzeigen.OpBDelete.Click = review::OpBDelete_Click;
    FrmAnzeigen.mnuLOGLöschen.Click = review::mnuLOGL_schen_Click;
    FrmAnzeigen.OpbL144a.Click = review::OpbL144a_Click;
    FrmAnzeigen.OpbL144b.Click = review::OpbL144b_Click;
    FrmAnzeigen.OpbL432a.Click = review::OpbL432a_Click;
    FrmAnzeigen.OpbL432b.Click = review::OpbL432b_Click;
    FrmAnzeigen.OpBL1296a.Click = review::OpBL1296a_Click;
    FrmAnzeigen.OpBL1296b.Click = review::OpBL1296b_Click;
    FrmAnzeigen.OpbLGHz.Click = review::OpbLGHz_Click;
}

void wireEdi()
{
    FrmAnzeigen.mnuFormEDI.Click = review::mnuFormEDI_Click;
    FrmAnzeigen.OpB144Edi.Click = review::OpB144Edi_Click;
    FrmAnzeigen.OpB432Edi.Click = review::OpB432Edi_Click;
    FrmAnzeigen.OpB1296Edi.Click = review::OpB1296Edi_Click;
    FrmAnzeigen.OpBGHzEdi.Click = review::OpBGHzEdi_Click;
    FrmAnzeigen.CmdNextPage.Click = review::CmdNextPage_Click;
    FrmAnzeigen.CmdRetur.Click = review::CmdRetur_Click;
}

void wireArchive()
{
    FrmAnzeigen.MnuArhiva.Click = review::MnuArhiva_Click;
    FrmAnzeigen.TxtNameDat.KeyPress = review::TxtNameDat_KeyPress;
    FrmAnzeigen.DrvList.Click = review::DrvList_Click;
    FrmAnzeigen.DirList.Click = review::DirList_Click;
    FrmAnzeigen.DirList.KeyDown = review::DirList_KeyDown;
    FrmAnzeigen.FilList.Click = review::FilList_Click;
    FrmAnzeigen.CmdMem.Click = review::CmdMem_Click;
    FrmAnzeigen.CmdArhivADI.Click = review::CmdArhivADI_Click;
    FrmAnzeigen.CmdSterg.Click = review::CmdSterg_Click;
}

void wireStationData()
{
    for (screen::TextBox* box :
         {&FrmAnzeigen.TxtSection, &FrmAnzeigen.TxtOp, &FrmAnzeigen.TxtNo, &FrmAnzeigen.TxtQTH, &FrmAnzeigen.TxtAds,
          &FrmAnzeigen.TxtTx, &FrmAnzeigen.TxtRx, &FrmAnzeigen.TxtAnt, &FrmAnzeigen.TxtAnt2, &FrmAnzeigen.TxtAnt3,
          &FrmAnzeigen.TxtAnt4, &FrmAnzeigen.TxtClub}) {
        box->KeyPress = screen::typeCapital;
        box->KeyDown = review::stationBox_KeyDown;
    }
    FrmAnzeigen.TxtClub.KeyDown = review::TxtClub_KeyDown;
}

void wireTextFiles()
{
    FrmAnzeigen.mnuFormTXT.Click = review::mnuFormTXT_Click;
    FrmAnzeigen.MnuASCIIDATEI.Click = review::MnuASCIIDATEI_Click;
    FrmAnzeigen.OpB0144.Click = review::OpB0144_Click;
    FrmAnzeigen.Opb0432.Click = review::Opb0432_Click;
    FrmAnzeigen.OpB01296.Click = review::OpB01296_Click;
    FrmAnzeigen.OpBDsk144.Click = review::OpBDsk144_Click;
    FrmAnzeigen.OpBDsk432.Click = review::OpBDsk432_Click;
    FrmAnzeigen.OpBDsk1296.Click = review::OpBDsk1296_Click;
    FrmAnzeigen.CmdGata.Click = review::CmdGata_Click;
    wireStationData();
}

void wirePrinting()
{
    FrmAnzeigen.mnuLOGDrucken.Click = review::mnuLOGDrucken_Click;
    FrmAnzeigen.OpBD144a.Click = review::OpBD144a_Click;
    FrmAnzeigen.OpBD144b.Click = review::OpBD144b_Click;
    FrmAnzeigen.OpBD432a.Click = review::OpBD432a_Click;
    FrmAnzeigen.OpBD432b.Click = review::OpBD432b_Click;
    FrmAnzeigen.OpBD1296a.Click = review::OpBD1296a_Click;
    FrmAnzeigen.OpBD1296b.Click = review::OpBD1296b_Click;
    FrmAnzeigen.OpBDSumm144.Click = review::OpBDSumm144_Click;
    FrmAnzeigen.OpBDSumm432.Click = review::OpBDSumm432_Click;
    FrmAnzeigen.OpbDSumm1296.Click = review::OpbDSumm1296_Click;
}

void wireFrmAnzeigen()
{
    wirePrinting();
    wireEdi();
    wireArchive();
    wireViews();
    wireCorrection();
    wireTextFiles();
    FrmAnzeigen.mnuBeenden.Click = runstate::review::mnuBeenden_Click;
    FrmAnzeigen.mnuAnfang.Click = runstate::review::mnuAnfang_Click;
    FrmAnzeigen.mnuVizLog.Click = runstate::review::mnuVizLog_Click;
    FrmAnzeigen.mnuTipLog.Click = runstate::review::mnuTipLog_Click;
    FrmAnzeigen.mnuMemLog.Click = runstate::review::mnuMemLog_Click;
    FrmAnzeigen.MnuStergLog.Click = runstate::review::MnuStergLog_Click;
    FrmAnzeigen.mnuOutPrel.Click = runstate::review::mnuOutPrel_Click;
}

}  // namespace

void hookForms()
{
    FrmInit.hooks = {wireFrmInit, runstate::FrmInit_Load, runstate::init::mnuExit_Click};
    FrmQSO.hooks = {wireFrmQSO, runstate::FrmQSO_Load, runstate::qso::mnuBeenden_Click};
    FrmAnzeigen.hooks = {wireFrmAnzeigen, review::FrmAnzeigen_Load, runstate::review::mnuBeenden_Click};
}

}  // namespace app
