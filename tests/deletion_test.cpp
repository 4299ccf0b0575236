// Deleting a row of the log through its grid.
#include "entry/deletion.h"

#include <gtest/gtest.h>

#include <string>

#include "band/maraton.h"
#include "entry/log_table.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/filled_log.h"

namespace {

using State = runstate::Modul1State;
using GridMember = screen::Grid screen::FrmQSOForm::*;

struct TableRow {
    const char* name;
    int band;
    const char* stage;
    GridMember grid;
    std::int16_t State::*qsos;
    std::int32_t State::*points;
};

using Form = screen::FrmQSOForm;

const TableRow tableRows[] = {
    {"Uus144a", 144, "A", &Form::DBGrid1, &State::Qso144a, &State::Pct144a},
    {"Uus144b", 144, "B", &Form::DBGrid2, &State::Qso144b, &State::Pct144b},
    {"Uus432a", 432, "A", &Form::DBGrid3, &State::Qso432a, &State::Pct432a},
    {"Uus432b", 432, "B", &Form::DBGrid4, &State::Qso432b, &State::Pct432b},
    {"Uus1296a", 1296, "A", &Form::DBGrid6, &State::Qso1296a, &State::Pct1296a},
    {"Uus1296b", 1296, "B", &Form::DBGrid7, &State::Qso1296b, &State::Pct1296b},
    {"UusGHz", 1, "A", &Form::DBGrid8, &State::QsoGHz, &State::PctGHz},
    {"UusGHz", 2320, "A", &Form::DBGrid8, &State::QsoGHz, &State::PctGHz},
    {"UusGHz", 76000, "A", &Form::DBGrid8, &State::QsoGHz, &State::PctGHz},
};

class Deletion : public test::FilledLog {
 protected:
    void SetUp() override { contest(100); }

    static const entry::LogTable& tableOf(const TableRow& row) { return *entry::logTableFor(row.band, row.stage); }

    static storage::RecordSet& rowsOf(const TableRow& row) { return (FrmQSO.*tableOf(row).data).Recordset; }

    /// Three QSOs of 10, 200 and 3000 points in the table, in view, the newest one current.
    void showThreeQsos(const TableRow& row)
    {
        empty(row.name);
        for (const char* points : {"'10'", "'200'", "'3000'"})
            addPoints(row.name, points);
        Modul1.BandCur = row.band;
        Modul1.Etapa = row.stage;
        Modul1.GridRebuild = 100;
        entry::showWholeTable(tableOf(row));
        forgetFigures();
    }

    static void forgetFigures()
    {
        for (const TableRow& row : tableRows) {
            Modul1.*row.qsos = before;
            Modul1.*row.points = before;
        }
        FrmQSO.LblQSO.Caption = "77";
        FrmQSO.LblPkt.Caption = "77";
    }

    static void expectScore(const TableRow& mine, int qsos, int points)
    {
        for (const TableRow& row : tableRows) {
            const bool same = row.qsos == mine.qsos;
            EXPECT_EQ(Modul1.*row.qsos, same ? qsos : before) << mine.name << ", figures of " << row.name;
            EXPECT_EQ(Modul1.*row.points, same ? points : before) << mine.name << ", figures of " << row.name;
        }
        EXPECT_EQ(FrmQSO.LblQSO.Caption, std::to_string(qsos)) << mine.name;
        EXPECT_EQ(FrmQSO.LblPkt.Caption, std::to_string(points)) << mine.name;
    }

    /// The answer, once the question comes.
    void answerWith(platform::Button button) { program.machine().boxes.queueAnswer(button, 0); }

