// Printed logs: heads, rows, the change of the page, and the end.
#include "review/printing.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/print_job.h"

namespace {

using test::columnsOf;
using test::lookOf;
using test::Printed;

class PrintedLog : public test::PrintJob {
 protected:
    /// Pages, counted from that of the first item.
    int pages()
    {
        const std::vector<Printed> items = printed();
        return items.back().page - items.front().page + 1;
    }

    /// Items of one page, that of the first item being 1.
    std::vector<Printed> onPage(int page)
    {
        const std::vector<Printed> items = printed();
        std::vector<Printed> found;
        for (const Printed& item : items)
            if (item.page - items.front().page + 1 == page) found.push_back(item);
        return found;
    }

    /// Numbers of the first and the last row of a page: those in the column of the numbers, behind the head.
    std::string rowsOfPage(int page)
    {
        std::vector<std::string> numbers;
        for (const Printed& item : onPage(page))
            if (item.column == 5 && item.look == "Arial|10|no" && item.text != "Nr.") numbers.push_back(item.text);
        return numbers.empty() ? "none" : numbers.front() + " to " + numbers.back();
    }

    bool hasHead(int page)
    {
        const std::vector<Printed> items = onPage(page);
        return std::any_of(items.begin(), items.end(), [](const Printed& item) { return item.text == "Callsign"; });
    }

    std::string totalOfPage(int page)
    {
        const std::vector<Printed> items = onPage(page);
        return items.size() < 2 || items[items.size() - 2].text != "TOTAL" ? "none" : items.back().text;
    }
};

struct TitleRow {
    int id;
    screen::OptionButton screen::FrmAnzeigenForm::*button;
    const char* title;
    int lineOfWords = 6;
};

using Form = screen::FrmAnzeigenForm;

const TitleRow titleRows[] = {
    {0, &Form::OpBD144a, "CAMPIONATELE NATIONALE DE UUS 2026 YO2XYZ 144 MHz. ETAPA A"},
    {0, &Form::OpBD432b, "CAMPIONATELE NATIONALE DE UUS 2026 YO2XYZ 432 MHz. ETAPA B"},
    {0, &Form::OpBD1296a, "CAMPIONATELE NATIONALE DE UUS 2026 YO2XYZ 1296 MHz. ETAPA A"},
    {1, &Form::OpBD144b, "TROFEUL CARPATI 2026 YO2XYZ 144 MHz. ETAPA B"},
    {2, &Form::OpBD432a, "CONCURSUL CLUJ NAPOCA 2026 YO2XYZ 432 MHz. ETAPA A"},
    {3, &Form::OpBD1296a, "FLOAREA DE MINA 2026 YO2XYZ 1296 MHz. ETAPA A"},
    {4, &Form::OpBD144a, "Oltenia 144 MHz 2026 YO2XYZ 144 MHz. ETAPA A"},
    {5, &Form::OpBD144a, "Constructor masini 2026 YO2XYZ 144 MHz. ETAPA A"},
    {6, &Form::OpBD144a, "Ziua Telecom 2026 YO2XYZ 144 MHz. ETAPA A"},
    {7, &Form::OpBD144a, "Lugoj Maraton 2026 YO2XYZ"},
    {8, &Form::OpBD144a, "ZI FE VARA 2026 YO2XYZ 144 MHz. ETAPA A"},
    {100, &Form::OpBD144a, "CAMPIONATELE INTERNATIONALE DE UUS 2026 YO2XYZ 144 MHz."},
    {100, &Form::OpBD432b, "CAMPIONATELE INTERNATIONALE DE UUS 2026 YO2XYZ  GHz."},
    {101, &Form::OpBD144a, "Oltenia 6 m 2026 YO2XYZ ", 5},
};

TEST_F(PrintedLog, HasTheTitleOfItsContest)
{
    for (const TitleRow& row : titleRows) {
        SCOPED_TRACE(row.title);
        begin(row.id);
        print(FrmAnzeigen.*row.button);
        EXPECT_EQ(columnsOf(onLine(4)), "5 " + std::string(row.title));
        EXPECT_EQ(lookOf(onLine(4)), "Arial|16|yes");
        EXPECT_EQ(printed().front().line, 4) << "three empty lines above it";
        EXPECT_EQ(onLine(row.lineOfWords).size(), row.id == 7 ? 13 : 10);
    }
}

TEST_F(PrintedLog, HasItsWordsAndRowsInTheSameColumns)
{
    fill("Uus144a", 2, 76);
    begin(0);
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(columnsOf(onLine(6)), "5 Nr.|10 Data|24 UTC|33 Callsign|46 Sent|56 Rcvd|66 Mode|74 QRALoc|85 Frq|93 Pct");
    EXPECT_EQ(lookOf(onLine(6)), "Arial|10|no");
    EXPECT_TRUE(onLine(7).empty());
    EXPECT_EQ(columnsOf(onLine(8)),
              "5 1|10 15.11.26|24 12:34|33 YO2ABC|46 599 1|56 599 012|66 CW|74 KN16AA|85 144|93 76");
    EXPECT_EQ(columnsOf(onLine(9)),
              "5 2|10 15.11.26|24 12:34|33 YO2ABC|46 599 2|56 599 012|66 CW|74 KN16AA|85 144|93 76");
    EXPECT_EQ(lookOf(onLine(9)), "Arial|10|no");
    EXPECT_TRUE(onLine(10).empty());
    EXPECT_EQ(columnsOf(onLine(11)), "60 TOTAL|85 152");
    EXPECT_EQ(lookOf(onLine(11)), "Arial|10|yes");
    EXPECT_EQ(newLines().back(), "end");
}

TEST_F(PrintedLog, OfTheMaratonHasNamesInSmallBoldLetters)
{
    fillMaraton("144", 1, 76);
    fillMaraton("432", 1, 100);
    begin(7);
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(
        columnsOf(onLine(6)),
        "5 Nr.|10 Data|21 UTC|30 Callsign|43 Sent|53 Rcvd|63 Mode|71 Frq|77 QRALoc|89 NameR|102 Pct|108 MyQRA|118 "
        "MyName");
    EXPECT_EQ(lookOf(onLine(6)), "Arial|8|yes");
    EXPECT_EQ(columnsOf(onLine(8)),
              "5 1|10 15.11.26|21 12:34|30 YO2ABC|43 599 1|53 599 012|63 CW|71 144|77 KN16AA|89 DAN|102 76|108 "
              "KN05OS|118 ION");
    EXPECT_EQ(lookOf(onLine(8)), "Arial|8|yes");
    EXPECT_EQ(columnsOf(onLine(11)), "60 TOTAL|102 176");
    EXPECT_EQ(newLines().back(), "end");
}

TEST_F(PrintedLog, OfSixMetresHasNoEmptyLineBelowItsTitle)
{
    fill("Uus144a", 1, 76);
    begin(101);
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(columnsOf(onLine(4)), "5 Oltenia 6 m 2026 YO2XYZ ");
    EXPECT_EQ(onLine(5).front().text, "Nr.");
    EXPECT_EQ(onLine(7).front().text, "1");
    EXPECT_EQ(columnsOf(onLine(9)), "60 TOTAL|85 76");
}

TEST_F(PrintedLog, OfAnEmptyTableIsAHeadAndNoPoints)
{
    begin(0);
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(printed().size(), 13);
    EXPECT_EQ(columnsOf(onLine(9)), "60 TOTAL|85 0");
    EXPECT_EQ(newLines().back(), "end");
}

TEST_F(PrintedLog, ChangesThePageBehindTheFortyFifthRow)
{
    fill("Uus144a", 44, 1);
    begin(0);
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(pages(), 1);
    EXPECT_EQ(totalOfPage(1), "44");

    fill("Uus144a", 1, 1);
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(rowsOfPage(1), "1 to 45") << "all rows on the first page";
    EXPECT_EQ(pages(), 2);
    EXPECT_TRUE(hasHead(2));
    EXPECT_EQ(rowsOfPage(2), "none");
    EXPECT_EQ(totalOfPage(2), "45");

    fill("Uus144a", 1, 1);
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(rowsOfPage(1), "1 to 45");
    EXPECT_EQ(rowsOfPage(2), "46 to 46");
    EXPECT_EQ(totalOfPage(2), "46");
    const std::vector<std::string> lines = newLines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "end"), 1) << "one document";
}

