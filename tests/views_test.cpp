// The views of the review form: what each button shows in each contest.
#include "review/views.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "screen/frm_anzeigen.h"
#include "storage/open_databases.h"
#include "support/contest_pages.h"
#include "support/station.h"

namespace {

using Form = screen::FrmAnzeigenForm;

/// What a button leads to. A band of 0: the button has no view in that contest.
struct Shown {
    const char* table;  ///< or the band of the Maraton log
    int band;           ///< BandCur behind it, `bandStays` where it is not set
    const char* stage;  ///< Etapa behind it, `stageStays` where it is not set
};

constexpr int bandStays = -1;
constexpr const char* stageStays = "X";
constexpr Shown nothing = {"", 0, ""};

struct ButtonRow {
    const char* name;
    void (*click)();
    Shown ordinary;
    Shown maraton;
    Shown international;
};

const ButtonRow buttonRows[] = {
    {"OpB144a", review::OpB144a_Click, {"Uus144a", 144, "A"}, {"144", bandStays, stageStays}, {"Uus144a", 144, "A"}},
    {"Opb144b", review::Opb144b_Click, {"Uus144b", 144, "B"}, {"432", bandStays, stageStays}, {"Uus432a", 432, "A"}},
    {"OpB432a", review::OpB432a_Click, {"Uus432a", 432, "A"}, {"432", 432, "A"}, {"Uus1296a", 1296, "A"}},
    {"OpB432b", review::OpB432b_Click, {"Uus432b", 432, "B"}, nothing, {"UusGHz", 1, stageStays}},
    {"OpB1296a", review::OpB1296a_Click, {"Uus1296a", 1296, "A"}, {"1296", 1296, "A"}, nothing},
    {"OpB1296b", review::OpB1296b_Click, {"Uus1296b", 1296, "B"}, nothing, nothing},
};

struct TableRow {
    const char* table;
    screen::DataControl Form::*data;
    screen::Grid Form::*grid;
    int rows;
    int points;
};

const TableRow tableRows[] = {
    {"Uus144a", &Form::Uus144a, &Form::DBGrid1, 2, 101},   {"Uus144b", &Form::Uus144b, &Form::DBGrid2, 3, 102},
    {"Uus432a", &Form::Uus432a, &Form::DBGrid3, 4, 103},   {"Uus432b", &Form::Uus432b, &Form::DBGrid4, 5, 104},
    {"Uus1296a", &Form::Uus1296a, &Form::DBGrid6, 6, 105}, {"Uus1296b", &Form::Uus1296b, &Form::DBGrid7, 7, 106},
    {"UusGHz", &Form::UusGHz, &Form::DBGrid8, 8, 107},
};

/// Rows and points of the Maraton log by band.
const std::map<std::string, std::pair<int, int>> maratonRows = {{"144", {2, 10}}, {"432", {3, 20}}, {"1296", {4, 30}}};

constexpr int allContests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};

class Views : public test::ContestChoice {
 protected:
    void SetUp() override
    {
        test::PlainLog log(program.folder() / "LogKelvo.mdb");
        log.execute("BEGIN");
        for (const TableRow& row : tableRows)
            for (int i = 0; i < row.rows; ++i)
                log.execute("INSERT INTO " + std::string(row.table) + " (Callsign, Pct) VALUES ('YO2ABC', '" +
                            std::to_string(row.points) + "')");
        for (const auto& [band, figures] : maratonRows)
            for (int i = 0; i < figures.first; ++i)
                log.execute("INSERT INTO UusLGYO2 (Callsign, Bnd, Pct) VALUES ('YO2ABC', '" + band + "', '" +
                            std::to_string(figures.second) + "')");
        log.execute("COMMIT");
    }

    void emptyTables()
    {
        test::PlainLog log(program.folder() / "LogKelvo.mdb");
        log.execute("BEGIN");
        for (const TableRow& row : tableRows)
            log.execute("DELETE FROM " + std::string(row.table));
        log.execute("DELETE FROM UusLGYO2");
        log.execute("COMMIT");
    }

    /// A fresh run, the contest chosen, and the view job begun.
    void view(int id)
    {
        choose(id);
        program.click(FrmInit.OpbTest);
        program.click(FrmInit.mnuLOG);
        program.click(FrmAnzeigen.mnuLogAnzeigen);
        Modul1.BandCur = 0;
        Modul1.Etapa = stageStays;
        Modul1.GridRebuild = 100;
        FrmAnzeigen.Frame5.Visible = true;
    }

    static std::string gridsInView()
    {
        std::string names;
        for (const screen::Control* control : FrmAnzeigen.controls())
            if (control->kind == screen::Kind::grid && control->Visible) names += control->name + " ";
        return names;
    }

