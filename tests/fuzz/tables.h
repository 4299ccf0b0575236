// The tables of a database file as they stand there, read by SQLite and by nothing of the program.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fuzz {

/// Rows by their key, without it; null as empty text.
using Rows = std::map<std::int64_t, std::vector<std::string>>;

class TableReader {
 public:
    explicit TableReader(std::filesystem::path file) : file_(std::move(file)) {}

    /// True when the file was written since the last call. It costs one read of a few bytes.
    bool fileHasChanged();

    /// All rows; nothing when the table cannot be read.
    std::optional<Rows> rows(const std::string& table);

    /// What SQLite finds wrong with the file; empty when it is whole.
    std::string damage();

 private:
    struct Close {
        void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    };
    sqlite3* handle();

    std::filesystem::path file_;
    std::string counter_;
    std::unique_ptr<sqlite3, Close> handle_;
};

/// The seven tables of bands and stages, and that of the Maraton contest.
const std::vector<std::string>& logTableNames();

}  // namespace fuzz
