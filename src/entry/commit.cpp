#include "entry/commit.h"

#include <array>
#include <cmath>

#include "band/maraton.h"
#include "band/switching.h"
#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/contest_groups.h"
#include "entry/log_table.h"
#include "entry/offline.h"
#include "entry/undo.h"
#include "platform/civil_time.h"
#include "platform/machine.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "storage/database.h"
#include "storage/locator_memory.h"
#include "storage/log_statements.h"
#include "storage/open_databases.h"

namespace entry {

namespace {

constexpr long mostQsos = 32767;

void openDatabases()
{
    Modul1.DbLog = storage::OpenDatabase(storage::logDatabasePath());
    Modul1.DbQra = storage::OpenDatabase(storage::locatorDatabasePath());
}

/// Reads the call from its field. False, with a message, when there is none.
bool takeCall()
{
    Modul1.IndicLog = FrmQSO.txtIndic.Text;
    Modul1.Indic = base::trim(Modul1.IndicLog);
    if (!Modul1.Indic.empty()) return true;
    platform::msgBox("Falsche Eingabe");
    return false;
}

/// True when the band in hand has somewhere to write to. Without one the prompt says what is still to be chosen.
bool bandIsChosen()
{
    const bool named = Modul1.BandCur > bandGHz;
    if (named && (Modul1.ConcId == runstate::maratonContest || bandHasTable(Modul1.BandCur))) return true;
    FrmQSO.LblAnunt.Visible = true;
    return false;
}

void stampLiveTime()
{
    if (paperLog()) return;
    CalcOraData();
    FrmQSO.TxtDate.Text = Modul1.DateQso;
    FrmQSO.TxtUTC.Text = Modul1.TimeQso;
}

/// Provisional values; the writer replaces them.
void takeReports()
{
    Modul1.RstRcvd1 = FrmQSO.TxtRSTR1.Text;
    Modul1.RstRcvd2 = FrmQSO.TxtRSTR2.Text;
    Modul1.RcvdLog = Modul1.RstRcvd1 + Modul1.RstRcvd2;
    Modul1.RstSent1 = FrmQSO.TxtRSTE1.Text;
    Modul1.RstSent2 = FrmQSO.txtRSTE2.Text;
    Modul1.SentLog = Modul1.RstSent1 + Modul1.RstSent2;
}

void countQso()
{
    const auto qsos = static_cast<long>(base::numericValue(FrmQSO.LblQSO.Caption));
    if (qsos >= mostQsos)
        throw base::RuntimeError(base::overflow, "The log is full at 32,767 QSOs: nothing was logged");
    FrmQSO.LblQSO.Caption = base::toText(qsos + 1);
}

/// Label that keeps the last code sent in this contest on this band.
screen::Label& lastCodeLabel()
{
    if (!countsPerBand(Modul1.ConcId)) return FrmQSO.LblCod;
    const LogTable* table = currentLogTable();
    return table == nullptr ? FrmQSO.LblCod : FrmQSO.*table->lastCode;
}

void storeLastCode()
{
    lastCodeLabel().Caption = Modul1.RstSent2;
    Rap1();
}

/// Shows the written row among what the grid shows. Nothing that fails here matters any more: the row is safe.
void showWrittenRow()
{
    const LogTable* table = currentLogTable();
    if (Modul1.ConcId == runstate::maratonContest || table == nullptr) return;
    base::quietly<base::noCurrentRecord>([&] {
        screen::DataControl& data = FrmQSO.*table->data;
        data.Refresh();
        base::passing<base::noCurrentRecord>([&] { data.Recordset.MoveLast(); });
        table->layOut();
    });
}

/// A code received that is no number ends the procedure here, with the row written and the screen as it is: the
/// operator sees the code that he has to look at.
void takeReceivedNumber()
{
    try {
        Modul1.SerNr = base::toInt16(Modul1.RstRcvd2);
    } catch (const base::RuntimeError& error) {
        showWrittenRow();
        throw base::RuntimeError(error.number(), "The QSO is logged. The code received, \"" + Modul1.RstRcvd2 +
                                                     "\", is no number: leave with Esc, Enter would log it again");
    }
}

/// The whole log comes back into view, with the QSO at its end. A failure here may not keep the screen from clearing.
void showLogAfterQso()
{
    if (Modul1.ConcId == runstate::maratonContest) return;
    const LogTable* table = currentLogTable();
    if (table != nullptr) showWholeTable(*table);
    const bool microwaves = Modul1.ConcId == runstate::internationalContest && Modul1.BandCur > highestNamedBand;
    if (microwaves && FrmQSO.DubActual == 10) band::BGHz();
}

std::string frequencyText(const LogTable& table)
{
    if (table.band == 144 && Modul1.ConcId == runstate::sixMetresContest) return "50";
    return base::toText(Modul1.BandCur);
}

/// Adds the points to the total on the screen and to the stage's.
void addToTotal(const LogTable& table)
{
    const double points = base::numericValue(Modul1.PctCur);
    const std::int32_t total = base::roundToInt32(base::numericValue(FrmQSO.LblPkt.Caption) + points);
    Modul1.*table.Pct = total;
    Modul1.*table.Qso = base::roundToInt16(base::numericValue(FrmQSO.LblQSO.Caption));
    // The earlier QSO of a duplicate has lost its points in the log, not on the screen: so those of this one are not
    // added there. The GHz log knows no such step.
    const bool replacesEarlier = FrmQSO.DubActual == 10 && table.band != bandGHz;
    FrmQSO.LblPkt.Caption = base::toText(total - (replacesEarlier ? std::lround(points) : 0));
}

/// Writes the QSO to the table of the band for the stage in hand.
void writeQso(std::int32_t band)
{
    takeExchange();
    Modul1.DateQso = withShortYear(Modul1.DateQso);
    const LogTable* table = logTableFor(band, Modul1.Etapa);
    if (table == nullptr)
        throw base::RuntimeError(base::invalidArgument, "The stage is missing, choose A or B: nothing was logged");
    const std::array<std::string, 9> row = {Modul1.IndicLog,       Modul1.DateQso, Modul1.TimeQso,
                                            Modul1.SentLog,        Modul1.RcvdLog, Modul1.ModeCur,
                                            frequencyText(*table), Modul1.QraLog,  Modul1.PctCur};
    Modul1.DbLog.Execute(storage::insertQso(table->name, row));
    addToTotal(*table);
}

/// The number behind which the next code counts, by band and contest; 0 where the contest has no row for the band. So
/// the code of the 6 m contest never counts.
long lastCodeFor(std::int32_t band)
{
    const int contest = Modul1.ConcId;
    const screen::Label* label = nullptr;
    if (band == 144 && contest != runstate::sixMetresContest) label = &FrmQSO.LblCod;
    const bool upperBand = band == 432 || band == 1296;
    if (upperBand && contest == 3) label = &FrmQSO.LblCod;
    if (upperBand && countsPerBand(contest)) label = band == 432 ? &FrmQSO.LblCod432 : &FrmQSO.LblCod1296;
    const bool microwaves = band == bandGHz || band > highestNamedBand;
    if (microwaves && contest == runstate::internationalContest) label = &FrmQSO.LblCodGhz;
    return label == nullptr ? 0 : std::lround(base::numericValue(label->Caption));
}

void setNextCode(long last)
{
    FrmQSO.NextCod = base::paddedCode(last + 1);
    FrmQSO.txtRSTE2.Text = FrmQSO.NextCod;
}

}  // namespace

void Enter()
{
    base::quietly<base::noCurrentRecord>([] {
        FrmQSO.DupLock = 0;
        openDatabases();
        if (!takeCall() || !bandIsChosen()) return;
        stampLiveTime();
        storage::learnLocator();
        takeReports();
        countQso();
        ScrieTab();
        storeLastCode();
        takeReceivedNumber();
        Anulat();
        if (paperLog()) showPaperDateAndHour();
        FrmQSO.CmdEnterCall.Enabled = false;
        base::quietly<base::noCurrentRecord>(showLogAfterQso);
        FrmQSO.AbortFlag = 0;
        switchRecup(false);
        YoIn();
    });
}

void CalcOraData()
{
    const platform::LocalTime utc =
        platform::minusHours(platform::machine().clock.now(), base::numericValue(Modul1.TimeDiff));
    Modul1.DateQso = platform::shortDate(utc);
    Modul1.TimeQso = platform::shortTime(utc);
}

void ScrieTab()
{
    if (paperLog()) {
        Modul1.DateQso = Modul1.DateOff;
        // An hour or minute of one digit is a time as well, but not in the form of the log.
        Modul1.TimeQso = platform::validTime(Modul1.TimeOff).value_or(Modul1.TimeOff);
        Modul1.RstRcvd2 = FrmQSO.TxtRSTR2.Text;
    }
    if (Modul1.ConcId == runstate::maratonContest) return band::ScrieTabYO2();
    switch (Modul1.BandCur) {
        case 144:
            return ScrieTab144();
        case 432:
            return ScrieTab432();
        case 1296:
            return ScrieTab1296();
        default:
            if (Modul1.BandCur > highestNamedBand) ScrieTabGHz();
    }
}

void ScrieTab144()
{
    writeQso(144);
}

void ScrieTab432()
{
    writeQso(432);
}

void ScrieTab1296()
{
    writeQso(1296);
}

void ScrieTabGHz()
{
    writeQso(bandGHz);
}

void Rap1()
{
    const int contest = Modul1.ConcId;
    if (contest == 0) return;
    setNextCode(std::lround(base::numericValue(FrmQSO.LblCod.Caption)));
    if (!countsPerBand(contest)) return;
    const LogTable* table = currentLogTable();
    if (table == nullptr || table->band == 144) return;
    if (table->band == bandGHz && contest != runstate::internationalContest && Modul1.BandCur != bandGHz) return;
    setNextCode(std::lround(base::numericValue((FrmQSO.*table->lastCode).Caption)));
}

void Plus1()
{
    FrmQSO.txtRSTe3.Text = FrmQSO.LblMyQRA.Caption;
    setNextCode(lastCodeFor(Modul1.BandCur));
}

void Anulat()
{
    FrmQSO.txtIndic.Text = "";
    FrmQSO.LblBeam1.Caption = "";
    FrmQSO.LblQRB1.Caption = "";
    FrmQSO.TxtRSTR1.Text = "";
    FrmQSO.TxtRSTR2.Text = "";
    FrmQSO.TxtRSTr3.Text = "";
    FrmQSO.TxtUTC.Text = "";
    FrmQSO.TxtDate.Text = "";
    Modul1.Indic = "";
    FrmQSO.LblNeu.Visible = false;
    FrmQSO.Line4.Visible = false;
    FrmQSO.txtIndic.BackColor = screen::yellow;
    FrmQSO.TimeDone = 0;
    if (Modul1.ConcId == runstate::maratonContest) FrmQSO.TxtYourName.Text = " ";
}

void AbbruchX()
{
    base::quietly<base::noCurrentRecord>([] {
        if (FrmQSO.AbortFlag == 100) MemUndo();
        Anulat();
        Modul1.GridRebuild = 100;
        const LogTable* table = currentLogTable();
        if (Modul1.ConcId == runstate::maratonContest)
            band::ViewLogGen();
        else if (table != nullptr && table->band != bandGHz)
            base::quietly<base::noCurrentRecord>([&] { showWholeTable(*table); });
        YoIn();
        FrmQSO.CmdEnterCall.Enabled = false;
        FrmQSO.Frame2.Visible = true;
    });
}

void ScrMyDat()
{
    FrmQSO.LblMyCall.Caption = Modul1.MyCall;
    FrmQSO.LblMyQRA.Caption = Modul1.MyQRA;
}

void YoIn()
{
    if (!worksRomaniaOnly(Modul1.ConcId)) {
        FrmQSO.txtIndic.SetFocus();
        return;
    }
    FrmQSO.txtIndic.Text = "YO";
    FrmQSO.Show();
    FrmQSO.txtIndic.SetFocus();
    FrmQSO.txtIndic.caretToEnd();
}

void takeExchange()
{
    Modul1.RstRcvd1 = FrmQSO.TxtRSTR1.Text;
    Modul1.RstRcvd2 = FrmQSO.TxtRSTR2.Text;
    Modul1.RstRcvd3 = FrmQSO.TxtRSTr3.Text;
    Modul1.RstSent1 = FrmQSO.TxtRSTE1.Text;
    Modul1.RstSent2 = FrmQSO.txtRSTE2.Text;
    Modul1.RstSent3 = FrmQSO.txtRSTe3.Text;
    Modul1.RcvdLog = base::trim(Modul1.RstRcvd1) + " " + base::trim(Modul1.RstRcvd2);
    Modul1.SentLog = base::trim(Modul1.RstSent1) + " " + base::trim(Modul1.RstSent2);
    Modul1.QraLog = base::trim(Modul1.RstRcvd3);
    // No blank of the key that left the call field reaches the log.
    Modul1.IndicLog = base::trim(base::upper(Modul1.IndicLog));
}

std::string withShortYear(const std::string& date)
{
    constexpr std::size_t dateWithFullYear = 10;
    const std::string trimmed = base::trim(date);
    if (base::length(trimmed) != dateWithFullYear) return date;
    return base::left(trimmed, 6) + base::right(trimmed, 2);
}

void CmdEnterCall_Click()
{
    Enter();
}

void CmdAbbruchX_Click()
{
    FrmQSO.AbortFlag = 100;
    switchRecup(true);
    AbbruchX();
    FrmQSO.Frame4.Visible = false;
}

}  // namespace entry
