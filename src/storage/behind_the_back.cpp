#include "storage/behind_the_back.h"

#include "storage/prepared_statement.h"
#include "storage/statement.h"

namespace storage {

namespace {

/// What puts the rows of a table in order.
std::string orderOf(const TableSchema& table)
{
    return table.columns.front() == "ID" ? "ID" : "rowid";
}

}  // namespace

long BehindTheBack::rowCount(const TableSchema& table)
{
    PreparedStatement statement(connection_, "SELECT count(*) FROM " + std::string(table.name));
    statement.step();
    return static_cast<long>(statement.integer(0));
}

std::vector<BehindTheBack::StoredRow> BehindTheBack::rows(const TableSchema& table)
{
    return select(table, " ORDER BY " + orderOf(table));
}

std::optional<BehindTheBack::StoredRow> BehindTheBack::row(const TableSchema& table, long number)
{
    if (number == 0) return std::nullopt;
    const bool fromEnd = number < 0;
    const long skipped = (fromEnd ? -number : number) - 1;
    const std::vector<StoredRow> found = select(
        table, " ORDER BY " + orderOf(table) + (fromEnd ? " DESC" : "") + " LIMIT 1 OFFSET " + std::to_string(skipped));
    if (found.empty()) return std::nullopt;
    return found.front();
}

std::vector<BehindTheBack::StoredRow> BehindTheBack::select(const TableSchema& table, const std::string& behind)
{
    PreparedStatement statement(connection_, "SELECT * FROM " + std::string(table.name) + behind);
    std::vector<StoredRow> rows;
    while (statement.step()) {
        StoredRow& row = rows.emplace_back();
        for (int column = 0; column < statement.columnCount(); ++column)
            row.push_back(statement.isNull(column) ? std::nullopt : std::optional<std::string>(statement.text(column)));
    }
    return rows;
}

void BehindTheBack::change(const std::string& statement)
{
    connection_.execute(translateAction(statement));
}

}  // namespace storage
