// The sums of the review form: every log counted from its stored rows.
#include "review/sums.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/error_of.h"
#include "support/filled_log.h"
#include "support/station.h"

namespace {

using State = runstate::Modul1State;
using Form = screen::FrmAnzeigenForm;

struct SumRow {
    const char* table;
    void (*sum)();
    int band;  ///< BandCur behind it, 0 where it stays
    std::int16_t State::*qsos;
    std::int32_t State::*points;
    std::int32_t State::*companion;  ///< of the entry form
    screen::DataControl Form::*data;
    screen::Grid Form::*grid;
};

const SumRow sumRows[] = {
    {"Uus144a", review::Summe144a, 144, &State::Qso144a, &State::Pct144a, &State::Loc144a, &Form::Uus144a,
     &Form::DBGrid1},
    {"Uus144b", review::Summe144b, 144, &State::Qso144b, &State::Pct144b, &State::Loc144b, &Form::Uus144b,
     &Form::DBGrid2},
    {"Uus432a", review::Summe432a, 432, &State::Qso432a, &State::Pct432a, &State::Loc432a, &Form::Uus432a,
     &Form::DBGrid3},
    {"Uus432b", review::Summe432b, 432, &State::Qso432b, &State::Pct432b, &State::Loc432b, &Form::Uus432b,
     &Form::DBGrid4},
    {"Uus1296a", review::Summe1296a, 1296, &State::Qso1296a, &State::Pct1296a, &State::Loc1296a, &Form::Uus1296a,
     &Form::DBGrid6},
    {"Uus1296b", review::Summe1296b, 1296, &State::Qso1296b, &State::Pct1296b, &State::Loc1296b, &Form::Uus1296b,
     &Form::DBGrid7},
    {"UusGHz", review::SummeGHz, 0, &State::QsoGHz, &State::PctGHz, &State::LocGHz, &Form::UusGHz, &Form::DBGrid8},
};

constexpr std::int16_t before = 77;
constexpr int bandBefore = 5760;

class ReviewSums : public test::FilledLog {
 protected:
    void SetUp() override
    {
        program.click(FrmInit.mnuLOG);
        Modul1.GridRebuild = 1000;
        forgetSums();
    }

    static void forgetSums()
    {
        for (const SumRow& row : sumRows) {
            Modul1.*row.qsos = before;
            Modul1.*row.points = before;
            Modul1.*row.companion = before;
        }
        Modul1.BandCur = bandBefore;
        Modul1.Etapa = "X";
        FrmAnzeigen.SumQso = before;
        FrmAnzeigen.SumPct = before;
        FrmAnzeigen.LblQSO1.Caption = "old";
        FrmAnzeigen.LblPkt1.Caption = "old";
    }

    /// The figures of this table, and those of all others as they were.
    static void expectFigures(const SumRow& summed, int qsos, int points)
    {
        for (const SumRow& row : sumRows) {
            const bool mine = &row == &summed;
            EXPECT_EQ(Modul1.*row.qsos, mine ? qsos : before) << row.table;
            EXPECT_EQ(Modul1.*row.points, mine ? points : before) << row.table;
            EXPECT_EQ(Modul1.*row.companion, mine ? 0 : before) << row.table;
        }
        EXPECT_EQ(Modul1.BandCur, summed.band == 0 ? bandBefore : summed.band) << summed.table;
        EXPECT_EQ(Modul1.Etapa, "X") << summed.table;
        expectShown(qsos, points);
    }

    static void expectShown(int qsos, int points)
    {
        for (const screen::Control* control : std::initializer_list<const screen::Control*>{
                 &FrmAnzeigen.Frame4, &FrmAnzeigen.LblQSO, &FrmAnzeigen.LblQSO1, &FrmAnzeigen.LblPkt,
                 &FrmAnzeigen.LblPkt1})
            EXPECT_TRUE(control->seen()) << control->name;
        EXPECT_EQ(FrmAnzeigen.LblQSO1.Caption, std::to_string(qsos));
        EXPECT_EQ(FrmAnzeigen.LblPkt1.Caption, std::to_string(points));
    }

    static void expectInView(const SumRow& summed)
    {
        for (const SumRow& row : sumRows)
            EXPECT_EQ((FrmAnzeigen.*row.grid).Visible, &row == &summed) << summed.table << ", grid of " << row.table;
    }

    /// What one table comes to with these points, given as they stand between the commas.
    int sumOf(const std::vector<const char*>& points)
    {
        test::PlainLog log(program.folder() / "LogKelvo.mdb");
        log.execute("BEGIN");
        log.execute("DELETE FROM Uus144a");
        for (const std::string each : points)
            log.execute("INSERT INTO Uus144a (Callsign, Pct) VALUES ('YO2ABC', " + each + ")");
        log.execute("COMMIT");
        review::Summe144a();
        EXPECT_EQ(Modul1.Qso144a, points.size());
        return Modul1.Pct144a;
    }

