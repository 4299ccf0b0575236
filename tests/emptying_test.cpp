// Emptying a whole log on the review form.
#include "review/emptying.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screen/frm_anzeigen.h"
#include "storage/open_databases.h"
#include "support/contest_pages.h"
#include "support/station.h"

namespace {

constexpr int allContests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};
constexpr const char* allTables[] = {"Uus144a",  "Uus144b",  "Uus432a", "Uus432b",
                                     "Uus1296a", "Uus1296b", "UusGHz",  "UusLGYO2"};

/// What a button empties. Its question stands between "DO YOU WANT TO DELETE " and " ?".
struct Emptied {
    const char* table;
    int band;
    const char* stage;  ///< empty where it stays
    const char* question;
    const char* grid;
};

struct ButtonRow {
    const char* name;
    void (*click)();
    Emptied ordinary;
    Emptied international;
};

constexpr Emptied log144a = {"Uus144a", 144, "A", "LOG  144A MHz", "DBGrid1"};
constexpr Emptied log432a = {"Uus432a", 432, "A", "LOG  432A MHz", "DBGrid3"};
constexpr Emptied log1296a = {"Uus1296a", 1296, "A", "LOG  1296A MHz", "DBGrid6"};
constexpr Emptied log1296b = {"Uus1296b", 1296, "B", "LOG  1296B MHz", "DBGrid7"};
constexpr Emptied logGHz = {"UusGHz", 1, "", "LOG GHz", "DBGrid8"};

const ButtonRow buttonRows[] = {
    {"OpbL144a", review::OpbL144a_Click, log144a, log144a},
    {"OpbL144b", review::OpbL144b_Click, {"Uus144b", 144, "B", "LOG  144B MHz", "DBGrid2"}, log432a},
    {"OpbL432a", review::OpbL432a_Click, log432a, log1296a},
    {"OpbL432b", review::OpbL432b_Click, {"Uus432b", 432, "B", "LOG  432B MHz", "DBGrid4"}, logGHz},
    {"OpBL1296a", review::OpBL1296a_Click, log1296a, log1296a},
    {"OpBL1296b", review::OpBL1296b_Click, log1296b, log1296b},
    {"OpbLGHz", review::OpbLGHz_Click, logGHz, logGHz},
};

class Emptying : public test::ContestChoice {
 protected:
    void SetUp() override { fillTables(); }

    /// Two QSOs in every table.
    void fillTables()
    {
        test::PlainLog log(program.folder() / "LogKelvo.mdb");
        log.execute("BEGIN");
        for (const std::string table : allTables) {
            log.execute("DELETE FROM " + table);
            log.execute("INSERT INTO " + table + " (Callsign, Pct) VALUES ('YO2ABC', '10'), ('YO2ABD', '20')");
        }
        log.execute("COMMIT");
    }

    void emptyTables()
    {
        test::PlainLog log(program.folder() / "LogKelvo.mdb");
        log.execute("BEGIN");
        for (const std::string table : allTables)
            log.execute("DELETE FROM " + table);
        log.execute("COMMIT");
    }

    /// A fresh run, the contest chosen, and the job begun.
    void begin(int id)
    {
        choose(id);
        program.click(FrmInit.OpbTest);
        program.click(FrmInit.mnuLOG);
        program.click(FrmAnzeigen.mnuLOGLöschen);
        program.box();
        Modul1.BandCur = 2320;
        Modul1.Etapa = "X";
        Modul1.GridRebuild = 100;
        FrmAnzeigen.BandText = "text";
    }

    void answer(platform::Button button) { program.machine().boxes.queueAnswer(button, 0); }

    void expectQuestion(const std::string& question)
    {
        const auto box = program.box();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->request.text, question);
        EXPECT_EQ(box->request.title, "LÖSCHEN?");
        EXPECT_EQ(box->request.style, 36);
        EXPECT_EQ(Modul1.MsgText, question);
        EXPECT_EQ(Modul1.MsgTitle, "LÖSCHEN?");
        EXPECT_EQ(Modul1.MsgStyle, "36");
        EXPECT_FALSE(program.box());
    }

    static long rowsIn(const std::string& table)
    {
        return storage::OpenDatabase(storage::logDatabasePath()).OpenRecordset("SELECT * FROM " + table).RecordCount();
    }

    /// All tables are full but this one; none is empty for "".
    static void expectEmptyAlone(const std::string& emptied)
    {
        for (const std::string table : allTables)
            EXPECT_EQ(rowsIn(table), table == emptied ? 0 : 2) << table;
    }

    static std::string gridsInView()
    {
        std::string names;
        for (const screen::Control* control : FrmAnzeigen.controls())
            if (control->kind == screen::Kind::grid && control->Visible) names += control->name;
        return names;
    }
};

