// The sums behind the score.
#include "band/totals.h"

#include <gtest/gtest.h>

#include <string>

#include "base/runtime_error.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/filled_log.h"
#include "support/station.h"

namespace {

using State = runstate::Modul1State;

struct SumRow {
    const char* table;
    void (*sum)();
    const char* stage;
    int band;
    std::int16_t State::*qsos;
    std::int32_t State::*points;
    std::int32_t State::*locators;
    bool countsLocators;
};

const SumRow sumRows[] = {
    {"Uus144a", band::Summe144, "A", 144, &State::Qso144a, &State::Pct144a, &State::Loc144a, true},
    {"Uus144b", band::Summe144, "B", 144, &State::Qso144b, &State::Pct144b, &State::Loc144b, true},
    {"Uus432a", band::Summe432, "A", 432, &State::Qso432a, &State::Pct432a, &State::Loc432a, true},
    {"Uus432b", band::Summe432, "B", 432, &State::Qso432b, &State::Pct432b, &State::Loc432b, true},
    {"Uus1296a", band::Summe1296, "A", 1296, &State::Qso1296a, &State::Pct1296a, &State::Loc1296a, true},
    {"Uus1296b", band::Summe1296, "B", 1296, &State::Qso1296b, &State::Pct1296b, &State::Loc1296b, true},
    {"UusGHz", band::SummeGHz, "A", 1, &State::QsoGHz, &State::PctGHz, &State::LocGHz, false},
};

class Sums : public test::FilledLog {
 protected:
    static constexpr std::int16_t before = 77;

    static void forgetSums()
    {
        for (const SumRow& row : sumRows) {
            Modul1.*row.qsos = before;
            Modul1.*row.points = before;
            Modul1.*row.locators = before;
        }
        Modul1.BandCur = 2320;
    }

    /// The figures of this table, and those of all others as they were.
    static void expectFigures(const SumRow& summed, int qsos, int points, int locators)
    {
        for (const SumRow& row : sumRows) {
            const bool mine = &row == &summed;
            EXPECT_EQ(Modul1.*row.qsos, mine ? qsos : before) << row.table;
            EXPECT_EQ(Modul1.*row.points, mine ? points : before) << row.table;
            EXPECT_EQ(Modul1.*row.locators, mine ? locators : before) << row.table;
        }
        EXPECT_EQ(Modul1.BandCur, summed.band) << summed.table;
        EXPECT_EQ(Modul1.Etapa, summed.stage) << summed.table;
    }