    void execute(const std::string& statement) { test::PlainLog(program.folder() / "LogKelvo.mdb").execute(statement); }

    void addMany(const std::string& table, int rows, const std::string& points)
    {
        execute("INSERT INTO " + table +
                " (Callsign, Pct) WITH RECURSIVE row(n) AS (SELECT 1 UNION ALL SELECT n + 1 "
                "FROM row WHERE n < " +
                std::to_string(rows) + ") SELECT 'YO2ABC', '" + points + "' FROM row");
    }
};

TEST_F(ReviewSums, AreThoseOfTheirTable)
{
    int points = 100;
    for (const SumRow& row : sumRows) {
        addPoints(row.table, "'5'");
        addPoints(row.table, "'0'");
        addPoints(row.table, "'" + std::to_string(points) + "'");
        points += 100;
    }
    points = 100;
    for (const SumRow& row : sumRows) {
        SCOPED_TRACE(row.table);
        forgetSums();
        row.sum();
        expectFigures(row, 3, points + 5);
        expectInView(row);
        EXPECT_EQ((FrmAnzeigen.*row.data).RecordSource, "SELECT * FROM " + std::string(row.table));
        EXPECT_EQ((FrmAnzeigen.*row.data).Recordset.Field("Pct"), std::to_string(points))
            << "the newest row is current";
        points += 100;
    }
    EXPECT_TRUE(program.notices().empty());
    EXPECT_FALSE(program.box());
}

TEST_F(ReviewSums, OfAnEmptyTableAreZero)
{
    for (const SumRow& row : sumRows) {
        SCOPED_TRACE(row.table);
        forgetSums();
        row.sum();
        expectFigures(row, 0, 0);
        expectInView(row);
    }
    EXPECT_TRUE(program.notices().empty());
    EXPECT_FALSE(program.box());
}

TEST_F(ReviewSums, StartFromZeroEachTime)
{
    for (const SumRow& row : sumRows) {
        addPoints(row.table, "'100'");
        row.sum();
        forgetSums();
        row.sum();
        expectFigures(row, 1, 100);
    }
}

TEST_F(ReviewSums, FollowALogThatWasEmptied)
{
    for (const SumRow& row : sumRows) {
        addPoints(row.table, "'100'");
        row.sum();
        empty(row.table);
        forgetSums();
        row.sum();
        expectFigures(row, 0, 0);
    }
    EXPECT_FALSE(program.box()) << "only the Maraton log asks for a restart";
}

TEST_F(ReviewSums, ShowTheLabelsThatTheStationDataHide)
{
    for (const SumRow& row : sumRows) {
        for (screen::Control* control :
             std::initializer_list<screen::Control*>{&FrmAnzeigen.Frame4, &FrmAnzeigen.LblQSO, &FrmAnzeigen.LblQSO1,
                                                     &FrmAnzeigen.LblPkt, &FrmAnzeigen.LblPkt1})
            control->Visible = false;
        row.sum();
        expectShown(0, 0);
    }
}

TEST_F(ReviewSums, ReadSixCharactersOfThePoints)
{
    const struct {
        const char* points;
        int value;
    } rows[] = {
        {"'0'", 0},
        {"'7'", 7},
        {"'999999'", 999999},
        {"'1234567'", 123456},
        {"'12345678'", 123456},
        {"'1000000'", 100000},
        {"'-12345'", -12345},
        {"'-123456'", -12345},
        {"'   123'", 123},
        {"'    1234'", 12},
        {"'12345.9'", 12345},
        {"'1234.9'", 1235},
        {"'+5'", 5},
        {"'3 Km'", 3},
        {"'12a45'", 12},
        {"'abc'", 0},
        {"'a12'", 0},
        {"''", 0},
        {"'      99'", 0},
        {"NULL", 0},
        {"'--5'", 0},
        {"'1e5'", 1},
        {"'şţă123'", 0},
        {"'.75'", 1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(sumOf({row.points}), row.value) << row.points;
        EXPECT_EQ(sumOf({"'10'", row.points, "'20'"}), row.value + 30) << row.points;
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(ReviewSums, RoundHalfToEvenAtEachStep)
{
    EXPECT_EQ(sumOf({"'0.5'"}), 0);
    EXPECT_EQ(sumOf({"'1.5'"}), 2);
    EXPECT_EQ(sumOf({"'2.5'"}), 2);
    EXPECT_EQ(sumOf({"'0.5'", "'0.5'"}), 0) << "each half is lost by itself";
    EXPECT_EQ(sumOf({"'1'", "'0.5'"}), 2);
    EXPECT_EQ(sumOf({"'1'", "'0.5'", "'0.5'"}), 2);
    EXPECT_EQ(sumOf({"'0.6'", "'0.6'"}), 2);
    EXPECT_EQ(sumOf({"'-0.5'"}), 0);
    EXPECT_EQ(sumOf({"'-1.5'"}), -2);
    EXPECT_EQ(sumOf({"'0.4'", "'0.4'", "'0.4'"}), 0);
}

TEST_F(ReviewSums, PassOverAQsoThatDoesNotFitAndGoOn)
{
    addMany("Uus144a", 2148, "999999");
    addPoints("Uus144a", "'5'");
    review::Summe144a();
    EXPECT_EQ(Modul1.Pct144a, 2147 * 999999 + 5) << "the last but one would be beyond 32 bits";
    EXPECT_EQ(Modul1.Qso144a, 2149);
    EXPECT_EQ(program.notices().size(), 1U);
    EXPECT_FALSE(program.box());
}

TEST_F(ReviewSums, OfMoreQsosThanFitAreTold)
{
    addMany("Uus144a", 32768, "1");
    review::Summe144a();
    EXPECT_EQ(Modul1.Pct144a, 32768);
    EXPECT_FALSE(program.notices().empty());
}

TEST_F(ReviewSums, OfATableThatIsMissingAreZeroAndTold)
{
    for (const SumRow& row : sumRows) {
        SCOPED_TRACE(row.table);
        execute("DROP TABLE " + std::string(row.table));
        forgetSums();
        const std::size_t told = program.notices().size();
        row.sum();
        expectFigures(row, 0, 0);
        EXPECT_GT(program.notices().size(), told);
    }
    EXPECT_FALSE(program.box());
}

struct ContestRow {
    int id;
    bool stages;
    std::vector<const char*> tables;  ///< of one pass
    int band;                         ///< behind them, 0 where it stays
};

const ContestRow contestRows[] = {
    {0, true, {}, 0},
    {1, true, {}, 0},
    {2, false, {"Uus144a", "Uus432a", "Uus1296a"}, 1296},
    {3, false, {"Uus144a", "Uus432a", "Uus1296a"}, 1296},
    {4, false, {}, 0},
    {5, false, {"Uus144a", "Uus432a", "Uus1296a"}, 1296},
    {6, true, {}, 0},
    {7, false, {}, 0},
    {8, false, {"Uus144a", "Uus432a", "Uus1296a"}, 1296},
    {100, false, {"Uus144a", "Uus432a", "Uus1296a", "UusGHz"}, 1296},
    {101, false, {}, 0},
};

std::vector<const char*> stagesOf(int band)
{
    switch (band) {
        case 144:
            return {"Uus144a", "Uus144b"};
        case 432:
            return {"Uus432a", "Uus432b"};
        case 1296:
            return {"Uus1296a", "Uus1296b"};
        default:
            return {};
    }
}

bool contains(const std::vector<const char*>& tables, const std::string& table)
{
    return std::find(tables.begin(), tables.end(), table) != tables.end();
}

TEST_F(ReviewSums, OfTheContestAreThoseOfItsTables)
{
    int points = 100;
    for (const SumRow& row : sumRows) {
        addPoints(row.table, "'" + std::to_string(points) + "'");
        points *= 2;
    }
    for (const ContestRow& each : contestRows) {
        for (const int band : {0, 1, 22, 144, 432, 1296, 2320}) {
            SCOPED_TRACE(std::to_string(each.id) + " on " + std::to_string(band));
            forgetSums();
            contest(each.id);
            Modul1.BandCur = band;
            review::ClcSum();
            const std::vector<const char*> tables = each.stages ? stagesOf(band) : each.tables;
            int expected = 100;
            int total = 0;
            for (const SumRow& row : sumRows) {
                const bool counted = contains(tables, row.table);
                EXPECT_EQ(Modul1.*row.points, counted ? expected : before) << row.table;
                EXPECT_EQ(Modul1.*row.qsos, counted ? 1 : before) << row.table;
                if (counted) total += expected;
                expected *= 2;
            }
            const bool report = each.stages && !tables.empty();
            EXPECT_EQ(FrmAnzeigen.SumQso, report ? 2 : before);
            EXPECT_EQ(FrmAnzeigen.SumPct, report ? total : before);
            EXPECT_EQ(Modul1.BandCur, each.band == 0 ? band : each.band);
        }
    }
}

TEST_F(ReviewSums, OfAStageAloneAreThoseOfTheBand)
{
    contest(0);
    addPoints("Uus144b", "'30'");
    addPoints("Uus144b", "'40'");
    Modul1.BandCur = 144;
    review::ClcSum();
    EXPECT_EQ(FrmAnzeigen.SumQso, 2);
    EXPECT_EQ(FrmAnzeigen.SumPct, 70);
    EXPECT_EQ(Modul1.Qso144a, 0);
    EXPECT_FALSE(program.box());
}

TEST_F(ReviewSums, OfBothStagesThatDoNotFitAreAnError)
{
    contest(0);
    addMany("Uus432a", 16384, "1");
    addMany("Uus432b", 16384, "1");
    Modul1.BandCur = 432;
    EXPECT_EQ(test::errorOf(review::ClcSum), base::overflow);
}

class MaratonSums : public ReviewSums {
 protected:
    void SetUp() override
    {
        ReviewSums::SetUp();
        contest(7);
        for (std::int16_t State::*qsos : {&State::QsoYO144, &State::QsoYO432, &State::QsoYO1296})
            Modul1.*qsos = before;
        for (std::int32_t State::*points : {&State::PctYO144, &State::PctYO432, &State::PctYO1296})
            Modul1.*points = before;
    }

    void addQso(const std::string& band, const std::string& points)
    {
        program.changeLog(
            "INSERT INTO UusLGYO2 (Callsign, Data, UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, QRALcE, NameE) "
            "VALUES ('YO2ABC', '15.11.26', '12:34', '599 001', '599 002', 'CW', " +
            band + ", 'KN16AA', 'ANA', " + points + ", 'KN05OS', 'ION')");
    }

    static void expectTotals(const std::vector<int>& qsos, const std::vector<int>& points)
    {
        EXPECT_EQ((std::vector<int>{Modul1.QsoYO144, Modul1.QsoYO432, Modul1.QsoYO1296}), qsos);
        EXPECT_EQ((std::vector<int>{Modul1.PctYO144, Modul1.PctYO432, Modul1.PctYO1296}), points);
    }
};

TEST_F(MaratonSums, AreThoseOfTheBands)
{
    for (const char* band : {"'144'", "'432'", "'1296'", "'432'", "'1296'", "'1296'"})
        addQso(band, "'100'");
    addQso("'144'", "'0'");
    review::SummeYO2();
    expectTotals({2, 2, 3}, {100, 200, 300});
    EXPECT_EQ(Modul1.BandCur, bandBefore);
    EXPECT_FALSE(program.box());
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(MaratonSums, OfAnEmptyLogAreZero)
{
    review::SummeYO2();
    expectTotals({0, 0, 0}, {0, 0, 0});
    EXPECT_FALSE(program.box());
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(MaratonSums, LeaveOtherBandsOut)
{
    for (const char* band : {"'50'", "'145'", "'1440'", "'14'", "'2320'", "'0'", "''", "NULL", "'abc'"})
        addQso(band, "'100'");
    addQso("'144'", "'7'");
    review::SummeYO2();
    expectTotals({1, 0, 0}, {7, 0, 0});
}

TEST_F(MaratonSums, ReadSixCharactersAndRoundAtEachStep)
{
    addQso("'144'", "'1234567'");
    addQso("'432'", "'0.5'");
    addQso("'432'", "'0.5'");
    for (const char* points : {"'abc'", "''", "NULL", "'-3'", "'3 Km'"})
        addQso("'1296'", points);
    review::SummeYO2();
    expectTotals({1, 2, 5}, {123456, 0, 0});
}

TEST_F(MaratonSums, AfterAnyOtherErrorAreAsFarAsTheyGot)
{
    execute("DROP TABLE UusLGYO2");
    review::SummeYO2();
    expectTotals({0, 0, 0}, {0, 0, 0});
    EXPECT_FALSE(program.box());
    EXPECT_FALSE(program.notices().empty());
    EXPECT_EQ(screen::activeForm(), &FrmAnzeigen);
}

TEST_F(MaratonSums, EndTheProgramOnceTheLogWasEmptied)
{
    Modul1.DbQra = storage::OpenDatabase(Modul1.AppDir + "\\DbsKelvo.mdb");
    Modul1.maratonLogEmptied = 100;
    EXPECT_THROW(review::SummeYO2(), base::ProgramEnd);
    const auto box = program.box();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->request.text, "AFTER DELETE LOG, PLEASE RESTART PROGRAM !");
    EXPECT_EQ(box->request.style, 48);
    EXPECT_EQ(box->request.title, "");
    EXPECT_EQ(Modul1.MsgText, box->request.text);
    EXPECT_EQ(Modul1.MsgStyle, "48");
    EXPECT_FALSE(Modul1.DbQra.isOpen());
    EXPECT_EQ(FrmAnzeigen.life, screen::FormLife::unloaded);
    expectTotals({0, 0, 0}, {0, 0, 0});
}

}  // namespace
