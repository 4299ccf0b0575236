// The tables of the three databases, and their files for a first installation.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

namespace storage {

/// One table: its name, and its columns in their fixed order. A first column `ID` is the counter.
struct TableSchema {
    std::string_view name;
    std::span<const std::string_view> columns;
    std::span<const std::string_view> indexedColumns;  ///< one index each
};

/// One database file under its fixed name, with its tables.
struct DatabaseSchema {
    std::string_view fileName;
    std::span<const TableSchema> tables;
};

/// The three databases.
std::span<const DatabaseSchema> databaseSchemas();

/// Makes those of the three files that are not in `folder` (in any spelling of their names), empty, and leaves the
/// others alone. Returns the names of the files made. A file appears under its name only when it is complete, and never
/// in place of another. Error 76 when the folder is not there, 75 when a file cannot be made, 61 when the disk is full.
std::vector<std::string_view> makeMissingDatabases(const std::filesystem::path& folder);

}  // namespace storage
