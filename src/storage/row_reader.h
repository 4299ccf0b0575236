// Reads the rows of a selection, from any place in its order, in either direction.
//
// The place of a row is its values in the order of the selection, and behind them its key. Where a walk goes on is
// found by that place and never by counting, so that it costs the same at the first row and at the last.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "storage/record_set.h"
#include "storage/statement.h"

namespace storage {

class Connection;
class PreparedStatement;

enum class Direction { forward, backward };

struct Place {
    std::int64_t key = 0;
    std::vector<std::optional<std::string>> order;  ///< one for each column of the order; nothing stands for null
};

/// Some neighbouring rows, in the order of the selection, with the text of some of their columns.
struct Block {
    std::vector<int> columns;        ///< numbers of the columns that were read
    std::vector<Place> places;       ///< one a row
    std::vector<std::string> cells;  ///< at least one a row and column that was read, row by row

    std::string& cell(std::size_t row, std::size_t nth) { return cells[row * columns.size() + nth]; }
};

class RowReader {
 public:
    /// Errors: 3059 when the table is not there, 5 when the selection is none.
    RowReader(std::shared_ptr<Connection> connection, const Selection& selection);

    const std::vector<std::string>& columnNames() const { return columnNames_; }
    Connection& connection() const { return *connection_; }

    /// Fills the block with up to `count` rows behind a place, backward in front of it; without a place from the end
    /// where that direction begins.
    void read(Direction direction, const Place* from, std::size_t count, Block& block) const;

    /// Place of the row with this key, if it belongs to the set.
    std::optional<Place> find(std::int64_t key) const;

    /// Place of a row that was read before and may have gone since.
    Place placeOf(const Row& row) const;

    /// Texts of all columns of a row of the table. False when it is gone.
    bool readRow(std::int64_t key, std::vector<std::string>& texts) const;

    /// Deletes a row of the table. False when it is gone already.
    bool deleteRow(std::int64_t key) const;

    /// Places of some rows, from the whole set and without an order, with the first and the last row among them; none
    /// for an empty set. As many lie between each two of them as chance has it. Their number does not depend on the
    /// set.
    std::vector<Place> marks() const;

    /// Number of rows in the set.
    std::int64_t count() const;

 private:
    struct Stretch;

    void readColumnNames();
    void resolveOrder(const Selection& selection);
    std::vector<Stretch> stretchesFrom(Direction direction, const Place* from) const;
    void readStretch(const Stretch& stretch, Direction direction, std::size_t count, Block& block) const;
    void addSamples(std::vector<Place>& marks) const;
    Place placeIn(const PreparedStatement& row) const;
    std::string whereClause(const std::string& stretch) const;
    std::string orderClause(Direction direction) const;
    std::string orderColumns() const;
    std::string column(int number) const;

    std::shared_ptr<Connection> connection_;
    std::string table_;
    std::string condition_;
    std::vector<std::string> columnNames_;
    std::vector<int> order_;    ///< columns in front of the key
    std::int64_t lastKey_ = 0;  ///< rows written later are not part of the set
};

}  // namespace storage
