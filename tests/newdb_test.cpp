#include <gtest/gtest.h>
#include <sqlite3.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "storage/database.h"
#include "storage/schema.h"
#include "support/power_cut_vfs.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string_view>;

int errorOfMaking(const fs::path& folder)
{
    try {
        storage::makeMissingDatabases(folder);
        return 0;
    } catch (const base::RuntimeError& error) {
        return error.number();
    }
}

std::size_t filesIn(const fs::path& folder)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

/// What the program printed on both its outputs, and how it ended.
struct Outcome {
    std::string text;
    int status = -1;
};

Outcome runNewdb(const std::string& arguments)
{
    const std::string command = "'" KELVO_PROGRAM_FOLDER "/kelvo-newdb' " + arguments + " 2>&1";
    Outcome outcome;
    FILE* const output = popen(command.c_str(), "r");
    std::array<char, 256> part{};
    while (fgets(part.data(), static_cast<int>(part.size()), output) != nullptr)
        outcome.text += part.data();
    outcome.status = WEXITSTATUS(pclose(output));
    return outcome;
}

std::string quoted(const std::string& word)
{
    return "'" + word + "'";
}

TEST(MissingDatabases, areMadeWithTheirTables)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(storage::makeMissingDatabases(folder.path()), (Names{"LogKelvo.mdb", "DbsKelvo.mdb", "Kelvo.mdb"}));
    EXPECT_EQ(filesIn(folder.path()), 3U);

    const auto log = storage::OpenDatabase(folder.designPath("LogKelvo.mdb"));
    const std::vector<std::string> columns = {"ID",   "Callsign", "Data", "UTC",    "Sent",
                                              "Rcvd", "Mode",     "Freq", "QRALoc", "Pct"};
    for (const char* table : {"Uus144a", "Uus144b", "Uus432a", "Uus432b", "Uus1296a", "Uus1296b", "UusGHz"}) {
        const auto rows = log.OpenRecordset(table);
        EXPECT_EQ(rows.columnNames(), columns) << table;
        EXPECT_TRUE(rows.IsEof() && rows.IsBof()) << table;
    }
    EXPECT_EQ(log.OpenRecordset("UusLGYO2").columnNames(),
              (std::vector<std::string>{"ID", "Callsign", "Data", "UTC", "Sent", "Rcvd", "Mode", "Bnd", "QRALcR",
                                        "NameR", "Pct", "QRALcE", "NameE"}));
    for (const char* file : {"DbsKelvo.mdb", "Kelvo.mdb"})
        EXPECT_EQ(storage::OpenDatabase(folder.designPath(file)).OpenRecordset("QRA").columnNames(),
                  (std::vector<std::string>{"Call", "QRA_LOC"}));
}

TEST(MissingDatabases, doNotTouchAFileThatIsThere)
{
    const test::TemporaryFolder folder;
    test::writeFile(folder.file("LOGKELVO.mdb"), "not even a database");
    EXPECT_EQ(storage::makeMissingDatabases(folder.path()), (Names{"DbsKelvo.mdb", "Kelvo.mdb"}));
    EXPECT_EQ(test::readFile(folder.file("LOGKELVO.mdb")), "not even a database");
    EXPECT_EQ(filesIn(folder.path()), 3U);

    auto memory = storage::OpenDatabase(folder.designPath("DbsKelvo.mdb"));
    memory.Execute("INSERT INTO QRA (Call, QRA_LOC) VALUES ('YO2ABC','KN16AA');");
    memory.Close();
    const std::string bytes = test::readFile(folder.file("DbsKelvo.mdb"));
    EXPECT_EQ(storage::makeMissingDatabases(folder.path()), Names{});
    EXPECT_EQ(test::readFile(folder.file("DbsKelvo.mdb")), bytes);
}

TEST(MissingDatabases, doNotReplaceALinkThatLeadsNowhere)
{
    const test::TemporaryFolder folder;
    fs::create_symlink("/no/such/file", folder.file("LogKelvo.mdb"));
    EXPECT_EQ(storage::makeMissingDatabases(folder.path()), (Names{"DbsKelvo.mdb", "Kelvo.mdb"}));
    EXPECT_TRUE(fs::is_symlink(folder.file("LogKelvo.mdb")));
}

TEST(MissingDatabases, needAFolder)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(errorOfMaking(folder.file("nowhere")), base::noSuchFolder);
    test::writeFile(folder.file("file"), "");
    EXPECT_EQ(errorOfMaking(folder.file("file")), base::noSuchFolder);
}

TEST(MissingDatabases, leaveNothingBehindWhenTheyCannotBeMade)
{
    const test::TemporaryFolder folder;
    test::PowerCutVfs disk;
    disk.refuseNewFiles(true);
    EXPECT_EQ(errorOfMaking(folder.path()), base::existsOrNoAccess);
    disk.refuseNewFiles(false);
    disk.failWrites(SQLITE_FULL);
    EXPECT_EQ(errorOfMaking(folder.path()), base::diskFull);
    EXPECT_EQ(filesIn(folder.path()), 0U);
}

TEST(NewdbProgram, saysWhatItMade)
{
    const test::TemporaryFolder folder;
    const Outcome first = runNewdb(quoted(folder.path().string()));
    EXPECT_EQ(first.text, "made LogKelvo.mdb\nmade DbsKelvo.mdb\nmade Kelvo.mdb\n");
    EXPECT_EQ(first.status, 0);
    const Outcome second = runNewdb(quoted(folder.path().string()));
    EXPECT_EQ(second.text, "all databases are there, nothing was made\n");
    EXPECT_EQ(second.status, 0);
}

TEST(NewdbProgram, saysWhatIsWrong)
{
    const Outcome missing = runNewdb("/no/such/folder");
    EXPECT_EQ(missing.text, "kelvo-newdb: There is no folder /no/such/folder\n");
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(runNewdb("").status, 2);
    EXPECT_EQ(runNewdb("one two").status, 2);
    EXPECT_EQ(runNewdb("--force").status, 2);
    EXPECT_EQ(runNewdb("").text.substr(0, 25), "usage: kelvo-newdb FOLDER");
    EXPECT_EQ(runNewdb("--help").status, 0);
}

}  // namespace
