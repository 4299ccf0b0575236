// The best QSO of a band and the days of its log.
#include "review/best_qso.h"

#include <gtest/gtest.h>

#include <string>

#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/filled_log.h"

namespace {

using State = runstate::Modul1State;

struct BandRow {
    int band;
    void (*walk)();
    const char* tableA;
    const char* tableB;
    std::int16_t State::*qsosA;
    std::int16_t State::*qsosB;
};

const BandRow bandRows[] = {
    {144, review::QRAMax144, "Uus144a", "Uus144b", &State::Qso144a, &State::Qso144b},
    {432, review::QraMax432, "Uus432a", "Uus432b", &State::Qso432a, &State::Qso432b},
    {1296, review::QRAMax1296, "Uus1296a", "Uus1296b", &State::Qso1296a, &State::Qso1296b},
};

constexpr int allContests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};
constexpr std::int16_t before = 77;

bool hasOnePass(int contest)
{
    return contest == 2 || contest == 3 || contest == 5 || contest == 8 || contest == 100;
}

class BestQso : public test::FilledLog {
 protected:
    void SetUp() override
    {
        program.click(FrmInit.mnuLOG);
        forget();
    }

    static void forget()
    {
        contest(0);
        for (const BandRow& row : bandRows) {
            Modul1.*row.qsosA = before;
            Modul1.*row.qsosB = before;
        }
        Modul1.QsoGHz = before;
        Modul1.BandCur = 22;
        Modul1.Etapa = "A";
        Modul1.GridRebuild = 100;
        FrmAnzeigen.OutMode = 0;
        FrmAnzeigen.RecCount = before;
        for (screen::TextBox* box : {&FrmAnzeigen.TxtTDate1, &FrmAnzeigen.TxtTDate2, &FrmAnzeigen.TxtCODXC1,
                                     &FrmAnzeigen.TxtCODXC2, &FrmAnzeigen.TxtCODXC3})
            box->Text = "old";
        FrmAnzeigen.FraLogEDI1.Visible = true;
    }

    void addQso(const std::string& table, const std::string& call, const std::string& day, const std::string& locator,
                const std::string& points)
    {
        insert(table, "('" + call + "', '" + day + "', '12:34', '599 001', '599 002', 'CW', '144', '" + locator +
                          "', " + points + ")");
    }

    /// Stage A: three QSOs on three days, the second the best. Stage B: two on later days.
    void fillBothStages(const BandRow& row)
    {
        addQso(row.tableA, "YO2AAA", "01.05.26", "KN16AA", "'70'");
        addQso(row.tableA, "YO2BBB", "02.05.26", "KN16BB", "'300'");
        addQso(row.tableA, "YO2CCC", "03.05.26", "KN16CC", "'80'");
        addQso(row.tableB, "YO2DDD", "04.05.26", "KN16DD", "'90'");
        addQso(row.tableB, "YO2EEE", "05.05.26", "KN16EE", "'500'");
    }

    static void expectDays(const std::string& first, const std::string& last)
    {
        EXPECT_EQ(FrmAnzeigen.TxtTDate1.Text.get(), first);
        EXPECT_EQ(FrmAnzeigen.TxtTDate2.Text.get(), last);
    }

    static void expectBest(const std::string& call, const std::string& locator, const std::string& points)
    {
        EXPECT_EQ(FrmAnzeigen.TxtCODXC1.Text.get(), call);
        EXPECT_EQ(FrmAnzeigen.TxtCODXC2.Text.get(), locator);
        EXPECT_EQ(FrmAnzeigen.TxtCODXC3.Text.get(), points);
    }

    void expectNoMessage()
    {
        EXPECT_FALSE(program.box());
        EXPECT_TRUE(FrmAnzeigen.FraLogEDI1.Visible);
    }

    void expectEmptyLogTold()
    {
        const auto box = program.box();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->request.text, "Fisier fara date !");
        EXPECT_EQ(box->request.style, 0);
        EXPECT_EQ(box->request.title, "");
        EXPECT_EQ(Modul1.MsgText, "Fisier fara date !");
        EXPECT_FALSE(program.box()) << "told once";
        EXPECT_FALSE(FrmAnzeigen.FraLogEDI1.Visible);
    }
};

// What comes out of the record of a row is as wide as its field there.

