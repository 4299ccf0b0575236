#include "storage/record_set.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "base/number.h"
#include "base/runtime_error.h"
#include "storage/connection.h"
#include "storage/database.h"
#include "storage/schema.h"
#include "support/error_of.h"
#include "support/power_cut_vfs.h"
#include "support/temporary_folder.h"

namespace {

using storage::RecordSet;
using storage::Row;
using Texts = std::vector<std::string>;

using test::errorOf;

/// Column 1 (`Callsign`) of all rows from the current one on.
Texts callsFromHere(RecordSet& rows)
{
    Texts calls;
    for (; !rows.IsEof(); rows.MoveNext())
        calls.push_back(rows.Field(1));
    return calls;
}

Texts callsOf(const std::vector<Row>& rows)
{
    Texts calls;
    for (const Row& row : rows)
        calls.push_back(row.columns.at(1));
    return calls;
}

class RecordSetTest : public testing::Test {
 protected:
    RecordSetTest()
    {
        storage::makeMissingDatabases(folder_.path());
        log_ = storage::OpenDatabase(folder_.designPath("LogKelvo.mdb"));
    }

    void add(const std::string& call, const std::string& points = "1")
    {
        log_.Execute("INSERT INTO Uus144a (Callsign, Pct) VALUES ('" + call + "','" + points + "');");
    }

    void addMaraton(const std::string& call, const std::string& band)
    {
        log_.Execute("INSERT INTO UusLGYO2 (Callsign, Bnd) VALUES ('" + call + "'," + band + ");");
    }

    /// Rows with the calls "YO" and the number in five digits.
    static void fill(storage::Database& database, const std::string& table, long count)
    {
        database.Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                         base::toText(count) + ") INSERT INTO " + table +
                         " (Callsign, Sent, Pct) SELECT printf('YO%05d', i), '599 ' || i, i % 7 FROM n");
    }

    RecordSet open(const std::string& statement) const { return log_.OpenRecordset(statement); }

    test::TemporaryFolder folder_;
    storage::Database log_;
};

TEST_F(RecordSetTest, neverOpenedGives91)
{
    RecordSet rows;
    EXPECT_FALSE(rows.isOpen());
    EXPECT_EQ(errorOf([&] { rows.MoveLast(); }), base::recordSetNotOpened);
    EXPECT_EQ(errorOf([&] { (void)rows.IsEof(); }), base::recordSetNotOpened);
    EXPECT_EQ(errorOf([&] { (void)rows.Field(0); }), base::recordSetNotOpened);
    EXPECT_EQ(errorOf([&] { (void)rows.RecordCount(); }), base::recordSetNotOpened);
    EXPECT_EQ(errorOf([&] { (void)rows.firstRows(1); }), base::recordSetNotOpened);
}

TEST_F(RecordSetTest, emptySet)
{
    RecordSet rows = open("SELECT * FROM Uus144a");
    EXPECT_TRUE(rows.isOpen());
    EXPECT_TRUE(rows.IsEof());
    EXPECT_TRUE(rows.IsBof());
    EXPECT_EQ(rows.RecordCount(), 0);
    EXPECT_EQ(errorOf([&] { rows.MoveFirst(); }), base::noCurrentRecord);
    EXPECT_EQ(errorOf([&] { rows.MoveLast(); }), base::noCurrentRecord);
    EXPECT_EQ(errorOf([&] { rows.MoveNext(); }), base::noCurrentRecord);
    EXPECT_EQ(errorOf([&] { rows.MovePrevious(); }), base::noCurrentRecord);
    EXPECT_EQ(errorOf([&] { (void)rows.Field(1); }), base::noCurrentRecord);
    EXPECT_EQ(errorOf([&] { rows.Delete(); }), base::noCurrentRecord);
    EXPECT_EQ(rows.currentKey(), std::nullopt);
    EXPECT_TRUE(rows.firstRows(5).empty());
    EXPECT_TRUE(rows.lastRows(5).empty());
}

TEST_F(RecordSetTest, opensOnTheFirstRow)
{
    add("YO2ABC");
    add("YO3XYZ");
    const RecordSet rows = open("SELECT * FROM Uus144a");
    EXPECT_FALSE(rows.IsEof());
    EXPECT_FALSE(rows.IsBof());
    EXPECT_EQ(rows.Field(1), "YO2ABC");
    EXPECT_EQ(rows.currentKey(), 1);
    EXPECT_EQ(rows.RecordCount(), 2);
}

