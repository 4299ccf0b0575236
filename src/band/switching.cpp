#include "band/switching.h"

#include <algorithm>
#include <string>

#include "band/maraton.h"
#include "band/stage.h"
#include "band/totals.h"
#include "base/number.h"
#include "base/text.h"
#include "entry/commit.h"
#include "entry/contest_groups.h"
#include "entry/flow.h"
#include "entry/log_table.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "screen/grid_layout.h"

namespace band {

namespace {

bool contestIs(std::initializer_list<int> contests)
{
    return std::find(contests.begin(), contests.end(), int{Modul1.ConcId}) != contests.end();
}

/// Small screens move the fields received; the row depends on the band procedure. On the page of the Maraton contest
/// they stand in the row that has room for the name.
void moveReceivedFields(double threshold, double designTop)
{
    if (Modul1.ScaleY >= threshold || Modul1.ConcId == runstate::maratonContest) return;
    for (screen::TextBox* field : {&FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3})
        field->Top = Modul1.ScaleY * designTop;
}

void showCodeLabel(const screen::Label& shown)
{
    for (screen::Label* label : {&FrmQSO.LblCod, &FrmQSO.LblCod432, &FrmQSO.LblCod1296, &FrmQSO.LblCodGhz})
        label->Visible = label == &shown;
}

void showStageButtons(bool visible)
{
    FrmQSO.CmdA.Visible = visible;
    FrmQSO.CmdB.Visible = visible;
}

void openEntry()
{
    if (FrmQSO.LblAnunt.Visible) return;
    entry::YesEnabl();
    entry::YoIn();
}

void prepareBand()
{
    entry::Init();
    FrmQSO.TxtRez.SetFocus();
    entry::Plus1();
}

/// One stage only: the buttons of the stages go, stage A is in force.
void takeOnlyStage()
{
    showStageButtons(false);
    EtapaA();
}

/// What follows the choice of a mode.
struct ModeRow {
    const char* name;
    const char* report;          ///< nullptr leaves the report
    bool reopensWithBand;        ///< contests 2, 5, 7, 8 and 100 open the entry with a band alone
    bool promptGoesWithoutBand;  ///< contest 8 does without the band
};

constexpr ModeRow modeCw{"CW", "599", true, false};
constexpr ModeRow modeSsb{"SSB", "59", false, false};
constexpr ModeRow modeFm{"Fm", "59", false, false};
constexpr ModeRow modeMixt{"Mixt", nullptr, false, true};

void showSendingFrames()
{
    const bool cw = Modul1.ModeCur == "CW";
    const bool keys = Modul1.CwAllowed == 100;
    const bool live = Modul1.OfflineInput != 100;
    FrmQSO.FrmCwProgr.Visible = cw && keys;
    FrmQSO.FramTxtCw.Visible = cw && keys;
    FrmQSO.txtPauseCW.Visible = cw && keys && live && Modul1.CwRptFlag == 100;
    FrmQSO.TxtPauseSSB.Visible = Modul1.ModeCur == "SSB" && live && Modul1.SsbRptFlag == 100;
    FrmQSO.TxtPauseFm.Visible = Modul1.ModeCur == "Fm" && live && Modul1.SsbRptFlag == 100;
    FrmQSO.LblPause.Visible = FrmQSO.txtPauseCW.Visible || FrmQSO.TxtPauseSSB.Visible || FrmQSO.TxtPauseFm.Visible;
}

void takePromptAway(const ModeRow& mode)
{
    const bool band = Modul1.BandCur > 1;
    if ((Modul1.Etapa == "A" || Modul1.Etapa == "B") && band) {
        FrmQSO.LblAnunt.Visible = false;
        entry::YesEnabl();
    }
    const bool bandWanted = !(mode.promptGoesWithoutBand && Modul1.ConcId == 8);
    if (contestIs({8, 100}) && (band || !bandWanted)) FrmQSO.LblAnunt.Visible = false;
    if (mode.reopensWithBand && contestIs({2, 5, 7, 8, 100}) && Modul1.BandCur != 0) {
        FrmQSO.LblAnunt.Visible = false;
        entry::YesEnabl();
    }
}

void chooseMode(const ModeRow& mode)
{
    Modul1.ModeCur = mode.name;
    InitMode();
    if (mode.report != nullptr) FrmQSO.TxtRSTE1.Text = mode.report;
    showSendingFrames();
    takePromptAway(mode);
    entry::openWhenAllIsChosen();
    FrmQSO.TxtRez.SetFocus();
    if (!FrmQSO.LblAnunt.Visible) entry::YoIn();
}

}  // namespace

void B144()
{
    Modul1.BandCur = 144;
    Modul1.GridRebuild = 100;
    if (contestIs({0, 2, 5, 8, 100})) CitStart144();
    if (contestIs({3})) MaxConc3();
    // The threshold is -1 here and 1 in the other band procedures, so on 144 the fields never move.
    moveReceivedFields(-1.0, 1500);
    prepareBand();
    if (contestIs({7})) takeMaratonBand(144);
    if (contestIs({0, 1, 6})) {
        showStageButtons(true);
        FrmQSO.Cmd432.Visible = false;
        FrmQSO.Cmd1296.Visible = false;
    }
    if (contestIs({2, 3, 4, 5, 7, 8, 100})) takeOnlyStage();
    openEntry();
    if (contestIs({0, 2, 3, 5, 8, 100})) {
        FrmQSO.LblBand.Caption = "144A";
        FrmQSO.LblBand1.Caption = "432A";
        FrmQSO.LblBand2.Caption = "1296A";
        FrmQSO.LblBand3.Caption = "GHz";
    }
    showCodeLabel(FrmQSO.LblCod);
    if (contestIs({4})) {
        showStageButtons(false);
        FrmQSO.Cmd432.Visible = false;
        FrmQSO.Cmd1296.Visible = false;
    }
    entry::openWhenAllIsChosen();
}

void B432()
{
    Modul1.BandCur = 432;
    Modul1.GridRebuild = 100;
    if (entry::modeIsChosen()) {
        FrmQSO.LblAnunt.Visible = false;
        entry::YesEnabl();
    }
    if (contestIs({0, 2, 5, 8, 100})) CitStart432a();
    if (contestIs({3})) MaxConc3();
    moveReceivedFields(1.0, 1500);
    prepareBand();
    if (contestIs({7})) takeMaratonBand(432);
    if (contestIs({0})) {
        showStageButtons(true);
        FrmQSO.Cmd144.Visible = false;
        FrmQSO.Cmd1296.Visible = false;
    } else {
        takeOnlyStage();
    }
    if (contestIs({0, 2, 5, 8, 100})) showCodeLabel(FrmQSO.LblCod432);
    if (contestIs({3})) showCodeLabel(FrmQSO.LblCod);
    openEntry();
}

void B1296()
{
    Modul1.BandCur = 1296;
    Modul1.GridRebuild = 100;
    if (contestIs({0, 2, 5, 8, 100})) CitStart1296a();
    if (contestIs({3})) MaxConc3();
    moveReceivedFields(1.0, 1500);
    prepareBand();
    if (contestIs({0})) {
        showStageButtons(true);
        FrmQSO.Cmd432.Visible = false;
        FrmQSO.Cmd144.Visible = false;
    } else {
        takeOnlyStage();
        // The totals of the stage have moved it.
        Modul1.BandCur = 1296;
    }
    openEntry();
    if (contestIs({2, 5, 8, 100})) showCodeLabel(FrmQSO.LblCod1296);
    if (contestIs({3})) showCodeLabel(FrmQSO.LblCod);
    if (contestIs({7})) takeMaratonBand(1296);
    entry::openWhenAllIsChosen();
}

void BGHz()
{
    Modul1.GridRebuild = 100;
    showCodeLabel(FrmQSO.LblCodGhz);
    if (contestIs({100})) CitStartGHz();
    moveReceivedFields(1.0, 2400);
    Modul1.Etapa = "A";
    Modul1.BandCur = entry::bandGHz;
    // Asks for "FM", which the mode never is: with "Fm" the prompt stays until a frequency is picked.
    const std::string& mode = Modul1.ModeCur;
    if (mode == "SSB" || mode == "CW" || mode == "Mixt" || mode == "FM") FrmQSO.LblAnunt.Visible = false;
    if (base::numericValue(FrmQSO.TxtFGHz.Text) == 0) {
        FrmQSO.LblAnunt.Visible = true;
        entry::NoEnabl();
    }
    EtapaA();
    entry::Init();
    FrmQSO.List1.Clear();
    FrmQSO.Frame3.Visible = true;
    entry::Plus1();
    GHzList();
    screen::layOutUusGHz();
    if (Modul1.TotalsDone == 0) SummeGHz();
    Modul1.TotalsDone = 100;
    FrmQSO.TxtFGHz.SetFocus();
    if (!FrmQSO.LblAnunt.Visible) entry::YesEnabl();
}

void MCw()
{
    chooseMode(modeCw);
}

void MSsb()
{
    chooseMode(modeSsb);
}

void MFm()
{
    chooseMode(modeFm);
}

void MMixt()
{
    chooseMode(modeMixt);
}

void InitMode()
{
    const struct {
        const char* mode;
        screen::Label& lamp;
    } lamps[] = {{"SSB", FrmQSO.LblSSB}, {"CW", FrmQSO.LblCW}, {"Fm", FrmQSO.LblFm}, {"Mixt", FrmQSO.LblMixt}};
    for (const auto& row : lamps)
        row.lamp.BackColor = Modul1.ModeCur == row.mode ? screen::lampOn : screen::lampOff;
}

void GHzList()
{
    for (const char* frequency : {"2320", "5760", "10368", "24192", "47088", "76000"})
        FrmQSO.List1.AddItem(frequency);
}

void Cmd144_Click()
{
    B144();
}

void Cmd432_Click()
{
    B432();
}

void Cmd1296_Click()
{
    B1296();
}

void CmdGHz_Click()
{
    BGHz();
}

void CmdCW_Click()
{
    MCw();
    if (Modul1.CwAllowed == 100) FrmQSO.LblStopCW.Visible = true;
}

void CmdSSB_Click()
{
    MSsb();
    FrmQSO.LblStopCW.Visible = false;
}

void CmdFm_Click()
{
    MFm();
    FrmQSO.LblStopCW.Visible = false;
}

void CmdMixt_Click()
{
    MMixt();
    FrmQSO.LblStopCW.Visible = false;
}

void List1_Click()
{
    FrmQSO.TxtFGHz.Text = FrmQSO.List1.Text();
    Modul1.BandCur = base::roundToInt32(base::numericValue(FrmQSO.TxtFGHz.Text));
    FrmQSO.Line4.Visible = false;
    if (entry::modeIsChosen()) {
        FrmQSO.LblAnunt.Visible = false;
        FrmQSO.txtIndic.Enabled = true;
        FrmQSO.txtIndic.SetFocus();
        FrmQSO.txtIndic.caretBehindTrimmed();
    }
    if (!FrmQSO.LblAnunt.Visible) entry::YesEnabl();
}

}  // namespace band
