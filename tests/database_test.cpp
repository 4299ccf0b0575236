#include "storage/database.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "platform/files.h"
#include "storage/connection.h"
#include "storage/schema.h"
#include "support/power_cut_vfs.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using storage::Database;
using storage::OpenDatabase;

const std::string insertYo2abc =
    "INSERT INTO Uus144a (Callsign, Data , UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct)  VALUES "
    "('YO2ABC','15.11.26','12:34','599 001','599 012','CW','144','KN16AA','250');";

/// Number and text of the error that a statement raises; number 0 for none.
struct Raised {
    int number = 0;
    std::string text;
};

template <typename Statement>
Raised errorOf(Statement&& statement)
{
    try {
        statement();
        return {};
    } catch (const base::RuntimeError& error) {
        return {error.number(), error.what()};
    }
}

void expectError(const Raised& raised, int number, const std::string& text)
{
    EXPECT_EQ(raised.number, number) << raised.text;
    EXPECT_EQ(raised.text, text);
}

class DatabaseTest : public testing::Test {
 protected:
    DatabaseTest() { storage::makeMissingDatabases(folder_.path()); }

    Database openLog() const { return OpenDatabase(folder_.designPath("LogKelvo.mdb")); }

    fs::path logFile() const { return folder_.file("LogKelvo.mdb"); }

    static long rowsIn(const Database& database, const std::string& table)
    {
        return database.OpenRecordset("SELECT * FROM " + table).RecordCount();
    }

    test::TemporaryFolder folder_;
};

/// The same on a disk in memory that can be made to fail.
class FailingDisk : public DatabaseTest {
 protected:
    FailingDisk() { disk_.load(logFile()); }

    test::PowerCutVfs disk_;
};