    static void expectScore(int qsos, int points)
    {
        EXPECT_TRUE(FrmAnzeigen.LblQSO1.seen());
        EXPECT_TRUE(FrmAnzeigen.LblPkt1.seen());
        EXPECT_EQ(FrmAnzeigen.LblQSO1.Caption, std::to_string(qsos));
        EXPECT_EQ(FrmAnzeigen.LblPkt1.Caption, std::to_string(points));
    }

    static void expectNewestCurrent(const screen::DataControl& data)
    {
        storage::RecordSet rows = storage::OpenDatabase(storage::logDatabasePath()).OpenRecordset(data.RecordSource);
        rows.MoveLast();
        EXPECT_EQ(data.Recordset.currentKey(), rows.currentKey());
    }

    static void expectTable(const std::string& table)
    {
        for (const TableRow& row : tableRows) {
            if (row.table != table) continue;
            EXPECT_EQ(gridsInView(), (FrmAnzeigen.*row.grid).name + " ");
            expectScore(row.rows, row.rows * row.points);
            expectNewestCurrent(FrmAnzeigen.*row.data);
            EXPECT_EQ((FrmAnzeigen.*row.data).Recordset.RecordCount(), row.rows);
            return;
        }
        FAIL() << "no table " << table;
    }

    static void expectMaratonLog(const std::string& band)
    {
        const auto [rows, points] = maratonRows.at(band);
        EXPECT_EQ(gridsInView(), "DBGrid9 ");
        EXPECT_EQ(Modul1.BandYO, band);
        expectScore(rows, rows * points);
        EXPECT_EQ(FrmAnzeigen.UusLGYO2.RecordSource,
                  "SELECT * FROM UusLGYO2 WHERE Bnd='" + band + "' ORDER BY Bnd , ID; ");
        EXPECT_EQ(FrmAnzeigen.UusLGYO2.Recordset.RecordCount(), rows);
        expectNewestCurrent(FrmAnzeigen.UusLGYO2);
    }
};

const Shown& shownBy(const ButtonRow& button, int contest)
{
    if (contest == 7) return button.maraton;
    return contest == 100 ? button.international : button.ordinary;
}

TEST_F(Views, AreThoseOfTheContest)
{
    for (const int id : allContests) {
        for (const ButtonRow& button : buttonRows) {
            const Shown& shown = shownBy(button, id);
            if (shown.band == 0) continue;
            SCOPED_TRACE(std::string(button.name) + " in contest " + std::to_string(id));
            view(id);
            button.click();
            EXPECT_EQ(Modul1.BandCur, shown.band == bandStays ? 0 : shown.band);
            EXPECT_EQ(Modul1.Etapa, shown.stage);
            EXPECT_EQ(Modul1.GridRebuild, 1000);
            EXPECT_FALSE(FrmAnzeigen.Frame5.Visible);
            if (id == 7)
                expectMaratonLog(shown.table);
            else
                expectTable(shown.table);
            EXPECT_FALSE(program.box());
        }
    }
}

TEST_F(Views, ShowOneGridAtATime)
{
    view(0);
    for (const ButtonRow& first : buttonRows) {
        for (const ButtonRow& second : buttonRows) {
            first.click();
            review::OpBQRALoc_Click();
            EXPECT_EQ(gridsInView(), "DBGrid5 ") << first.name;
            first.click();
            second.click();
            expectTable(second.ordinary.table);
        }
    }
}

TEST_F(Views, OfEmptyTablesAreEmptyGrids)
{
    emptyTables();
    for (const int id : {0, 7, 100}) {
        for (const ButtonRow& button : buttonRows) {
            if (shownBy(button, id).band == 0) continue;
            SCOPED_TRACE(std::string(button.name) + " in contest " + std::to_string(id));
            view(id);
            button.click();
            expectScore(0, 0);
            EXPECT_FALSE(gridsInView().empty());
        }
    }
    EXPECT_FALSE(program.box());
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Views, OfTheMaratonShowTheLabelsThatTheStationDataHide)
{
    view(7);
    FrmAnzeigen.LblQSO1.Visible = false;
    review::OpB144a_Click();
    expectScore(2, 20);
}