TEST_F(BestQso, IsThatOfStageA)
{
    for (const BandRow& row : bandRows) {
        SCOPED_TRACE(row.band);
        fillBothStages(row);
        forget();
        row.walk();
        expectDays("01.05.26 ", "03.05.26 ");
        expectBest("YO2BBB    ", "KN16BB", "300");
        EXPECT_EQ(Modul1.BandCur, row.band);
        EXPECT_EQ(Modul1.Etapa, "A");
        EXPECT_EQ(Modul1.GridRebuild, 1000);
        EXPECT_EQ(Modul1.*row.qsosA, 3);
        EXPECT_EQ(Modul1.*row.qsosB, before);
        EXPECT_EQ(FrmAnzeigen.RecCount, 3);
        EXPECT_EQ(FrmAnzeigen.LogRec.Nr.get(), "3  ");
        expectNoMessage();
    }
}

TEST_F(BestQso, IsThatOfBothStagesInStageB)
{
    for (const BandRow& row : bandRows) {
        SCOPED_TRACE(row.band);
        fillBothStages(row);
        forget();
        Modul1.Etapa = "B";
        row.walk();
        expectDays("01.05.26 ", "05.05.26 ");
        expectBest("YO2EEE    ", "KN16EE", "500");
        EXPECT_EQ(Modul1.BandCur, row.band);
        EXPECT_EQ(Modul1.*row.qsosA, 3);
        EXPECT_EQ(Modul1.*row.qsosB, 2);
        EXPECT_EQ(FrmAnzeigen.RecCount, 2);
        expectNoMessage();
    }
}

TEST_F(BestQso, LooksAtStageBWhereAFileIsWritten)
{
    for (const BandRow& row : bandRows)
        fillBothStages(row);
    for (const BandRow& row : bandRows) {
        for (const int id : allContests) {
            for (const int mode : {0, 10, 20, 100, 1000}) {
                SCOPED_TRACE(std::to_string(row.band) + " contest " + std::to_string(id) + " mode " +
                             std::to_string(mode));
                forget();
                contest(id);
                FrmAnzeigen.OutMode = static_cast<std::uint16_t>(mode);
                row.walk();
                const bool file = mode == 10 || mode == 20 || mode == 1000;
                const bool both = file && !hasOnePass(id);
                EXPECT_EQ(Modul1.Etapa, both ? "B" : "A");
                EXPECT_EQ(Modul1.*row.qsosB, both ? 2 : before);
                expectDays("01.05.26 ", both ? "05.05.26 " : "03.05.26 ");
                expectBest(both ? "YO2EEE    " : "YO2BBB    ", both ? "KN16EE" : "KN16BB", both ? "500" : "300");
                expectNoMessage();
            }
        }
    }
}

TEST_F(BestQso, OfAContestInOnePassIsThatOfItsTableWhateverTheStage)
{
    fillBothStages(bandRows[0]);
    for (const int id : allContests) {
        SCOPED_TRACE(id);
        forget();
        contest(id);
        Modul1.Etapa = "B";
        review::QRAMax144();
        expectDays("01.05.26 ", hasOnePass(id) ? "03.05.26 " : "05.05.26 ");
    }
}

TEST_F(BestQso, IsTheEarlierOfTwoWithTheSamePoints)
{
    addQso("Uus144a", "YO2AAA", "01.05.26", "KN16AA", "'300'");
    addQso("Uus144a", "YO2BBB", "01.05.26", "KN16BB", "'300'");
    addQso("Uus144b", "YO2CCC", "02.05.26", "KN16CC", "'300'");
    Modul1.Etapa = "B";
    review::QRAMax144();
    expectBest("YO2AAA    ", "KN16AA", "300");
    expectDays("01.05.26 ", "02.05.26 ");
}

TEST_F(BestQso, IsComparedByTheNumericValueOfThePoints)
{
    addQso("Uus144a", "YO2AAA", "01.05.26", "KN16AA", "'99'");
    addQso("Uus144a", "YO2BBB", "01.05.26", "KN16BB", "'1000'");
    addQso("Uus144a", "YO2CCC", "01.05.26", "KN16CC", "'abc'");
    addQso("Uus144a", "YO2DDD", "01.05.26", "KN16DD", "''");
    addQso("Uus144a", "YO2EEE", "01.05.26", "KN16EE", "NULL");
    addQso("Uus144a", "YO2FFF", "01.05.26", "KN16FF", "'-5000'");
    review::QRAMax144();
    expectBest("YO2BBB    ", "KN16BB", "1000");
    expectNoMessage();
}

TEST_F(BestQso, ReadsSixCharactersOfThePoints)
{
    addQso("Uus144a", "YO2AAA", "01.05.26", "KN16AA", "'200000'");
    addQso("Uus144a", "YO2BBB", "01.05.26", "KN16BB", "'1999999'");
    review::QRAMax144();
    expectBest("YO2AAA    ", "KN16AA", "200000");
}

