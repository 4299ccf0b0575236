// A record set: a statement, the greatest `ID` when it was opened, and a position.
//
// Rows are fetched in blocks by key, forwards and backwards; no statement stays open between two calls, and only the
// columns that somebody reads are decoded. Rows written later than the opening are not part of the set.
//
// Errors: 91 the set was never opened; 3021 there is no current record; 3167 the current row is gone; 9 no such column.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace storage {

class Connection;
class RecordSetCursor;

/// One row as the grid shows it: its key, and the text of every column. A null column is empty text.
struct Row {
    std::int64_t key = 0;
    std::vector<std::string> columns;
};

class RecordSet {
 public:
    RecordSet();  ///< not opened: everything raises error 91
    RecordSet(std::shared_ptr<Connection> connection, const std::string& statement);
    RecordSet(RecordSet&&) noexcept;
    RecordSet& operator=(RecordSet&&) noexcept;
    ~RecordSet();

    bool isOpen() const;

    /// Behind the last or before the first row; both are true for an empty set.
    bool IsEof() const;
    bool IsBof() const;

    /// 3021 when there is no row to go to. From the last row MoveNext goes behind it, from there it gives 3021; the
    /// same holds for MovePrevious at the other end.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    /// Number of rows in the set, counted now.
    long RecordCount() const;

    /// Text of a column of the current row, by number from 0 or by name without regard to case; it stays valid until
    /// the next move. After a write through the database the row is looked up again.
    const std::string& Field(int number) const;
    const std::string& Field(std::string_view name) const;

    /// Deletes the current row from the table. 3167 when somebody else did. The position stays at the row's place:
    /// reading there gives 3167, a move goes on to the neighbours.
    void Delete();

    /// Key of the current row (its `ID`, in a table without one the order of entry), nothing without a current row.
    std::optional<std::int64_t> currentKey() const;

    /// Puts the position on the row with this key. 3167 when the set has no such row (any more).
    void moveTo(std::int64_t key);

    /// Names of the columns.
    const std::vector<std::string>& columnNames() const;

    /// A number that is different for every opening, so that a picture of the rows can be told from an older one.
    std::uint64_t generation() const;

    /// Up to `count` rows in the set's order, for a grid; these leave the position alone.
    std::vector<Row> firstRows(std::size_t count) const;
    std::vector<Row> lastRows(std::size_t count) const;
    /// Rows behind (or before) the place of `anchor`, which need not exist any more; in the set's order.
    std::vector<Row> rowsAfter(const Row& anchor, std::size_t count) const;
    std::vector<Row> rowsBefore(const Row& anchor, std::size_t count) const;

    /// About which share of the set stands before a row: 0 at the first row, 1 at the last, 0 in an empty set. Nobody
    /// counts for it: it is told from the keys of the ends where the set is in the order of its keys, elsewhere from
    /// what the rows of a sample are sorted by. It never falls from a row to a later one.
    double shareBefore(const Row& row) const;
    /// Up to `count` rows from about the place on that has this share of the set before it. A greater share gives no
    /// earlier rows.
    std::vector<Row> rowsAtShare(double share, std::size_t count) const;

 private:
    RecordSetCursor& cursor() const;

    std::unique_ptr<RecordSetCursor> cursor_;
};

}  // namespace storage