/// Another program that uses the log, with a connection of its own.
class OtherProgram {
 public:
    explicit OtherProgram(const fs::path& file)
    {
        sqlite3_open_v2(platform::pathText(file).c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr);
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram() { sqlite3_close(handle_); }

    void run(const char* statement)
    {
        ASSERT_EQ(sqlite3_exec(handle_, statement, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(handle_);
    }

 private:
    sqlite3* handle_ = nullptr;
};

TEST_F(DatabaseTest, notOpenGives91)
{
    Database database;
    EXPECT_FALSE(database.isOpen());
    EXPECT_EQ(errorOf([&] { database.Execute(insertYo2abc); }).number, base::recordSetNotOpened);
    EXPECT_EQ(errorOf([&] { database.OpenRecordset("QRA"); }).number, base::recordSetNotOpened);
    EXPECT_EQ(errorOf([&] { database.AppendTableDef({"QRA", "QRA"}); }).number, base::recordSetNotOpened);
}

TEST_F(DatabaseTest, closeEndsThisLinkOnly)
{
    Database database = openLog();
    Database other = database;
    database.Close();
    EXPECT_FALSE(database.isOpen());
    EXPECT_EQ(errorOf([&] { database.Execute(insertYo2abc); }).number, base::recordSetNotOpened);
    other.Execute(insertYo2abc);
    EXPECT_EQ(rowsIn(other, "Uus144a"), 1);
}

TEST_F(DatabaseTest, missingFileIsNoDatabase)
{
    fs::remove(logFile());
    expectError(errorOf([&] { openLog(); }), base::noDatabase, "LogKelvo.mdb is not there");
    EXPECT_FALSE(fs::exists(logFile()));
    EXPECT_EQ(errorOf([&] { OpenDatabase("/no such folder\\LogKelvo.mdb"); }).number, base::noDatabase);
}

TEST_F(DatabaseTest, otherFilesAreNoDatabases)
{
    const std::string text = "LogKelvo.mdb is no database, or it is damaged";
    test::writeFile(logFile(),
                    "a letter to the contest manager, long enough to be more than a header of 100 bytes. ......");
    expectError(errorOf([&] { openLog(); }), base::noDatabase, text);
    test::writeFile(logFile(), "x");
    expectError(errorOf([&] { openLog(); }), base::noDatabase, text);
    test::writeFile(logFile(), "");
    expectError(errorOf([&] { openLog(); }), base::noDatabase, text);
    EXPECT_EQ(fs::file_size(logFile()), 0U);
    fs::remove(logFile());
    fs::create_directory(logFile());
    EXPECT_EQ(errorOf([&] { openLog(); }).number, base::noDatabase);
}

TEST_F(DatabaseTest, damagedFileIsNoDatabase)
{
    std::string bytes = test::readFile(logFile());
    bytes.replace(100, bytes.size() - 100, bytes.size() - 100, '\x5A');
    test::writeFile(logFile(), bytes);
    EXPECT_EQ(errorOf([&] { rowsIn(openLog(), "Uus144a"); }).number, base::noDatabase);
}

TEST_F(DatabaseTest, fileIsFoundWhateverItsCase)
{
    Database database = OpenDatabase(folder_.designPath("dbsKelvo.mdb"));
    database.Execute("INSERT INTO QRA (Call, QRA_LOC) VALUES ('YO2ABC','KN16AA');");
    EXPECT_EQ(rowsIn(OpenDatabase(folder_.designPath("DBSKELVO.MDB")), "QRA"), 1);
}

TEST_F(DatabaseTest, oneConnectionAFile)
{
    const auto first = storage::connectionTo(logFile());
    EXPECT_EQ(storage::connectionTo(logFile()), first);
    EXPECT_EQ(storage::connectionTo(folder_.path() / "." / "LogKelvo.mdb"), first);
    EXPECT_NE(storage::connectionTo(folder_.file("DbsKelvo.mdb")), first);
    fs::create_symlink(logFile(), folder_.file("link.mdb"));
    EXPECT_EQ(storage::connectionTo(folder_.file("link.mdb")), first);
}

TEST_F(DatabaseTest, removedFileIsNoticedWhenOpenedAgain)
{
    Database database = openLog();
    fs::remove(logFile());
    EXPECT_EQ(errorOf([&] { openLog(); }).number, base::noDatabase);
    expectError(errorOf([&] { database.Execute(insertYo2abc); }), base::existsOrNoAccess,
                "LogKelvo.mdb was removed or replaced while it was open: nothing was written");
}

TEST_F(DatabaseTest, replacedFileIsOpenedAnew)
{
    Database old = openLog();
    old.Execute(insertYo2abc);
    fs::remove(logFile());
    storage::makeMissingDatabases(folder_.path());

    Database fresh = openLog();
    EXPECT_EQ(rowsIn(fresh, "Uus144a"), 0);
    EXPECT_EQ(errorOf([&] { old.Execute(insertYo2abc); }).number, base::existsOrNoAccess);
    fresh.Execute(insertYo2abc);
    EXPECT_EQ(rowsIn(openLog(), "Uus144a"), 1);
}

TEST_F(DatabaseTest, theFileAloneHoldsTheRow)
{
    Database database = openLog();
    database.Execute(insertYo2abc);
    const fs::path copy = folder_.file("copy.mdb");
    fs::copy_file(logFile(), copy);
    EXPECT_EQ(rowsIn(OpenDatabase(platform::pathText(copy)), "Uus144a"), 1);
    EXPECT_EQ(fs::file_size(folder_.file("LogKelvo.mdb-journal")), 0U);
}

TEST_F(DatabaseTest, executeInsertsUpdatesAndDeletes)
{
    Database database = openLog();
    database.Execute(insertYo2abc);
    database.Execute(insertYo2abc);
    database.Execute("UPDATE uus144A SET Pct = '0' WHERE Callsign = 'yo2abc'");
    const auto rows = database.OpenRecordset("SELECT * FROM UUS144A");
    EXPECT_EQ(rows.Field("pct"), "0");
    database.Execute("DELETE * FROM Uus144a");
    EXPECT_EQ(rowsIn(database, "Uus144a"), 0);
}

TEST_F(DatabaseTest, theCounterNeverComesBack)
{
    Database database = openLog();
    database.Execute(insertYo2abc);
    database.Execute("DELETE * FROM Uus144a");
    database.Execute(insertYo2abc);
    EXPECT_EQ(database.OpenRecordset("Uus144a").Field("ID"), "2");
}

TEST_F(DatabaseTest, secondStatementIsNeverRun)
{
    Database database = openLog();
    database.Execute(insertYo2abc);
    const std::string call = "X'; DELETE * FROM Uus144a; --";
    EXPECT_EQ(errorOf([&] { database.OpenRecordset("SELECT * FROM Uus144a WHERE Callsign='" + call + "'; "); }).number,
              base::invalidArgument);
    EXPECT_EQ(
        errorOf([&] { database.Execute("UPDATE Uus144a SET Pct = '0' WHERE Callsign = '" + call + "';"); }).number,
        base::invalidArgument);
    EXPECT_EQ(errorOf([&] { database.Execute(insertYo2abc + "DELETE FROM Uus144a"); }).number, base::invalidArgument);
    EXPECT_EQ(rowsIn(database, "Uus144a"), 1);
    EXPECT_EQ(database.OpenRecordset("Uus144a").Field("Pct"), "250");
}

TEST_F(DatabaseTest, badStatementsAreInvalid)
{
    Database database = openLog();
    for (const char* statement :
         {"", "SELECT * FROM Uus144a", "INSERT INTO Uus144a (Callsign) VALUES ('O'Neil');", "INSERT INTO Uus144a",
          "UPDATE Uus144a SET Colour = 'red'", "DELETE * FROM Uus144a WHERE", "BEGIN", "PRAGMA synchronous=OFF",
          "INSERT INTO Uus144a (Callsign) VALUES ('X') RETURNING ID"})
        EXPECT_EQ(errorOf([&] { database.Execute(statement); }).number, base::invalidArgument) << statement;
    EXPECT_EQ(rowsIn(database, "Uus144a"), 0);
}

TEST_F(DatabaseTest, missingTableIsNoDatabase)
{
    Database database = openLog();
    const std::string text = "LogKelvo.mdb has no table Uus50a";
    expectError(errorOf([&] { database.Execute("DELETE * FROM Uus50a"); }), base::noDatabase, text);
    expectError(errorOf([&] { database.OpenRecordset("SELECT * FROM Uus50a "); }), base::noDatabase, text);
    expectError(errorOf([&] { database.OpenRecordset("Uus50a"); }), base::noDatabase, text);
}

TEST_F(DatabaseTest, refusedRowIsNotWritten)
{
    Database database = openLog();
    database.Execute("CREATE TRIGGER Full BEFORE INSERT ON Uus144a BEGIN SELECT RAISE(ABORT, 'no more'); END;");
    expectError(errorOf([&] { database.Execute(insertYo2abc); }), base::existsOrNoAccess,
                "LogKelvo.mdb takes no such row: no more");
    EXPECT_EQ(rowsIn(database, "Uus144a"), 0);
    database.Execute("DROP TRIGGER Full");
    database.Execute(insertYo2abc);
    EXPECT_EQ(rowsIn(database, "Uus144a"), 1);
}

TEST_F(DatabaseTest, lockedFileCanBeUsedWhenItIsFreeAgain)
{
    Database database = openLog();
    {
        OtherProgram other(logFile());
        other.run("BEGIN IMMEDIATE");
        expectError(errorOf([&] { database.Execute(insertYo2abc); }), base::existsOrNoAccess,
                    "LogKelvo.mdb is locked by another program: nothing was written");
        EXPECT_EQ(rowsIn(database, "Uus144a"), 0);
    }
    database.Execute(insertYo2abc);
    EXPECT_EQ(rowsIn(database, "Uus144a"), 1);
}

TEST_F(DatabaseTest, noLockStaysBehindAnOperation)
{
    Database database = openLog();
    database.Execute(insertYo2abc);
    database.Execute(insertYo2abc);
    auto rows = database.OpenRecordset("SELECT * FROM Uus144a ");
    rows.MoveNext();
    EXPECT_EQ(rows.Field("Callsign"), "YO2ABC");
    OtherProgram other(logFile());
    other.run("BEGIN EXCLUSIVE; DELETE FROM Uus144a; COMMIT;");
    EXPECT_EQ(rowsIn(database, "Uus144a"), 0);
}

TEST_F(FailingDisk, writeProtectedFileCanBeRead)
{
    disk_.protectFiles(true);
    Database database = openLog();
    EXPECT_EQ(rowsIn(database, "Uus144a"), 0);
    expectError(errorOf([&] { database.Execute(insertYo2abc); }), base::existsOrNoAccess,
                "LogKelvo.mdb is write-protected: nothing was written");
    EXPECT_EQ(rowsIn(database, "Uus144a"), 0);
}

TEST_F(FailingDisk, fullDiskWritesNothing)
{
    Database database = openLog();
    database.Execute(insertYo2abc);
    disk_.failWrites(SQLITE_FULL);
    expectError(errorOf([&] { database.Execute(insertYo2abc); }), base::diskFull,
                "The disk is full: nothing was written to LogKelvo.mdb");
    disk_.failWrites(0);
    EXPECT_EQ(rowsIn(database, "Uus144a"), 1);
    database.Execute(insertYo2abc);
    EXPECT_EQ(rowsIn(database, "Uus144a"), 2);
}

TEST_F(FailingDisk, failingDiskLeavesTheDatabaseUsable)
{
    Database database = openLog();
    database.Execute(insertYo2abc);
    disk_.failSynchronisations(SQLITE_IOERR_FSYNC);
    const Raised raised = errorOf([&] { database.Execute(insertYo2abc); });
    EXPECT_EQ(raised.number, base::existsOrNoAccess);
    EXPECT_EQ(raised.text, "The disk failed while LogKelvo.mdb was being written: disk I/O error");
    disk_.failSynchronisations(0);
    EXPECT_EQ(rowsIn(database, "Uus144a"), 1);
    database.Execute(insertYo2abc);
    EXPECT_EQ(rowsIn(database, "Uus144a"), 2);
}

TEST_F(DatabaseTest, definitionOfATableThatIsThereGives75)
{
    Database database = openLog();
    storage::TableDef definition = Database::CreateTableDef("Uus144a");
    definition.SourceTableName = "Uus144a";
    expectError(errorOf([&] { database.AppendTableDef(definition); }), base::existsOrNoAccess,
                "LogKelvo.mdb has a table Uus144a already");
    EXPECT_EQ(errorOf([&] { database.AppendTableDef({"UUS144A", "UUS144A"}); }).number, base::existsOrNoAccess);
}

TEST_F(DatabaseTest, definitionWithoutASourceTableGives3059)
{
    Database database = OpenDatabase(folder_.designPath("Kelvo.mdb"));
    EXPECT_EQ(errorOf([&] { database.AppendTableDef({"QRA", "QRA"}); }).number, base::existsOrNoAccess);
    expectError(errorOf([&] {
                    database.AppendTableDef({"Uus144a", "Uus144a"});
                }),
                base::noDatabase, "Kelvo.mdb has no table Uus144a");
    EXPECT_EQ(errorOf([&] { database.AppendTableDef({"Locators", "QRA"}); }).number, base::invalidArgument);
}

}  // namespace
