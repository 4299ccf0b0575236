#include "review/best_qso.h"

#include <string>

#include "base/number.h"
#include "base/runtime_error.h"
#include "platform/progress.h"
#include "review/log_view.h"
#include "review/output_modes.h"
#include "review/row_record.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "storage/log_statements.h"
#include "storage/open_databases.h"

namespace review {

namespace {

struct Best {
    double BestPct = 0;
    std::string BestCall;
    std::string BestLoc;
};

enum class FirstDay { taken, left };

void consider(Best& best)
{
    const screen::LogRecord& record = FrmAnzeigen.LogRec;
    const double points = base::numericValue(record.Pct);
    if (points <= best.BestPct) return;
    best = {points, record.Callsign, record.QRALoc};
}

/// Opens the table and goes to its newest row and back to its first. An empty table leaves 3021 on record.
void openTable(base::ResumeNext& go, const LogView& log)
{
    screen::DataControl& data = FrmAnzeigen.*log.data;
    go([] { storage::OpenDatabase(storage::logDatabasePath()); });
    data.RecordSource = storage::readTable(log.table->name);
    Modul1.GridRebuild = 1000;
    go([&] { data.Refresh(); });
    go([&] { data.Recordset.MoveLast(); });
    go([&] { data.Recordset.MoveFirst(); });
}

void countRows(base::ResumeNext& go, const LogView& log)
{
    const storage::RecordSet& rows = (FrmAnzeigen.*log.data).Recordset;
    FrmAnzeigen.RecCount = 0;
    go([&] { FrmAnzeigen.RecCount = base::toInt16(static_cast<long long>(rows.RecordCount())); });
    if (FrmAnzeigen.RecCount == 0) FrmAnzeigen.LogRec.Nr = "0";
    Modul1.*log.table->Qso = FrmAnzeigen.RecCount;
}

void walk(base::ResumeNext& go, const LogView& log, FirstDay firstDay, Best& best)
{
    storage::RecordSet& rows = (FrmAnzeigen.*log.data).Recordset;
    countRows(go, log);
    platform::LongWork work("Recount", FrmAnzeigen.RecCount);
    for (std::int16_t row = 0; row < FrmAnzeigen.RecCount; ++row) {
        work.done(row);
        FrmAnzeigen.LogRec.Nr = base::toText(row + 1);
        go([&] { readBandRow(rows); });
        if (row == 0 && firstDay == FirstDay::taken) FrmAnzeigen.TxtTDate1.Text = FrmAnzeigen.LogRec.Data.get();
        if (row == FrmAnzeigen.RecCount - 1) FrmAnzeigen.TxtTDate2.Text = FrmAnzeigen.LogRec.Data.get();
        consider(best);
        go([&] { rows.MoveNext(); });
    }
}

bool hasStages()
{
    switch (Modul1.ConcId) {
        case 2:
        case 3:
        case 5:
        case 8:
        case 100:
            return false;
        default:
            // Contests 4 and 101 have no second stage, and yet are asked for one: without rows in the table of
            // stage B their log counts as empty.
            return true;
    }
}

bool writesFile()
{
    return FrmAnzeigen.OutMode == toDrive || FrmAnzeigen.OutMode == toFolder || FrmAnzeigen.OutMode == toArchive;
}

void tellEmptyLog()
{
    runstate::tell("Fisier fara date !");
    FrmAnzeigen.FraLogEDI1.Visible = false;
}

void readStage(base::ResumeNext& go, const LogView& log, FirstDay firstDay, Best& best)
{
    openTable(go, log);
    walk(go, log, firstDay, best);
}

void bestOfBand(std::int32_t band)
{
    base::ResumeNext go;
    Best best;
    Modul1.BandCur = band;
    readStage(go, *logViewFor(band, "A"), FirstDay::taken, best);
    if (hasStages()) {
        if (writesFile()) Modul1.Etapa = "B";
        if (Modul1.Etapa == "B") readStage(go, *logViewFor(band, "B"), FirstDay::left, best);
    }
    FrmAnzeigen.TxtCODXC1.Text = best.BestCall;
    FrmAnzeigen.TxtCODXC2.Text = best.BestLoc;
    FrmAnzeigen.TxtCODXC3.Text = base::toText(base::roundToInt32(best.BestPct));
    if (go.last() == base::noCurrentRecord) tellEmptyLog();
}

}  // namespace

void QRAMax144()
{
    bestOfBand(144);
}

void QraMax432()
{
    bestOfBand(432);
}

void QRAMax1296()
{
    bestOfBand(1296);
}

void QRAMaxGHz()
{
    base::ResumeNext go;
    Modul1.BandCur = entry::bandGHz;
    const LogView& log = *logViewFor(entry::bandGHz, "");
    openTable(go, log);
    if (go.last() == base::noCurrentRecord) return tellEmptyLog();
    Best notShown;
    walk(go, log, FirstDay::taken, notShown);
}

}  // namespace review
