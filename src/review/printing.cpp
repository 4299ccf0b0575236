#include "review/printing.h"

#include <span>
#include <string>

#include "base/number.h"
#include "base/text.h"
#include "entry/log_table.h"
#include "review/output_names.h"
#include "review/paper.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

constexpr int columnOfTitle = 5;
constexpr int columnOfTotal = 60;

using Field = const std::string& (*)(const screen::LogRecord&);

struct PrintedColumn {
    int column;
    const char* head;
    Field field;
};

template <auto member>
const std::string& fieldOf(const screen::LogRecord& record)
{
    return (record.*member).get();
}

using Record = screen::LogRecord;

constexpr PrintedColumn bandColumns[] = {
    {5, "Nr.", fieldOf<&Record::Nr>},     {10, "Data", fieldOf<&Record::Data>},
    {24, "UTC", fieldOf<&Record::UTC>},   {33, "Callsign", fieldOf<&Record::Callsign>},
    {46, "Sent", fieldOf<&Record::Sent>}, {56, "Rcvd", fieldOf<&Record::Rcvd>},
    {66, "Mode", fieldOf<&Record::Mode>}, {74, "QRALoc", fieldOf<&Record::QRALoc>},
    {85, "Frq", fieldOf<&Record::Freq>},  {93, "Pct", fieldOf<&Record::Pct>},
};

constexpr PrintedColumn maratonColumns[] = {
    {5, "Nr.", fieldOf<&Record::Nr>},         {10, "Data", fieldOf<&Record::Data>},
    {21, "UTC", fieldOf<&Record::UTC>},       {30, "Callsign", fieldOf<&Record::Callsign>},
    {43, "Sent", fieldOf<&Record::Sent>},     {53, "Rcvd", fieldOf<&Record::Rcvd>},
    {63, "Mode", fieldOf<&Record::Mode>},     {71, "Frq", fieldOf<&Record::Freq>},
    {77, "QRALoc", fieldOf<&Record::QRALoc>}, {89, "NameR", fieldOf<&Record::NameR>},
    {102, "Pct", fieldOf<&Record::Pct>},      {108, "MyQRA", fieldOf<&Record::QRALcE>},
    {118, "MyName", fieldOf<&Record::NameE>},
};

std::span<const PrintedColumn> columns()
{
    if (Modul1.ConcId == runstate::maratonContest) return maratonColumns;
    return bandColumns;
}

/// What the contest is called above a printed log.
std::string titleOfLog()
{
    switch (Modul1.ConcId) {
        case 0:
            return "CAMPIONATELE NATIONALE DE UUS ";
        case 1:
            return "TROFEUL CARPATI ";
        case 2:
            return "CONCURSUL CLUJ NAPOCA ";
        case 3:
            return "FLOAREA DE MINA ";
        case 4:
            return "Oltenia 144 MHz ";
        case 5:
            return "Constructor masini ";
        case 6:
            return "Ziua Telecom ";
        case 7:
            return "Lugoj Maraton ";
        case 8:
            return "ZI FE VARA ";
        case 100:
            return "CAMPIONATELE INTERNATIONALE DE UUS ";
        case 101:
            return "Oltenia 6 m ";
        default:
            return {};
    }
}

/// Band and stage behind the title.
std::string bandOfLog()
{
    const std::string band = base::toText(Modul1.BandCur);
    switch (Modul1.ConcId) {
        case runstate::maratonContest:
        case runstate::sixMetresContest:
            return {};
        case runstate::internationalContest:
            return Modul1.BandCur == entry::bandGHz ? " GHz." : band + " MHz.";
        default:
            return band + " MHz. ETAPA " + Modul1.Etapa;
    }
}

std::string titleLine()
{
    const std::string behindCall = Modul1.ConcId == runstate::maratonContest ? "" : " ";
    return titleOfLog() + yearOfClock() + " " + Modul1.MyCall + behindCall + bandOfLog();
}

void printWords()
{
    const bool small = Modul1.ConcId == runstate::maratonContest;
    takeFont(small ? 8 : 10);
    if (!small) paper().setBold(false);
    for (const PrintedColumn& each : columns())
        paper().print(each.column, each.head);
    paper().endLine();
}

/// What the queue of the printer calls the log: band and stage.
std::string nameOfLog()
{
    if (Modul1.ConcId == runstate::maratonContest) return "Maraton";
    if (Modul1.ConcId == runstate::sixMetresContest) return "50";
    if (Modul1.BandCur == entry::bandGHz) return "GHz";
    return base::toText(Modul1.BandCur) + Modul1.Etapa;
}

}  // namespace

void beginPrintedLog()
{
    paper().begin(base::trim(Modul1.MyCall) + " " + nameOfLog());
}

void printLogHead()
{
    takeFont(16);
    paper().setBold(true);
    emptyLines(3);
    paper().print(columnOfTitle, titleLine());
    // On six metres the line of the title stays open: the empty line closes it.
    if (Modul1.ConcId != runstate::sixMetresContest) paper().endLine();
    paper().endLine();
    printWords();
    paper().endLine();
}

void printLogRow()
{
    for (const PrintedColumn& each : columns())
        paper().print(each.column, base::trim(each.field(FrmAnzeigen.LogRec)));
    paper().endLine();
}

void endLogPage()
{
    paper().endPage();
}

void printLogTotal(int column, std::int32_t points)
{
    emptyLines(1);
    paper().setBold(true);
    printItems({{columnOfTotal, "TOTAL"}, {column, base::toText(points)}});
    paper().setBold(false);
}

void endPrintedLog()
{
    paper().endDocument();
}

}  // namespace review
