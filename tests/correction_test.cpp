// Deleting the row in view on the review form.
#include "review/correction.h"

#include <gtest/gtest.h>

#include <string>

#include "review/log_view.h"
#include "review/views.h"
#include "screen/frm_anzeigen.h"
#include "storage/open_databases.h"
#include "support/contest_pages.h"
#include "support/station.h"

namespace {

struct TableRow {
    const char* table;
    int band;
    const char* stage;
    const char* grid;
};

const TableRow tableRows[] = {
    {"Uus144a", 144, "A", "DBGrid1"}, {"Uus144b", 144, "B", "DBGrid2"},   {"Uus432a", 432, "A", "DBGrid3"},
    {"Uus432b", 432, "B", "DBGrid4"}, {"Uus1296a", 1296, "A", "DBGrid6"}, {"Uus1296b", 1296, "B", "DBGrid7"},
    {"UusGHz", 1, "A", "DBGrid8"},    {"UusGHz", 1, "B", "DBGrid8"},      {"UusGHz", 1, "", "DBGrid8"},
};

constexpr const char* allTables[] = {"Uus144a",  "Uus144b",  "Uus432a", "Uus432b",
                                     "Uus1296a", "Uus1296b", "UusGHz",  "UusLGYO2"};

class Correction : public test::ContestChoice {
 protected:
    /// Three QSOs in every table, three stations in the memory, and the review form.
    void begin(int contest)
    {
        fill("LogKelvo.mdb", [](test::PlainLog& log) {
            for (const std::string table : allTables) {
                log.execute("DELETE FROM " + table);
                const std::string band = table == "UusLGYO2" ? "Bnd" : "Freq";
                log.execute("INSERT INTO " + table + " (Callsign, " + band +
                            ", Pct) VALUES ('YO2AAA', '144', '1'), ('YO2BBB', '144', '2'), ('YO2CCC', '144', '3')");
            }
        });
        fill("DbsKelvo.mdb", [](test::PlainLog& memory) {
            memory.execute("DELETE FROM QRA");
            memory.execute("INSERT INTO QRA (Call) VALUES ('YO2AAA'), ('YO2BBB'), ('YO2CCC')");
        });
        choose(contest);
        program.click(FrmInit.OpbTest);
        program.click(FrmInit.mnuLOG);
        Modul1.GridRebuild = 1000;
    }

    template <typename Work>
    void fill(const char* file, Work work)
    {
        test::PlainLog database(program.folder() / file);
        database.execute("BEGIN");
        work(database);
        database.execute("COMMIT");
    }

    void answer(platform::Button button) { program.machine().boxes.queueAnswer(button, 0); }

    static std::string callsIn(const std::string& table)
    {
        const std::string file = table == "QRA" ? "\\DbsKelvo.mdb" : "\\LogKelvo.mdb";
        storage::RecordSet rows = storage::OpenDatabase(Modul1.AppDir + file).OpenRecordset("SELECT * FROM " + table);
        std::string calls;
        for (; !rows.IsEof(); rows.MoveNext())
            calls += rows.Field(table == "QRA" ? "Call" : "Callsign").substr(3, 1);
        return calls;
    }

    /// What is left of the rows A, B and C of one table; all others are whole.
    static void expectLeft(const std::string& changed, const std::string& left)
    {
        for (const std::string table : allTables)
            EXPECT_EQ(callsIn(table), table == changed ? left : "ABC") << table;
        EXPECT_EQ(callsIn("QRA"), changed == "QRA" ? left : "ABC");
    }

    static std::string gridsInView()
    {
        std::string names;
        for (const screen::Control* control : FrmAnzeigen.controls())
            if (control->kind == screen::Kind::grid && control->Visible) names += control->name;
        return names;
    }

