#include "entry/duplicate.h"

#include "band/maraton.h"
#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/contest_groups.h"
#include "entry/log_table.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "storage/database.h"
#include "storage/log_statements.h"
#include "storage/open_databases.h"

namespace entry {

namespace {

constexpr std::uint16_t telecomDay = 6;

bool callIsThere()
{
    Modul1.Indic = base::upper(Modul1.Indic);
    return !base::trim(Modul1.Indic).empty();
}

void lookUpLocator()
{
    screen::DataControl& memory = FrmQSO.QRA;
    memory.RecordSource = storage::locatorOfCall(base::trim(Modul1.Indic));
    memory.Refresh();
    if (!memory.Recordset.IsEof()) {
        Modul1.QraLoc = base::upper(memory.Recordset.Field(1));
        FrmQSO.TxtRSTr3.Text = Modul1.QraLoc;
        Modul1.QraUnknown = 0;
        FrmQSO.QraMem = Modul1.QraLoc;
        return;
    }
    FrmQSO.TxtRSTr3.Text = "";
    presetRomanianField();
}

void presetReports()
{
    if (Modul1.ModeCur == "CW") {
        FrmQSO.TxtRSTR1.Text = "599";
        FrmQSO.TxtRSTE1.Text = "599";
    }
    if (Modul1.ModeCur == "Fm" || Modul1.ModeCur == "SSB") {
        FrmQSO.TxtRSTR1.Text = "59";
        FrmQSO.TxtRSTE1.Text = "59";
    }
}

/// Puts the rows of a query into the grid of a table. True when there is one.
bool found(const LogTable& table, const std::string& query)
{
    screen::DataControl& data = FrmQSO.*table.data;
    data.RecordSource = query;
    data.Refresh();
    base::passing<base::noCurrentRecord>([&] { data.Recordset.MoveLast(); });
    table.layOut();
    return !data.Recordset.IsEof();
}

void giveVerdict(bool duplicate)
{
    if (duplicate)
        Rosu();
    else
        Verde();
}

bool isOwnCall()
{
    return base::trim(FrmQSO.LblMyCall.Caption) == base::trim(FrmQSO.txtIndic.Text);
}

/// The check of a band: the same call in the log of the band and stage.
void checkBand(std::int32_t band)
{
    base::quietly<base::noCurrentRecord>([&] {
        if (!callIsThere()) return;
        if (isOwnCall()) return Rosu();
        const LogTable* table = logTableFor(band, Modul1.Etapa);
        if (table != nullptr) giveVerdict(found(*table, storage::rowsOfCall(table->name, Modul1.Indic)));
    });
}

/// Two stages, and CW apart from phone: the same call in the same group of modes.
void checkModeGroup(std::string_view stage)
{
    base::quietly<base::noCurrentRecord>([&] {
        if (!callIsThere()) return;
        const LogTable& table = *logTableFor(144, stage);
        const auto worked = [&](const std::string& mode) {
            return found(table, storage::rowsOfCallInMode(table.name, Modul1.Indic, mode));
        };
        if (Modul1.ModeCur == "CW") giveVerdict(worked("CW"));
        if (Modul1.ModeCur == "SSB" || Modul1.ModeCur == "Fm") giveVerdict(worked("SSB") || worked("Fm"));
    });
}

/// Takes the points of all earlier rows of the call away. The GHz log has no statement for it.
void zeroEarlierPoints()
{
    const LogTable* table = currentLogTable();
    if (Modul1.ConcId == runstate::maratonContest || table == nullptr || table->band == bandGHz) return;
    Modul1.DbLog = storage::OpenDatabase(storage::logDatabasePath());
    Modul1.DbLog.Execute(storage::zeroPointsOfCall(table->name, base::trim(Modul1.IndicLog)));
    table->layOut();
}

}  // namespace

void IndicInfo()
{
    Modul1.QraUnknown = 100;
    if (callIsThere()) {
        lookUpLocator();
        presetReports();
        FrmQSO.txtIndic.Text = Modul1.Indic;
        FrmQSO.LblBeam1.Caption = "0";  // the text of a number that nothing ever sets
        FrmQSO.DBGrid5.Visible = false;
    }
    FrmQSO.Show();
}

void IndicInfoDubl()
{
    if (Modul1.ConcId == runstate::maratonContest) return band::IndicInfoDublYO2();
    if (Modul1.BandCur == 144 && Modul1.ConcId != telecomDay) return IndicInfoDubl144();
    if (Modul1.BandCur == 144 && Modul1.Etapa == "A") return IndicDubl144A6();
    if (Modul1.BandCur == 144 && Modul1.Etapa == "B") return IndicDubl144B6();
    if (Modul1.BandCur == 432) return IndicInfoDubl432();
    if (Modul1.BandCur == 1296) return IndicInfoDubl1296();
    if (Modul1.BandCur > highestNamedBand) return IndicInfoDublGHz();
}

void IndicInfoDubl144()
{
    checkBand(144);
}

void IndicInfoDubl432()
{
    checkBand(432);
}

void IndicInfoDubl1296()
{
    checkBand(1296);
}

void IndicInfoDublGHz()
{
    base::quietly<base::noCurrentRecord>([] {
        if (!callIsThere()) return;
        const LogTable& table = *logTableFor(bandGHz, "");
        const std::string band = base::toText(Modul1.BandCur);
        giveVerdict(found(table, storage::rowsOfCallOnBand(table.name, Modul1.Indic, band)));
    });
}

void IndicDubl144A6()
{
    checkModeGroup("A");
}

void IndicDubl144B6()
{
    checkModeGroup("B");
}

void Rosu()
{
    FrmQSO.txtIndic.BackColor = screen::red;
    FrmQSO.DupLock = 10;
    FrmQSO.CmdEnterCall.Enabled = false;
}

void Verde()
{
    FrmQSO.txtIndic.BackColor = screen::green;
    if (FrmQSO.DupLock != 10) FrmQSO.CmdEnterCall.Enabled = true;
}

void presetRomanianField()
{
    const int contest = Modul1.ConcId;
    const bool always = contest == 1 || contest == 6 || contest == runstate::maratonContest;
    if (!always && !(contest == 0 && FrmQSO.PrefixYO == "YO")) return;
    FrmQSO.TxtRSTr3.Text = "KN";
    FrmQSO.TxtRSTr3.SetFocus();
    FrmQSO.TxtRSTr3.caretToEnd();
}

void OBtActual_Click()
{
    FrmQSO.CmdEnterCall.Enabled = true;
    zeroEarlierPoints();
    if (Modul1.ConcId != runstate::maratonContest) {
        FrmQSO.txtIndic.SetFocus();
        FrmQSO.txtIndic.caretToEnd();
    }
    FrmQSO.DubActual = 10;
    FrmQSO.Frame4.Visible = false;
    FrmQSO.OBtActual.Value = false;
}

void OBtAnterior_Click()
{
    FrmQSO.CmdEnterCall.Enabled = true;
    Modul1.PctCur = "0";
    FrmQSO.Frame4.Visible = false;
    FrmQSO.OBtAnterior.Value = false;
    FrmQSO.txtIndic.SetFocus();
    FrmQSO.txtIndic.caretToEnd();
}

}  // namespace entry
