#include "app/events.h"

#include "band/stage.h"
#include "band/switching.h"
#include "entry/call_field.h"
#include "entry/clock.h"
#include "entry/commit.h"
#include "entry/duplicate.h"
#include "entry/field_keys.h"
#include "entry/received_fields.h"
#include "entry/side_fields.h"
#include "entry/time_fields.h"
#include "entry/undo.h"
#include "runstate/contests.h"
#include "runstate/road.h"
#include "runstate/start_up.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
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

void wireFrmInit()
{
    FrmInit.mnuExit.Click = runstate::init::mnuExit_Click;
    FrmInit.mnuQSOfahren.Click = runstate::mnuQSOfahren_Click;
    FrmInit.mnuLOG.Click = runstate::mnuLOG_Click;
    FrmInit.mnuInit.Click = runstate::init::mnuInit_Click;
    FrmInit.mnuInDat.Click = runstate::init::mnuInDat_Click;
    FrmInit.mnuOutInit.Click = runstate::init::mnuOutInit_Click;
    wireContests();

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
    wireChoices();
    wireFields();
}

void wireFrmAnzeigen()
{
    FrmAnzeigen.mnuBeenden.Click = runstate::review::mnuBeenden_Click;
    FrmAnzeigen.mnuAnfang.Click = runstate::review::mnuAnfang_Click;
}

}  // namespace

void hookForms()
{
    FrmInit.hooks = {wireFrmInit, runstate::FrmInit_Load, runstate::init::mnuExit_Click};
    FrmQSO.hooks = {wireFrmQSO, runstate::FrmQSO_Load, runstate::qso::mnuBeenden_Click};
    FrmAnzeigen.hooks = {wireFrmAnzeigen, runstate::FrmAnzeigen_Load, runstate::review::mnuBeenden_Click};
}

}  // namespace app
