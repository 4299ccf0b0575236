// The printed summary: every line of it, for each class of contest.
#include "review/summary_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/print_job.h"

namespace {

using Form = screen::FrmAnzeigenForm;
using test::columnsOf;
using test::lookOf;
using test::Printed;

/// A line of the sheet: where it stands, how it looks, what it says.
struct SheetLine {
    int line;
    const char* look;
    const char* items;
};

const SheetLine station[] = {
    {10, "Arial|14|yes", "10 Worked in Section:|30 B"},
    {11, "Arial|14|yes", "10 Operator's Name:|30 ION POP"},
    {12, "Arial|14|yes", "10 No. of Operator's:|30 2"},
    {13, "Arial|14|yes", "10 QTH:|30 LUGOJ"},
    {14, "Arial|14|yes", "10 Adress:|30 STR. 1"},
    {15, "Arial|14|yes", "10 QRA.Loc:|30 "},
    {16, "Arial|14|yes", "10 TX:|30 FT"},
    {17, "Arial|14|yes", "10 Rx:|30 IC"},
    {18, "Arial|14|yes", "10 Ant1:|30 YAGI1"},
    {19, "Arial|14|yes", "10 Ant2:|30 YAGI2"},
    {20, "Arial|14|yes", "10 Ant3:|30 YAGI3"},
    {21, "Arial|14|yes", "10 Ant4:|30 YAGI4"},
    {22, "Arial|14|yes", "10 Club:|30 QSO CLUB"},
};

struct Sheet {
    int id;
    screen::OptionButton Form::*button;
    const char* title;
    std::vector<std::string> rows;  ///< of figures
    std::string total;
};

// Tables of 2 to 8 rows with 10 points each; the Maraton log has 2, 3 and 4 rows of one point.
const std::vector<std::string> threeBands = {"14 144|24 2|34 20", "14 432|24 4|34 40", "14 1296|24 6|34 60"};
const std::string ofThreeBands = "12 TOTAL|22 12|31 120";
const Sheet sheets[] = {
    {0,
     &Form::OpBDSumm144,
     "CAMPIONATELE NATIONALE UUS 2026",
     {"14 144 A|24 2|34 20", "14 144 B|24 3|34 30"},
     "12 TOTAL|22 5|31 50"},
    {0,
     &Form::OpBDSumm432,
     "CAMPIONATELE NATIONALE UUS 2026",
     {"14 432 A|24 4|34 40", "14 432 B|24 5|34 50"},
     "12 TOTAL|22 9|31 90"},
    {0,
     &Form::OpbDSumm1296,
     "CAMPIONATELE NATIONALE UUS 2026",
     {"14 1296 A|24 6|34 60", "14 1296 B|24 7|34 70"},
     "12 TOTAL|22 13|31 130"},
    {1,
     &Form::OpBDSumm144,
     "TROFEUL CARPATI 2026",
     {"14 144 A|24 2|34 20", "14 144 B|24 3|34 30"},
     "12 TOTAL|22 5|31 50"},
    {2, &Form::OpBDSumm432, "Concurs Cluj Napoca 2026", threeBands, ofThreeBands},
    {3, &Form::OpBDSumm432, "Floarea de mina 2026", threeBands, ofThreeBands},
    {4, &Form::OpBDSumm144, " Oltenia 144 MHz  2026", {"10  A|24 2|34 20"}, "10 TOTAL|24 2|34 20|44 20"},
    {5, &Form::OpBDSumm432, "Constructor masini 2026", threeBands, ofThreeBands},
    {6, &Form::OpBDSumm144, "Ziua Telecom 2026", {"14 144 A|24 2|34 20", "14 144 B|24 3|34 30"}, "12 TOTAL|22 5|31 50"},
    {7,
     &Form::OpBDSumm144,
     "Lugoj Maraton 2026",
     {"14 144|24 2|34 2", "14 432|24 3|34 3", "14 1296|24 4|34 4"},
     "12 TOTAL|22 9|31 9"},
    {8, &Form::OpBDSumm432, "Zi de vara 2026", threeBands, ofThreeBands},
    {100,
     &Form::OpBD1296a,
     "Camp. Internat. UUS 2026",
     {"14 144|24 2|34 20", "14 432|24 4|34 40", "14 1296|24 6|34 60", "14 GHz|24 8|34 80"},
     "12 TOTAL|22 20|31 200"},
    {101, &Form::OpBDSumm144, " Oltenia 6 m  2026", {"10  A|24 2|34 20"}, "10 TOTAL|24 2|34 20|44 20"},
};

class SummarySheet : public test::PrintJob {
 protected:
    void SetUp() override
    {
        test::writeFile(
            program.folder() / "KelvoInit.dat",
            "YO2XYZ\r\nKN05OS\r\n2\r\n 1 \r\nb\r\nIon Pop\r\n 2 \r\nLugoj\r\nStr. 1\r\nFT\r\nIC\r\nYagi1\r\n"
            "Yagi2\r\nYagi3\r\nYagi4\r\nQSO Club\r\nION\r\n");
        int rows = 2;
        for (const char* table : {"Uus144a", "Uus144b", "Uus432a", "Uus432b", "Uus1296a", "Uus1296b", "UusGHz"})
            fill(table, rows++, 10);
        fillMaraton("144", 2, 1);
        fillMaraton("432", 3, 1);
        fillMaraton("1296", 4, 1);
    }

    /// The road of the operator: the button, the station as it is shown, and a Yes.
    void printSheet(screen::OptionButton& button)
    {
        print(button);
        program.click(FrmAnzeigen.CmdGata);
    }