    static storage::RecordSet& show(const TableRow& row)
    {
        Modul1.BandCur = row.band;
        Modul1.Etapa = row.stage;
        const review::LogView& log = *review::logViewFor(row.band, row.stage);
        review::showNewest(log);
        return (FrmAnzeigen.*log.data).Recordset;
    }
};

TEST_F(Correction, TakesTheCurrentRowOfTheLogInView)
{
    for (const TableRow& row : tableRows) {
        SCOPED_TRACE(row.table);
        begin(0);
        storage::RecordSet& rows = show(row);
        rows.MovePrevious();
        answer(platform::buttonYes);
        review::OpBDelete_Click();
        expectLeft(row.table, "AC");
        EXPECT_EQ(rows.Field("Callsign"), "YO2CCC");
        EXPECT_EQ(rows.RecordCount(), 2);
        EXPECT_EQ(gridsInView(), row.grid);
        EXPECT_EQ(Modul1.PrintSel, 1);
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Correction, TakesNothingWithAnyOtherAnswer)
{
    for (const TableRow& row : tableRows) {
        SCOPED_TRACE(row.table);
        begin(0);
        show(row);
        FrmAnzeigen.Frame5.Visible = true;
        FrmAnzeigen.OpBDelete.Value = true;
        Modul1.PrintSel = 1;
        answer(platform::buttonNo);
        review::OpBDelete_Click();
        expectLeft("", "");
        EXPECT_EQ(Modul1.PrintSel, 0);
        EXPECT_FALSE(FrmAnzeigen.Frame5.Visible);
        EXPECT_FALSE(FrmAnzeigen.OpBDelete.Value);
        EXPECT_EQ(gridsInView(), row.grid) << "the log is read once more, deleted from or not";
    }
}

TEST_F(Correction, TouchesNoTableThatIsNotInView)
{
    for (const TableRow& row : tableRows) {
        SCOPED_TRACE(row.table);
        begin(0);
        show(row);
        review::GrInv();
        answer(platform::buttonYes);
        review::OpBDelete_Click();
        expectLeft("", "");
    }
}

TEST_F(Correction, TouchesNothingWhileAnotherLogIsInView)
{
    begin(0);
    for (const TableRow& row : tableRows) {
        for (const TableRow& other : tableRows) {
            if (std::string(row.table) == other.table) continue;
            SCOPED_TRACE(std::string(row.table) + " in hand, in view " + other.table);
            show(row);
            show(other);
            Modul1.BandCur = row.band;
            Modul1.Etapa = row.stage;
            answer(platform::buttonYes);
            review::OpBDelete_Click();
            expectLeft("", "");
        }
    }
}

TEST_F(Correction, KnowsNoLogOfAnUnknownBandOrStage)
{
    const TableRow rows[] = {{"", 0, "A", ""}, {"", 22, "A", ""}, {"", 144, "", ""}, {"", 432, "C", ""}};
    for (const TableRow& row : rows) {
        begin(0);
        show(tableRows[0]);
        Modul1.BandCur = row.band;
        Modul1.Etapa = row.stage;
        answer(platform::buttonYes);
        review::OpBDelete_Click();
        expectLeft("", "");
        EXPECT_EQ(gridsInView(), "DBGrid1");
    }
}

TEST_F(Correction, TakesAnEntryOfTheLocatorMemoryInView)
{
    begin(0);
    review::OpBQRALoc_Click();
    FrmAnzeigen.QRA.Recordset.MoveNext();
    answer(platform::buttonYes);
    review::OpBDelete_Click();
    expectLeft("QRA", "AC");
    EXPECT_EQ(gridsInView(), "DBGrid5");
    EXPECT_EQ(FrmAnzeigen.QRA.Recordset.Field("Call"), "YO2CCC");

    begin(0);
    review::OpBQRALoc_Click();
    review::GrInv();
    answer(platform::buttonYes);
    review::OpBDelete_Click();
    expectLeft("", "");
}

TEST_F(Correction, OfTheMaratonTakesTheRowOfItsLogWhateverTheBand)
{
    for (const int band : {0, 1, 144, 432, 1296}) {
        SCOPED_TRACE(band);
        begin(7);
        review::OpB144a_Click();
        FrmAnzeigen.UusLGYO2.Recordset.MoveFirst();
        Modul1.BandCur = band;
        Modul1.Etapa = "A";
        answer(platform::buttonYes);
        review::OpBDelete_Click();
        expectLeft("UusLGYO2", "BC");
        EXPECT_EQ(gridsInView(), "DBGrid9");
    }
}

TEST_F(Correction, OfARowThatIsGoneIsToldAndTakesNoOther)
{
    for (const TableRow& row : tableRows) {
        SCOPED_TRACE(row.table);
        begin(0);
        show(row);
        program.changeLog("DELETE FROM " + std::string(row.table) + " WHERE Callsign='YO2CCC'");
        const std::size_t told = program.notices().size();
        answer(platform::buttonYes);
        review::OpBDelete_Click();
        expectLeft(row.table, "AB");
        EXPECT_EQ(program.notices().size(), told + 1);
        EXPECT_EQ(gridsInView(), row.grid);
    }
}

TEST_F(Correction, AsksInTheWordsOfTheEntryForm)
{
    begin(0);
    answer(platform::buttonNo);
    review::Message3();
    const auto box = program.box();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->request.text, "DO YOU WANT TO DELETE?");
    EXPECT_EQ(box->request.title, "LÖSCHEN?");
    EXPECT_EQ(box->request.style, 36);
    EXPECT_EQ(Modul1.MsgText, "DO YOU WANT TO DELETE?");
    EXPECT_EQ(Modul1.MsgTitle, "LÖSCHEN?");
    EXPECT_EQ(Modul1.MsgStyle, "36");
    EXPECT_EQ(Modul1.MsgResp, "7");
}

}  // namespace
