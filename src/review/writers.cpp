#include "review/writers.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <utility>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/progress.h"
#include "review/contest_name.h"
#include "review/edi_header.h"
#include "review/log_lines.h"
#include "review/log_view.h"
#include "review/output_modes.h"
#include "review/output_names.h"
#include "review/own_call.h"
#include "review/printing.h"
#include "review/row_record.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/grid_layout.h"
#include "storage/log_statements.h"
#include "storage/open_databases.h"

namespace review {

namespace {

constexpr std::array oneStage = {100, 2, 3, 5, 8};
constexpr std::array oneStageOn144 = {100, 2, 3, 4, 5, 8};
constexpr const char* separatorA = "--------------------------A-----------------------------------";
constexpr const char* separatorB = "--------------------------B-----------------------------------";

/// Where the end of a printed log stands, and what it says.
struct PrintedTotal {
    int column;
    std::int32_t runstate::Modul1State::*points;
};

/// What the writers of the bands have of their own.
struct BandWriter {
    std::int32_t band;
    std::span<const int> withoutStageB;
    std::size_t blanksBehindBand;  ///< in the lines of stage B; fewer than the columns need, but on 144
    bool separatorBeforeStageTest;
    int columnOfTotal;  ///< in the files of the runstate::internationalContest contest
    PrintedTotal printedA;
    PrintedTotal printedB;
    bool alwaysOpensArchive;  ///< the others go on in the archive that is open, but where a band is a report of its own
};

using State = runstate::Modul1State;

// The sheet of stage B on 144 ends with the points of stage A.
constexpr BandWriter on144 = {144, oneStageOn144, 4, true, 58, {85, &State::Pct144a}, {84, &State::Pct144a}, true};
constexpr BandWriter on432 = {432, oneStage, 2, true, 58, {84, &State::Pct432a}, {84, &State::Pct432b}, false};
constexpr BandWriter on1296 = {1296, oneStage, 2, false, 59, {84, &State::Pct1296a}, {84, &State::Pct1296b}, false};
constexpr PrintedTotal printedGHz = {88, &State::PctGHz};
constexpr int columnOfGHzTotal = 59;
constexpr int columnOfMaratonTotal = 102;

bool toPlace()
{
    return FrmAnzeigen.OutMode == toDrive || FrmAnzeigen.OutMode == toFolder;
}

bool toFile()
{
    return toPlace() || FrmAnzeigen.OutMode == toArchive;
}

bool toPaper()
{
    return FrmAnzeigen.OutMode == toPrinter;
}

/// What the operator sees of a long log on its way.
const char* wordForProgress()
{
    if (toPaper()) return "Print";
    return FrmAnzeigen.OutMode == toArchive ? "Archive" : "Export";
}

bool textToPlace()
{
    return toPlace() && FrmAnzeigen.OutFormat == asText;
}

bool isIn(std::span<const int> contests)
{
    return std::find(contests.begin(), contests.end(), Modul1.ConcId) != contests.end();
}

/// A name with a separator would lead out of the folder, one with a colon into a drive, and an archive that has nothing
/// but its extension would hide itself: such an archive is not written.
void requireArchiveName()
{
    const std::string name = base::trim(FrmAnzeigen.ArhName);
    if (!name.empty() && platform::isFileName(name + ".txt")) return;
    throw base::RuntimeError(base::existsOrNoAccess, name + " is no name of a file");
}

void openOutput()
{
    if (FrmAnzeigen.OutMode == toArchive) requireArchiveName();
    Modul1.FileNo.open(onThisMachine(FrmAnzeigen.OutFile));
}

void writeHead(base::ResumeNext& go)
{
    if (FrmAnzeigen.OutFormat == asText) go(PCapTab);
    if (FrmAnzeigen.OutFormat == asEdi) go(HeaderEDI);
}

void printLine(const std::string& line)
{
    Modul1.FileNo.print(line);
}

/// Goes through the rows of a record source: `read` copies one into the record, `line` makes a line of it.
class RowWriter {
 public:
    RowWriter(base::ResumeNext& go, screen::DataControl& data, void (*layOut)()) : go_(go), data_(data), layOut_(layOut)
    {
    }

