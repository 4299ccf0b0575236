// A database in trouble in the middle of a contest, seen from the operator's chair: no crash, nothing logged is harmed,
// the fields stay filled, and a notice says what happened. When the trouble is over, Enter logs the QSO.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <optional>
#include <string>

#include "platform/files.h"
#include "screen/frm_qso.h"
#include "storage/database.h"
#include "storage/schema.h"
#include "support/power_cut_vfs.h"
#include "support/station.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

/// Nothing waits in the queue.
class NoEntries : public app::EntrySource {
    std::optional<app::QueueEntry> poll() override { return std::nullopt; }
};

class DatabaseTrouble : public testing::Test {
 protected:
    DatabaseTrouble() { storage::makeMissingDatabases(folder.path()); }

    fs::path log() const { return folder.file("LogKelvo.mdb"); }
    fs::path memory() const { return folder.file("DbsKelvo.mdb"); }

    static void logQso(test::Station& station, const std::string& call)
    {
        station.fillScreen(call, false);
        station.press("Enter");
        ASSERT_EQ(FrmQSO.txtIndic.Text, "") << call << " was not logged";
    }

    /// Enter while something is wrong: the screen stays, and a notice tells it.
    static void expectRefused(test::Station& station, const std::string& call, const std::string& told)
    {
        station.fillScreen(call, false);
        const std::size_t before = station.notices().size();
        station.press("Enter");
        ASSERT_TRUE(station.program().running());
        EXPECT_EQ(FrmQSO.txtIndic.Text, call);
        EXPECT_EQ(FrmQSO.TxtRSTR2.Text, "012");
        EXPECT_EQ(FrmQSO.TxtRSTr3.Text, "KN16AA");
        EXPECT_TRUE(FrmQSO.CmdEnterCall.Enabled);
        ASSERT_GT(station.notices().size(), before) << "nothing was told";
        EXPECT_NE(station.notices().at(before).find(told), std::string::npos) << station.notices().at(before);
    }

    /// Once the trouble is over the same Enter logs the QSO.
    static void expectLoggedNow(test::Station& station)
    {
        station.press("Enter");
        EXPECT_EQ(FrmQSO.txtIndic.Text, "");
    }