TEST_F(RecordSetTest, moves)
{
    for (const char* call : {"A", "B", "C"})
        add(call);
    RecordSet rows = open("SELECT * FROM Uus144a");
    rows.MoveLast();
    EXPECT_EQ(rows.Field(1), "C");
    rows.MoveNext();
    EXPECT_TRUE(rows.IsEof());
    EXPECT_FALSE(rows.IsBof());
    EXPECT_EQ(errorOf([&] { rows.MoveNext(); }), base::noCurrentRecord);
    EXPECT_EQ(errorOf([&] { (void)rows.Field(1); }), base::noCurrentRecord);
    rows.MovePrevious();
    EXPECT_EQ(rows.Field(1), "C");
    rows.MoveFirst();
    EXPECT_EQ(rows.Field(1), "A");
    rows.MovePrevious();
    EXPECT_TRUE(rows.IsBof());
    EXPECT_FALSE(rows.IsEof());
    EXPECT_EQ(errorOf([&] { rows.MovePrevious(); }), base::noCurrentRecord);
    rows.MoveNext();
    EXPECT_EQ(callsFromHere(rows), (Texts{"A", "B", "C"}));
}

TEST_F(RecordSetTest, fieldsByNumberAndName)
{
    add("YO2ABC", "250");
    RecordSet rows = open("SELECT * FROM Uus144a");
    EXPECT_EQ(rows.Field("ID"), "1");
    EXPECT_EQ(rows.Field("callsign"), "YO2ABC");
    EXPECT_EQ(rows.Field(9), "250");
    EXPECT_EQ(rows.Field("UTC"), "");
    EXPECT_EQ(errorOf([&] { (void)rows.Field("Bnd"); }), base::badIndex);
    EXPECT_EQ(errorOf([&] { (void)rows.Field(10); }), base::badIndex);
    EXPECT_EQ(errorOf([&] { (void)rows.Field(-1); }), base::badIndex);
    EXPECT_EQ(rows.columnNames().at(9), "Pct");
}

TEST_F(RecordSetTest, fieldsOfOneRowCanBeHeldTogether)
{
    fill(log_, "Uus144a", 20);
    RecordSet rows = open("SELECT * FROM Uus144a");
    for (long number = 1; !rows.IsEof(); rows.MoveNext(), ++number) {
        const std::string& call = rows.Field(1);
        const std::string& sent = number > 10 ? rows.Field(4) : rows.Field(0);
        EXPECT_EQ(call.substr(5), base::paddedCode(number).substr(1));
        EXPECT_EQ(sent, (number > 10 ? "599 " : "") + base::toText(number));
    }
}

TEST_F(RecordSetTest, longWalksInBothDirections)
{
    constexpr long count = 5000;
    fill(log_, "Uus144a", count);
    for (const char* order : {"", "ORDER BY ID", "ORDER BY Callsign"}) {
        RecordSet rows = open(std::string("SELECT * FROM Uus144a ") + order);
        long seen = 0;
        for (; !rows.IsEof(); rows.MoveNext())
            EXPECT_EQ(rows.Field(0), base::toText(++seen));
        EXPECT_EQ(seen, count);
        for (rows.MovePrevious(); !rows.IsBof(); rows.MovePrevious())
            EXPECT_EQ(rows.Field(0), base::toText(seen--));
        EXPECT_EQ(seen, 0);
    }
}

TEST_F(RecordSetTest, turnsRoundAnywhere)
{
    fill(log_, "Uus144a", 200);
    RecordSet rows = open("SELECT * FROM Uus144a ORDER BY Callsign");
    long at = 1;
    for (long stride = 1; stride < 19; ++stride) {
        for (long i = 0; i < stride; ++i, ++at)
            rows.MoveNext();
        EXPECT_EQ(rows.Field(0), base::toText(at));
        for (long i = 0; i < stride / 2; ++i, --at)
            rows.MovePrevious();
        EXPECT_EQ(rows.Field(0), base::toText(at));
    }
}

TEST_F(RecordSetTest, ordersByCallWithoutRegardToCaseAndThenByEntry)
{
    for (const char* call : {"yo3", "DL1", "YO3", "YO2", "Yo3"})
        add(call);
    RecordSet rows = open("SELECT * FROM Uus144a ORDER BY Callsign");
    EXPECT_EQ(callsFromHere(rows), (Texts{"DL1", "YO2", "yo3", "YO3", "Yo3"}));
}

TEST_F(RecordSetTest, ordersByBandAndEntry)
{
    addMaraton("A", "'432'");
    addMaraton("B", "'144'");
    addMaraton("C", "'432'");
    addMaraton("D", "'1296'");
    addMaraton("E", "'144'");
    RecordSet rows = open("SELECT * FROM UusLGYO2 ORDER BY Bnd , ID ");
    EXPECT_EQ(callsFromHere(rows), (Texts{"D", "B", "E", "A", "C"}));
    rows = open("SELECT * FROM UusLGYO2 WHERE Bnd='432' ORDER BY Bnd , ID; ");
    EXPECT_EQ(callsFromHere(rows), (Texts{"A", "C"}));
}