TEST_F(BestQso, OfALogWithoutPointsIsNone)
{
    addQso("Uus144a", "YO2AAA", "01.05.26", "KN16AA", "'0'");
    addQso("Uus144a", "YO2BBB", "02.05.26", "KN16BB", "'-1'");
    review::QRAMax144();
    expectBest("", "", "0");
    expectDays("01.05.26 ", "02.05.26 ");
    expectNoMessage();
}

TEST_F(BestQso, CutsAndFillsToTheWidthOfTheRecord)
{
    addQso("Uus144a", "HB9/YO2ABCDE/P", "01.05.2026", "KN16AABB", "'10'");
    addQso("Uus144a", "X", "", "", "''");
    review::QRAMax144();
    expectBest("HB9/YO2ABC", "KN16AA", "10");
    expectDays("01.05.202", "         ");
}

TEST_F(BestQso, OfAnEmptyLogIsNoneAndToldOnce)
{
    for (const BandRow& row : bandRows) {
        SCOPED_TRACE(row.band);
        forget();
        row.walk();
        expectEmptyLogTold();
        expectBest("", "", "0");
        expectDays("old", "old");
        EXPECT_EQ(Modul1.BandCur, row.band);
        EXPECT_EQ(Modul1.*row.qsosA, 0);
        EXPECT_EQ(Modul1.*row.qsosB, before);
        EXPECT_EQ(FrmAnzeigen.RecCount, 0);
        EXPECT_EQ(FrmAnzeigen.LogRec.Nr.get(), "0  ");
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(BestQso, OfBothStagesEmptyIsToldOnce)
{
    Modul1.Etapa = "B";
    review::QRAMax144();
    expectEmptyLogTold();
    EXPECT_EQ(Modul1.Qso144b, 0);
}

TEST_F(BestQso, OfAnEmptyStageAIsThatOfStageBAndToldAllTheSame)
{
    addQso("Uus144b", "YO2AAA", "04.05.26", "KN16AA", "'90'");
    Modul1.Etapa = "B";
    review::QRAMax144();
    expectEmptyLogTold();
    expectBest("YO2AAA    ", "KN16AA", "90");
    expectDays("old", "04.05.26 ");
    EXPECT_EQ(Modul1.Qso144a, 0);
    EXPECT_EQ(Modul1.Qso144b, 1);
}

TEST_F(BestQso, OfAnEmptyStageBIsThatOfStageAAndToldAllTheSame)
{
    addQso("Uus144a", "YO2AAA", "01.05.26", "KN16AA", "'90'");
    Modul1.Etapa = "B";
    review::QRAMax144();
    expectEmptyLogTold();
    expectBest("YO2AAA    ", "KN16AA", "90");
    expectDays("01.05.26 ", "01.05.26 ");
}

TEST_F(BestQso, OfAFullLogWithoutStagesIsToldAsEmptyInTheContestsOfOneTable)
{
    addQso("Uus144a", "YO2AAA", "01.05.26", "KN16AA", "'90'");
    for (const int id : {4, 101}) {
        SCOPED_TRACE(id);
        forget();
        contest(id);
        FrmAnzeigen.OutMode = 10;
        review::QRAMax144();
        expectEmptyLogTold();
        expectBest("YO2AAA    ", "KN16AA", "90");
    }
    addQso("Uus144b", "YO2BBB", "02.05.26", "KN16BB", "'10'");
    for (const int id : {4, 101}) {
        forget();
        contest(id);
        FrmAnzeigen.OutMode = 10;
        review::QRAMax144();
        expectNoMessage();
    }
}

TEST_F(BestQso, OfTheMicrowavesIsNotShown)
{
    addQso("UusGHz", "YO2AAA", "01.05.26", "KN16AA", "'90'");
    addQso("UusGHz", "YO2BBB", "02.05.26", "KN16BB", "'900'");
    for (const char* stage : {"A", "B"}) {
        for (const int mode : {0, 10, 20, 100, 1000}) {
            forget();
            contest(100);
            Modul1.Etapa = stage;
            FrmAnzeigen.OutMode = static_cast<std::uint16_t>(mode);
            review::QRAMaxGHz();
            expectDays("01.05.26 ", "02.05.26 ");
            expectBest("old", "old", "old");
            EXPECT_EQ(Modul1.BandCur, 1);
            EXPECT_EQ(Modul1.Etapa, stage);
            EXPECT_EQ(Modul1.QsoGHz, 2);
            EXPECT_EQ(Modul1.GridRebuild, 1000);
            expectNoMessage();
        }
    }
}

TEST_F(BestQso, OfAnEmptyMicrowaveLogIsToldAndLeft)
{
    contest(100);
    review::QRAMaxGHz();
    expectEmptyLogTold();
    expectBest("old", "old", "old");
    expectDays("old", "old");
    EXPECT_EQ(Modul1.BandCur, 1);
}

}  // namespace