    static constexpr std::int16_t before = 77;
};

TEST_F(Deletion, TakesTheCurrentRowOfItsTableAndCountsThatTableAnew)
{
    for (const TableRow& row : tableRows) {
        showThreeQsos(row);
        rowsOf(row).MovePrevious();
        entry::Sterge();
        expectScore(row, 2, 3010);
        const auto left = rowsOf(row).firstRows(9);
        ASSERT_EQ(left.size(), 2U) << row.name;
        EXPECT_EQ(left[0].columns[9], "10") << row.name;
        EXPECT_EQ(left[1].columns[9], "3000") << row.name;
        EXPECT_TRUE((FrmQSO.*row.grid).Visible) << row.name;
    }
}

TEST_F(Deletion, EndsAtAnEmptyTable)
{
    for (const TableRow& row : tableRows) {
        showThreeQsos(row);
        for (int left = 2; left >= 0; --left) {
            rowsOf(row).MoveFirst();
            entry::Sterge();
            EXPECT_EQ(Modul1.*row.qsos, left) << row.name;
        }
        expectScore(row, 0, 0);
        forgetFigures();
        entry::Sterge();
        expectScore(row, 0, 0);
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Deletion, WithoutACurrentRowJustCounts)
{
    for (const TableRow& row : tableRows) {
        showThreeQsos(row);
        rowsOf(row).MoveNext();
        entry::Sterge();
        expectScore(row, 3, 3210);
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Deletion, OfARowThatIsGoneLeavesEverythingAndTellsIt)
{
    for (const TableRow& row : tableRows) {
        showThreeQsos(row);
        program.changeLog("DELETE FROM " + std::string(row.name) + " WHERE Pct='3000'");
        const std::size_t told = program.notices().size();
        entry::Sterge();
        expectScore(row, before, before);
        EXPECT_EQ(rowsOf(row).firstRows(9).size(), 2U) << row.name;
        EXPECT_EQ(program.notices().size(), told + 1) << row.name;
    }
}

TEST_F(Deletion, TouchesNoTableThatIsNotInView)
{
    for (const TableRow& row : tableRows) {
        showThreeQsos(row);
        (FrmQSO.*row.grid).Visible = false;
        entry::Sterge();
        expectScore(row, before, before);
        EXPECT_EQ(rowsOf(row).firstRows(9).size(), 3U) << row.name;
    }
}

TEST_F(Deletion, NeedsAStageOnANamedBand)
{
    for (const TableRow& row : tableRows) {
        if (row.band < 144 || row.band > 1296) continue;
        showThreeQsos(row);
        Modul1.Etapa = "";
        entry::Sterge();
        expectScore(row, before, before);
        EXPECT_EQ(rowsOf(row).firstRows(9).size(), 3U) << row.name;
    }
}

TEST_F(Deletion, InTheMaratonContestCountsAllBandsAndShowsTheOneInHand)
{
    contest(7);
    const struct {
        const char* band;
        std::int16_t State::*qsos;
        std::int32_t State::*points;
    } bands[] = {{"144", &State::QsoYO144, &State::PctYO144},
                 {"432", &State::QsoYO432, &State::PctYO432},
                 {"1296", &State::QsoYO1296, &State::PctYO1296}};
    for (const auto& inHand : bands) {
        empty("UusLGYO2");
        for (const auto& row : bands)
            for (const char* points : {"10", "200"})
                program.changeLog("INSERT INTO UusLGYO2 (Callsign, Bnd, Pct) VALUES ('YO5ABC', '" +
                                  std::string(row.band) + "', '" + points + "')");
        Modul1.BandYO = inHand.band;
        Modul1.GridRebuild = 100;
        band::ViewLogGen();
        forgetFigures();
        entry::Sterge();
        for (const auto& row : bands) {
            const bool mine = row.qsos == inHand.qsos;
            EXPECT_EQ(Modul1.*row.qsos, mine ? 1 : 2) << row.band;
            EXPECT_EQ(Modul1.*row.points, mine ? 10 : 210) << row.band;
        }
        EXPECT_EQ(FrmQSO.LblQSO.Caption, "1") << inHand.band;
        EXPECT_EQ(FrmQSO.LblPkt.Caption, "10") << inHand.band;
        FrmQSO.DBGrid9.Visible = false;
        entry::Sterge();
        EXPECT_EQ(Modul1.*inHand.qsos, 1) << inHand.band << ", out of view";
    }
}

TEST_F(Deletion, IsAskedAboutByEveryGrid)
{
    for (const screen::Grid* grid :
         {&FrmQSO.DBGrid1, &FrmQSO.DBGrid2, &FrmQSO.DBGrid3, &FrmQSO.DBGrid4, &FrmQSO.DBGrid5, &FrmQSO.DBGrid6,
          &FrmQSO.DBGrid7, &FrmQSO.DBGrid8, &FrmQSO.DBGrid9}) {
        EXPECT_EQ(grid->RowTouched, entry::Mesagge2) << grid->name;
        EXPECT_EQ(grid->gesture, screen::RowGesture::doubleClick) << grid->name;
    }
}

TEST_F(Deletion, ReadsTheBandFromTheLampsAndTheLastOneStands)
{
    const struct {
        screen::Label& lamp;
        int band;
    } lamps[] = {{FrmQSO.Lbl144, 144}, {FrmQSO.Lbl432, 432}, {FrmQSO.Lbl1296, 1296}, {FrmQSO.LblGHz, 1}};
    constexpr int allCombinations = 16;
    for (int lit = 0; lit < allCombinations; ++lit) {
        Modul1.BandCur = 5760;
        int wanted = 5760;
        for (int lamp = 0; lamp < 4; ++lamp) {
            const bool on = (lit >> lamp & 1) != 0;
            lamps[lamp].lamp.BackColor = on ? screen::lampOn : screen::lampOff;
            if (on) wanted = lamps[lamp].band;
        }
        answerWith(platform::buttonNo);
        entry::Mesagge2();
        EXPECT_EQ(Modul1.BandCur, wanted) << lit;
        EXPECT_EQ(Modul1.MsgResp, "7") << lit;
    }
}

TEST_F(Deletion, ShowsTheLogOfTheBandAndStageAgain)
{
    // The championship, whose band procedures leave no grid in view.
    contest(0);
    for (const TableRow& row : tableRows) {
        showThreeQsos(row);
        for (screen::Label* lamp : {&FrmQSO.Lbl144, &FrmQSO.Lbl432, &FrmQSO.Lbl1296, &FrmQSO.LblGHz})
            lamp->BackColor = screen::lampOff;
        if (row.band == 144) FrmQSO.Lbl144.BackColor = screen::lampOn;
        if (row.band == 432) FrmQSO.Lbl432.BackColor = screen::lampOn;
        if (row.band == 1296) FrmQSO.Lbl1296.BackColor = screen::lampOn;
        if (row.qsos == &State::QsoGHz) FrmQSO.LblGHz.BackColor = screen::lampOn;
        answerWith(platform::buttonYes);
        entry::Mesagge2();
        for (const TableRow& other : tableRows)
            EXPECT_EQ((FrmQSO.*other.grid).Visible, other.grid == row.grid) << row.name << ", grid of " << other.name;
        EXPECT_EQ(Modul1.Etapa, row.stage) << row.name;
        EXPECT_EQ(FrmQSO.LblQSO.Caption, "2") << row.name;
        EXPECT_EQ(FrmQSO.LblPkt.Caption, "210") << row.name;
        ASSERT_TRUE(rowsOf(row).currentKey()) << row.name;
        EXPECT_EQ(rowsOf(row).Field(9), "200") << row.name << ": the newest one is current";
    }
}

TEST_F(Deletion, KeepsEveryCode)
{
    for (const int id : {0, 1, 2, 3, 4, 5, 6, 8, 100, 101}) {
        contest(id);
        for (const TableRow& row : tableRows) {
            showThreeQsos(row);
            FrmQSO.LblCod.Caption = "041";
            FrmQSO.LblCod432.Caption = "042";
            FrmQSO.LblCod1296.Caption = "043";
            FrmQSO.LblCodGhz.Caption = "044";
            FrmQSO.txtRSTE2.Text = "0X5";
            FrmQSO.NextCod = "046";
            answerWith(platform::buttonYes);
            entry::Mesagge2();
            EXPECT_EQ(FrmQSO.LblCod.Caption, "041") << id << " " << row.name;
            EXPECT_EQ(FrmQSO.LblCod432.Caption, "042") << id << " " << row.name;
            EXPECT_EQ(FrmQSO.LblCod1296.Caption, "043") << id << " " << row.name;
            EXPECT_EQ(FrmQSO.LblCodGhz.Caption, "044") << id << " " << row.name;
            EXPECT_EQ(FrmQSO.txtRSTE2.Text.get(), "0X5") << id << " " << row.name;
            EXPECT_EQ(FrmQSO.NextCod, "046") << id << " " << row.name;
        }
    }
}

}  // namespace
