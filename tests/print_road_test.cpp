// The print job: what each button prints in each contest, and the question for the printer.
#include "review/print_road.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "support/print_job.h"

namespace {

using Form = screen::FrmAnzeigenForm;
using test::columnsOf;

struct LogButton {
    const char* name;
    screen::OptionButton Form::*button;
    void (*click)();
};

const LogButton buttons[] = {
    {"OpBD144a", &Form::OpBD144a, review::OpBD144a_Click},    {"OpBD144b", &Form::OpBD144b, review::OpBD144b_Click},
    {"OpBD432a", &Form::OpBD432a, review::OpBD432a_Click},    {"OpBD432b", &Form::OpBD432b, review::OpBD432b_Click},
    {"OpBD1296a", &Form::OpBD1296a, review::OpBD1296a_Click}, {"OpBD1296b", &Form::OpBD1296b, review::OpBD1296b_Click},
};

/// What a button prints. The rows tell the table: each has another number of them.
struct PrintedTable {
    const char* end;  ///< the line of the total
    int rows;
    int band;           ///< BandCur behind it
    const char* stage;  ///< Etapa behind it
};

// 10 points a row, but for the Maraton log. The sheet of stage b on 144 ends with the points of stage a.
const PrintedTable log144a = {"60 TOTAL|85 20", 2, 144, "A"};
const PrintedTable log144b = {"60 TOTAL|84 0", 3, 144, "B"};
const PrintedTable log432a = {"60 TOTAL|84 40", 4, 432, "A"};
const PrintedTable log432b = {"60 TOTAL|84 50", 5, 432, "B"};
const PrintedTable log1296a = {"60 TOTAL|84 60", 6, 1296, "A"};
const PrintedTable log1296b = {"60 TOTAL|84 70", 7, 1296, "B"};
const PrintedTable logGHz = {"60 TOTAL|88 80", 8, 1, "X"};
const PrintedTable maratonLog = {"60 TOTAL|102 9", 9, 144, "A"};
const PrintedTable headAlone = {"", 0, 144, "B"};
const PrintedTable summary = {"summary", 0, 1, "X"};
const PrintedTable none = {"none", 0, 0, ""};

struct ContestRow {
    int id;
    std::vector<PrintedTable> printed;  ///< in the order of the buttons
};

const ContestRow contestRows[] = {
    {0, {log144a, log144b, log432a, log432b, log1296a, log1296b}},
    {1, {log144a, log144b, none, none, none, none}},
    {2, {log144a, none, log432a, none, log1296a, none}},
    {3, {log144a, none, log432a, none, log1296a, none}},
    {4, {log144a, headAlone, none, none, none, none}},  // the button of a stage that the contest lacks
    {5, {log144a, none, log432a, none, log1296a, none}},
    {6, {log144a, log144b, none, none, none, none}},
    {7, {maratonLog, none, none, none, none, none}},
    {8, {log144a, none, log432a, none, log1296a, none}},
    {100, {log144a, log432a, log1296a, logGHz, summary, none}},
    {101, {log144a, none, none, none, none, none}},
};

class PrintRoad : public test::PrintJob {
 protected:
    void SetUp() override
    {
        PrintJob::SetUp();
        int rows = 2;
        for (const char* table : {"Uus144a", "Uus144b", "Uus432a", "Uus432b", "Uus1296a", "Uus1296b", "UusGHz"})
            fill(table, rows++, 10);
        fillMaraton("144", 2, 1);
        fillMaraton("432", 3, 1);
        fillMaraton("1296", 4, 1);
    }

