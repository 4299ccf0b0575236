#include "storage/record_set.h"

#include "base/runtime_error.h"
#include "storage/connection.h"
#include "storage/record_set_cursor.h"

namespace storage {

RecordSet::RecordSet() = default;
RecordSet::RecordSet(RecordSet&&) noexcept = default;
RecordSet& RecordSet::operator=(RecordSet&&) noexcept = default;
RecordSet::~RecordSet() = default;

RecordSet::RecordSet(std::shared_ptr<Connection> connection, const std::string& statement)
    : cursor_(std::make_unique<RecordSetCursor>(std::move(connection), statement))
{
}

RecordSetCursor& RecordSet::cursor() const
{
    if (cursor_ == nullptr) throw base::RuntimeError(base::recordSetNotOpened, "The record set was never opened");
    return *cursor_;
}

bool RecordSet::isOpen() const
{
    return cursor_ != nullptr;
}

bool RecordSet::IsEof() const
{
    return cursor().isEof();
}

bool RecordSet::IsBof() const
{
    return cursor().isBof();
}

void RecordSet::MoveFirst()
{
    cursor().moveFirst();
}

void RecordSet::MoveLast()
{
    cursor().moveLast();
}

void RecordSet::MoveNext()
{
    cursor().moveNext();
}

void RecordSet::MovePrevious()
{
    cursor().movePrevious();
}

long RecordSet::RecordCount() const
{
    return static_cast<long>(cursor().count());
}

const std::string& RecordSet::Field(int number) const
{
    return cursor().field(number);
}

const std::string& RecordSet::Field(std::string_view name) const
{
    return cursor().field(cursor().columnNumber(name));
}

void RecordSet::Delete()
{
    cursor().deleteRow();
}

std::optional<std::int64_t> RecordSet::currentKey() const
{
    return cursor().currentKey();
}

void RecordSet::moveTo(std::int64_t key)
{
    cursor().moveTo(key);
}

const std::vector<std::string>& RecordSet::columnNames() const
{
    return cursor().columnNames();
}

std::uint64_t RecordSet::generation() const
{
    return cursor().generation();
}

std::vector<Row> RecordSet::firstRows(std::size_t count) const
{
    return cursor().rows(Direction::forward, nullptr, count);
}

std::vector<Row> RecordSet::lastRows(std::size_t count) const
{
    return cursor().rows(Direction::backward, nullptr, count);
}

std::vector<Row> RecordSet::rowsAfter(const Row& anchor, std::size_t count) const
{
    return cursor().rows(Direction::forward, &anchor, count);
}

std::vector<Row> RecordSet::rowsBefore(const Row& anchor, std::size_t count) const
{
    return cursor().rows(Direction::backward, &anchor, count);
}

double RecordSet::shareBefore(const Row& row) const
{
    return cursor().shareBefore(row);
}

std::vector<Row> RecordSet::rowsAtShare(double share, std::size_t count) const
{
    return cursor().rowsAtShare(share, count);
}

}  // namespace storage
