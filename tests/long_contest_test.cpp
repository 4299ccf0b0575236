// 24 hours of contest on the whole program, in virtual time: nothing is lost, nothing is counted wrong, and the program
// needs no more memory at the end than in the beginning.
//
//     QSOS=5000 build/debug/bin/long_contest_test       as many as in a very good contest
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <atomic>
#include <cstdlib>
#include <map>
#include <new>
#include <string>
#include <vector>

#include "storage/schema.h"
#include "support/long_contest.h"
#include "support/temporary_folder.h"

namespace {

// Every allocation of the program, counted.
std::atomic<long> liveBytes{0};
std::atomic<long> liveBlocks{0};
std::atomic<long> allBlocks{0};

struct alignas(std::max_align_t) BlockHead {
    std::size_t size;
};

void* allocate(std::size_t size)
{
    auto* head = static_cast<BlockHead*>(std::malloc(sizeof(BlockHead) + size));
    if (head == nullptr) throw std::bad_alloc();
    head->size = size;
    liveBytes += static_cast<long>(size);
    ++liveBlocks;
    ++allBlocks;
    return head + 1;
}

void release(void* block) noexcept
{
    if (block == nullptr) return;
    BlockHead* head = static_cast<BlockHead*>(block) - 1;
    liveBytes -= static_cast<long>(head->size);
    --liveBlocks;
    std::free(head);
}

}  // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}
void* operator new[](std::size_t size)
{
    return allocate(size);
}
void operator delete(void* block) noexcept
{
    release(block);
}
void operator delete[](void* block) noexcept
{
    release(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    release(block);
}
void operator delete[](void* block, std::size_t) noexcept
{
    release(block);
}

namespace {

int qsosAsked()
{
    constexpr int usual = 1200;  // beyond the code 999
    const char* asked = std::getenv("QSOS");
    return asked == nullptr ? usual : std::max(200, std::atoi(asked) / 100 * 100);
}

/// What the program has taken at one moment.
struct Taken {
    long bytes = 0;
    long blocks = 0;
    long databaseBytes = 0;

    static Taken now() { return {liveBytes, liveBlocks, static_cast<long>(sqlite3_memory_used())}; }
};

/// The contest is played once for all tests of this file.
class LongContestTest : public testing::Test {
 protected:
    static void SetUpTestSuite()
    {
        folder() = new test::TemporaryFolder;
        storage::makeMissingDatabases(folder()->path());
        const int qsos = qsosAsked();
        taken().reserve(static_cast<std::size_t>(parts + 1));
        work().assign(parts, 0);
        test::LongContest contest(folder()->path(), qsos);
        contest.begin();
        for (int qso = 0; qso < qsos; ++qso) {
            if (qso % (qsos / parts) == 0) taken().push_back(Taken::now());
            contest.comeToNext();
            const long before = allBlocks;
            contest.logNext();
            work()[static_cast<std::size_t>(qso / (qsos / parts))] += allBlocks - before;
        }
        taken().push_back(Taken::now());
        counts() = contest.countsOfReview();
        complaints() = contest.complaints();
    }

    static void TearDownTestSuite() { delete folder(); }

    static constexpr int parts = 10;
    static test::TemporaryFolder*& folder()
    {
        static test::TemporaryFolder* folder = nullptr;
        return folder;
    }
    /// At the beginning and behind each part.
    static std::vector<Taken>& taken()
    {
        static std::vector<Taken> taken;
        return taken;
    }
    /// Allocations made for the QSOs of each part.
    static std::vector<long>& work()
    {
        static std::vector<long> work;
        return work;
    }
    static std::vector<std::string>& counts()
    {
        static std::vector<std::string> counts;
        return counts;
    }
    static std::vector<std::string>& complaints()
    {
        static std::vector<std::string> complaints;
        return complaints;
    }

    /// The rows of a table, read without the program.
    static std::vector<std::vector<std::string>> rowsOf(const char* database, const std::string& statement)
    {
        sqlite3* file = nullptr;
        sqlite3_stmt* reader = nullptr;
        EXPECT_EQ(sqlite3_open_v2((folder()->path() / database).string().c_str(), &file, SQLITE_OPEN_READONLY, nullptr),
                  SQLITE_OK);
        EXPECT_EQ(sqlite3_prepare_v2(file, statement.c_str(), -1, &reader, nullptr), SQLITE_OK);
        std::vector<std::vector<std::string>> rows;
        while (sqlite3_step(reader) == SQLITE_ROW) {
            rows.emplace_back();
            for (int column = 0; column < sqlite3_column_count(reader); ++column)
                rows.back().emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(reader, column)));
        }
        sqlite3_finalize(reader);
        sqlite3_close(file);
        return rows;
    }
};

