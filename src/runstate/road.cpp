#include "runstate/road.h"

#include <string>

#include "band/stage.h"
#include "band/switching.h"
#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/flow.h"
#include "entry/log_table.h"
#include "entry/offline.h"
#include "geo/locator.h"
#include "keyer/cw.h"
#include "platform/machine.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "runstate/setup_files.h"
#include "runstate/start_up.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "screen/setup_page.h"

namespace runstate {

namespace {

/// False, with a message, when the Maraton contest lacks the operator's name.
bool nameIsThere()
{
    constexpr std::size_t shortestName = 2;
    if (Modul1.ConcId != maratonContest || base::length(FrmInit.TxtMyName.Text) >= shortestName) return true;
    platform::msgBox("COMPLECTATI BOXUL MY NAME");
    FrmInit.TxtMyName.SetFocus();
    return false;
}

/// The fields of the entry form that belong to the boxes of automatic repeating.
void colourRepeatFields()
{
    FrmQSO.TxtF1.BackColor = Modul1.CwRptFlag == 100 ? screen::green : screen::yellow;
    FrmQSO.TxtPauseSSB.BackColor = Modul1.SsbRptFlag == 100 ? screen::green : screen::yellow;
}

void takeRepeatFlags()
{
    Modul1.CwRptFlag = FrmInit.ChkCwRpt.Value == 1 ? 100 : 0;
    Modul1.SsbRptFlag = FrmInit.ChkSSBRpt.Value == 1 ? 100 : 0;
    colourRepeatFields();
}

void takeMessages()
{
    Modul1.TxtCwF1 = FrmInit.TxtF1.Text;
    Modul1.TxtCwF2 = FrmInit.TxtF2.Text;
    Modul1.TxtCwF3 = FrmInit.TxtF3.Text;
    Modul1.TxtCwF4 = FrmInit.TxtF4.Text;
    Modul1.TxtCwF5 = FrmInit.TxtF5.Text;
    Modul1.TxtCwF6 = FrmInit.TxtF6.Text;
    Modul1.TxtCwF7 = FrmInit.TxtF7.Text;
    Modul1.CwPort = screen::countIn(FrmInit.TxtCP);
}

void takeStation()
{
    Modul1.SerNrStart = screen::countIn(FrmInit.TxtRpNr);
    Modul1.MyCall = FrmInit.TxtMyCall.Text;
    Modul1.TimeDiff = FrmInit.TxtTime.Text;
    Modul1.MyQRA = FrmInit.txtMyQRA.Text;
    Modul1.MyName = base::trim(FrmInit.TxtMyName.Text);
    Modul1.QraLoc = Modul1.MyQRA;
    geo::ClcCoord();
    Modul1.LonMy = Modul1.LonCur;
    Modul1.LatMy = Modul1.LatCur;
    FrmQSO.LblMyQRA.Caption = Modul1.MyQRA;
    Modul1.SerNr = Modul1.SerNrStart;
}

/// A set-up file that cannot be written must not keep an operator from the contest: it is told, and he goes on.
void writeSetUp(void (*write)())
{
    base::quietly(write);
}

/// On the way back the Maraton contest goes on with the code that the label shows.
bool codeStaysInLabel()
{
    return Modul1.ConcReturn == 100 && Modul1.ConcId == maratonContest;
}

void showEntryForm()
{
    if (FrmQSO.life != screen::FormLife::loaded) {
        const std::string lastCode = FrmQSO.LblCod.Caption;
        screen::load(FrmQSO);
        // Nothing reads the Maraton codes back from the log: a form that was given up has the last one still.
        if (codeStaysInLabel()) FrmQSO.LblCod.Caption = lastCode;
        colourRepeatFields();
    }
    FrmQSO.Show();
    FrmInit.Unload();
    Modul1.GridRebuild = 100;
    FrmQSO.LblMyCall.Caption = Modul1.MyCall;
}

/// Code labels by contest and band. From 1000 on they are left alone.
void showSerial()
{
    constexpr std::int16_t tooLongToPad = 1000;
    const bool wayBack = Modul1.ConcReturn == 100;
    if (!codeStaysInLabel()) FrmQSO.LblCod.Caption = base::toText(Modul1.SerNr);
    FrmQSO.txtRSTE2.Text = FrmQSO.LblCod.Caption;
    FrmQSO.txtRSTe3.Text = FrmQSO.LblMyQRA.Caption;
    if (Modul1.SerNr >= tooLongToPad || codeStaysInLabel()) return;

    const std::string padded = base::paddedCode(Modul1.SerNr);
    const int contest = Modul1.ConcId;
    const bool allBands = contest == 2 || contest == 5 || contest == 8 || contest == 100;
    if (!wayBack && allBands) {
        FrmQSO.LblCod432.Caption = padded;
        FrmQSO.LblCod1296.Caption = padded;
    }
    if (wayBack && Modul1.BandCur == 432) FrmQSO.LblCod432.Caption = padded;
    if (wayBack && Modul1.BandCur == 1296) FrmQSO.LblCod1296.Caption = padded;
    FrmQSO.LblCod.Caption = padded;
}

void readyTimeFields()
{
    entry::switchTimeFields();
    if (entry::paperLog()) entry::showPaperDateAndHour();
}

/// Band, stage and mode as the run state holds them.
void resume()
{
    const std::int32_t band = Modul1.BandCur;
    if (band == 144) band::B144();
    if (band == 432) band::B432();
    if (band == 1296) band::B1296();
    if (band > entry::highestNamedBand) {
        band::BGHz();
        const double frequency = base::numericValue(FrmQSO.TxtFGHz.Text);
        if (frequency > entry::highestNamedBand) Modul1.BandCur = base::roundToInt32(frequency);
    }
    if (Modul1.Etapa == "A") band::EA();
    if (Modul1.Etapa == "B") band::EB();
    if (Modul1.ModeCur == "CW") band::MCw();
    if (Modul1.ModeCur == "SSB") band::MSsb();
    if (Modul1.ModeCur == "Fm") band::MFm();
    if (Modul1.ModeCur == "Mixt") band::MMixt();
}

bool reallyEnd()
{
    return ask("VRETI INTRADEVAR SA IESITI DIN PROGRAM ?", "EXIT") == platform::buttonYes;
}

void openHelp(int context)
{
    platform::machine().help.open(context);
}

}  // namespace

void QSOFahr()
{
    if (Modul1.OfflineInput != 100) Modul1.OfflineInput = 10;
    if (Modul1.OfflineInput == 100) {
        Modul1.DateOff = FrmInit.TxtSD.Text;
        Modul1.TimeOff = FrmInit.TxtST.Text;
    }
    if (!nameIsThere()) return;
    takeRepeatFlags();
    takeMessages();
    writeSetUp(WriteTextCw);
    if (Modul1.ConcReturn == 0) {
        showMessagesOnEntryForm();
        if (FrmQSO.LblAnunt.Visible) entry::NoEnabl();
    }
    takeStation();
    writeSetUp(WriteInitDat);
    showEntryForm();
    showSerial();
    readyTimeFields();
    resume();
}

void mnuQSOfahren_Click()
{
    QSOFahr();
}

void mnuLOG_Click()
{
    screen::load(FrmAnzeigen);
    FrmAnzeigen.Show();
    FrmInit.Unload();
    FrmAnzeigen.DBGrid5.Visible = false;
}

void Message10()
{
    if (!reallyEnd()) return;
    screen::Form* form = screen::activeForm();
    if (form == &FrmInit || form == &FrmAnzeigen) Modul1.DbLog.Close();
    if (form != nullptr) form->Unload();
    throw base::ProgramEnd{};
}

namespace init {

void mnuExit_Click()
{
    Message10();
}

void mnuInit_Click()
{
    openHelp(100);
}

void mnuInDat_Click()
{
    openHelp(200);
}

void mnuOutInit_Click()
{
    openHelp(300);
}

}  // namespace init

namespace qso {

void mnuAnfang_Click()
{
    keyer::endSending();
    Modul1.ConcReturn = 100;
    const std::string name = FrmQSO.TxtMyName.Text;
    screen::load(FrmInit);
    if (Modul1.ConcId == maratonContest) FrmInit.TxtMyName.Text = name;
    FrmInit.Show();
    FrmQSO.Hide();
}

void mnuBeenden_Click()
{
    Message10();
}

void mnuDescr_Click()
{
    openHelp(400);
}

void mnuSchimb_Click()
{
    openHelp(500);
}

void mnuInDat_Click()
{
    openHelp(600);
}

void mnuModif_Click()
{
    openHelp(700);
}

void mnuOutPag_Click()
{
    openHelp(800);
}

}  // namespace qso

namespace review {

void mnuAnfang_Click()
{
    Modul1.ConcReturn = 100;
    // The jobs of this form go from band to band; the contest goes on where it was left.
    Modul1.BandCur = FrmAnzeigen.BandFound;
    Modul1.Etapa = FrmAnzeigen.EtapaFound;
    screen::load(FrmInit);
    FrmInit.Show();
    FrmAnzeigen.Unload();
}

void mnuBeenden_Click()
{
    Message10();
}

void mnuVizLog_Click()
{
    openHelp(900);
}

void mnuTipLog_Click()
{
    openHelp(1000);
}

void mnuMemLog_Click()
{
    openHelp(1100);
}

void MnuStergLog_Click()
{
    openHelp(1200);
}

void mnuOutPrel_Click()
{
    openHelp(1300);
}

}  // namespace review

}  // namespace runstate