    /// Returns the number of rows. A log that cannot be read to its end gives no file: one with rows missing would look
    /// whole.
    template <typename Read, typename MakeLine>
    std::int16_t write(const std::string& source, Read&& read, MakeLine&& line)
    {
        const std::int16_t count = openRows(source);
        platform::LongWork work(wordForProgress(), count);
        for (int row = 1; row <= count; ++row) {
            work.done(row);
            FrmAnzeigen.LogRec.Nr = base::toText(row);
            if (!reads([&] { read(data_.Recordset); })) break;
            if (FrmAnzeigen.OutMode == toArchive && FrmAnzeigen.ArhFormat == archiveAsAdif)
                TransfADIF();
            else if (FrmAnzeigen.OutFormat == asEdi)
                TransfEDI();
            else
                FrmAnzeigen.LineBuf = line(FrmAnzeigen.LogRec);
            if (!reads([&] { data_.Recordset.MoveNext(); })) break;
            go_(LPrint);
            if (toPaper()) countPrintedRow();
        }
        return count;
    }

 private:
    /// False, and the file thrown away, when the log could not be read. An empty table is no failure.
    template <typename Step>
    bool reads(Step&& step)
    {
        const int error = go_(std::forward<Step>(step));
        if (error == 0 || error == base::noCurrentRecord) return true;
        Modul1.FileNo.abandon();
        Modul1.logUnread = 100;
        return false;
    }

    std::int16_t openRows(const std::string& source)
    {
        data_.RecordSource = source;
        Modul1.GridRebuild = 1000;
        std::int16_t count = 0;
        if (!reads([&] { data_.Refresh(); })) return count;
        go_(layOut_);
        reads([&] { data_.Recordset.MoveLast(); });
        reads([&] { data_.Recordset.MoveFirst(); });
        reads([&] { count = base::toInt16(static_cast<long long>(data_.Recordset.RecordCount())); });
        return count;
    }

    /// The count is never put back: one change of the page is all that it makes.
    void countPrintedRow()
    {
        ++PageLine_;
        if (PageLine_ != lastRowOfFirstPage + 1) return;
        go_(endLogPage);
        go_(LPrint0);
    }