TEST_F(RecordSetTest, nullsInTheOrderEndNoWalk)
{
    for (int i = 0; i < 30; ++i)
        for (const char* band : {"NULL", "''", "'144'"})
            addMaraton("YO2ABC", band);
    RecordSet rows = open("SELECT * FROM UusLGYO2 ORDER BY Bnd , ID ");
    Texts bands;
    Texts keys;
    for (; !rows.IsEof(); rows.MoveNext()) {
        bands.push_back(rows.Field("Bnd"));
        keys.push_back(rows.Field("ID"));
    }
    ASSERT_EQ(bands.size(), 90U);
    EXPECT_EQ(std::count(bands.begin(), bands.begin() + 60, ""), 60);
    EXPECT_EQ(keys[0], "1");
    EXPECT_EQ(keys[1], "4");
    EXPECT_EQ(keys[30], "2");
    EXPECT_EQ(keys[60], "3");

    std::reverse(keys.begin(), keys.end());
    Texts backwards;
    for (rows.MovePrevious(); !rows.IsBof(); rows.MovePrevious())
        backwards.push_back(rows.Field("ID"));
    EXPECT_EQ(backwards, keys);

    const std::vector<Row> first = rows.firstRows(40);
    EXPECT_EQ(first[29].columns[0], "88");
    EXPECT_EQ(rows.rowsAfter(first[9], 1).at(0).columns[0], "31");
    EXPECT_EQ(rows.rowsBefore(first[30], 1).at(0).columns[0], "88");
}

TEST_F(RecordSetTest, tableWithoutACounterKeepsTheOrderOfEntry)
{
    storage::Database memory = storage::OpenDatabase(folder_.designPath("DbsKelvo.mdb"));
    for (const char* call : {"YO9", "DL1", "YO2"})
        memory.Execute(std::string("INSERT INTO QRA (Call, QRA_LOC) VALUES ('") + call + "','KN16AA');");
    RecordSet rows = memory.OpenRecordset("QRA");
    EXPECT_EQ(rows.Field(0), "YO9");
    rows.MoveLast();
    EXPECT_EQ(rows.Field(0), "YO2");
    EXPECT_EQ(rows.currentKey(), 3);

    rows = memory.OpenRecordset("SELECT * From QRA ORDER BY Call");
    EXPECT_EQ(rows.Field("Call"), "DL1");
    rows.MoveLast();
    EXPECT_EQ(rows.Field("Call"), "YO9");
    EXPECT_EQ(memory.OpenRecordset("SELECT * FROM QRA WHERE Call='yo2'; ").Field(1), "KN16AA");
}

TEST_F(RecordSetTest, conditions)
{
    add("YO2ABC", "5");
    add("YO3XYZ", "");
    add("YO2ABC", "0");
    RecordSet rows = open("SELECT * FROM Uus144a WHERE Callsign='yo2abc'; ");
    EXPECT_EQ(rows.RecordCount(), 2);
    rows.MoveLast();
    EXPECT_EQ(rows.Field("Pct"), "0");
    EXPECT_EQ(open("SELECT * FROM Uus144a WHERE Pct>''; ").RecordCount(), 2);
    EXPECT_EQ(open("SELECT * FROM Uus144a WHERE Callsign='X' OR Pct='5'").RecordCount(), 1);
}

TEST_F(RecordSetTest, searchByTheStartOfACall)
{
    for (const char* call : {"YO2ABC", "yo2xyz", "YO3A", "YO2", "DL2YO2", "YO%A", "YO_A", "", "YP2"})
        add(call);
    const auto found = [&](const std::string& text) {
        RecordSet rows = open("SELECT * FROM Uus144A WHERE Callsign LIKE '" + text + "*' ORDER BY Callsign ; ");
        return callsFromHere(rows);
    };
    EXPECT_EQ(found("YO2"), (Texts{"YO2", "YO2ABC", "yo2xyz"}));
    EXPECT_EQ(found("yo2a"), (Texts{"YO2ABC"}));
    EXPECT_EQ(found("YO%"), (Texts{"YO%A"}));
    EXPECT_EQ(found("YO_"), (Texts{"YO_A"}));
    EXPECT_EQ(found("?O#"), (Texts{"YO2", "YO2ABC", "yo2xyz", "YO3A"}));
    EXPECT_EQ(found("YO[!2]"), (Texts{"YO%A", "YO3A", "YO_A"}));
    EXPECT_EQ(found("*2"), (Texts{"DL2YO2", "YO2", "YO2ABC", "yo2xyz", "YP2"}));
    EXPECT_EQ(found("").size(), 9U);
    EXPECT_EQ(errorOf([&] { found("YO["); }), base::invalidArgument);
    EXPECT_EQ(open("SELECT * FROM Uus144a WHERE NOT Callsign LIKE 'Y*'").RecordCount(), 2);
}

