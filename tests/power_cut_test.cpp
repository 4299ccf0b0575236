// A logged QSO is safe: whatever the disk forgets when the power goes, the row is there once Execute has returned, and
// an unfinished one leaves no trace.
#include "support/power_cut_vfs.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/number.h"
#include "base/runtime_error.h"
#include "platform/files.h"
#include "storage/connection.h"
#include "storage/database.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace {

using test::PowerCutVfs;
using test::Survival;
using Rows = std::vector<std::vector<std::string>>;

std::string insertOf(long number)
{
    return "INSERT INTO Uus144a (Callsign, Data , UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct)  VALUES ('YO" +
           base::toText(number) + "ABC','15.11.26','12:34','599 001','599 002','CW','144','KN16AA','250');";
}

/// What came back from the disk.
struct Found {
    bool intact = false;
    Rows rows;
};

/// What is to be tried: statements that are safely in, and the one under which the power goes.
struct Attempt {
    long rows = 0;           ///< in the table before the database is opened
    long commitsBefore = 0;  ///< through the same connection; without any there is no journal file yet
    std::string statement;
    bool synchronises = true;  ///< false for a database that leaves that out
};

class PowerCut : public testing::Test {
 protected:
    PowerCut()
    {
        storage::makeMissingDatabases(folder_.path());
        disk_ = std::make_unique<PowerCutVfs>();
        disk_->load(folder_.file("LogKelvo.mdb"));
    }

    storage::Database open() const { return storage::OpenDatabase(folder_.designPath("LogKelvo.mdb")); }

    Rows rowsOf(const storage::Database& database) const
    {
        Rows rows;
        auto set = database.OpenRecordset("SELECT * FROM Uus144a");
        for (; !set.IsEof(); set.MoveNext()) {
            rows.emplace_back();
            for (int column = 0; column < 10; ++column)
                rows.back().push_back(set.Field(column));
        }
        return rows;
    }

    bool isIntact() const
    {
        sqlite3* handle = nullptr;
        sqlite3_stmt* check = nullptr;
        sqlite3_open_v2(platform::pathText(folder_.file("LogKelvo.mdb")).c_str(), &handle, SQLITE_OPEN_READWRITE,
                        nullptr);
        sqlite3_prepare_v2(handle, "PRAGMA integrity_check", -1, &check, nullptr);
        const bool answered = sqlite3_step(check) == SQLITE_ROW;
        const std::string answer =
            answered ? reinterpret_cast<const char*>(sqlite3_column_text(check, 0)) : sqlite3_errmsg(handle);
        sqlite3_finalize(check);
        sqlite3_close(handle);
        return answer == "ok";
    }

    Found look() const
    {
        Found found;
        try {
            found.rows = rowsOf(open());
            found.intact = isIntact();
        } catch (const base::RuntimeError&) {
            found.intact = false;
        }
        return found;
    }

    void fill(long rows)
    {
        storage::Database database = open();
        if (rows > 0)
            database.Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                             base::toText(rows) +
                             ") INSERT INTO Uus144a (Callsign, Data, Sent, Pct) "
                             "SELECT 'DL' || i || 'XY', '15.11.26', '59 ' || i, i FROM n");
        database.Close();
        // Nothing of this is under test: it is durable, and its journal is forgotten.
        disk_->powerOn(Survival::all);
        PowerCutVfs::Files files = disk_->files();
        files.erase(platform::pathText(folder_.file("LogKelvo.mdb-journal")));
        disk_->setFiles(files);
    }

    storage::Database prepare(const Attempt& attempt) const
    {
        storage::Database database = open();
        if (!attempt.synchronises)
            storage::connectionTo(folder_.file("LogKelvo.mdb"))->execute("PRAGMA synchronous=OFF");
        for (long number = 0; number < attempt.commitsBefore; ++number)
            database.Execute(insertOf(number));
        return database;
    }

    /// Runs the statement on the disk as it is, and cuts the power after so many operations. Returns whether Execute
    /// came back.
    bool executeUntilCut(const Attempt& attempt, long operations)
    {
        storage::Database database = prepare(attempt);
        disk_->cutAfter(operations);
        try {
            database.Execute(attempt.statement);
            return true;
        } catch (const base::RuntimeError&) {
            return false;
        }
    }

    /// All that may come back after one power cut: nothing of what was not synchronised, all of it, and some of it in
    /// so many ways.
    template <typename Look>
    void forEachSurvival(Look&& lookAt)
    {
        constexpr std::uint32_t ways = 8;
        const PowerCutVfs::Files atCut = disk_->files();
        const auto tryOut = [&](Survival survival, std::uint32_t seed) {
            disk_->setFiles(atCut);
            disk_->powerOn(survival, seed);
            lookAt();
        };
        tryOut(Survival::none, 0);
        tryOut(Survival::all, 0);
        for (std::uint32_t seed = 1; seed <= ways; ++seed)
            tryOut(Survival::some, seed);
    }

    /// Cuts the power after every operation of the statement in turn. Returns how many outcomes broke the promise.
    long broken(const Attempt& attempt)
    {
        fill(attempt.rows);
        const PowerCutVfs::Files start = disk_->files();
        Rows before;
        Rows after;
        {
            storage::Database database = prepare(attempt);
            before = rowsOf(database);
            database.Execute(attempt.statement);
            after = rowsOf(database);
        }
        EXPECT_NE(before, after) << "the statement changes nothing";

        long count = 0;
        bool wentThrough = false;
        for (long operations = 0; !wentThrough; ++operations) {
            disk_->setFiles(start);
            const bool returned = executeUntilCut(attempt, operations);
            // The power never went: the statement takes no more operations than this.
            wentThrough = !disk_->isOff();
            forEachSurvival([&] {
                const Found found = look();
                const bool whole = found.rows == after || (!returned && found.rows == before);
                if (!found.intact || !whole) ++count;
            });
            cuts_ = operations;
        }
        return count;
    }

    test::TemporaryFolder folder_;
    std::unique_ptr<PowerCutVfs> disk_;
    long cuts_ = 0;
};