TEST_F(Emptying, AsksByContestBandAndStage)
{
    for (const int id : allContests) {
        for (const int band : {144, 432, 1296, 1, 0, 22, 5760}) {
            for (const std::string stage : {"A", "B", ""}) {
                std::string expected = "DO YOU WANT TO DELETE LOG  " + std::to_string(band) + stage + " MHz ?";
                if (band == 1) expected = "DO YOU WANT TO DELETE LOG GHz ?";
                if (id == 7) expected = "DO YOU WANT TO DELETE CONTEST LOG ?";
                EXPECT_EQ(review::questionBeforeEmptying(id, band, stage), expected);
            }
        }
    }
    EXPECT_EQ(review::questionBeforeEmptying(0, 432, "B"), "DO YOU WANT TO DELETE LOG  432B MHz ?");
}

TEST_F(Emptying, WithYesTakesTheRowsOfTheButtonAlone)
{
    for (const int id : allContests) {
        if (id == 7) continue;
        for (const ButtonRow& button : buttonRows) {
            SCOPED_TRACE(std::string(button.name) + " in contest " + std::to_string(id));
            const Emptied& emptied = id == 100 ? button.international : button.ordinary;
            begin(id);
            answer(platform::buttonYes);
            button.click();
            expectQuestion("DO YOU WANT TO DELETE " + std::string(emptied.question) + " ?");
            EXPECT_EQ(Modul1.MsgResp, "6");
            expectEmptyAlone(emptied.table);
            EXPECT_EQ(Modul1.BandCur, emptied.band);
            EXPECT_EQ(Modul1.Etapa, *emptied.stage == '\0' ? "X" : emptied.stage);
            EXPECT_EQ(FrmAnzeigen.BandText, "0");
            EXPECT_EQ(gridsInView(), emptied.grid);
            EXPECT_TRUE(FrmAnzeigen.Frame2.Visible);
            EXPECT_EQ(Modul1.maratonLogEmptied, 0);
            fillTables();
        }
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Emptying, WithNoTakesNothingAndEndsTheJob)
{
    for (const int id : {0, 100, 7}) {
        for (const ButtonRow& button : buttonRows) {
            if (id == 7 && button.click != review::OpbL144a_Click) continue;
            SCOPED_TRACE(std::string(button.name) + " in contest " + std::to_string(id));
            const Emptied& emptied = id == 100 ? button.international : button.ordinary;
            begin(id);
            answer(platform::buttonNo);
            button.click();
            EXPECT_TRUE(program.box());
            EXPECT_EQ(Modul1.MsgResp, "7");
            expectEmptyAlone("");
            EXPECT_FALSE(FrmAnzeigen.Frame2.Visible);
            EXPECT_EQ(FrmAnzeigen.BandText, id == 7 ? "text" : std::to_string(emptied.band));
            EXPECT_EQ(Modul1.maratonLogEmptied, 0);
        }
    }
}

TEST_F(Emptying, OfTheMaratonTakesItsOneLogWhateverTheBand)
{
    for (const int band : {0, 1, 144, 432, 1296}) {
        SCOPED_TRACE(band);
        begin(7);
        Modul1.BandCur = band;
        Modul1.Etapa = "A";
        answer(platform::buttonYes);
        review::OpbL144a_Click();
        expectQuestion("DO YOU WANT TO DELETE CONTEST LOG ?");
        expectEmptyAlone("UusLGYO2");
        EXPECT_EQ(FrmAnzeigen.BandText, "text") << "the band has no part in it";
        EXPECT_EQ(Modul1.BandCur, band);
        EXPECT_EQ(FrmAnzeigen.UusLGYO2.RecordSource, "SELECT * FROM UusLGYO2 ");
        EXPECT_EQ(gridsInView(), "DBGrid9");
        EXPECT_EQ(Modul1.maratonLogEmptied, 100);
        fillTables();
    }
}

TEST_F(Emptying, ShowsTheLogBeforeItAsks)
{
    begin(0);
    answer(platform::buttonNo);
    review::OpbL432a_Click();
    EXPECT_EQ(FrmAnzeigen.Uus432a.RecordSource, "SELECT * FROM Uus432a ");
    EXPECT_EQ(FrmAnzeigen.Uus432a.Recordset.RecordCount(), 2);
    EXPECT_EQ(FrmAnzeigen.Uus432a.Recordset.Field("Callsign"), "YO2ABD") << "the newest row is current";
    EXPECT_EQ(Modul1.GridRebuild, 1000);
}

TEST_F(Emptying, GoesByBandTextAndStage)
{
    const struct {
        const char* text;
        const char* stage;
        const char* table;  ///< "" where nothing is emptied
    } rows[] = {
        {"144", "A", "Uus144a"},
        {"144", "B", "Uus144b"},
        {"432", "A", "Uus432a"},
        {"432", "B", "Uus432b"},
        {"1296", "A", "Uus1296a"},
        {"1296", "B", "Uus1296b"},
        {"1", "A", "UusGHz"},
        {"1", "B", "UusGHz"},
        {"1", "", "UusGHz"},
        {" 144", "A", "Uus144a"},
        {"432 MHz", "B", "Uus432b"},
        {"144", "", ""},
        {"144", "C", ""},
        {"432", "a", ""},
        {"1296", "AB", ""},
        {"0", "A", ""},
        {"", "A", ""},
        {"22", "A", ""},
        {"50", "A", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.text) + row.stage);
        begin(0);
        Modul1.GridRebuild = 1000;
        FrmAnzeigen.BandText = row.text;
        Modul1.Etapa = row.stage;
        review::Ja();
        expectEmptyAlone(row.table);
        EXPECT_EQ(FrmAnzeigen.BandText, *row.table == '\0' ? row.text : "0");
        fillTables();
    }
}