TEST_F(Views, OfTheMaratonLeaveABandOfNoNameEmpty)
{
    view(7);
    Modul1.BandYO = "2320";
    review::ViewLogGen();
    EXPECT_EQ(gridsInView(), "DBGrid9 ");
    EXPECT_EQ(FrmAnzeigen.UusLGYO2.Recordset.RecordCount(), 0);
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Views, BeginWithTheDeleteButtonArmed)
{
    for (const int id : allContests) {
        SCOPED_TRACE(id);
        view(id);
        EXPECT_EQ(Modul1.PrintSel, 1);
        EXPECT_EQ(FrmAnzeigen.OutMode, 0);
        EXPECT_EQ(FrmAnzeigen.ActiveControl, &FrmAnzeigen.TxtFoc);
        EXPECT_TRUE(FrmAnzeigen.Frame1.Visible);
        EXPECT_TRUE(FrmAnzeigen.Frame4.Visible);
        for (const screen::Frame* frame :
             {&FrmAnzeigen.Frame2, &FrmAnzeigen.Frame3, &FrmAnzeigen.Frame6, &FrmAnzeigen.Frame8, &FrmAnzeigen.FraArh})
            EXPECT_FALSE(frame->Visible) << frame->name;
    }
}

TEST_F(Views, TakeTheFramesOfOtherJobsAway)
{
    view(0);
    for (screen::Control* control : FrmAnzeigen.controls())
        if (control->kind == screen::Kind::frame) control->Visible = true;
    FrmAnzeigen.CmdGata.Visible = true;
    FrmAnzeigen.OutMode = 1000;
    program.click(FrmAnzeigen.mnuLogAnzeigen);
    for (const screen::Control* control : FrmAnzeigen.controls()) {
        if (control->kind != screen::Kind::frame) continue;
        const bool ofThisJob = control == &FrmAnzeigen.Frame1 || control == &FrmAnzeigen.Frame4;
        EXPECT_EQ(control->Visible, ofThisJob) << control->name;
    }
    EXPECT_FALSE(FrmAnzeigen.CmdGata.Visible);
    EXPECT_EQ(FrmAnzeigen.OutMode, 0);
}

TEST_F(Views, OfferToDeleteAtTheFirstTouchAlone)
{
    for (const screen::Control* control : FrmAnzeigen.controls()) {
        if (control->kind != screen::Kind::grid) continue;
        SCOPED_TRACE(control->name);
        const auto& grid = static_cast<const screen::Grid&>(*control);
        EXPECT_EQ(grid.gesture, screen::RowGesture::click);
        ASSERT_NE(grid.RowTouched, nullptr);
        FrmAnzeigen.Frame5.Visible = false;
        Modul1.PrintSel = 1;
        grid.RowTouched();
        EXPECT_TRUE(FrmAnzeigen.Frame5.Visible);
        EXPECT_EQ(Modul1.PrintSel, 0);
        grid.RowTouched();
        EXPECT_TRUE(FrmAnzeigen.Frame5.Visible) << "a second touch changes nothing";
        FrmAnzeigen.Frame5.Visible = false;
        grid.RowTouched();
        EXPECT_FALSE(FrmAnzeigen.Frame5.Visible);
        EXPECT_EQ(Modul1.PrintSel, 0);
    }
}

TEST_F(Views, OfferNothingToDeleteInOtherJobs)
{
    view(0);
    FrmAnzeigen.Frame5.Visible = false;
    for (const int job : {0, 10, 25}) {
        Modul1.PrintSel = static_cast<std::int16_t>(job);
        review::rowTouched();
        EXPECT_FALSE(FrmAnzeigen.Frame5.Visible) << job;
        EXPECT_EQ(Modul1.PrintSel, 0) << job;
    }
}

TEST_F(Views, OfTheLocatorMemoryAreSortedByCall)
{
    view(0);
    storage::Database memory = storage::OpenDatabase(Modul1.AppDir + "\\DbsKelvo.mdb");
    for (const char* call : {"YO5AAA", "DL1ABC", "yo2aaa", "9A1A"})
        memory.Execute("INSERT INTO QRA (Call, QRA_LOC) VALUES ('" + std::string(call) + "', 'KN16AA')");
    FrmAnzeigen.Frame4.Visible = false;
    review::OpBQRALoc_Click();
    EXPECT_EQ(Modul1.BandCur, 22);
    EXPECT_EQ(Modul1.Etapa, stageStays);
    EXPECT_TRUE(FrmAnzeigen.Frame4.Visible);
    EXPECT_EQ(gridsInView(), "DBGrid5 ");
    EXPECT_EQ(FrmAnzeigen.QRA.RecordSource, "SELECT * From QRA ORDER BY Call");
    std::string calls;
    for (const storage::Row& row : FrmAnzeigen.QRA.Recordset.firstRows(9))
        calls += row.columns.at(0) + " ";
    EXPECT_EQ(calls, "9A1A DL1ABC yo2aaa YO5AAA ");
}

TEST_F(Views, CanAllBeTakenAway)
{
    view(0);
    for (screen::Control* control : FrmAnzeigen.controls())
        control->Visible = true;
    review::GrInv();
    for (const screen::Control* control : FrmAnzeigen.controls())
        EXPECT_EQ(control->Visible, control->kind != screen::Kind::grid) << control->name;
}

}  // namespace
