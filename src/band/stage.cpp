#include "band/stage.h"

#include <string>

#include "band/score_rows.h"
#include "band/totals.h"
#include "base/runtime_error.h"
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

using entry::LogTable;
using entry::logTableFor;

void fillFigures(int number, std::int32_t band, const char* stage)
{
    const LogTable& table = *logTableFor(band, stage);
    showFigures(number, Modul1.*table.Pct, Modul1.*table.Qso);
}

void fillRow(int number, const char* caption, std::int32_t band, const char* stage)
{
    scoreRow(number).band.Caption = caption;
    fillFigures(number, band, stage);
}

using Sum = void (*)();

/// Sums of bands that were summed before in this run are kept up by every logged QSO.
void sumOnce(Sum sum)
{
    if (Modul1.TotalsDone == 0) sum();
}

void sumStageB(Sum sum)
{
    Modul1.Etapa = "B";
    sum();
    Modul1.Etapa = "A";
}

bool hasStages()
{
    return Modul1.ConcId == 0 || Modul1.ConcId == 1 || Modul1.ConcId == 6;
}

bool hasSeveralBands()
{
    const int contest = Modul1.ConcId;
    return contest == 2 || contest == 3 || contest == 5 || contest == 8 || contest == 100;
}

void prepareCode(void (*championshipCode)())
{
    const int contest = Modul1.ConcId;
    if (contest == 1 || contest == 4 || contest == 6) MaxConcAB();
    if (contest == 0) championshipCode();
}

void stageAOn144()
{
    prepareCode(Dute144AB);
    sumOnce(Summe144);
    if (hasStages()) {
        FrmQSO.LblBand.Caption = "144A";
        FrmQSO.LblBand1.Caption = "144B";
    }
    sumStageB(Summe144);
    fillFigures(0, 144, "A");
    fillFigures(1, 144, "B");
    if (hasSeveralBands()) {
        sumOnce(Summe432);
        fillRow(1, "432A", 432, "A");
        sumOnce(Summe1296);
        fillRow(2, "1296A", 1296, "A");
        sumOnce(SummeGHz);
        fillRow(3, "GHz", entry::bandGHz, "");
    }
    Modul1.BandCur = 144;
}

void stageAOn432()
{
    prepareCode(Dute432AB);
    sumOnce(Summe432);
    fillRow(0, "432A", 432, "A");
    if (Modul1.ConcId == 0) {
        sumStageB(Summe432);
        fillRow(1, "432B", 432, "B");
    }
    if (hasSeveralBands()) {
        sumOnce(Summe144);
        fillRow(1, "144A", 144, "A");
        sumOnce(Summe1296);
        fillRow(2, "1296A", 1296, "A");
        sumOnce(SummeGHz);
        fillRow(3, "GHz", entry::bandGHz, "");
    }
    Modul1.BandCur = 432;
}

/// Leaves `BandCur` where the last sum put it: the band procedure sets it again.
void stageAOn1296()
{
    prepareCode(Dute1296AB);
    sumOnce(Summe1296);
    // The score of the Maraton contest comes from its own log.
    if (Modul1.ConcId == runstate::maratonContest) return;
    fillRow(0, "1296A", 1296, "A");
    if (Modul1.ConcId == 0) {
        sumStageB(Summe1296);
        fillRow(1, "1296B", 1296, "B");
    }
    if (hasSeveralBands()) {
        sumOnce(Summe144);
        fillRow(1, "144A", 144, "A");
        sumOnce(Summe432);
        fillRow(2, "432A", 432, "A");
        sumOnce(SummeGHz);
        fillRow(3, "GHz", entry::bandGHz, "");
    }
}

void stageAOnGHz()
{
    screen::layOutUusGHz();
    sumOnce(SummeGHz);
    fillRow(0, "GHz", entry::bandGHz, "");
    sumOnce(Summe144);
    fillRow(1, "144A", 144, "A");
    sumOnce(Summe432);
    fillRow(2, "432A", 432, "A");
    // Not Summe1296: this row has always been filled with what was summed before.
    sumOnce(SummeGHz);
    fillRow(3, "1296A", 1296, "A");
}

/// The totals of stage A are summed too as long as no totals were loaded; stage B always is.
void sumBothStages(Sum sum)
{
    if (Modul1.TotalsDone == 0) {
        Modul1.Etapa = "A";
        sum();
        Modul1.Etapa = "B";
    }
    sum();
}