TEST_F(RecordSetTest, rowsWrittenLaterAreNotInTheSet)
{
    add("A");
    RecordSet rows = open("SELECT * FROM Uus144a ORDER BY Callsign");
    add("B");
    EXPECT_EQ(rows.RecordCount(), 1);
    rows.MoveLast();
    EXPECT_EQ(rows.Field(1), "A");
    EXPECT_EQ(rows.lastRows(5).size(), 1U);
    EXPECT_EQ(errorOf([&] { rows.moveTo(2); }), base::rowGone);
    rows.MoveNext();
    EXPECT_TRUE(rows.IsEof());
    EXPECT_EQ(open("SELECT * FROM Uus144a").RecordCount(), 2);
}

TEST_F(RecordSetTest, currentRowIsLookedUpAgainAfterAWrite)
{
    fill(log_, "Uus144a", 10);
    RecordSet rows = open("SELECT * FROM Uus144a");
    for (int i = 0; i < 4; ++i) {
        (void)rows.Field("Pct");
        rows.MoveNext();
    }
    log_.Execute("UPDATE Uus144a SET Pct = '0'");
    EXPECT_EQ(rows.Field("Pct"), "0");
    rows.MoveNext();
    EXPECT_EQ(rows.Field("Pct"), "0");
    EXPECT_EQ(rows.Field("ID"), "6");

    log_.Execute("DELETE * FROM Uus144a WHERE ID=6");
    EXPECT_EQ(errorOf([&] { (void)rows.Field("Pct"); }), base::rowGone);
    EXPECT_EQ(errorOf([&] { (void)rows.Field("Pct"); }), base::rowGone);
    EXPECT_EQ(errorOf([&] { rows.Delete(); }), base::rowGone);
    rows.MoveNext();
    EXPECT_EQ(rows.Field("ID"), "7");
    rows.MovePrevious();
    EXPECT_EQ(rows.Field("ID"), "5");
}

TEST_F(RecordSetTest, emptiedTable)
{
    fill(log_, "Uus144a", 10);
    RecordSet rows = open("SELECT * FROM Uus144a");
    (void)rows.Field(1);
    rows.MoveNext();
    log_.Execute("DELETE * FROM Uus144a");
    EXPECT_EQ(errorOf([&] { (void)rows.Field(1); }), base::rowGone);
    EXPECT_EQ(rows.RecordCount(), 0);
    EXPECT_EQ(errorOf([&] { rows.MoveFirst(); }), base::noCurrentRecord);
    EXPECT_TRUE(rows.IsEof() && rows.IsBof());
}

TEST_F(RecordSetTest, deletesTheCurrentRow)
{
    for (const char* call : {"A", "B", "C"})
        add(call);
    RecordSet rows = open("SELECT * FROM Uus144a ORDER BY Callsign");
    rows.MoveNext();
    rows.Delete();
    EXPECT_EQ(errorOf([&] { (void)rows.Field(1); }), base::rowGone);
    EXPECT_EQ(errorOf([&] { rows.Delete(); }), base::rowGone);
    rows.MoveNext();
    EXPECT_EQ(rows.Field(1), "C");
    rows.MovePrevious();
    EXPECT_EQ(rows.Field(1), "A");
    rows.MoveFirst();
    EXPECT_EQ(callsFromHere(rows), (Texts{"A", "C"}));
}

TEST_F(RecordSetTest, deletingWhatAnotherSetDeleted)
{
    add("A");
    RecordSet first = open("SELECT * FROM Uus144a");
    RecordSet second = open("SELECT * FROM Uus144a");
    first.Delete();
    EXPECT_EQ(errorOf([&] { second.Delete(); }), base::rowGone);
}

TEST_F(RecordSetTest, moveToAKey)
{
    for (const char* call : {"C", "A", "B"})
        add(call);
    RecordSet rows = open("SELECT * FROM Uus144a ORDER BY Callsign");
    rows.moveTo(3);
    EXPECT_EQ(rows.Field(1), "B");
    EXPECT_EQ(rows.currentKey(), 3);
    rows.MoveNext();
    EXPECT_EQ(rows.Field(1), "C");
    EXPECT_EQ(errorOf([&] { rows.moveTo(4); }), base::rowGone);
    EXPECT_EQ(rows.Field(1), "C");
    RecordSet some = open("SELECT * FROM Uus144a WHERE Callsign='A'");
    EXPECT_EQ(errorOf([&] { some.moveTo(3); }), base::rowGone);
}

