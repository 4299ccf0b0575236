#include "storage/row_reader.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "base/runtime_error.h"
#include "base/text.h"
#include "storage/connection.h"
#include "storage/prepared_statement.h"

namespace storage {

/// Neighbouring rows that one index range gives: a condition and its values.
struct RowReader::Stretch {
    std::string condition;
    std::vector<std::variant<std::int64_t, std::string>> values;

    void require(const std::string& term)
    {
        if (!condition.empty()) condition += " AND ";
        condition += term;
    }

    void require(const std::string& term, const std::variant<std::int64_t, std::string>& value)
    {
        require(term);
        values.push_back(value);
    }

    void bindTo(PreparedStatement& statement) const
    {
        for (const auto& value : values)
            std::visit([&](const auto& present) { statement.bind(present); }, value);
    }
};

RowReader::RowReader(std::shared_ptr<Connection> connection, const Selection& selection)
    : connection_(std::move(connection)), table_(selection.table), condition_(selection.condition)
{
    readColumnNames();
    resolveOrder(selection);
    PreparedStatement greatest(*connection_, "SELECT max(rowid) FROM " + table_);
    if (greatest.step()) lastKey_ = greatest.integer(0);
}

void RowReader::readColumnNames()
{
    const PreparedStatement all(*connection_, "SELECT * FROM " + table_);
    for (int number = 0; number < all.columnCount(); ++number)
        columnNames_.push_back(all.columnName(number));
}

/// The counter `ID` is the key itself, which ends every order; no column behind it can make a difference, nor can one
/// that has the same value in all rows.
void RowReader::resolveOrder(const Selection& selection)
{
    for (const std::string& name : selection.order) {
        const auto sameName = [&](const std::string& other) { return base::equalIgnoringCase(other, name); };
        const auto found = std::find_if(columnNames_.begin(), columnNames_.end(), sameName);
        if (found == columnNames_.end())
            throw base::RuntimeError(base::invalidArgument, table_ + " has no column " + name);
        if (base::equalIgnoringCase(name, "ID")) return;
        if (std::any_of(selection.fixed.begin(), selection.fixed.end(), sameName)) continue;
        order_.push_back(static_cast<int>(found - columnNames_.begin()));
    }
}

std::string RowReader::column(int number) const
{
    return '"' + columnNames_[static_cast<std::size_t>(number)] + '"';
}

std::string RowReader::orderColumns() const
{
    std::string list;
    for (const int number : order_)
        list += ", " + column(number);
    return list;
}

std::string RowReader::orderClause(Direction direction) const
{
    const std::string sense = direction == Direction::backward ? " DESC" : "";
    std::string clause = " ORDER BY ";
    for (const int number : order_)
        clause += column(number) + sense + ", ";
    return clause + "rowid" + sense;
}

/// The stretch comes first: of two bounds on one column SQLite seeks by the first, and the one in the condition (the
/// head of a LIKE) may lie far away. The plus keeps the limit from being taken for a range when an order is given.
std::string RowReader::whereClause(const std::string& stretch) const
{
    std::string clause = " FROM " + table_ + " WHERE ";
    if (!stretch.empty()) clause += stretch + " AND ";
    if (!condition_.empty()) clause += "(" + condition_ + ") AND ";
    return clause + (order_.empty() ? "rowid <= ?" : "+rowid <= ?");
}

/// What lies behind a place, from near to far: first the rows that share all order values and come later by their key,
/// then those that share all but the last, and so on. Nulls sort before everything and compare with nothing, so they
/// get terms of their own.
std::vector<RowReader::Stretch> RowReader::stretchesFrom(Direction direction, const Place* from) const
{
    if (from == nullptr) return {Stretch{}};
    const bool forward = direction == Direction::forward;
    std::vector<Stretch> stretches;
    Stretch shared;
    for (std::size_t level = 0; level < order_.size(); ++level) {
        const std::string name = column(order_[level]);
        const std::optional<std::string>& value = from->order[level];
        // Collected from far to near here, and turned round below.
        if (!forward && value) {
            stretches.push_back(shared);
            stretches.back().require(name + " IS NULL");
        }
        if (forward || value) {
            stretches.push_back(shared);
            if (value)
                stretches.back().require(name + (forward ? " > ?" : " < ?"), *value);
            else
                stretches.back().require(name + " IS NOT NULL");
        }
        if (value)
            shared.require(name + " = ?", *value);
        else
            shared.require(name + " IS NULL");
    }
    shared.require(forward ? "rowid > ?" : "rowid < ?", from->key);
    stretches.push_back(shared);
    std::reverse(stretches.begin(), stretches.end());
    return stretches;
}

/// Of a row that begins with its key and the columns of the order.
Place RowReader::placeIn(const PreparedStatement& row) const
{
    Place place{row.integer(0), {}};
    for (int i = 1; i <= static_cast<int>(order_.size()); ++i)
        place.order.push_back(row.isNull(i) ? std::nullopt : std::optional<std::string>(row.text(i)));
    return place;
}

void RowReader::readStretch(const Stretch& stretch, Direction direction, std::size_t count, Block& block) const
{
    std::string columns;
    for (const int number : block.columns)
        columns += ", " + column(number);
    PreparedStatement rows(*connection_, "SELECT rowid" + orderColumns() + columns + whereClause(stretch.condition) +
                                             orderClause(direction) + " LIMIT ?");
    stretch.bindTo(rows);
    rows.bind(lastKey_);
    rows.bind(static_cast<std::int64_t>(count - block.places.size()));

    const int firstColumn = 1 + static_cast<int>(order_.size());
    while (rows.step()) {
        const std::size_t row = block.places.size();
        block.places.push_back(placeIn(rows));
        for (std::size_t nth = 0; nth < block.columns.size(); ++nth)
            block.cell(row, nth).assign(rows.text(firstColumn + static_cast<int>(nth)));
    }
}

void RowReader::read(Direction direction, const Place* from, std::size_t count, Block& block) const
{
    block.places.clear();
    // Kept from block to block, so that a long walk does not allocate its texts anew.
    if (block.cells.size() < count * block.columns.size()) block.cells.resize(count * block.columns.size());
    for (const Stretch& stretch : stretchesFrom(direction, from)) {
        if (block.places.size() == count) break;
        readStretch(stretch, direction, count, block);
    }
    if (direction == Direction::forward) return;
    const std::size_t rows = block.places.size();
    std::reverse(block.places.begin(), block.places.end());
    for (std::size_t row = 0; row < rows / 2; ++row)
        for (std::size_t nth = 0; nth < block.columns.size(); ++nth)
            block.cell(row, nth).swap(block.cell(rows - 1 - row, nth));
}

std::optional<Place> RowReader::find(std::int64_t key) const
{
    PreparedStatement row(*connection_, "SELECT rowid" + orderColumns() + whereClause("rowid = ?"));
    row.bind(key);
    row.bind(lastKey_);
    if (!row.step()) return std::nullopt;
    return placeIn(row);
}

Place RowReader::placeOf(const Row& row) const
{
    if (order_.empty()) return {row.key, {}};
    if (std::optional<Place> found = find(row.key)) return *found;
    Place place{row.key, {}};
    for (const int number : order_)
        place.order.emplace_back(row.columns.at(static_cast<std::size_t>(number)));
    return place;
}

bool RowReader::readRow(std::int64_t key, std::vector<std::string>& texts) const
{
    PreparedStatement row(*connection_, "SELECT * FROM " + table_ + " WHERE rowid = ?");
    row.bind(key);
    if (!row.step()) return false;
    for (std::size_t number = 0; number < texts.size(); ++number)
        texts[number].assign(row.text(static_cast<int>(number)));
    return true;
}

bool RowReader::deleteRow(std::int64_t key) const
{
    PreparedStatement row(*connection_, "DELETE FROM " + table_ + " WHERE rowid = ?", Access::writing);
    row.bind(key);
    return connection_->run(row) != 0;
}

std::vector<Place> RowReader::marks() const
{
    Block end;
    read(Direction::forward, nullptr, 1, end);
    if (end.places.empty()) return {};
    std::vector<Place> marks = end.places;
    read(Direction::backward, nullptr, 1, end);
    marks.insert(marks.end(), end.places.begin(), end.places.end());
    if (marks.front().order != marks.back().order) addSamples(marks);
    return marks;
}

/// Rows from all over the table, by their keys: how they lie in the order of the set, all rows do. The steps of the
/// golden section spread them evenly, and fall in step with no pattern of the log.
void RowReader::addSamples(std::vector<Place>& marks) const
{
    constexpr int samples = 128;
    constexpr double goldenSection = 0.6180339887498949;
    PreparedStatement least(*connection_, "SELECT min(rowid) FROM " + table_);
    const std::int64_t firstKey = least.step() ? least.integer(0) : 0;
    const std::string belongs = condition_.empty() ? "1" : "(" + condition_ + ")";
    const std::string text = "SELECT rowid" + orderColumns() + ", " + belongs + " FROM " + table_ +
                             " WHERE rowid >= ? AND rowid <= ? ORDER BY rowid LIMIT 1";
    for (int i = 1; i <= samples; ++i) {
        const double part = i * goldenSection - std::floor(i * goldenSection);
        PreparedStatement row(*connection_, text);
        row.bind(firstKey + std::llround(part * static_cast<double>(lastKey_ - firstKey)));
        row.bind(lastKey_);
        if (row.step() && row.integer(1 + static_cast<int>(order_.size())) != 0) marks.push_back(placeIn(row));
    }
}

std::int64_t RowReader::count() const
{
    PreparedStatement rows(*connection_, "SELECT count(*)" + whereClause({}));
    rows.bind(lastKey_);
    return rows.step() ? rows.integer(0) : 0;
}

}  // namespace storage