    static void sum(const SumRow& row)
    {
        forgetSums();
        Modul1.Etapa = row.stage;
        row.sum();
    }
};

TEST_F(Sums, AreThoseOfTheirTableAndStage)
{
    int points = 100;
    for (const SumRow& row : sumRows) {
        addPoints(row.table, "'" + std::to_string(points) + "'");
        addPoints(row.table, "'5'", "''");
        addPoints(row.table, "'0'", "'   '");
        addPoints(row.table, "'1'", "NULL");
        points += 100;
    }
    points = 100;
    for (const SumRow& row : sumRows) {
        SCOPED_TRACE(row.table);
        sum(row);
        expectFigures(row, 4, points + 6, row.countsLocators ? 1 : 0);
        points += 100;
    }
}

TEST_F(Sums, OfAnEmptyTableAreZero)
{
    for (const SumRow& row : sumRows) {
        SCOPED_TRACE(row.table);
        sum(row);
        expectFigures(row, 0, 0, 0);
    }
    EXPECT_TRUE(program.notices().empty());
    EXPECT_FALSE(program.box());
}

TEST_F(Sums, TakeTheNumericValueOfThePoints)
{
    for (const char* points : {"'12'", "' 7'", "'3 Km'", "'abc'", "''", "NULL", "'-2'", "'0'"})
        addPoints("Uus144a", points);
    sum(sumRows[0]);
    expectFigures(sumRows[0], 8, 20, 8);
}

TEST_F(Sums, OfNoStageAreLeftAsTheyWere)
{
    addPoints("Uus144a", "'100'");
    addPoints("Uus144b", "'100'");
    for (const char* stage : {"", "C", "a"}) {
        forgetSums();
        Modul1.Etapa = stage;
        band::Summe144();
        EXPECT_EQ(Modul1.Pct144a, before);
        EXPECT_EQ(Modul1.Pct144b, before);
        EXPECT_EQ(Modul1.BandCur, 144) << "the band is taken all the same";
    }
}

TEST_F(Sums, OfTheMicrowavesHaveNoStage)
{
    addPoints("UusGHz", "'100'");
    for (const char* stage : {"A", "B", ""}) {
        forgetSums();
        Modul1.Etapa = stage;
        band::SummeGHz();
        EXPECT_EQ(Modul1.PctGHz, 100) << stage;
        EXPECT_EQ(Modul1.QsoGHz, 1) << stage;
        EXPECT_EQ(Modul1.LocGHz, 0) << stage;
    }
}

TEST_F(Sums, StartFromZeroEachTime)
{
    addPoints("Uus432a", "'100'");
    sum(sumRows[2]);
    Modul1.Etapa = "A";
    band::Summe432();
    EXPECT_EQ(Modul1.Pct432a, 100);
    EXPECT_EQ(Modul1.Qso432a, 1);
    EXPECT_EQ(Modul1.Loc432a, 1);
}

TEST_F(Sums, FollowALogThatWasEmptied)
{
    addPoints("Uus144a", "'100'");
    sum(sumRows[0]);
    empty("Uus144a");
    sum(sumRows[0]);
    expectFigures(sumRows[0], 0, 0, 0);
    EXPECT_FALSE(program.box()) << "a sum looks at the table as it is now";
}

TEST_F(Sums, StopQuietlyWhereThePointsDoNotFit)
{
    addPoints("Uus144a", "'2147483647'");
    addPoints("Uus144a", "'1'");
    sum(sumRows[0]);
    EXPECT_EQ(Modul1.Pct144a, 2147483647) << "as far as it got";
    EXPECT_EQ(Modul1.Qso144a, before);
    EXPECT_FALSE(program.box());
    EXPECT_FALSE(program.notices().empty());
}

TEST_F(Sums, StopQuietlyWhereTheQsosDoNotFit)
{
    constexpr int oneTooMany = 32768;
    test::fillLog(program.folder(), "Uus144a", oneTooMany);
    sum(sumRows[0]);
    EXPECT_EQ(Modul1.Qso144a, before);
    EXPECT_EQ(Modul1.Pct144a, oneTooMany * 163);
    EXPECT_FALSE(program.notices().empty());
}

bool endsTheProgram(int error)
{
    try {
        band::afterSumError(error, "DUPA GOLIRE LOG ROG RESTART PROGRAM !");
    } catch (const base::ProgramEnd&) {
        return true;
    }
    return false;
}

TEST_F(Sums, EndTheProgramWhenTheirRowsAreGone)
{
    ASSERT_TRUE(Modul1.DbLog.isOpen());
    EXPECT_TRUE(endsTheProgram(base::rowGone));
    const auto box = program.box();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->request.text, "DUPA GOLIRE LOG ROG RESTART PROGRAM !");
    EXPECT_EQ(box->request.style, 48);
    EXPECT_EQ(box->request.title, "");
    EXPECT_FALSE(Modul1.DbLog.isOpen());
    EXPECT_EQ(FrmQSO.life, screen::FormLife::unloaded);
}

TEST_F(Sums, GoOnAfterAnyOtherError)
{
    for (const int error : {0, 3021, 6, 3059, 91})
        EXPECT_FALSE(endsTheProgram(error)) << error;
    EXPECT_FALSE(program.box());
    EXPECT_TRUE(Modul1.DbLog.isOpen());
}

TEST_F(Sums, OfTheMaratonLogGoIntoTheRowsOfTheScore)
{
    Modul1.PctYO144 = 11;
    Modul1.PctYO432 = 22;
    Modul1.PctYO1296 = 33;
    Modul1.QsoYO144 = 1;
    Modul1.QsoYO432 = 2;
    Modul1.QsoYO1296 = 3;
    Modul1.BandCur = 432;
    band::Rezult();
    const struct {
        const screen::Label& label;
        const char* caption;
    } rows[] = {
        {FrmQSO.LblBand, "144"},   {FrmQSO.LblPkt, "11"},  {FrmQSO.LblQSO, "1"},
        {FrmQSO.LblBand1, "432"},  {FrmQSO.LblPkt1, "22"}, {FrmQSO.LblQSO1, "2"},
        {FrmQSO.LblBand2, "1296"}, {FrmQSO.LblPkt2, "33"}, {FrmQSO.LblQSO2, "3"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.label.Caption, row.caption) << row.label.name;
    EXPECT_EQ(Modul1.BandCur, 144);
}

}  // namespace