TEST_F(RecordSetTest, rowsForAGrid)
{
    fill(log_, "Uus144a", 100);
    for (const char* order : {"", "ORDER BY Callsign"}) {
        RecordSet rows = open(std::string("SELECT * FROM Uus144a ") + order);
        rows.moveTo(50);
        const std::vector<Row> first = rows.firstRows(3);
        EXPECT_EQ(callsOf(first), (Texts{"YO00001", "YO00002", "YO00003"}));
        EXPECT_EQ(first[1].key, 2);
        EXPECT_EQ(first[1].columns.size(), 10U);
        EXPECT_EQ(callsOf(rows.lastRows(2)), (Texts{"YO00099", "YO00100"}));
        EXPECT_EQ(callsOf(rows.rowsAfter(first[2], 2)), (Texts{"YO00004", "YO00005"}));
        EXPECT_EQ(callsOf(rows.rowsBefore(first[2], 5)), (Texts{"YO00001", "YO00002"}));
        EXPECT_EQ(rows.firstRows(1000).size(), 100U);
        EXPECT_TRUE(rows.firstRows(0).empty());
        EXPECT_EQ(rows.currentKey(), 50);
        EXPECT_EQ(rows.Field(1), "YO00050");
    }
}

TEST_F(RecordSetTest, placeOfARowThatIsGone)
{
    fill(log_, "Uus144a", 9);
    RecordSet rows = open("SELECT * FROM Uus144a ORDER BY Callsign");
    const Row anchor = rows.firstRows(5).back();
    log_.Execute("DELETE * FROM Uus144a WHERE ID=5");
    EXPECT_EQ(callsOf(rows.rowsAfter(anchor, 2)), (Texts{"YO00006", "YO00007"}));
    EXPECT_EQ(callsOf(rows.rowsBefore(anchor, 2)), (Texts{"YO00003", "YO00004"}));
}

/// Shares of sets in several orders. The model counts, as the program does not.
class RecordSetShare : public RecordSetTest {
 protected:
    static Row rowOf(const RecordSet& rows, double share)
    {
        const std::vector<Row> found = rows.rowsAtShare(share, 1);
        return found.empty() ? Row{} : found.front();
    }

    static std::vector<std::int64_t> keysOf(const std::vector<Row>& rows)
    {
        std::vector<std::int64_t> keys;
        for (const Row& row : rows)
            keys.push_back(row.key);
        return keys;
    }

    /// From end to end and back: ever later rows, from the first to the last; shares that grow with the rows.
    static void expectEvenlyRising(const RecordSet& rows)
    {
        const std::vector<Row> all = rows.firstRows(static_cast<std::size_t>(rows.RecordCount()));
        const std::vector<std::int64_t> keys = keysOf(all);
        const auto rankOf = [&](const Row& row) { return std::find(keys.begin(), keys.end(), row.key) - keys.begin(); };
        constexpr int steps = 500;
        std::ptrdiff_t before = 0;
        for (int step = 0; step < steps; ++step) {
            const std::ptrdiff_t rank = rankOf(rowOf(rows, static_cast<double>(step) / steps));
            EXPECT_GE(rank, before) << step;
            before = rank;
        }
        EXPECT_EQ(rankOf(rowOf(rows, 0)), 0);
        EXPECT_EQ(rowOf(rows, 1).key, keys.back());

        double shareBefore = 0;
        for (const Row& row : all) {
            const double share = rows.shareBefore(row);
            EXPECT_GE(share, shareBefore) << row.key;
            shareBefore = share;
        }
        EXPECT_DOUBLE_EQ(rows.shareBefore(all.front()), 0);
        EXPECT_DOUBLE_EQ(shareBefore, all.size() == 1 ? 0 : 1);
    }

    /// How far shares are from what a count would give.
    static double worstError(const RecordSet& rows)
    {
        const std::vector<Row> all = rows.firstRows(static_cast<std::size_t>(rows.RecordCount()));
        double worst = 0;
        for (std::size_t rank = 0; rank < all.size(); ++rank) {
            const double truth = static_cast<double>(rank) / static_cast<double>(all.size() - 1);
            worst = std::max(worst, std::abs(rows.shareBefore(all[rank]) - truth));
        }
        return worst;
    }

    /// `count` rows in one go, their values told from their number i, from 0.
    static void insert(storage::Database& database, const std::string& table, int count, const std::string& values)
    {
        database.Execute("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < " +
                         base::toText(count) + ") INSERT INTO " + table + " SELECT " + values + " FROM n");
    }

    /// Calls as a contest brings them, in no order: nine of ten from one country, and the others from all over.
    void fillWithCalls(const std::string& table, int count)
    {
        const std::string scattered = "(i * 7919 % 10007)";
        insert(log_, table + " (Callsign)", count,
               "CASE WHEN i % 10 > 0 THEN 'YO' ELSE char(65 + " + scattered + " % 26, 65 + " + scattered +
                   " / 26 % 26) END || (" + scattered + " % 10) || char(65 + " + scattered + " / 10 % 26, 65 + " +
                   scattered + " / 260 % 26, 65 + i % 26)");
    }
};