TEST_F(PrintedLog, OfTwoHundredRowsHasAHeadOnItsFirstTwoPagesOnly)
{
    fill("Uus144a", 200, 1);
    begin(0);
    print(FrmAnzeigen.OpBD144a);
    // A head takes 115 of the 750 points, a row 11.5: 55 rows below a head, 65 without one.
    EXPECT_EQ(pages(), 4);
    EXPECT_EQ(rowsOfPage(1), "1 to 45");
    EXPECT_EQ(rowsOfPage(2), "46 to 100");
    EXPECT_EQ(rowsOfPage(3), "101 to 165");
    EXPECT_EQ(rowsOfPage(4), "166 to 200");
    EXPECT_TRUE(hasHead(1));
    EXPECT_TRUE(hasHead(2));
    EXPECT_FALSE(hasHead(3));
    EXPECT_FALSE(hasHead(4));
    EXPECT_EQ(totalOfPage(4), "200");
    const std::vector<std::string> lines = newLines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "end"), 1) << "one document";
}

TEST_F(PrintedLog, CarriesItsCountIntoItsOwnStageOnly)
{
    fill("Uus144a", 40, 1);
    fill("Uus144b", 10, 1);
    begin(0);
    print(FrmAnzeigen.OpBD144b);
    EXPECT_EQ(pages(), 1) << "stage a is not printed with it";
    EXPECT_EQ(rowsOfPage(1), "1 to 10");
}

TEST_F(PrintedLog, BeginsOnAPageOfItsOwn)
{
    fill("Uus144a", 1, 1);
    begin(0);
    print(FrmAnzeigen.OpBD144a);
    const Printed first = printed().front();
    print(FrmAnzeigen.OpBD144a);
    EXPECT_EQ(printed().front().page, first.page + 1);
    EXPECT_EQ(printed().front().line, 4);
}

}  // namespace