void stageBOn144()
{
    prepareCode(Dute144AB);
    sumBothStages(Summe144);
    if (hasStages()) {
        FrmQSO.LblBand.Caption = "144B";
        FrmQSO.LblBand1.Caption = "144A";
    }
    fillFigures(0, 144, "B");
    if (Modul1.ConcId != 4) FrmQSO.LblBand1.Caption = "144A";
    fillFigures(1, 144, "A");
    Modul1.BandCur = 144;
}

void stageBOn432()
{
    prepareCode(Dute432AB);
    sumBothStages(Summe432);
    // The caption of the first row says stage A although the row shows stage B.
    fillRow(0, "432A", 432, "B");
    fillRow(1, "432A", 432, "A");
    Modul1.BandCur = 432;
}

void stageBOn1296()
{
    prepareCode(Dute1296AB);
    sumBothStages(Summe1296);
    fillRow(0, "1296B", 1296, "B");
    Modul1.BandCur = 1296;
    if (Modul1.ConcId == 0) fillRow(1, "1296A", 1296, "A");
}

/// "Mixt" is not among the modes that take the prompt away here. It stays in sight while a microwave band is still to
/// be picked, and in the international contest on 144 whatever the mode.
void openEntryIfModeIsChosen()
{
    if (Modul1.ModeCur != "SSB" && Modul1.ModeCur != "CW" && Modul1.ModeCur != "Fm") return;
    if (Modul1.BandCur == entry::bandGHz || (Modul1.ConcId == 100 && Modul1.BandCur == 144)) return;
    FrmQSO.LblAnunt.Visible = false;
    entry::YesEnabl();
    entry::YoIn();
}

/// The log of the band and stage comes into view. The sums have moved `BandCur` and the positions in the tables.
void showLog(std::int32_t band)
{
    const LogTable* table = logTableFor(band, Modul1.Etapa);
    if (Modul1.ConcId == runstate::maratonContest || table == nullptr) return;
    base::quietly<base::noCurrentRecord>([&] { entry::showWholeTable(*table); });
}

void finishStage()
{
    // A stage that was chosen before any band has summed nothing.
    if (Modul1.BandCur != 0) Modul1.TotalsDone = 100;
    entry::openWhenAllIsChosen();
    FrmQSO.TxtRez.SetFocus();
    if (FrmQSO.LblAnunt.Visible) return;
    FrmQSO.txtIndic.SetFocus();
    FrmQSO.txtIndic.caretBehindTrimmed();
}

}  // namespace

void EA()
{
    Modul1.Etapa = "A";
    openEntryIfModeIsChosen();
    const bool maraton = Modul1.ConcId == runstate::maratonContest;
    const std::int32_t band = Modul1.BandCur;
    if (band == 144 && !maraton) stageAOn144();
    if (band == 432 && !maraton) stageAOn432();
    if (band == 1296) stageAOn1296();
    if (band == entry::bandGHz || band > entry::highestNamedBand) stageAOnGHz();
    showLog(band);
    finishStage();
}

void EB()
{
    Modul1.Etapa = "B";
    openEntryIfModeIsChosen();
    const std::int32_t band = Modul1.BandCur;
    switch (band) {
        case 144:
            stageBOn144();
            break;
        case 432:
            stageBOn432();
            break;
        case 1296:
            stageBOn1296();
            break;
        default:
            break;
    }
    showLog(band);
    finishStage();
}

void EtapaA()
{
    EA();
}

void CmdA_Click()
{
    FrmQSO.CmdA.BackColor = screen::green;
    FrmQSO.CmdB.BackColor = screen::buttonFace;
    EtapaA();
    FrmQSO.LblA.Visible = true;
    FrmQSO.LblA.BackColor = screen::lampOn;
    FrmQSO.LblB.Visible = false;
}

void CmdB_Click()
{
    FrmQSO.CmdB.BackColor = screen::green;
    FrmQSO.CmdA.BackColor = screen::buttonFace;
    EB();
    FrmQSO.LblB.Visible = true;
    FrmQSO.LblB.BackColor = screen::lampOn;
    FrmQSO.LblA.Visible = false;
}

}  // namespace band