TEST_F(RecordSetShare, InTheOrderOfTheKeysComesFromTheKeys)
{
    fill(log_, "Uus144a", 101);
    const RecordSet rows = open("SELECT * FROM Uus144a ");
    const std::vector<Row> all = rows.firstRows(200);
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_DOUBLE_EQ(rows.shareBefore(all[i]), static_cast<double>(i) / 100);
        EXPECT_EQ(rowOf(rows, static_cast<double>(i) / 100).key, all[i].key) << "there and back";
    }
    EXPECT_EQ(keysOf(rows.rowsAtShare(0.5, 3)), (std::vector<std::int64_t>{51, 52, 53}));
    EXPECT_EQ(keysOf(rows.rowsAtShare(0.99, 3)), (std::vector<std::int64_t>{100, 101}));
    EXPECT_EQ(rowOf(rows, -1).key, 1);
    EXPECT_EQ(rowOf(rows, 2).key, 101);
    expectEvenlyRising(rows);
}

TEST_F(RecordSetShare, BehindAGapTheNextRowIsTaken)
{
    fill(log_, "Uus144a", 100);
    log_.Execute("DELETE * FROM Uus144a WHERE ID>20 AND ID<81");
    const RecordSet rows = open("SELECT * FROM Uus144a ");
    EXPECT_EQ(rowOf(rows, 0.5).key, 81);
    EXPECT_DOUBLE_EQ(rows.shareBefore(rows.rowsAtShare(0.5, 1).front()), 80.0 / 99);
    expectEvenlyRising(rows);
}

TEST_F(RecordSetShare, FollowsADeletionAtAnEnd)
{
    fill(log_, "Uus144a", 21);
    RecordSet rows = open("SELECT * FROM Uus144a ");
    EXPECT_DOUBLE_EQ(rows.shareBefore(rows.lastRows(1).front()), 1);
    log_.Execute("DELETE * FROM Uus144a WHERE ID<11");
    EXPECT_DOUBLE_EQ(rows.shareBefore(rows.firstRows(1).front()), 0);
    EXPECT_EQ(rowOf(rows, 0.5).key, 16);
    rows.MoveFirst();
    const Row gone = rows.firstRows(1).front();
    rows.Delete();
    EXPECT_DOUBLE_EQ(rows.shareBefore(gone), 0);
}

TEST_F(RecordSetShare, OfOneRowAndOfNone)
{
    for (const char* order : {"", "ORDER BY Callsign"}) {
        log_.Execute("DELETE * FROM Uus144a");
        const RecordSet none = open(std::string("SELECT * FROM Uus144a ") + order);
        EXPECT_TRUE(none.rowsAtShare(0.5, 5).empty());
        EXPECT_DOUBLE_EQ(none.shareBefore({}), 0);
        add("YO2ABC");
        const RecordSet one = open(std::string("SELECT * FROM Uus144a ") + order);
        for (const double share : {0.0, 0.5, 1.0})
            EXPECT_EQ(callsOf(one.rowsAtShare(share, 5)), Texts{"YO2ABC"});
        EXPECT_DOUBLE_EQ(one.shareBefore(one.firstRows(1).front()), 0);
    }
}

TEST_F(RecordSetShare, OneBandOfAllIsInTheOrderOfItsKeys)
{
    insert(log_, "UusLGYO2 (Callsign, Bnd)", 120, "'YO' || i, CASE i % 3 WHEN 0 THEN '144' WHEN 1 THEN '432' END");
    for (const char* order : {"ORDER BY Bnd , ID; ", "ORDER BY ID ", ""}) {
        const RecordSet rows = open(std::string("SELECT * FROM UusLGYO2 WHERE Bnd='432' ") + order);
        EXPECT_EQ(keysOf(rows.rowsAtShare(0.5, 2)), (std::vector<std::int64_t>{62, 65})) << order;
        EXPECT_DOUBLE_EQ(rows.shareBefore(rows.firstRows(11).back()), 10.0 / 39);
        expectEvenlyRising(rows);
    }
}

TEST_F(RecordSetShare, SortedByCallItComesNearToACount)
{
    fillWithCalls("Uus144a", 2000);
    const RecordSet rows = open("SELECT * FROM Uus144a ORDER BY Callsign");
    expectEvenlyRising(rows);
    EXPECT_LT(worstError(rows), 0.1);
}

TEST_F(RecordSetShare, OfANarrowedLog)
{
    fillWithCalls("Uus144a", 2000);
    for (const char* start : {"Y", "YO", "YO3", "YO3A"}) {
        const RecordSet rows =
            open("SELECT * FROM Uus144a WHERE Callsign LIKE '" + std::string(start) + "*' ORDER BY Callsign ; ");
        ASSERT_GT(rows.RecordCount(), 1) << start;
        expectEvenlyRising(rows);
    }
}

TEST_F(RecordSetShare, OfTheSameCallsOverAndOver)
{
    insert(log_, "Uus144a (Callsign)", 300, "CASE i % 3 WHEN 0 THEN 'YO2ABC' WHEN 1 THEN 'yo2abc' ELSE 'YO3XYZ' END");
    const RecordSet rows = open("SELECT * FROM Uus144a ORDER BY Callsign");
    expectEvenlyRising(rows);
    EXPECT_LT(worstError(rows), 0.1);
}