TEST_F(PowerCut, firstRowOfAnEmptyTable)
{
    EXPECT_EQ(broken({0, 0, insertOf(9)}), 0);
    // A commit that took fewer steps than journal, synchronisation, pages, synchronisation was not looked into.
    EXPECT_GT(cuts_, 6);
}

TEST_F(PowerCut, rowBehindManyRows)
{
    EXPECT_EQ(broken({300, 0, insertOf(9)}), 0);
}

TEST_F(PowerCut, rowWithTheJournalOfEarlierRows)
{
    EXPECT_EQ(broken({300, 3, insertOf(9)}), 0);
}

TEST_F(PowerCut, pointsTakenFromManyRows)
{
    EXPECT_EQ(broken({400, 1, "UPDATE Uus144a SET Pct = '0' WHERE Callsign > 'DL2';"}), 0);
}

TEST_F(PowerCut, logEmptied)
{
    EXPECT_EQ(broken({400, 1, "DELETE * FROM Uus144a"}), 0);
}

TEST_F(PowerCut, powerGoesAgainDuringTheRecovery)
{
    fill(400);
    const PowerCutVfs::Files start = disk_->files();
    const Attempt attempt{400, 1, "UPDATE Uus144a SET Pct = '0';"};
    Rows before;
    Rows after;
    {
        storage::Database database = prepare(attempt);
        before = rowsOf(database);
        database.Execute(attempt.statement);
        after = rowsOf(database);
    }
    bool wentThrough = false;
    long recoveries = 0;
    for (long operations = 1; !wentThrough; ++operations) {
        disk_->setFiles(start);
        const bool returned = executeUntilCut(attempt, operations);
        wentThrough = !disk_->isOff();
        disk_->powerOn(Survival::all);
        const PowerCutVfs::Files hurt = disk_->files();
        for (long second = 1;; ++second) {
            disk_->setFiles(hurt);
            disk_->cutAfter(second);
            look();
            if (!disk_->isOff()) break;
            ++recoveries;
            forEachSurvival([&] {
                const Found found = look();
                EXPECT_TRUE(found.intact);
                EXPECT_TRUE(found.rows == after || (!returned && found.rows == before)) << operations << ' ' << second;
            });
        }
    }
    EXPECT_GT(recoveries, 20);
}

TEST_F(PowerCut, everyQsoOfAnEvening)
{
    constexpr long evening = 8;
    const PowerCutVfs::Files start = disk_->files();
    bool wentThrough = false;
    for (long operations = 0; !wentThrough; ++operations) {
        disk_->setFiles(start);
        long logged = 0;
        try {
            storage::Database database = open();
            disk_->cutAfter(operations);
            for (; logged < evening; ++logged)
                database.Execute(insertOf(logged));
        } catch (const base::RuntimeError&) {
            EXPECT_TRUE(disk_->isOff());
        }
        wentThrough = !disk_->isOff();
        forEachSurvival([&] {
            const Found found = look();
            EXPECT_TRUE(found.intact);
            const auto there = static_cast<long>(found.rows.size());
            EXPECT_TRUE(there == logged || there == logged + 1) << there << " rows of " << logged;
            for (long number = 0; number < there; ++number)
                EXPECT_EQ(found.rows[static_cast<std::size_t>(number)][1], "YO" + base::toText(number) + "ABC");
        });
    }
}

/// The layer catches a database that does not synchronise: without that these tests would prove nothing.
TEST_F(PowerCut, databaseThatDoesNotSynchroniseLosesRows)
{
    EXPECT_GT(broken({0, 0, insertOf(9), false}), 0);
    EXPECT_GT(broken({400, 3, "UPDATE Uus144a SET Pct = '0' WHERE Callsign > 'DL2';", false}), 0);
}

}  // namespace