    void expectLine(const SheetLine& expected)
    {
        const std::vector<Printed> items = onLine(expected.line);
        EXPECT_EQ(columnsOf(items), expected.items) << "line " << expected.line;
        EXPECT_EQ(lookOf(items), expected.look) << "line " << expected.line;
    }

    void expectDeclaration(int line)
    {
        const char* look = "Arial|16|no";
        expectLine({line, look, "11  I hereby certify that in the contest I have"});
        expectLine({line + 1, look, "11  operated the transmitter within  the  limi-"});
        expectLine({line + 2, look, "11  tation of my licence and observed the rules"});
        expectLine({line + 3, look, "11  and regulation"});
        expectLine({line + 6, look, "11 Date..............   Op(s) signature..................."});
    }

    void expectSheet(const Sheet& sheet)
    {
        const bool withScore = sheet.id == 4 || sheet.id == 101;
        const std::string title = "15 " + std::string(sheet.title);
        expectLine({6, "Arial|20|no", "15 YO2XYZ - SUMMARY "});
        expectLine({7, "Arial|20|no", title.c_str()});
        for (const SheetLine& line : station)
            expectLine(line);
        expectLine(
            {25, "Arial|14|yes", withScore ? "10 Etap|24 No.QSO|34 Points|44 Score" : "12 Band|20 No.QSO|30 Points"});
        int line = 27;
        for (const std::string& row : sheet.rows)
            expectLine({line++, "Arial|14|no", row.c_str()});
        expectLine({line + 1, "Arial|14|yes", sheet.total.c_str()});
        expectDeclaration(line + 4);
    }
};

TEST_F(SummarySheet, OfEveryContest)
{
    for (const Sheet& sheet : sheets) {
        SCOPED_TRACE(std::to_string(sheet.id) + " " + (FrmAnzeigen.*sheet.button).name);
        begin(sheet.id);
        printSheet(FrmAnzeigen.*sheet.button);
        expectSheet(sheet);
        const std::vector<Printed> items = printed();
        EXPECT_EQ(items.front().page, items.back().page) << "one page";
        // Two lines of title, thirteen of the station, a head and a total, and five to sign.
        const bool withScore = sheet.id == 4 || sheet.id == 101;
        EXPECT_EQ(items.size(), 2 + 26 + 5 + 3 * sheet.rows.size() + (withScore ? 8 : 6));
        EXPECT_EQ(newLines().back(), "end");
        EXPECT_FALSE(FrmAnzeigen.Frame6.seen());
        EXPECT_FALSE(FrmAnzeigen.Frame3.seen()) << "the job is over";
    }
}

TEST_F(SummarySheet, AsksWhetherTheInputIsFinishedAndNothingElse)
{
    begin(7);
    EXPECT_EQ(FrmAnzeigen.OpBDSumm144.Caption, "Summary");
    printSheet(FrmAnzeigen.OpBDSumm144);
    const auto box = program.box();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->request.text, "ARE YOUR ENTER FINISHED?");
    EXPECT_FALSE(program.box()) << "neither the printer nor a declaration";
    EXPECT_EQ(newLines().back(), "end");
}

TEST_F(SummarySheet, PrintsWhatWasTypedForTheStation)
{
    begin(0);
    answer(platform::buttonYes);
    program.click(FrmAnzeigen.OpBDSumm144);
    FrmAnzeigen.TxtQTH.Text = "Timişoara";
    program.click(FrmAnzeigen.CmdGata);
    EXPECT_EQ(columnsOf(onLine(13)), "10 QTH:|30 TIMIŞOARA");
}

TEST_F(SummarySheet, KeepsTheLocatorOfAMaratonLogThatWasReadBefore)
{
    begin(7);
    print(FrmAnzeigen.OpBD144a);
    printSheet(FrmAnzeigen.OpBDSumm144);
    EXPECT_EQ(columnsOf(onLine(15)), "10 QRA.Loc:|30 KN05OS");
}

TEST_F(SummarySheet, IsNotPrintedOnceThePrinterWasRefused)
{
    begin(0);
    program.click(FrmAnzeigen.OpBDSumm144);
    answer(platform::buttonNo);
    program.click(FrmAnzeigen.OpBD144a);
    ASSERT_TRUE(FrmAnzeigen.CmdGata.seen());
    answer(platform::buttonYes);
    program.click(FrmAnzeigen.CmdGata);
    EXPECT_TRUE(newLines().empty());
}

TEST_F(SummarySheet, OnAFailingPrinterGivesANoticeAndEndsTheJob)
{
    begin(0);
    program.machine().description.printer = script::PrinterState::failing;
    const std::size_t before = program.notices().size();
    printSheet(FrmAnzeigen.OpBDSumm144);
    EXPECT_TRUE(newLines().empty());
    EXPECT_EQ(program.notices().size(), before + 1);
    EXPECT_FALSE(FrmAnzeigen.Frame6.seen());
    EXPECT_FALSE(FrmAnzeigen.Frame3.seen());

    program.machine().description.printer = script::PrinterState::there;
    program.click(FrmAnzeigen.mnuLOGDrucken);
    printSheet(FrmAnzeigen.OpBDSumm144);
    EXPECT_EQ(newLines().back(), "end");
}

TEST_F(SummarySheet, PrintsTwice)
{
    begin(0);
    printSheet(FrmAnzeigen.OpBDSumm144);
    program.click(FrmAnzeigen.mnuLOGDrucken);
    printSheet(FrmAnzeigen.OpBDSumm144);
    expectSheet(sheets[0]);
}

}  // namespace
