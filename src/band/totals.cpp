#include "band/totals.h"

#include "band/maraton.h"
#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/log_table.h"
#include "platform/machine.h"
#include "platform/progress.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "storage/database.h"
#include "storage/log_statements.h"
#include "storage/open_databases.h"

namespace band {

namespace {

constexpr int columnLocator = 8;
constexpr int columnPoints = 9;
constexpr const char* restartMessageInTwoLanguages =
    "DUPA GOLIRE LOG ROG RESTART PROGRAM !  AFTER DELETE LOG, PLEASE RESTART PROGRAM !";

/// Walks all rows: points, QSOs, and the QSOs with a locator where the table keeps count of them.
void walk(const entry::LogTable& table)
{
    screen::DataControl& data = FrmQSO.*table.data;
    data.RecordSource = storage::readTable(table.name);
    data.Refresh();
    storage::RecordSet& rows = data.Recordset;
    const bool countsLocators = table.band != entry::bandGHz;
    long blanks = 0;
    platform::LongWork work("Recount");
    long count = 0;
    for (; !rows.IsEof(); rows.MoveNext(), ++count) {
        work.done(count);
        const double points = base::numericValue(rows.Field(columnPoints));
        Modul1.*table.Pct = base::roundToInt32(Modul1.*table.Pct + points);
        if (countsLocators && base::trim(rows.Field(columnLocator)).empty()) ++blanks;
    }
    Modul1.*table.Qso = base::toInt16(static_cast<long long>(count));
    if (countsLocators) Modul1.*table.Loc = static_cast<std::int32_t>(count - blanks);
}

void sum(std::int32_t band, const char* message)
{
    Modul1.BandCur = band;
    const entry::LogTable* table = entry::logTableFor(band, Modul1.Etapa);
    if (table == nullptr) return;
    Modul1.*table->Pct = 0;
    Modul1.*table->Loc = 0;
    const int error = base::quietly<base::noCurrentRecord, base::rowGone>([&] {
        const storage::Database log = storage::OpenDatabase(storage::logDatabasePath());
        walk(*table);
    });
    afterSumError(error, message);
}

}  // namespace

void Summe144()
{
    sum(144, restartMessageInTwoLanguages);
}

void Summe432()
{
    sum(432, restartMessage);
}

void Summe1296()
{
    sum(1296, restartMessage);
}

void SummeGHz()
{
    sum(entry::bandGHz, restartMessage);
}

void Rezult()
{
    Summe144();
    showMaratonScore(144);
    Modul1.BandCur = 144;
}

void afterSumError(int error, const char* message)
{
    if (error != base::rowGone) return;
    platform::msgBox(message, platform::iconExclamation);
    Modul1.DbLog.Close();
    FrmQSO.Unload();
    throw base::ProgramEnd{};
}

}  // namespace band
