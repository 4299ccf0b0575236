#include "review/summary_file.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "review/log_view.h"
#include "review/output_modes.h"
#include "review/output_names.h"
#include "review/own_call.h"
#include "review/sums.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

constexpr int columnOfLabel = 10;
constexpr int columnOfValue = 25;
constexpr int columnOfCount = 24;
constexpr int columnOfPoints = 34;
constexpr int columnOfScore = 44;

/// QSOs and points of a table, of a band, or of all.
struct Figures {
    long long qsos = 0;
    long long points = 0;
};

Figures operator+(const Figures& a, const Figures& b)
{
    return {a.qsos + b.qsos, a.points + b.points};
}

/// A line with items at columns. One whose column is passed already goes to the next line.
class Line {
 public:
    Line& at(int column, const std::string& text)
    {
        const auto before = static_cast<std::size_t>(column - 1);
        if (base::length(text_) > before) print();
        text_ = base::padRight(text_, before) + text;
        return *this;
    }

    void print() { Modul1.FileNo.print(std::exchange(text_, {})); }

 private:
    std::string text_;
};

/// A printed number has room for its sign in front, and a blank behind.
std::string printed(long long number)
{
    return (number < 0 ? "" : " ") + base::toText(number) + " ";
}

std::string titleOf(int contest)
{
    switch (contest) {
        case 0:
            return " CAMPIONATELE NATIONALE UUS " + base::toText(Modul1.BandCur) + " ";
        case 1:
            return " TROFEUL CARPATI " + base::toText(Modul1.BandCur) + " ";
        case 2:
            return " Concurs Cluj Napoca  ";
        case 3:
            return " Floarea de mina  ";
        case 4:
            return " Oltenia 144 MHz  ";
        case 5:
            return " Constructor masini  ";
        case 6:
            return " Ziua Telecom  ";
        case 7:
            return "Lugoj Maraton  ";
        case 8:
            return " Concurs Zi de vara  ";
        case 100:
            return " Camp. Internat. UUS  ";
        case 101:
            return " Oltenia 6 m  ";
        default:
            return {};
    }
}

void printTitle()
{
    Line().at(columnOfLabel, Modul1.MyCall + " - SUMMARY " + titleOf(Modul1.ConcId) + yearOfClock()).print();
    if (Modul1.ConcId == 4 || Modul1.ConcId == 101) Summe144a();
    if (Modul1.ConcId == 4) Summe144b();
}

void printStation()
{
    const std::pair<const char*, std::string> lines[] = {
        {"Section", Modul1.CfgSection},
        {"Op's Name", Modul1.CfgOp},
        {"No Operat", base::toText(Modul1.CfgNo)},
        {"QTH", Modul1.CfgQTH},
        {"Adress", Modul1.CfgAds},
        {"QRA Loc", FrmAnzeigen.LogRec.QRALcE.get()},  // blanks, unless the Maraton log was read
        {"Tx", Modul1.CfgTx},
        {"Rx", Modul1.CfgRx},
        {"Ant1", Modul1.CfgAnt},
        {"Ant2", Modul1.CfgAnt2},
        {"Ant3", Modul1.CfgAnt3},
        {"Ant4", Modul1.CfgAnt4},
        {"Club", Modul1.CfgClub},
    };
    for (const auto& [label, value] : lines)
        Line().at(columnOfLabel, label).at(columnOfValue, value).print();
    Modul1.FileNo.print("");
}

Figures figuresOf(std::int32_t band, const char* stage)
{
    const entry::LogTable& table = *entry::logTableFor(band, stage);
    return {Modul1.*table.Qso, Modul1.*table.Pct};
}

void printRow(const char* name, const Figures& figures)
{
    Line()
        .at(columnOfLabel, name)
        .at(columnOfCount, printed(figures.qsos))
        .at(columnOfPoints, printed(figures.points))
        .print();
}

/// The figures under each other with those of the rows, which a printed number leaves a blank in front of.
void printTotalAsText(const Figures& total)
{
    Line()
        .at(columnOfLabel, "TOTAL")
        .at(columnOfCount + 1, base::toText(total.qsos))
        .at(columnOfPoints + 1, base::toText(total.points))
        .print();
}

void printStages(std::int32_t band)
{
    const Figures a = figuresOf(band, "A");
    const Figures b = figuresOf(band, "B");
    Line().at(columnOfCount, "No.QSO").at(columnOfPoints, "Points").print();
    printRow("A", a);
    printRow("B", b);
    printRow("TOTAL", a + b);
}

void printHeadOfBands()
{
    Line().at(columnOfLabel, "Band").at(columnOfCount, "No.QSO").at(columnOfPoints, "Points").print();
}