TEST_F(RecordSetShare, OfNullsAndEmptyTexts)
{
    insert(log_, "UusLGYO2 (Callsign, Bnd)", 120,
           "'YO2ABC', CASE i % 4 WHEN 0 THEN '' WHEN 1 THEN '144' WHEN 2 THEN '1296' END");
    expectEvenlyRising(open("SELECT * FROM UusLGYO2 ORDER BY Bnd , ID "));
}

TEST_F(RecordSetShare, OfTheLocatorMemory)
{
    storage::Database memory = storage::OpenDatabase(folder_.designPath("DbsKelvo.mdb"));
    insert(memory, "QRA (Call, QRA_LOC)", 500, "'YO' || (i * 37 % 500), 'KN16AA'");
    const RecordSet rows = memory.OpenRecordset("SELECT * From QRA ORDER BY Call");
    expectEvenlyRising(rows);
    EXPECT_LT(worstError(rows), 0.1);
}

TEST_F(RecordSetTest, everyOpeningIsAnotherGeneration)
{
    const RecordSet first = open("SELECT * FROM Uus144a");
    const RecordSet second = open("SELECT * FROM Uus144a");
    EXPECT_NE(first.generation(), second.generation());
}

TEST_F(RecordSetTest, badStatementsAreInvalid)
{
    for (const char* statement :
         {"", "DELETE * FROM Uus144a", "SELECT * FROM Uus144a WHERE Colour='red'", "SELECT * FROM Uus144a WHERE",
          "SELECT * FROM Uus144a ORDER BY Colour", "SELECT * FROM Uus144a WHERE Callsign='O'Neil'; ",
          "SELECT * FROM Uus144a WHERE Callsign='A' UNION SELECT * FROM Uus144b",
          "SELECT * FROM Uus144a WHERE Callsign LIKE 'A' ESCAPE"})
        EXPECT_EQ(errorOf([&] { open(statement); }), base::invalidArgument) << statement;
    EXPECT_EQ(errorOf([&] { open("SELECT * FROM open"); }), base::noDatabase);
}

TEST_F(RecordSetTest, walkGoesOnBehindAFailure)
{
    log_.Close();
    test::PowerCutVfs disk;
    disk.load(folder_.file("LogKelvo.mdb"));
    log_ = storage::OpenDatabase(folder_.designPath("LogKelvo.mdb"));
    fill(log_, "Uus144a", 100);
    {
        RecordSet rows = open("SELECT * FROM Uus144a");
        for (long number = 1; number <= 100; ++number) {
            EXPECT_EQ(rows.Field(0), base::toText(number));
            // At the end of a block the next one cannot be read; within it nothing has to be.
            disk.failReads(SQLITE_IOERR_READ);
            const int error = errorOf([&] { rows.MoveNext(); });
            disk.failReads(0);
            if (error == 0) continue;
            EXPECT_EQ(error, base::existsOrNoAccess);
            EXPECT_EQ(rows.Field(0), base::toText(number));
            rows.MoveNext();
        }
        EXPECT_TRUE(rows.IsEof());
    }
    log_.Close();
}

TEST_F(RecordSetTest, livesLongerThanTheDatabaseThatOpenedIt)
{
    add("A");
    RecordSet rows = open("SELECT * FROM Uus144a");
    log_.Close();
    EXPECT_EQ(rows.Field(1), "A");
    rows.MoveNext();
    EXPECT_TRUE(rows.IsEof());
}

/// How many reads of the file an action takes, from a freshly opened connection.
class RecordSetCost : public RecordSetTest {
 protected:
    template <typename Action>
    std::uint64_t readsFor(long rowsInTable, const std::string& table, Action&& action)
    {
        log_.Close();
        const test::TemporaryFolder folder;
        storage::makeMissingDatabases(folder.path());
        {
            storage::Database database = storage::OpenDatabase(folder.designPath("LogKelvo.mdb"));
            fill(database, table, rowsInTable);
            database.Execute("UPDATE " + table + " SET Mode = 'CW', QRALoc = 'KN16AA'");
        }
        test::PowerCutVfs disk;
        disk.load(folder.file("LogKelvo.mdb"));
        const storage::Database database = storage::OpenDatabase(folder.designPath("LogKelvo.mdb"));
        const std::uint64_t before = disk.reads();
        action(database);
        return disk.reads() - before;
    }

    /// A tree over a hundred times more rows is one or two levels higher, no more.
    template <typename Action>
    void expectTheSameAtAnySize(Action&& action)
    {
        const std::uint64_t few = readsFor(300, "Uus144a", action);
        const std::uint64_t many = readsFor(30000, "Uus144a", action);
        EXPECT_LE(many, few + 40) << few << " reads in a short log";
    }
};