    static long rowsIn(const fs::path& file, const std::string& table)
    {
        sqlite3* database = nullptr;
        sqlite3_stmt* statement = nullptr;
        long rows = -1;
        if (sqlite3_open_v2(platform::pathText(file).c_str(), &database, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
            sqlite3_prepare_v2(database, ("SELECT count(*) FROM " + table).c_str(), -1, &statement, nullptr) ==
                SQLITE_OK &&
            sqlite3_step(statement) == SQLITE_ROW)
            rows = sqlite3_column_int(statement, 0);
        sqlite3_finalize(statement);
        sqlite3_close(database);
        return rows;
    }

    test::TemporaryFolder folder;
};

TEST_F(DatabaseTrouble, LogRemoved)
{
    test::Station station(folder.path(), nullptr);
    logQso(station, "HA5A");
    fs::rename(log(), folder.file("away"));
    expectRefused(station, "HA5B", "LogKelvo.mdb");
    fs::rename(folder.file("away"), log());
    expectLoggedNow(station);
    EXPECT_EQ(rowsIn(log(), "Uus144a"), 2);
}

TEST_F(DatabaseTrouble, LocatorMemoryRemoved)
{
    test::Station station(folder.path(), nullptr);
    logQso(station, "HA5A");
    station.fillScreen("HA5B", false);
    fs::rename(memory(), folder.file("away"));
    station.press("Enter");
    EXPECT_EQ(FrmQSO.txtIndic.Text, "HA5B");
    EXPECT_EQ(rowsIn(log(), "Uus144a"), 1);
    fs::rename(folder.file("away"), memory());
    expectLoggedNow(station);
    EXPECT_EQ(rowsIn(log(), "Uus144a"), 2);
}

TEST_F(DatabaseTrouble, LogReplacedBySomethingElse)
{
    test::Station station(folder.path(), nullptr);
    logQso(station, "HA5A");
    fs::rename(log(), folder.file("away"));
    test::writeFile(log(), std::string(5000, 'x'));
    expectRefused(station, "HA5B", "LogKelvo.mdb");
    EXPECT_EQ(test::readFile(log()), std::string(5000, 'x')) << "what stands there is left alone";
    fs::remove(log());
    fs::rename(folder.file("away"), log());
    expectLoggedNow(station);
    EXPECT_EQ(rowsIn(log(), "Uus144a"), 2);
}

TEST_F(DatabaseTrouble, TableLost)
{
    test::Station station(folder.path(), nullptr);
    logQso(station, "HA5A");
    test::PlainLog other(log());
    other.execute("ALTER TABLE Uus144a RENAME TO Lost");
    expectRefused(station, "HA5B", "Uus144a");
    other.execute("ALTER TABLE Lost RENAME TO Uus144a");
    expectLoggedNow(station);
    EXPECT_EQ(rowsIn(log(), "Uus144a"), 2);
}

TEST_F(DatabaseTrouble, LogLockedByAnotherProgram)
{
    test::Station station(folder.path(), nullptr);
    logQso(station, "HA5A");
    station.fillScreen("HA5B", false);
    test::PlainLog other(log());
    other.execute("BEGIN IMMEDIATE");
    const std::size_t before = station.notices().size();
    station.press("Enter");
    EXPECT_EQ(FrmQSO.txtIndic.Text, "HA5B");
    ASSERT_GT(station.notices().size(), before);
    EXPECT_NE(station.notices().at(before).find("locked"), std::string::npos) << station.notices().at(before);
    other.execute("ROLLBACK");
    expectLoggedNow(station);
    EXPECT_EQ(rowsIn(log(), "Uus144a"), 2);
}

/// The same on a disk in memory that can be made to fail.
class DiskTrouble : public DatabaseTrouble {
 protected:
    DiskTrouble()
    {
        for (const char* name : {"LogKelvo.mdb", "DbsKelvo.mdb", "Kelvo.mdb"})
            disk.load(folder.file(name));
    }

    static long rowsInLog(test::Station& station)
    {
        return storage::OpenDatabase(station.machine().folder() + "\\LogKelvo.mdb")
            .OpenRecordset("SELECT * FROM Uus144a")
            .RecordCount();
    }

    test::PowerCutVfs disk;
};

TEST_F(DiskTrouble, Full)
{
    test::Station station(folder.path(), nullptr);
    logQso(station, "HA5A");
    disk.failWrites(SQLITE_FULL);
    expectRefused(station, "HA5B", "full");
    disk.failWrites(0);
    EXPECT_EQ(rowsInLog(station), 1);
    expectLoggedNow(station);
    EXPECT_EQ(rowsInLog(station), 2);
}

TEST_F(DiskTrouble, FailsToSynchronise)
{
    test::Station station(folder.path(), nullptr);
    logQso(station, "HA5A");
    disk.failSynchronisations(SQLITE_IOERR_FSYNC);
    expectRefused(station, "HA5B", "disk failed");
    disk.failSynchronisations(0);
    EXPECT_EQ(rowsInLog(station), 1);
    expectLoggedNow(station);
    EXPECT_EQ(rowsInLog(station), 2);
}

TEST_F(DiskTrouble, WriteProtected)
{
    disk.protectFiles(true);
    test::Station station(folder.path(), nullptr);
    expectRefused(station, "HA5B", "write-protected");
    EXPECT_EQ(rowsInLog(station), 0);
}

/// A log that cannot be reached at the start: the program says so, and goes on if the operator wants it.
TEST_F(DatabaseTrouble, LogMissingAtTheStart)
{
    fs::remove(log());
    script::VirtualMachine machine(folder.path());
    machine.boxes.queueAnswer(platform::buttonOk, 1);
    machine.beginRun("");
    NoEntries none;
    app::Program program(machine.drivers(), none, nullptr);
    program.start();
    EXPECT_TRUE(program.running());
    ASSERT_FALSE(machine.boxes.all().empty());
    EXPECT_EQ(machine.boxes.all().front().request.text, "Keine Verbindung zum Server !");
    EXPECT_FALSE(fs::exists(log())) << "the program makes no database";
}

}  // namespace