    void expectPrinted(const PrintedTable& expected)
    {
        const std::vector<std::string> lines = newLines();
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "end"), 1);
        EXPECT_EQ(lines.back(), "end");
        const std::vector<test::Printed> items = printed();
        const auto rows = std::count_if(items.begin(), items.end(), [](const auto& item) { return item.text == "CW"; });
        EXPECT_EQ(rows, expected.rows);
        EXPECT_EQ(Modul1.BandCur, expected.band);
        EXPECT_EQ(Modul1.Etapa, expected.stage);
        if (*expected.end == 0) {
            EXPECT_EQ(items.back().text, "Pct");
            return;
        }
        EXPECT_EQ(columnsOf({items.end() - 2, items.end()}), expected.end);
        EXPECT_EQ(FrmAnzeigen.BandText, std::to_string(expected.band));
    }

    void expectBox(const std::string& text)
    {
        const auto box = program.box();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->request.text, text);
        EXPECT_EQ(box->request.title, "DRUCKEN");
        EXPECT_EQ(box->request.style, 36);
    }
};

TEST_F(PrintRoad, EveryButtonPrintsItsLogOnceThePrinterIsReady)
{
    for (const ContestRow& contest : contestRows) {
        for (std::size_t i = 0; i < contest.printed.size(); ++i) {
            SCOPED_TRACE(std::to_string(contest.id) + " " + buttons[i].name);
            begin(contest.id);
            screen::OptionButton& button = FrmAnzeigen.*buttons[i].button;
            const PrintedTable& expected = contest.printed[i];
            EXPECT_EQ(button.seen(), expected.end != none.end);
            if (!button.seen()) continue;
            Modul1.Etapa = "X";
            // The points of stage a as stage b finds them: whatever was counted last.
            Modul1.Pct144a = 0;
            if (expected.end == summary.end) {
                program.click(button);
                EXPECT_FALSE(program.box());
                EXPECT_TRUE(newLines().empty());
                EXPECT_TRUE(FrmAnzeigen.Frame6.seen());
                EXPECT_EQ(Modul1.BandCur, 1);
                continue;
            }
            print(button);
            expectBox("ARE PRINTER READY?");
            expectPrinted(expected);
            EXPECT_FALSE(button.Value) << "can be clicked again";
            EXPECT_TRUE(FrmAnzeigen.Frame3.seen());
            EXPECT_TRUE(FrmAnzeigen.Frame4.seen());
            EXPECT_EQ(Modul1.PrintSel, 10);
        }
    }
}

TEST_F(PrintRoad, StageBOf144EndsWithTheTotalOfStageA)
{
    begin(0);
    print(FrmAnzeigen.OpBD144a);
    print(FrmAnzeigen.OpBD144b);
    const auto items = printed();
    EXPECT_EQ(columnsOf({items.end() - 2, items.end()}), "60 TOTAL|84 20");
    EXPECT_EQ(FrmAnzeigen.LblPkt1.Caption, "30") << "its own points on the screen";
}

TEST_F(PrintRoad, ShowsTheSumOfTheLogThatItPrints)
{
    begin(2);
    print(FrmAnzeigen.OpBD432a);
    EXPECT_EQ(FrmAnzeigen.LblQSO1.Caption, "4");
    EXPECT_EQ(FrmAnzeigen.LblPkt1.Caption, "40");
    EXPECT_TRUE(FrmAnzeigen.DBGrid3.seen());
}

TEST_F(PrintRoad, ShowsTheSumOfAllBandsOfTheMaraton)
{
    begin(7);
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(FrmAnzeigen.LblQSO1.Caption, "9");
    EXPECT_EQ(FrmAnzeigen.LblPkt1.Caption, "9");
}

TEST_F(PrintRoad, AfterANoNoButtonPrintsUntilTheMenuEntryIsUsedAgain)
{
    for (const int id : {0, 7, 100}) {
        SCOPED_TRACE(id);
        begin(id);
        answer(platform::buttonNo);
        program.click(FrmAnzeigen.OpBD144a);
        expectBox("ARE PRINTER READY?");
        EXPECT_EQ(Modul1.PrintSel, 25);
        EXPECT_FALSE(FrmAnzeigen.Frame3.seen());
        EXPECT_EQ(screen::activeForm(), &FrmAnzeigen);
        for (const LogButton& each : buttons) {
            each.click();
            EXPECT_FALSE(program.box()) << each.name;
        }
        EXPECT_TRUE(newLines().empty());

        program.click(FrmAnzeigen.mnuLOGDrucken);
        EXPECT_EQ(Modul1.PrintSel, 10);
        print(FrmAnzeigen.OpBD144a);
        EXPECT_EQ(newLines().back(), "end");
        while (program.box()) {
        }
    }
}

