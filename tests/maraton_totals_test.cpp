// The figures of the Maraton contest by band, and the rows of the score.
#include "band/maraton_totals.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "band/maraton.h"
#include "band/stage.h"
#include "band/switching.h"
#include "base/runtime_error.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/maraton_log.h"

namespace {

using State = runstate::Modul1State;

struct FiguresRow {
    int band;
    std::int16_t State::*qsos;
    std::int32_t State::*points;
};

constexpr FiguresRow figuresRows[] = {
    {144, &State::QsoYO144, &State::PctYO144},
    {432, &State::QsoYO432, &State::PctYO432},
    {1296, &State::QsoYO1296, &State::PctYO1296},
};

class MaratonTotals : public test::MaratonLog {
 protected:
    static void expectFigures(const std::vector<int>& qsos, const std::vector<int>& points)
    {
        for (std::size_t row = 0; row < std::size(figuresRows); ++row) {
            EXPECT_EQ(Modul1.*figuresRows[row].qsos, qsos.at(row)) << figuresRows[row].band;
            EXPECT_EQ(Modul1.*figuresRows[row].points, points.at(row)) << figuresRows[row].band;
        }
    }
};

TEST_F(MaratonTotals, CountsQsosAndPointsByBand)
{
    addPoints("'144'", "'100'");
    addPoints("'432'", "'20'");
    addPoints("'144'", "'3'");
    addPoints("'1296'", "'4000'");
    addPoints("'144'", "'0'");
    Modul1.BandYO = "432";
    band::SummeYO2();
    expectFigures({3, 1, 1}, {103, 20, 4000});
    EXPECT_EQ(shownCalls().size(), 1U) << "the log of the band in hand comes back into view";
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(MaratonTotals, CountsFromZeroEachTime)
{
    addPoints("'432'", "'20'");
    band::SummeYO2();
    band::SummeYO2();
    expectFigures({0, 1, 0}, {0, 20, 0});
}

TEST_F(MaratonTotals, CountsNothingInAnEmptyLog)
{
    for (const FiguresRow& row : figuresRows) {
        Modul1.*row.qsos = 7;
        Modul1.*row.points = 77;
    }
    band::SummeYO2();
    expectFigures({0, 0, 0}, {0, 0, 0});
    EXPECT_TRUE(shownCalls().empty());
    EXPECT_TRUE(program.notices().empty());
    EXPECT_FALSE(program.box());
}

TEST_F(MaratonTotals, TakesTheNumericValueOfThePoints)
{
    struct PointsRow {
        const char* points;
        int worth;
    };
    constexpr PointsRow rows[] = {{"'12'", 12}, {"' 7'", 7},  {"'3 Km'", 3}, {"'abc'", 0}, {"''", 0},
                                  {"NULL", 0},  {"'-2'", -2}, {"'0'", 0},    {"'1.5'", 2}, {"'2.4'", 2}};
    for (const PointsRow& row : rows) {
        program.changeLog("DELETE * FROM UusLGYO2");
        addPoints("'432'", row.points);
        band::SummeYO2();
        EXPECT_EQ(Modul1.PctYO432, row.worth) << row.points;
        EXPECT_EQ(Modul1.QsoYO432, 1) << row.points;
    }
}

TEST_F(MaratonTotals, CountsNoOtherBand)
{
    struct BandRow {
        const char* band;
        std::vector<int> qsos;
    };
    const BandRow rows[] = {{"'144'", {1, 0, 0}},  {"' 144'", {1, 0, 0}}, {"'144 MHz'", {1, 0, 0}},
                            {"'432'", {0, 1, 0}},  {"'1296'", {0, 0, 1}}, {"'50'", {0, 0, 0}},
                            {"'2320'", {0, 0, 0}}, {"'1440'", {0, 0, 0}}, {"'14'", {0, 0, 0}},
                            {"''", {0, 0, 0}},     {"NULL", {0, 0, 0}},   {"'abc'", {0, 0, 0}}};
    for (const BandRow& row : rows) {
        SCOPED_TRACE(row.band);
        program.changeLog("DELETE * FROM UusLGYO2");
        addPoints(row.band, "'1'");
        band::SummeYO2();
        expectFigures(row.qsos, row.qsos);
    }
}

TEST_F(MaratonTotals, StopsQuietlyWhereThePointsDoNotFit)
{
    addPoints("'144'", "'2147483647'");
    addPoints("'432'", "'5'");
    addPoints("'144'", "'1'");
    addPoints("'1296'", "'5'");
    band::SummeYO2();
    expectFigures({1, 1, 0}, {2147483647, 5, 0});
    EXPECT_FALSE(program.box());
    EXPECT_FALSE(program.notices().empty());
}

TEST_F(MaratonTotals, CountsOnlySoManyCharactersOfThePointsWhereOneAsks)
{
    addPoints("'144'", "'1234567'");
    addPoints("'144'", "' 12345'");
    band::recountMaratonLog(FrmQSO.UusLGYO2, 6);
    expectFigures({2, 0, 0}, {123456 + 12345, 0, 0});
    band::recountMaratonLog(FrmQSO.UusLGYO2);
    expectFigures({2, 0, 0}, {1234567 + 12345, 0, 0});
}

bool sumEndsTheProgram()
{
    try {
        band::SummeYO2();
    } catch (const base::ProgramEnd&) {
        return true;
    }
    return false;
}

TEST_F(MaratonTotals, EndsTheProgramAtTheFirstSumAfterTheLogWasEmptied)
{
    addPoints("'144'", "'100'");
    band::SummeYO2();
    program.changeLog("DELETE * FROM UusLGYO2");
    Modul1.maratonLogEmptied = 100;
    ASSERT_TRUE(Modul1.DbLog.isOpen());
    EXPECT_TRUE(sumEndsTheProgram());
    const auto box = program.box();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->request.text, "DUPA GOLIRE LOG ROG RESTART PROGRAM !");
    EXPECT_EQ(box->request.style, 48);
    EXPECT_EQ(box->request.title, "");
    EXPECT_FALSE(Modul1.DbLog.isOpen());
    EXPECT_EQ(FrmQSO.life, screen::FormLife::unloaded);
    expectFigures({0, 0, 0}, {0, 0, 0});
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(MaratonTotals, CountsAgainInTheNextRunAfterTheLogWasEmptied)
{
    Modul1.maratonLogEmptied = 100;
    EXPECT_EQ(base::quietly<base::rowGone>([] { band::recountMaratonLog(FrmQSO.UusLGYO2); }), 3167);
    EXPECT_EQ(base::quietly([] { band::recountMaratonLog(FrmQSO.UusLGYO2); }), 0) << "it is the first sum alone";
    Modul1.maratonLogEmptied = 100;
    program.restart();
    EXPECT_EQ(Modul1.maratonLogEmptied, 0);
    EXPECT_FALSE(sumEndsTheProgram());
}

TEST_F(MaratonTotals, CountsOnAfterRowsWereDeleted)
{
    addPoints("'144'", "'100'");
    band::B144();
    program.changeLog("DELETE * FROM UusLGYO2");
    EXPECT_FALSE(sumEndsTheProgram());
    EXPECT_FALSE(program.box());
}

struct ScoreOrder {
    int band;
    std::vector<int> rows;  ///< places in figuresRows
};

const ScoreOrder scoreOrders[] = {
    {144, {0, 1, 2}}, {432, {1, 0, 2}}, {1296, {2, 0, 1}}, {0, {0, 1, 2}}, {1, {0, 1, 2}}, {2320, {0, 1, 2}},
};

void expectScore(const ScoreOrder& order)
{
    const struct {
        screen::Label& band;
        screen::Label& points;
        screen::Label& qsos;
    } shown[] = {
        {FrmQSO.LblBand, FrmQSO.LblPkt, FrmQSO.LblQSO},
        {FrmQSO.LblBand1, FrmQSO.LblPkt1, FrmQSO.LblQSO1},
        {FrmQSO.LblBand2, FrmQSO.LblPkt2, FrmQSO.LblQSO2},
    };
    for (std::size_t row = 0; row < 3; ++row) {
        const FiguresRow& figures = figuresRows[order.rows.at(row)];
        EXPECT_EQ(shown[row].band.Caption, std::to_string(figures.band)) << order.band << " row " << row;
        EXPECT_EQ(shown[row].points.Caption, std::to_string(Modul1.*figures.points)) << order.band << " row " << row;
        EXPECT_EQ(shown[row].qsos.Caption, std::to_string(Modul1.*figures.qsos)) << order.band << " row " << row;
    }
}

TEST_F(MaratonTotals, ShowsTheBandInHandFirst)
{
    for (std::size_t row = 0; row < 3; ++row) {
        Modul1.*figuresRows[row].qsos = static_cast<std::int16_t>(row + 1);
        Modul1.*figuresRows[row].points = static_cast<std::int32_t>(11 * (row + 1));
    }
    for (const ScoreOrder& order : scoreOrders) {
        band::showMaratonScore(order.band);
        expectScore(order);
        const band::MaratonBands bands = band::maratonBandsFrom(order.band);
        for (std::size_t row = 0; row < 3; ++row) {
            EXPECT_EQ(bands.at(row)->band, figuresRows[order.rows.at(row)].band) << order.band;
            EXPECT_EQ(bands.at(row)->name, std::to_string(bands.at(row)->band)) << order.band;
        }
    }
}

TEST_F(MaratonTotals, ShowsTheScoreAndTheLogOfEachBandThatIsChosen)
{
    using BandProcedure = void (*)();
    constexpr BandProcedure procedures[] = {band::B144, band::B432, band::B1296};
    add("'YO2AAA'", "'15.11.26'", "'144'", "'DAN'", "'100'");
    add("'YO2BBB'", "'15.11.26'", "'432'", "'DAN'", "'20'");
    add("'YO2CCC'", "'15.11.26'", "'144'", "'DAN'", "'3'");
    add("'YO2DDD'", "'15.11.26'", "'1296'", "'DAN'", "'7'");
    const std::vector<std::string> calls[] = {{"YO2AAA", "YO2CCC"}, {"YO2BBB"}, {"YO2DDD"}};
    for (int round = 0; round < 2; ++round)
        for (std::size_t row = 0; row < 3; ++row) {
            SCOPED_TRACE(scoreOrders[row].band);
            procedures[row]();
            EXPECT_EQ(Modul1.BandCur, scoreOrders[row].band);
            EXPECT_EQ(Modul1.BandYO, std::to_string(scoreOrders[row].band));
            EXPECT_EQ(Modul1.Etapa, "A");
            expectFigures({2, 1, 1}, {103, 20, 7});
            expectScore(scoreOrders[row]);
            EXPECT_EQ(shownCalls(), calls[row]);
            EXPECT_EQ(currentCall(), calls[row].back());
            EXPECT_TRUE(FrmQSO.DBGrid9.seen());
            for (const screen::Grid* other : {&FrmQSO.DBGrid1, &FrmQSO.DBGrid3, &FrmQSO.DBGrid6, &FrmQSO.DBGrid8})
                EXPECT_FALSE(other->Visible) << other->name;
            for (const screen::Control* stage : {&FrmQSO.CmdA, &FrmQSO.CmdB})
                EXPECT_FALSE(stage->Visible) << stage->name;
            for (const screen::Control* button : {&FrmQSO.Cmd144, &FrmQSO.Cmd432, &FrmQSO.Cmd1296})
                EXPECT_TRUE(button->seen()) << button->name;
            EXPECT_TRUE(FrmQSO.LblCod.seen()) << "one code for the contest";
        }
}

TEST_F(MaratonTotals, KeepsItsScoreWhenTheStageIsTakenAgain)
{
    add("'YO2DDD'", "'15.11.26'", "'1296'", "'DAN'", "'7'");
    program.changeLog("INSERT INTO Uus1296a (Callsign, Pct) VALUES ('YO2OLD', '999')");
    band::B1296();
    Modul1.TotalsDone = 0;
    band::EA();
    expectScore(scoreOrders[2]);
    EXPECT_EQ(FrmQSO.LblPkt.Caption, "7");
    EXPECT_EQ(Modul1.BandCur, 1296);
}

TEST_F(MaratonTotals, CountsItsCodeOn144Alone)
{
    FrmQSO.LblCod.Caption = "041";
    band::B144();
    EXPECT_EQ(FrmQSO.txtRSTE2.Text, "042");
    band::B432();
    EXPECT_EQ(FrmQSO.txtRSTE2.Text, "001");
    band::B1296();
    EXPECT_EQ(FrmQSO.txtRSTE2.Text, "001");
    EXPECT_EQ(FrmQSO.NextCod, "001");
    EXPECT_EQ(FrmQSO.LblCod.Caption, "041");
}

TEST_F(MaratonTotals, LeavesTheBandsOfTheOtherContestsToThem)
{
    add("'YO2AAA'", "'15.11.26'", "'144'", "'DAN'", "'100'");
    for (const int contest : {0, 1, 2, 3, 4, 5, 6, 8, 100, 101}) {
        Modul1.ConcId = static_cast<std::uint16_t>(contest);
        Modul1.QsoYO144 = 77;
        for (void (*procedure)() : {band::B144, band::B432, band::B1296})
            procedure();
        EXPECT_EQ(Modul1.QsoYO144, 77) << contest;
        EXPECT_EQ(Modul1.BandYO, "") << contest;
        EXPECT_FALSE(FrmQSO.DBGrid9.Visible) << contest;
    }
}

}  // namespace