    base::ResumeNext& go_;
    screen::DataControl& data_;
    void (*layOut_)();
    int PageLine_ = 1;
};

/// "TOTAL" of a band, in the files of the runstate::internationalContest contest.
void printTotalOfBand(base::ResumeNext& go, int column, std::int32_t points)
{
    if (!textToPlace() || Modul1.ConcId != runstate::internationalContest) return;
    // A printed number has room for its sign in front, and a blank behind.
    const std::string number = (points < 0 ? "" : " ") + base::toText(points) + " ";
    go([&] { printLine(base::padRight("TOTAL", static_cast<std::size_t>(column) - 1) + number); });
}

void beginOnPaper(base::ResumeNext& go)
{
    if (toPaper()) go(beginPrintedLog);
}

void totalOnPaper(base::ResumeNext& go, const PrintedTotal& total)
{
    if (toPaper()) go([&] { printLogTotal(total.column, Modul1.*total.points); });
}

/// Behind everything, also where the contest lacks the stage that was asked for: no sheet runs on into the next log.
void endOnPaper(base::ResumeNext& go)
{
    if (toPaper()) go(endPrintedLog);
}

template <typename MakeLine>
void writeStage(base::ResumeNext& go, const BandWriter& writer, const char* stage, MakeLine&& line)
{
    const LogView& log = *logViewFor(writer.band, stage);
    RowWriter rows(go, FrmAnzeigen.*log.data, log.table->layOut);
    Modul1.*log.table->Qso = rows.write(storage::readTable(log.table->name), readBandRow, line);
}

void writeStageA(base::ResumeNext& go, const BandWriter& writer)
{
    if (!isIn(oneStage) && textToPlace()) go([] { printLine(separatorA); });
    writeStage(go, writer, "A", textLogLine);
    totalOnPaper(go, writer.printedA);
}

void writeStageB(base::ResumeNext& go, const BandWriter& writer)
{
    if (isIn(writer.withoutStageB)) return;
    const auto separate = [&] {
        if (textToPlace()) go([] { printLine(separatorB); });
    };
    if (writer.separatorBeforeStageTest) separate();
    if (toFile()) Modul1.Etapa = "B";
    if (Modul1.Etapa != "B") return;
    if (!writer.separatorBeforeStageTest) separate();
    const std::string band = base::toText(Modul1.BandCur);
    writeStage(go, writer, "B", [&](const screen::LogRecord& record) {
        return textLogLineOfStageB(record, band, writer.blanksBehindBand);
    });
    totalOnPaper(go, writer.printedB);
}

void begin(base::ResumeNext& go, const BandWriter& writer)
{
    Modul1.BandCur = writer.band;
    beginOnPaper(go);
    go(LPrint0);
    if (!toFile()) return;
    const bool goesOn = FrmAnzeigen.OutMode == toArchive && !writer.alwaysOpensArchive && Modul1.ConcId != 0;
    if (!goesOn) {
        go(openOutput);
        writeHead(go);
    }
    Modul1.Etapa = "A";
}

void write(const BandWriter& writer)
{
    base::ResumeNext go;
    begin(go, writer);
    go([] { storage::OpenDatabase(storage::logDatabasePath()); });
    if (Modul1.Etapa == "A") writeStageA(go, writer);
    writeStageB(go, writer);
    printTotalOfBand(go, writer.columnOfTotal, Modul1.*logViewFor(writer.band, "A")->table->Pct);
    endOnPaper(go);
    if (toPlace()) go([] { Modul1.FileNo.close(); });
}

void printFileHead()
{
    NameConcurs();
    printLine(base::trim(Modul1.MyCall) + "  " + FrmAnzeigen.TxtTName.Text.get() + "  " + yearOfClock());
    printLine("");
    printLine(textLogHead(Modul1.ConcId == runstate::maratonContest));
}

}  // namespace

void PLog144()
{
    write(on144);
}

void PLog432()
{
    write(on432);
}

void PLog1296()
{
    write(on1296);
}

void PLogGHz()
{
    base::ResumeNext go;
    Modul1.BandCur = entry::bandGHz;
    beginOnPaper(go);
    go(LPrint0);
    if (toPlace()) {
        go(openOutput);
        writeHead(go);
    }
    const LogView& log = *logViewFor(entry::bandGHz, "");
    RowWriter rows(go, FrmAnzeigen.*log.data, log.table->layOut);
    Modul1.*log.table->Qso = rows.write(storage::microwaveRowsWithTime(), readBandRow, textLogLine);
    printTotalOfBand(go, columnOfGHzTotal, Modul1.PctGHz);
    totalOnPaper(go, printedGHz);
    endOnPaper(go);
    // The text log alone is closed in so many words. What stays open is whole, and is put in its place here too, where
    // nothing more comes to it.
    if (FrmAnzeigen.OutMode != toArchive) go([] { Modul1.FileNo.close(); });
}

void PLogYO2()
{
    base::ResumeNext go;
    beginOnPaper(go);
    go(LPrint0);
    if (toFile()) go(openOutput);
    if (toPlace()) writeHead(go);
    RowWriter rows(go, FrmAnzeigen.UusLGYO2, screen::layOutUusLGYO2);
    rows.write(storage::maratonLogByNumber(), readMaratonRow, maratonLogLine);
    if (toPlace()) go([] { Modul1.FileNo.close(); });
    if (!toPaper()) return;
    const std::int32_t total =
        base::roundToInt32(static_cast<double>(Modul1.PctYO144) + Modul1.PctYO432 + Modul1.PctYO1296);
    go([&] { printLogTotal(columnOfMaratonTotal, total); });
    endOnPaper(go);
}

void LPrint0()
{
    base::ResumeNext go([](const base::RuntimeError& error) {
        if (error.number() != base::noSuchFolder) throw base::RuntimeError(error);
        platform::msgBox("IN A: NU GASESC DRIVERUL PENTRU DISKETA. INCERCATI SALVARE PE HDD IN FISIERUL LOG !",
                         platform::iconExclamation);
    });
    if (toPaper()) return static_cast<void>(go(printLogHead));
    if (toPlace()) ModifIndic();
    FrmAnzeigen.OutFile = outputPath(presentName());
    go([] { onThisMachine(FrmAnzeigen.OutFile); });
}

void PCapTab()
{
    if (FrmAnzeigen.OutMode == toArchive && FrmAnzeigen.ArhFormat == archiveAsAdif)
        return printLine(" LOG " + FrmAnzeigen.ArhName + " ADIF export <EOF> ");
    printFileHead();
}

void LPrint()
{
    if (toFile()) printLine(FrmAnzeigen.LineBuf);
    if (toPaper()) printLogRow();
}

void HeaderEDI()
{
    for (const std::string& line : ediHeaderLines(FrmAnzeigen.EdiHdr))
        printLine(line);
}

void TransfEDI()
{
    FrmAnzeigen.LineBuf = ediLine(FrmAnzeigen.LogRec);
}

void TransfADIF()
{
    FrmAnzeigen.LineBuf = adifRecord(FrmAnzeigen.LogRec);
}

}  // namespace review