constexpr const char* tables[] = {"Uus144a", "Uus432a", "Uus1296a"};

TEST_F(LongContestTest, TheScriptHasNothingToComplainOf)
{
    EXPECT_TRUE(complaints().empty()) << complaints().size() << ", the first: " << complaints().front();
}

TEST_F(LongContestTest, EveryRowIsAsItWasWorked)
{
    std::map<std::string, std::vector<std::vector<std::string>>> expected;
    for (const test::ExpectedQso& qso : test::expectedLog(qsosAsked()))
        expected[qso.table].push_back(qso.columns);
    for (const char* table : tables) {
        const auto rows =
            rowsOf("LogKelvo.mdb", "SELECT Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct FROM " +
                                       std::string(table) + " ORDER BY ID");
        ASSERT_EQ(rows.size(), expected[table].size()) << table;
        for (std::size_t row = 0; row < rows.size(); ++row)
            ASSERT_EQ(rows[row], expected[table][row]) << table << " row " << row + 1;
    }
}

TEST_F(LongContestTest, NothingIsInTheOtherTables)
{
    for (const char* table : {"Uus144b", "Uus432b", "Uus1296b", "UusGHz", "UusLGYO2"})
        EXPECT_TRUE(rowsOf("LogKelvo.mdb", "SELECT Callsign FROM " + std::string(table)).empty()) << table;
}

TEST_F(LongContestTest, TheMemoryKnowsEveryStationOnce)
{
    const auto known = static_cast<std::size_t>(test::expectedMemory(qsosAsked()));
    EXPECT_EQ(rowsOf("DbsKelvo.mdb", "SELECT DISTINCT Call FROM QRA").size(), known);
    EXPECT_EQ(rowsOf("DbsKelvo.mdb", "SELECT Call FROM QRA").size(), known);
}

TEST_F(LongContestTest, TheReviewCountsWhatWasWorked)
{
    std::map<std::string, long> qsos;
    std::map<std::string, long> points;
    for (const test::ExpectedQso& qso : test::expectedLog(qsosAsked())) {
        ++qsos[qso.table];
        points[qso.table] += std::stol(qso.columns.back());
    }
    std::vector<std::string> expected;
    for (const char* table : tables)
        expected.push_back(std::to_string(qsos[table]) + " " + std::to_string(points[table]));
    EXPECT_EQ(counts(), expected);
}

/// From behind the first part on, when everything has been met once.
TEST_F(LongContestTest, MemoryDoesNotGrow)
{
    const Taken& early = taken()[1];
    const Taken& late = taken().back();
    constexpr long room = 16 * 1024;  // lists grow by doubling, texts have their lengths
    EXPECT_LT(late.bytes - early.bytes, room);
    EXPECT_LT(late.blocks - early.blocks, 100);
    // The database engine keeps pages, as many as it is told to: 2 MB for each file.
    constexpr long pages = 3 * 2 * 1024 * 1024;
    EXPECT_LT(late.databaseBytes, pages);
}

/// Allocations stand for the work; a stop watch would tell more of the computer than of the program.
TEST_F(LongContestTest, WorkAQsoDoesNotGrow)
{
    const double early = static_cast<double>(work()[1]);
    const double late = static_cast<double>(work().back());
    EXPECT_NEAR(late / early, 1, 0.03);
}

}  // namespace
