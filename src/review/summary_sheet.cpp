#include "review/summary_sheet.h"

#include <cstdint>
#include <string>
#include <vector>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "review/output_names.h"
#include "review/paper.h"
#include "review/print_road.h"
#include "review/sums.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

/// What the figures of a contest are made of.
enum class Breakdown { stagesOfBand, bands, maraton, oneTable };

/// One line of figures. Sums are wider than the figures that they are made of.
struct FigureRow {
    std::string label;
    std::int64_t qsos = 0;
    std::int64_t points = 0;
};

Breakdown breakdownOfContest()
{
    switch (Modul1.ConcId) {
        case 0:
        case 1:
        case 6:
            return Breakdown::stagesOfBand;
        case 4:
        case 101:
            return Breakdown::oneTable;
        case 7:
            return Breakdown::maraton;
        default:
            return Breakdown::bands;
    }
}

std::string titleOfSheet()
{
    switch (Modul1.ConcId) {
        case 0:
            return "CAMPIONATELE NATIONALE UUS ";
        case 1:
            return "TROFEUL CARPATI ";
        case 2:
            return "Concurs Cluj Napoca ";
        case 3:
            return "Floarea de mina ";
        case 4:
            return " Oltenia 144 MHz  ";
        case 5:
            return "Constructor masini ";
        case 6:
            return "Ziua Telecom ";
        case 7:
            return "Lugoj Maraton ";
        case 8:
            return "Zi de vara ";
        case 100:
            return "Camp. Internat. UUS ";
        case 101:
            return " Oltenia 6 m  ";
        default:
            return {};
    }
}

void countContest()
{
    ClcSum();
    if (Modul1.ConcId == 7) SummeYO2();
    if (Modul1.ConcId == 4 || Modul1.ConcId == 101) Summe144a();
    if (Modul1.ConcId == 4) Summe144b();
}

std::vector<FigureRow> stagesOfBand()
{
    const std::string band = base::toText(Modul1.BandCur);
    switch (Modul1.BandCur) {
        case 144:
            return {{band + " A", Modul1.Qso144a, Modul1.Pct144a}, {band + " B", Modul1.Qso144b, Modul1.Pct144b}};
        case 432:
            return {{band + " A", Modul1.Qso432a, Modul1.Pct432a}, {band + " B", Modul1.Qso432b, Modul1.Pct432b}};
        case 1296:
            return {{band + " A", Modul1.Qso1296a, Modul1.Pct1296a}, {band + " B", Modul1.Qso1296b, Modul1.Pct1296b}};
        default:
            return {};
    }
}

std::vector<FigureRow> bands()
{
    std::vector<FigureRow> rows = {{"144", Modul1.Qso144a, Modul1.Pct144a},
                                   {"432", Modul1.Qso432a, Modul1.Pct432a},
                                   {"1296", Modul1.Qso1296a, Modul1.Pct1296a}};
    if (Modul1.ConcId == 100) rows.push_back({"GHz", Modul1.QsoGHz, Modul1.PctGHz});
    return rows;
}

std::vector<FigureRow> bandsOfMaraton()
{
    return {{"144", Modul1.QsoYO144, Modul1.PctYO144},
            {"432", Modul1.QsoYO432, Modul1.PctYO432},
            {"1296", Modul1.QsoYO1296, Modul1.PctYO1296}};
}

FigureRow totalOf(const std::vector<FigureRow>& rows)
{
    if (breakdownOfContest() == Breakdown::stagesOfBand) return {"TOTAL", FrmAnzeigen.SumQso, FrmAnzeigen.SumPct};
    FigureRow total{"TOTAL"};
    for (const FigureRow& row : rows) {
        total.qsos += row.qsos;
        total.points += row.points;
    }
    return total;
}

/// What the queue of the printer calls the sheet.
std::string nameOfSheet()
{
    if (breakdownOfContest() != Breakdown::stagesOfBand) return "Summary";
    return "Summary " + base::toText(Modul1.BandCur);
}

std::string number(std::int64_t value)
{
    return base::toText(static_cast<long long>(value));
}