TEST_F(Emptying, OpensTheLogItself)
{
    begin(0);
    Modul1.DbLog = storage::Database{};
    FrmAnzeigen.BandText = "144";
    Modul1.Etapa = "A";
    review::Ja();
    expectEmptyAlone("Uus144a");
    EXPECT_TRUE(Modul1.DbLog.isOpen());
}

TEST_F(Emptying, OfAnEmptyLogIsNoError)
{
    emptyTables();
    for (const int id : {0, 7, 100}) {
        for (const ButtonRow& button : buttonRows) {
            if (id == 7 && button.click != review::OpbL144a_Click) continue;
            begin(id);
            answer(platform::buttonYes);
            button.click();
            EXPECT_TRUE(program.box());
        }
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Emptying, ThatFailsIsToldAndGoesOn)
{
    begin(0);
    test::PlainLog(program.folder() / "LogKelvo.mdb").execute("DROP TABLE Uus144a");
    answer(platform::buttonYes);
    review::OpbL144a_Click();
    EXPECT_EQ(FrmAnzeigen.BandText, "0");
    EXPECT_FALSE(program.notices().empty());

    begin(7);
    test::PlainLog(program.folder() / "LogKelvo.mdb").execute("DROP TABLE UusLGYO2");
    answer(platform::buttonYes);
    review::OpbL144a_Click();
    EXPECT_EQ(Modul1.maratonLogEmptied, 0) << "no row went, so no sum may end the program";
}

TEST_F(Emptying, BeginsWithAReminderOfTheOldFiles)
{
    for (const int id : allContests) {
        SCOPED_TRACE(id);
        choose(id);
        program.click(FrmInit.OpbTest);
        program.click(FrmInit.mnuLOG);
        for (screen::Control* control : FrmAnzeigen.controls())
            if (control->kind == screen::Kind::frame) control->Visible = control != &FrmAnzeigen.Frame2;
        program.click(FrmAnzeigen.mnuLOGLöschen);
        const auto box = program.box();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->request.text, "Stergeti TOATE fisierele vechi de log ramase din alte concursuri !!");
        EXPECT_EQ(box->request.style, 48);
        EXPECT_EQ(box->request.title, "");
        EXPECT_EQ(Modul1.MsgText, box->request.text);
        EXPECT_EQ(Modul1.MsgStyle, "48");
        EXPECT_TRUE(FrmAnzeigen.Frame2.Visible);
        for (const screen::Frame* frame :
             {&FrmAnzeigen.Frame1, &FrmAnzeigen.Frame3, &FrmAnzeigen.Frame4, &FrmAnzeigen.Frame5, &FrmAnzeigen.Frame6,
              &FrmAnzeigen.Frame8, &FrmAnzeigen.FraArh})
            EXPECT_FALSE(frame->Visible) << frame->name;
        expectEmptyAlone("");
    }
}

}  // namespace
