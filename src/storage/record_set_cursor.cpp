#include "storage/record_set_cursor.h"

#include <algorithm>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "storage/connection.h"
#include "storage/statement.h"

namespace storage {

namespace {

/// Blocks grow from a look at one row to this while a walk goes on.
constexpr std::size_t greatestBlock = 1024;
constexpr std::size_t blockGrowth = 8;

std::uint64_t nextGeneration()
{
    static std::uint64_t last = 0;
    return ++last;
}

}  // namespace

RecordSetCursor::RecordSetCursor(std::shared_ptr<Connection> connection, const std::string& statement)
    : reader_(std::move(connection), parseSelection(statement)), generation_(nextGeneration())
{
    if (columnNames().size() > mostColumns)
        throw base::RuntimeError(base::invalidArgument, "Too many columns for a record set: " + statement);
    current_.resize(columnNames().size());
    if (readBlock(Direction::forward, nullptr, 1)) standOn(0);
}

void RecordSetCursor::moveToEnd(Direction direction)
{
    if (state_ == State::empty || !readBlock(direction, nullptr, 1)) {
        state_ = State::empty;
        throw base::RuntimeError(base::noCurrentRecord, "There is no row to go to");
    }
    standOn(0);
}

void RecordSetCursor::moveBy(Direction direction)
{
    const bool forward = direction == Direction::forward;
    if (forward ? isEof() : isBof()) throw base::RuntimeError(base::noCurrentRecord, "There is no row to go on to");
    if (state_ != State::onRow) return moveToEnd(direction);
    if (stepInBlock(direction)) return;
    if (readBlock(direction, &place_, nextBlockSize()))
        standOn(forward ? 0 : block_.places.size() - 1);
    else
        state_ = forward ? State::behindLast : State::beforeFirst;
}

bool RecordSetCursor::stepInBlock(Direction direction)
{
    const bool lacksColumns = (wanted_ & ~blockColumns_).any();
    if (!blockIsFresh() || lacksColumns) return false;
    if (direction == Direction::forward) {
        if (blockRow_ + 1 >= block_.places.size()) return false;
        standOn(blockRow_ + 1);
    } else {
        if (blockRow_ == 0) return false;
        standOn(blockRow_ - 1);
    }
    return true;
}

/// Where every step writes, a long block would be read for nothing.
std::size_t RecordSetCursor::nextBlockSize() const
{
    if (!blockIsFresh()) return 1;
    return std::clamp(block_.places.size() * blockGrowth, blockGrowth, greatestBlock);
}

bool RecordSetCursor::blockIsFresh() const
{
    return blockWhole_ && blockWrites_ == reader_.connection().writes();
}

/// The position stays as it is; standOn puts it into the block.
bool RecordSetCursor::readBlock(Direction direction, const Place* from, std::size_t count)
{
    blockWhole_ = false;
    blockWrites_ = reader_.connection().writes();
    blockColumns_ = wanted_;
    block_.columns.clear();
    for (std::size_t number = 0; number < current_.size(); ++number)
        if (wanted_[number]) block_.columns.push_back(static_cast<int>(number));
    reader_.read(direction, from, count, block_);
    blockWhole_ = true;
    return !block_.places.empty();
}

void RecordSetCursor::standOn(std::size_t row)
{
    state_ = State::onRow;
    blockRow_ = row;
    place_ = block_.places[row];
    loaded_.reset();
    currentWrites_ = blockWrites_;
}

void RecordSetCursor::moveTo(std::int64_t key)
{
    const std::optional<Place> found = reader_.find(key);
    if (!found) throw base::RuntimeError(base::rowGone, "The row " + base::toText(key) + " is gone");
    block_.places.assign(1, *found);
    block_.columns.clear();
    blockColumns_.reset();
    blockWhole_ = true;
    blockWrites_ = reader_.connection().writes();
    standOn(0);
}

void RecordSetCursor::requireRow() const
{
    if (state_ != State::onRow) throw base::RuntimeError(base::noCurrentRecord, "There is no current row");
}

const std::string& RecordSetCursor::field(int number)
{
    if (number < 0 || static_cast<std::size_t>(number) >= current_.size())
        throw base::RuntimeError(base::badIndex, "There is no column " + base::toText(number));
    requireRow();
    const auto wanted = static_cast<std::size_t>(number);
    wanted_.set(wanted);
    if (currentWrites_ != reader_.connection().writes()) loaded_.reset();
    if (!loaded_[wanted]) load(wanted);
    return current_[wanted];
}

void RecordSetCursor::load(std::size_t number)
{
    if (blockColumns_[number] && blockIsFresh()) {
        const auto nth = std::lower_bound(block_.columns.begin(), block_.columns.end(), static_cast<int>(number));
        current_[number] = block_.cell(blockRow_, static_cast<std::size_t>(nth - block_.columns.begin()));
        loaded_.set(number);
        return;
    }
    if (!reader_.readRow(place_.key, current_)) throw base::RuntimeError(base::rowGone, "The current row is gone");
    currentWrites_ = reader_.connection().writes();
    loaded_.set();
}

int RecordSetCursor::columnNumber(std::string_view name) const
{
    const auto found = std::find_if(columnNames().begin(), columnNames().end(), [&](const std::string& columnName) {
        return base::equalIgnoringCase(columnName, name);
    });
    if (found == columnNames().end())
        throw base::RuntimeError(base::badIndex, "There is no column " + std::string(name));
    return static_cast<int>(found - columnNames().begin());
}

void RecordSetCursor::deleteRow()
{
    requireRow();
    if (!reader_.deleteRow(place_.key)) throw base::RuntimeError(base::rowGone, "The current row is gone");
}

std::optional<std::int64_t> RecordSetCursor::currentKey() const
{
    if (state_ != State::onRow) return std::nullopt;
    return place_.key;
}

std::vector<Row> RecordSetCursor::rows(Direction direction, const Row* anchor, std::size_t count) const
{
    if (anchor == nullptr) return readRows(direction, nullptr, count);
    const Place from = reader_.placeOf(*anchor);
    return readRows(direction, &from, count);
}

/// Nothing for an empty set.
const PlaceScale* RecordSetCursor::scale() const
{
    if (scale_ && scaleWrites_ == reader_.connection().writes()) return &*scale_;
    scaleWrites_ = reader_.connection().writes();
    std::vector<Place> marks = reader_.marks();
    if (marks.empty())
        scale_.reset();
    else
        scale_.emplace(std::move(marks));
    return scale_ ? &*scale_ : nullptr;
}

double RecordSetCursor::shareBefore(const Row& row) const
{
    const PlaceScale* const scale = this->scale();
    return scale == nullptr ? 0 : scale->shareBefore(reader_.placeOf(row));
}

std::vector<Row> RecordSetCursor::rowsAtShare(double share, std::size_t count) const
{
    const PlaceScale* const scale = this->scale();
    if (scale == nullptr) return {};
    const Place from = scale->placeAt(share);
    return readRows(Direction::forward, &from, count);
}

std::vector<Row> RecordSetCursor::readRows(Direction direction, const Place* from, std::size_t count) const
{
    Block block;
    for (std::size_t number = 0; number < current_.size(); ++number)
        block.columns.push_back(static_cast<int>(number));
    reader_.read(direction, from, count, block);

    std::vector<Row> rows(block.places.size());
    for (std::size_t row = 0; row < rows.size(); ++row) {
        rows[row].key = block.places[row].key;
        for (std::size_t nth = 0; nth < block.columns.size(); ++nth)
            rows[row].columns.push_back(std::move(block.cell(row, nth)));
    }
    return rows;
}

}  // namespace storage