void printSheetTitle()
{
    constexpr int column = 15;
    takeFont(20);
    emptyLines(5);
    printItems({{column, Modul1.MyCall + " - SUMMARY "}});
    printItems({{column, titleOfSheet() + yearOfClock()}});
    emptyLines(2);
}

void printSheetStation()
{
    constexpr int labels = 10;
    constexpr int values = 30;
    takeFont(14);
    paper().setBold(true);
    const PrintedItem lines[] = {
        {labels, "Worked in Section:"},
        {values, Modul1.CfgSection},
        {labels, "Operator's Name:"},
        {values, Modul1.CfgOp},
        {labels, "No. of Operator's:"},
        {values, number(Modul1.CfgNo)},
        {labels, "QTH:"},
        {values, Modul1.CfgQTH},
        {labels, "Adress:"},
        {values, Modul1.CfgAds},
        {labels, "QRA.Loc:"},
        {values, base::trim(FrmAnzeigen.LogRec.QRALcE)},
        {labels, "TX:"},
        {values, Modul1.CfgTx},
        {labels, "Rx:"},
        {values, Modul1.CfgRx},
        {labels, "Ant1:"},
        {values, Modul1.CfgAnt},
        {labels, "Ant2:"},
        {values, Modul1.CfgAnt2},
        {labels, "Ant3:"},
        {values, Modul1.CfgAnt3},
        {labels, "Ant4:"},
        {values, Modul1.CfgAnt4},
        {labels, "Club:"},
        {values, Modul1.CfgClub},
    };
    for (const PrintedItem& item : lines) {
        paper().print(item.column, item.text);
        if (item.column == values) paper().endLine();
    }
    emptyLines(1);
    paper().setBold(false);
    emptyLines(1);
}

std::vector<FigureRow> figures()
{
    switch (breakdownOfContest()) {
        case Breakdown::stagesOfBand:
            return stagesOfBand();
        case Breakdown::maraton:
            return bandsOfMaraton();
        default:
            return bands();
    }
}

void printSheetFigures()
{
    paper().setBold(true);
    printItems({{12, "Band"}, {20, "No.QSO"}, {30, "Points"}});
    paper().setBold(false);
    emptyLines(1);
    const std::vector<FigureRow> rows = figures();
    for (const FigureRow& row : rows)
        printItems({{14, row.label}, {24, number(row.qsos)}, {34, number(row.points)}});
    paper().setBold(true);
    emptyLines(1);
    const FigureRow total = totalOf(rows);
    printItems({{12, total.label}, {22, number(total.qsos)}, {31, number(total.points)}});
}

/// The same for a contest of one stage, which has a score of its own.
void printFiguresWithScore()
{
    paper().setBold(true);
    printItems({{10, "Etap"}, {24, "No.QSO"}, {34, "Points"}, {44, "Score"}});
    paper().setBold(false);
    emptyLines(1);
    const std::string qsos = number(Modul1.Qso144a);
    const std::string points = number(Modul1.Pct144a);
    printItems({{10, " A"}, {24, qsos}, {34, points}});
    paper().setBold(true);
    emptyLines(1);
    printItems({{10, "TOTAL"}, {24, qsos}, {34, points}, {44, points}});
}

void printSheetDeclaration()
{
    constexpr int column = 11;
    paper().setBold(false);
    emptyLines(2);
    takeFont(16);
    for (const char* line :
         {" I hereby certify that in the contest I have", " operated the transmitter within  the  limi-",
          " tation of my licence and observed the rules", " and regulation"})
        printItems({{column, line}});
    emptyLines(2);
    printItems({{column, "Date..............   Op(s) signature..................."}});
}

}  // namespace

void PSummary()
{
    if (Modul1.PrintSel == printerRefused) return;
    countContest();
    base::ResumeNext go;
    go([] { paper().begin(base::trim(Modul1.MyCall) + " " + nameOfSheet()); });
    go(printSheetTitle);
    go(printSheetStation);
    go(breakdownOfContest() == Breakdown::oneTable ? printFiguresWithScore : printSheetFigures);
    go(printSheetDeclaration);
    go([] { paper().endDocument(); });
    FrmAnzeigen.Frame6.Visible = false;
}

}  // namespace review
