#include "review/sums.h"

#include <utility>

#include "band/maraton_totals.h"
#include "base/number.h"
#include "base/runtime_error.h"
#include "platform/progress.h"
#include "review/log_view.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "storage/log_statements.h"
#include "storage/open_databases.h"

namespace review {

namespace {

constexpr int columnPoints = 9;
/// Of the points of a QSO as many characters count as the record of a row has room for.
constexpr std::size_t pointsCharacters = 6;

/// A step of reading the log. An empty table is no failure.
template <typename Step>
void read(base::ResumeNext& go, Step&& step)
{
    const int error = go(std::forward<Step>(step));
    if (error != 0 && error != base::noCurrentRecord) Modul1.logUnread = 100;
}

/// Adds the points of the current row, cut to the width that the record gives them, and goes to the next row.
void addRow(base::ResumeNext& go, storage::RecordSet& rows, std::int32_t& total)
{
    read(go, [&] { FrmAnzeigen.LogRec.Pct = rows.Field(columnPoints); });
    read(go, [&] { rows.MoveNext(); });
    go([&] { total = base::roundToInt32(total + base::numericValue(FrmAnzeigen.LogRec.Pct)); });
}

void sum(const LogView& log)
{
    base::ResumeNext go;
    const entry::LogTable& table = *log.table;
    std::int32_t& points = Modul1.*table.Pct;
    points = 0;
    Modul1.*table.Loc = 0;
    Modul1.GridRebuild = 1000;
    storage::Database database;
    read(go, [&] { database = storage::OpenDatabase(storage::logDatabasePath()); });

    screen::DataControl& data = FrmAnzeigen.*log.data;
    storage::RecordSet& rows = data.Recordset;
    data.RecordSource = storage::readTable(table.name);
    read(go, [&] { data.Refresh(); });
    read(go, [&] { rows.MoveLast(); });
    read(go, [&] { rows.MoveFirst(); });
    go(table.layOut);
    long count = 0;
    read(go, [&] { count = rows.RecordCount(); });
    platform::LongWork work("Recount", count);
    for (long row = 0; row < count; ++row) {
        work.done(row);
        addRow(go, rows, points);
    }
    go([&] { Modul1.*table.Qso = base::toInt16(static_cast<long long>(count)); });
    go([&] { rows.MoveLast(); });
    showSum(points, count);
}

void sumBand(std::int32_t band, const char* stage)
{
    Modul1.BandCur = band;
    sum(*logViewFor(band, stage));
}

/// The figures of both stages of a band.
void addStages(std::int32_t band)
{
    const entry::LogTable& a = *logViewFor(band, "A")->table;
    const entry::LogTable& b = *logViewFor(band, "B")->table;
    FrmAnzeigen.SumQso = base::toInt16(static_cast<long long>(Modul1.*a.Qso) + Modul1.*b.Qso);
    FrmAnzeigen.SumPct = base::roundToInt32(static_cast<double>(Modul1.*a.Pct) + Modul1.*b.Pct);
}

void sumBothStages(std::int32_t band)
{
    if (band != 144 && band != 432 && band != 1296) return;
    sumBand(band, "A");
    sumBand(band, "B");
    addStages(band);
}

}  // namespace

void showSum(std::int32_t points, long qsos)
{
    FrmAnzeigen.Frame4.Visible = true;
    for (screen::Label* label : {&FrmAnzeigen.LblQSO, &FrmAnzeigen.LblQSO1, &FrmAnzeigen.LblPkt, &FrmAnzeigen.LblPkt1})
        label->Visible = true;
    FrmAnzeigen.LblPkt1.Caption = base::toText(points);
    FrmAnzeigen.LblQSO1.Caption = base::toText(qsos);
}

void Summe144a()
{
    sumBand(144, "A");
}

void Summe144b()
{
    sumBand(144, "B");
}

void Summe432a()
{
    sumBand(432, "A");
}

void Summe432b()
{
    sumBand(432, "B");
}

void Summe1296a()
{
    sumBand(1296, "A");
}

void Summe1296b()
{
    sumBand(1296, "B");
}

void SummeGHz()
{
    sum(*logViewFor(entry::bandGHz, ""));
}

void SummeYO2()
{
    const int error = base::quietly<base::noCurrentRecord, base::rowGone>(
        [] { band::recountMaratonLog(FrmAnzeigen.UusLGYO2, pointsCharacters); });
    if (error != 0 && error != base::noCurrentRecord) Modul1.logUnread = 100;
    if (error != base::rowGone) return;
    runstate::tell("AFTER DELETE LOG, PLEASE RESTART PROGRAM !", platform::iconExclamation);
    Modul1.DbQra.Close();
    FrmAnzeigen.Unload();
    throw base::ProgramEnd{};
}

void ClcSum()
{
    switch (Modul1.ConcId) {
        case 0:
        case 1:
        case 6:
            return sumBothStages(Modul1.BandCur);
        case 2:
        case 3:
        case 5:
        case 8:
        case 100:
            Summe144a();
            Summe432a();
            Summe1296a();
            if (Modul1.ConcId == 100) SummeGHz();
            return;
        default:
            return;
    }
}

}  // namespace review