Figures printThreeBands()
{
    printHeadOfBands();
    constexpr std::array<std::pair<const char*, std::int32_t>, 3> bands = {
        {{" 144", 144}, {" 432", 432}, {"1296", 1296}}};
    Figures total;
    for (const auto& [name, band] : bands) {
        const Figures figures = figuresOf(band, "A");
        printRow(name, figures);
        total = total + figures;
    }
    return total;
}

void printBandsAndMicrowaves()
{
    const Figures threeBands = printThreeBands();
    const Figures microwaves = figuresOf(entry::bandGHz, "");
    printRow("GHz", microwaves);
    printRow("TOTAL", threeBands + microwaves);
}

void printMaraton()
{
    SummeYO2();
    const Figures on144 = {Modul1.QsoYO144, Modul1.PctYO144};
    const Figures on432 = {Modul1.QsoYO432, Modul1.PctYO432};
    const Figures on1296 = {Modul1.QsoYO1296, Modul1.PctYO1296};
    printHeadOfBands();
    printRow(" 144", on144);
    printRow(" 432", on432);
    printRow(" 1296", on1296);
    printTotalAsText(on144 + on432 + on1296);
}

void printOneBand()
{
    const Figures all = figuresOf(144, "A");
    Line()
        .at(columnOfLabel, "Etap")
        .at(columnOfCount, "No.QSO")
        .at(columnOfPoints, "Points")
        .at(columnOfScore, "Score")
        .print();
    printRow(" A", all);
    Line()
        .at(columnOfLabel, "TOTAL")
        .at(columnOfCount + 1, printed(all.qsos))
        .at(columnOfPoints + 1, printed(all.points))
        .at(columnOfScore, printed(all.points))
        .print();
}

bool hasStages(std::int32_t band)
{
    return band == 144 || band == 432 || band == 1296;
}

void printFigures()
{
    switch (Modul1.ConcId) {
        case 0:
            if (hasStages(Modul1.BandCur)) printStages(Modul1.BandCur);
            return;
        case 1:
        case 6:
            return printStages(144);
        case 2:
        case 3:
        case 5:
        case 8:
            return printTotalAsText(printThreeBands());
        case 100:
            return printBandsAndMicrowaves();
        case 7:
            return printMaraton();
        case 4:
        case 101:
            return printOneBand();
        default:
            return;
    }
}

void printDeclaration()
{
    Modul1.FileNo.print("");
    for (const char* line : {
             "Prin prezenta confirm ca la inregistrarea fisierelor",
             "pe disketa, am acceptat urmatorul text:",
             "PRIN EXPEDIEREA LOGULUI ELECTRONIC DECLAR CA AM OPERAT",
             "STATIA IN LIMITELE LICENTEI SI RESPECTIND REGULAMENTUL",
             "DE CONCURS !!!     I hereby certify that in the contest",
             "I have operated the transmitter within the limitation of",
             "my licence and observed the rules and regulation !!!",
         })
        Line().at(columnOfLabel, line).print();
}

/// Error 67 for a file that cannot be opened although its place is there.
void openSummary()
{
    ModifIndic();
    FrmAnzeigen.OutFile = summaryPath(presentName());
    Modul1.FileNo.close();
    try {
        Modul1.FileNo.open(onThisMachine(FrmAnzeigen.OutFile));
    } catch (const base::RuntimeError& error) {
        if (error.number() != base::existsOrNoAccess) throw;
        throw base::RuntimeError(base::summaryNotOpened, error.what());
    }
}

/// A summary with the wrong figures would look right.
void requireFigures()
{
    if (Modul1.logUnread != 100) return;
    throw base::RuntimeError(base::existsOrNoAccess, "The log could not be read: the summary was not written");
}

void writeSummary()
{
    requireFigures();
    openSummary();
    printTitle();
    printStation();
    printFigures();
    printDeclaration();
    FrmAnzeigen.Frame6.Visible = false;
    const bool toPlace = FrmAnzeigen.OutMode == toDrive || FrmAnzeigen.OutMode == toFolder;
    if (toPlace && Modul1.ConcId == 0) FrmAnzeigen.Frame8.Visible = true;
    Modul1.FileNo.close();
}

}  // namespace

void PSumm()
{
    // There need not be a drive. The folder of the logs was there a moment ago.
    const bool toDriveA = FrmAnzeigen.OutMode == toDrive;
    const int error = toDriveA ? base::quietly<base::noSuchFolder, base::summaryNotOpened>(writeSummary)
                               : base::quietly<base::summaryNotOpened>(writeSummary);
    if (error != base::summaryNotOpened) return;
    runstate::tell("NU GASESC FISIERUL ");
    Modul1.FileNo.close();
    throw base::ProgramEnd{};
}

}  // namespace review
