#include "band/maraton.h"

#include <array>
#include <string>

#include "band/maraton_totals.h"
#include "band/score_rows.h"
#include "band/totals.h"
#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/commit.h"
#include "entry/duplicate.h"
#include "entry/offline.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "screen/grid_layout.h"
#include "storage/log_statements.h"

namespace band {

namespace {

constexpr int columnName = 9;

void ask(const std::string& query)
{
    FrmQSO.UusLGYO2.RecordSource = query;
    FrmQSO.UusLGYO2.Refresh();
}

/// The day of the QSO as the log writes it.
std::string dayOfQso()
{
    return entry::withShortYear(entry::paperLog() ? Modul1.DateOff : Modul1.DateQso);
}

/// The name of the last QSO with this station in which one was logged.
void learnName()
{
    ask(storage::rowsOfCall("UusLGYO2", Modul1.Indic));
    storage::RecordSet& rows = FrmQSO.UusLGYO2.Recordset;
    for (; !rows.IsEof(); rows.MoveNext()) {
        Modul1.YourName = rows.Field(columnName);
        if (base::length(Modul1.YourName) > 1) FrmQSO.TxtYourName.Text = base::trim(Modul1.YourName);
    }
}

}  // namespace

void ScrieTabYO2()
{
    entry::takeExchange();
    Modul1.BandYO = base::toText(Modul1.BandCur);
    Modul1.DateQso = entry::withShortYear(Modul1.DateQso);
    const std::array<std::string, 12> row = {Modul1.IndicLog, Modul1.DateQso, Modul1.TimeQso,
                                             Modul1.SentLog,  Modul1.RcvdLog, Modul1.ModeCur,
                                             Modul1.BandYO,   Modul1.QraLog,  base::trim(FrmQSO.TxtYourName.Text),
                                             Modul1.PctCur,   Modul1.MyQRA,   Modul1.MyName};
    Modul1.DbLog.Execute(storage::insertMaratonQso(row));
    ViewLogGen();
    const double total = base::numericValue(FrmQSO.LblPkt.Caption) + base::numericValue(Modul1.PctCur);
    FrmQSO.LblPkt.Caption = base::toText(base::roundToInt32(total));
    Modul1.QsoGHz = base::roundToInt16(base::numericValue(FrmQSO.LblQSO.Caption));
    Modul1.PctGHz = base::roundToInt32(total);
}

void IndicInfoDublYO2()
{
    base::quietly<base::noCurrentRecord>([] {
        Modul1.Indic = base::trim(base::upper(Modul1.Indic));
        if (Modul1.Indic.empty()) return;
        ask(storage::maratonRowsOfCall(Modul1.Indic, Modul1.BandYO, dayOfQso()));
        if (!FrmQSO.UusLGYO2.Recordset.IsEof()) return entry::Rosu();
        entry::Verde();
        learnName();
    });
}

void SummeYO2()
{
    const int error = base::quietly<base::noCurrentRecord, base::rowGone>([] {
        recountMaratonLog(FrmQSO.UusLGYO2);
        ViewLogGen();
    });
    afterSumError(error, restartMessage);
}

void showMaratonScore(std::int32_t band)
{
    int number = 0;
    for (const MaratonBand* row : maratonBandsFrom(band))
        showScore(number++, row->name, Modul1.*row->Pct, Modul1.*row->Qso);
}

void takeMaratonBand(std::int32_t band)
{
    Modul1.BandYO = base::toText(band);
    SummeYO2();
    showMaratonScore(band);
    ViewLogGen();
}

void ViewLogGen()
{
    base::quietly<base::noCurrentRecord>([] {
        ask(storage::maratonLogOfBand(Modul1.BandYO));
        base::passing<base::noCurrentRecord>([] { FrmQSO.UusLGYO2.Recordset.MoveLast(); });
        screen::layOutUusLGYO2();
    });
}

}  // namespace band
