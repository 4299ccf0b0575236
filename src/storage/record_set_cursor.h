// The position of a record set, and the block of rows around it.
#pragma once

#include <bitset>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/place_scale.h"
#include "storage/row_reader.h"

namespace storage {

/// Does the work of RecordSet, which tells what each of these is for.
class RecordSetCursor {
 public:
    RecordSetCursor(std::shared_ptr<Connection> connection, const std::string& statement);

    bool isEof() const { return state_ == State::empty || state_ == State::behindLast; }
    bool isBof() const { return state_ == State::empty || state_ == State::beforeFirst; }
    void moveFirst() { moveToEnd(Direction::forward); }
    void moveLast() { moveToEnd(Direction::backward); }
    void moveNext() { moveBy(Direction::forward); }
    void movePrevious() { moveBy(Direction::backward); }
    void moveTo(std::int64_t key);

    const std::string& field(int number);
    /// Number of a column. Error 9 when the set has none of that name.
    int columnNumber(std::string_view name) const;
    void deleteRow();
    std::optional<std::int64_t> currentKey() const;

    std::vector<Row> rows(Direction direction, const Row* anchor, std::size_t count) const;
    double shareBefore(const Row& row) const;
    std::vector<Row> rowsAtShare(double share, std::size_t count) const;
    std::int64_t count() const { return reader_.count(); }
    const std::vector<std::string>& columnNames() const { return reader_.columnNames(); }
    std::uint64_t generation() const { return generation_; }

 private:
    static constexpr std::size_t mostColumns = 64;
    using Columns = std::bitset<mostColumns>;

    enum class State { empty, beforeFirst, onRow, behindLast };

    void moveToEnd(Direction direction);
    void moveBy(Direction direction);
    bool stepInBlock(Direction direction);
    bool readBlock(Direction direction, const Place* from, std::size_t count);
    void standOn(std::size_t row);
    bool blockIsFresh() const;
    std::vector<Row> readRows(Direction direction, const Place* from, std::size_t count) const;
    const PlaceScale* scale() const;
    void requireRow() const;
    void load(std::size_t number);
    std::size_t nextBlockSize() const;

    RowReader reader_;
    std::uint64_t generation_;
    State state_ = State::empty;
    Place place_;  ///< of the current row; stays when the row is gone, so that the walk can go on

    Block block_;
    bool blockWhole_ = false;        ///< false while it is read, and after a failure there
    std::size_t blockRow_ = 0;       ///< current row in the block
    std::uint64_t blockWrites_ = 0;  ///< writes of the connection when the block was read
    Columns blockColumns_;
    Columns wanted_;  ///< columns that somebody has read

    std::vector<std::string> current_;  ///< texts of the current row; references to them go out
    std::uint64_t currentWrites_ = 0;
    Columns loaded_;  ///< columns of the current row that stand in `current_`

    // Made when it is asked for, and again behind a write.
    mutable std::optional<PlaceScale> scale_;
    mutable std::uint64_t scaleWrites_ = 0;
};

}  // namespace storage
