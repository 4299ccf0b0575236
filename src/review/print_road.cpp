#include "review/print_road.h"

#include "base/number.h"
#include "base/runtime_error.h"
#include "review/log_view.h"
#include "review/page.h"
#include "review/reset.h"
#include "review/station_data.h"
#include "review/sums.h"
#include "review/writers.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "screen/grid_layout.h"
#include "storage/log_statements.h"

namespace review {

namespace {

constexpr int onPrinter = 100;

/// A log that a button prints, with its sum and its writer.
struct PrintedLog {
    std::int32_t band;
    const char* stage;
    void (*sum)();
    void (*write)();
};

constexpr PrintedLog log144a = {144, "A", Summe144a, PLog144};
constexpr PrintedLog log144b = {144, "B", Summe144b, PLog144};
constexpr PrintedLog log432a = {432, "A", Summe432a, PLog432};
constexpr PrintedLog log432b = {432, "B", Summe432b, PLog432};
constexpr PrintedLog log1296a = {1296, "A", Summe1296a, PLog1296};
constexpr PrintedLog log1296b = {1296, "B", Summe1296b, PLog1296};
constexpr PrintedLog logGHz = {entry::bandGHz, "", SummeGHz, PLogGHz};

void writeWhenReady(void (*write)())
{
    if (Modul1.PrintSel == printJob) Message4();
    if (Modul1.PrintSel == printerRefused) return;
    FrmAnzeigen.BandText = base::toText(Modul1.BandCur);
    write();
}

void printLog(const PrintedLog& log, screen::OptionButton& button)
{
    Modul1.BandCur = log.band;
    // The GHz log has no stage; the one in hand stays.
    if (log.band != entry::bandGHz) Modul1.Etapa = log.stage;
    FrmAnzeigen.Frame4.Visible = true;
    Modul1.GridRebuild = 1000;
    showNewest(*logViewFor(log.band, log.stage));
    log.sum();
    writeWhenReady(log.write);
    button.Value = false;
}

void showWholeMaratonLog()
{
    base::ResumeNext go;
    screen::DataControl& data = FrmAnzeigen.UusLGYO2;
    data.RecordSource = storage::wholeMaratonLogByBand();
    go([&] { data.Refresh(); });
    go([&] { data.Recordset.MoveLast(); });
    go(screen::layOutUusLGYO2);
}

void printMaratonLog()
{
    Modul1.BandCur = 144;
    Modul1.Etapa = "A";
    FrmAnzeigen.Frame4.Visible = true;
    Modul1.GridRebuild = 1000;
    showWholeMaratonLog();
    SummeYO2();
    showSum(base::roundToInt32(static_cast<double>(Modul1.PctYO144) + Modul1.PctYO432 + Modul1.PctYO1296),
            static_cast<long>(Modul1.QsoYO144) + Modul1.QsoYO432 + Modul1.QsoYO1296);
    writeWhenReady(PLogYO2);
    FrmAnzeigen.OpBD144a.Value = false;
}

/// Where the runstate::internationalContest contest has another log behind a button than the contests of bands and
/// stages.
void printByContest(const PrintedLog& ordinary, const PrintedLog& inInternational, screen::OptionButton& button)
{
    printLog(Modul1.ConcId == runstate::internationalContest ? inInternational : ordinary, button);
}

void askForStation(std::int32_t band)
{
    FrmAnzeigen.EnterFlag = 0;
    Modul1.BandCur = band;
    DatInSumm();
}

}  // namespace

void mnuLOGDrucken_Click()
{
    FrmAnzeigen.OutMode = onPrinter;
    Anulat();
    hideOtherJobs();
    FrmAnzeigen.Frame3.Visible = true;
    showPrintButtons();
    Modul1.PrintSel = printJob;
}

void OpBD144a_Click()
{
    if (Modul1.ConcId == runstate::maratonContest) return printMaratonLog();
    printLog(log144a, FrmAnzeigen.OpBD144a);
}

void OpBD144b_Click()
{
    printByContest(log144b, log432a, FrmAnzeigen.OpBD144b);
}

void OpBD432a_Click()
{
    printByContest(log432a, log1296a, FrmAnzeigen.OpBD432a);
}

void OpBD432b_Click()
{
    printByContest(log432b, logGHz, FrmAnzeigen.OpBD432b);
}

void OpBD1296a_Click()
{
    if (Modul1.ConcId == runstate::internationalContest) return askForStation(entry::bandGHz);
    printLog(log1296a, FrmAnzeigen.OpBD1296a);
}

void OpBD1296b_Click()
{
    printLog(log1296b, FrmAnzeigen.OpBD1296b);
}

void OpBDSumm144_Click()
{
    askForStation(144);
}

void OpBDSumm432_Click()
{
    askForStation(432);
}

void OpbDSumm1296_Click()
{
    askForStation(1296);
}

void Message4()
{
    if (runstate::ask("ARE PRINTER READY?", "DRUCKEN") == platform::buttonYes) return;
    Anulat();
    FrmAnzeigen.Show();
    Modul1.PrintSel = printerRefused;
}

}  // namespace review