TEST_F(PrintRoad, AsksBeforeEveryLog)
{
    begin(0);
    for (int time = 0; time < 2; ++time) {
        print(FrmAnzeigen.OpBD144a);
        expectBox("ARE PRINTER READY?");
        expectPrinted(log144a);
    }
}

TEST_F(PrintRoad, TheMenuEntryShowsThePrintFrameAlone)
{
    for (const ContestRow& contest : contestRows) {
        SCOPED_TRACE(contest.id);
        choose(contest.id);
        program.click(FrmInit.OpbTest);
        program.click(FrmInit.mnuLOG);
        for (screen::Control* control : FrmAnzeigen.controls())
            if (control->kind == screen::Kind::frame) control->Visible = true;
        program.click(FrmAnzeigen.mnuLOGDrucken);
        for (const screen::Control* control : FrmAnzeigen.controls()) {
            const bool shown = control->kind == screen::Kind::frame && control->Visible;
            EXPECT_EQ(shown, control == &FrmAnzeigen.Frame3) << control->name;
        }
        EXPECT_EQ(FrmAnzeigen.OutMode, 100);
        EXPECT_EQ(Modul1.PrintSel, 10);
    }
}

TEST_F(PrintRoad, AFailingPrinterGivesANoticeAndTheNextLogPrints)
{
    begin(0);
    program.machine().description.printer = script::PrinterState::failing;
    const std::size_t before = program.notices().size();
    print(FrmAnzeigen.OpBD144a);
    EXPECT_TRUE(newLines().empty());
    EXPECT_EQ(program.notices().size(), before + 1);
    EXPECT_EQ(program.notices().back(), "The printer does not print");
    EXPECT_TRUE(FrmAnzeigen.Frame3.seen());
    program.machine().description.printer = script::PrinterState::there;
    print(FrmAnzeigen.OpBD144a);
    expectPrinted(log144a);
}

TEST_F(PrintRoad, AnEmptiedMaratonLogEndsTheProgramBeforeItPrints)
{
    begin(7);
    Modul1.maratonLogEmptied = 100;
    program.click(FrmAnzeigen.OpBD144a);
    const auto box = program.box();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->request.text, "AFTER DELETE LOG, PLEASE RESTART PROGRAM !");
    EXPECT_TRUE(newLines().empty());
}

TEST_F(PrintRoad, ASummaryButtonAsksForTheStation)
{
    struct Row {
        int id;
        screen::OptionButton Form::*button;
        int band;
    };
    const Row rows[] = {
        {0, &Form::OpBDSumm144, 144},   {0, &Form::OpBDSumm432, 432}, {0, &Form::OpbDSumm1296, 1296},
        {1, &Form::OpBDSumm144, 144},   {2, &Form::OpBDSumm432, 432}, {3, &Form::OpBDSumm432, 432},
        {4, &Form::OpBDSumm144, 144},   {5, &Form::OpBDSumm432, 432}, {6, &Form::OpBDSumm144, 144},
        {7, &Form::OpBDSumm144, 144},   {8, &Form::OpBDSumm432, 432}, {100, &Form::OpBD1296a, 1},
        {101, &Form::OpBDSumm144, 144},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.id) + " " + (FrmAnzeigen.*row.button).name);
        begin(row.id);
        FrmAnzeigen.EnterFlag = 10;
        program.click(FrmAnzeigen.*row.button);
        EXPECT_EQ(FrmAnzeigen.EnterFlag, 0);
        EXPECT_EQ(Modul1.BandCur, row.band);
        EXPECT_TRUE(FrmAnzeigen.Frame6.seen());
        EXPECT_TRUE(FrmAnzeigen.CmdGata.seen());
        EXPECT_FALSE(program.box());
        EXPECT_TRUE(newLines().empty());
    }
}

}  // namespace
