// A link of its own to a database file, beside the program's: reads what really stands there, and changes it unasked.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "storage/connection.h"
#include "storage/schema.h"

namespace storage {

class BehindTheBack {
 public:
    /// A row as the file has it; null is nothing.
    using StoredRow = std::vector<std::optional<std::string>>;

    /// Errors as in database.h.
    explicit BehindTheBack(const std::filesystem::path& file) : connection_(file) {}

    long rowCount(const TableSchema& table);

    /// All rows by `ID`; those of a table without one in order of entry.
    std::vector<StoredRow> rows(const TableSchema& table);

    /// Row `number` of them, from 1, negative from the end; nothing when there is no such row.
    std::optional<StoredRow> row(const TableSchema& table, long number);

    /// Runs one statement that changes rows or tables.
    void change(const std::string& statement);

 private:
    std::vector<StoredRow> select(const TableSchema& table, const std::string& behind);

    Connection connection_;
};

}  // namespace storage