TEST_F(RecordSetCost, showingTheNewestRows)
{
    expectTheSameAtAnySize([](const storage::Database& database) {
        RecordSet rows = database.OpenRecordset("SELECT * FROM Uus144a ");
        rows.MoveLast();
        EXPECT_EQ(rows.lastRows(20).size(), 20U);
    });
}

TEST_F(RecordSetCost, lookingUpACall)
{
    expectTheSameAtAnySize([](const storage::Database& database) {
        RecordSet rows = database.OpenRecordset("SELECT * FROM Uus144a WHERE Callsign='YO00123'; ");
        rows.MoveLast();
        EXPECT_EQ(rows.RecordCount(), 1);
    });
}

TEST_F(RecordSetCost, searchingByTheStartOfACall)
{
    expectTheSameAtAnySize([](const storage::Database& database) {
        for (const char* start : {"", "Y", "YO", "YO0", "YO00", "YO002"}) {
            const RecordSet rows = database.OpenRecordset("SELECT * FROM Uus144A WHERE Callsign LIKE '" +
                                                          std::string(start) + "*' ORDER BY Callsign ; ");
            EXPECT_EQ(rows.firstRows(20).size(), 20U);
            EXPECT_EQ(rows.rowsAfter(rows.lastRows(3).front(), 2).size(), 2U);
            EXPECT_EQ(rows.rowsBefore(rows.firstRows(3).back(), 2).size(), 2U);
        }
    });
}

TEST_F(RecordSetCost, lastRowWithPoints)
{
    expectTheSameAtAnySize([](const storage::Database& database) {
        RecordSet rows = database.OpenRecordset("SELECT * FROM Uus144a WHERE Pct>''; ");
        rows.MoveLast();
        EXPECT_FALSE(rows.Field("Sent").empty());
    });
}

TEST_F(RecordSetCost, rowsAtAShareOfTheLog)
{
    expectTheSameAtAnySize([](const storage::Database& database) {
        const RecordSet rows = database.OpenRecordset("SELECT * FROM Uus144a ");
        for (const double share : {0.1, 0.5, 0.9}) {
            const Row row = rows.rowsAtShare(share, 20).front();
            EXPECT_NEAR(rows.shareBefore(row), share, 0.01);
        }
    });
}

TEST_F(RecordSetCost, rowsAtAShareOfASortedLog)
{
    // The sample is as big at any size, but in a short log its rows lie together.
    constexpr std::uint64_t sample = 128;
    const auto drag = [](const storage::Database& database) {
        const RecordSet rows = database.OpenRecordset("SELECT * FROM Uus144a ORDER BY Callsign");
        EXPECT_EQ(rows.rowsAtShare(0.5, 20).size(), 20U);
        EXPECT_EQ(rows.rowsAtShare(0.25, 20).size(), 20U);
    };
    EXPECT_LE(readsFor(30000, "Uus144a", drag), readsFor(300, "Uus144a", drag) + 2 * sample + 40);
}

TEST_F(RecordSetCost, duplicateAndBandOfTheMaratonLog)
{
    const auto reads = [&](long count) {
        test::TemporaryFolder folder;
        storage::makeMissingDatabases(folder.path());
        {
            storage::Database database = storage::OpenDatabase(folder.designPath("LogKelvo.mdb"));
            database.Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                             base::toText(count) +
                             ") INSERT INTO UusLGYO2 (Callsign, Data, Bnd) "
                             "SELECT printf('YO%05d', i), '15.11.26', CASE i WHEN 1 THEN '432' ELSE '144' END FROM n");
        }
        test::PowerCutVfs disk;
        disk.load(folder.file("LogKelvo.mdb"));
        const storage::Database database = storage::OpenDatabase(folder.designPath("LogKelvo.mdb"));
        const std::uint64_t before = disk.reads();
        EXPECT_EQ(database
                      .OpenRecordset("SELECT * FROM UusLGYO2 WHERE Callsign='YO00123' and Bnd='144' and "
                                     "Data='15.11.26'; ")
                      .RecordCount(),
                  1);
        RecordSet band = database.OpenRecordset("SELECT * FROM UusLGYO2 WHERE Bnd='432' ORDER BY ID ");
        band.MoveLast();
        EXPECT_EQ(band.lastRows(20).size(), 1U);
        // Nothing stands behind a window at an end: that is not found out row by row.
        band = database.OpenRecordset("SELECT * FROM UusLGYO2 WHERE Bnd='144' ORDER BY Bnd , ID; ");
        EXPECT_TRUE(band.rowsAfter(band.lastRows(5).back(), 1).empty());
        EXPECT_TRUE(band.rowsBefore(band.firstRows(5).front(), 1).empty());
        return disk.reads() - before;
    };
    EXPECT_LE(reads(30000), reads(300) + 40);
}

}  // namespace
