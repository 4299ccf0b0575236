#include "storage/prepared_statement.h"

#include <sqlite3.h>

#include "base/runtime_error.h"

namespace storage {

PreparedStatement::PreparedStatement(Connection& connection, const std::string& text, Access access)
    : connection_(&connection), text_(text), access_(access), statement_(connection.takeKept(text))
{
    if (!statement_) prepare();
}

PreparedStatement::~PreparedStatement()
{
    if (text_.starts_with("SELECT")) connection_->keep(text_, std::move(statement_));
}

void PreparedStatement::prepare()
{
    sqlite3_stmt* statement = nullptr;
    const char* behind = nullptr;
    const int code = sqlite3_prepare_v2(connection_->handle_.get(), text_.data(), static_cast<int>(text_.size()),
                                        &statement, &behind);
    statement_.reset(statement);
    check(code);
    const std::string_view rest(behind, static_cast<std::size_t>(text_.data() + text_.size() - behind));
    const bool more = rest.find_first_not_of("; \t\r\n\f\v") != std::string_view::npos;
    if (statement == nullptr || more)
        throw base::RuntimeError(base::invalidArgument, "This is not one statement: " + text_);
}

void PreparedStatement::check(int code) const
{
    if (code != SQLITE_OK) connection_->raise(code, access_);
}

void PreparedStatement::bind(std::int64_t value)
{
    check(sqlite3_bind_int64(statement_.get(), ++bound_, value));
}

void PreparedStatement::bind(const std::string& value)
{
    check(sqlite3_bind_text64(statement_.get(), ++bound_, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

bool PreparedStatement::step()
{
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) connection_->raise(code, access_);
    return false;
}

int PreparedStatement::columnCount() const
{
    return sqlite3_column_count(statement_.get());
}

std::string PreparedStatement::columnName(int column) const
{
    return sqlite3_column_name(statement_.get(), column);
}

std::int64_t PreparedStatement::integer(int column) const
{
    return sqlite3_column_int64(statement_.get(), column);
}

std::string_view PreparedStatement::text(int column) const
{
    const auto* const bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    if (bytes == nullptr) return {};
    return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

bool PreparedStatement::isNull(int column) const
{
    return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

}  // namespace storage
