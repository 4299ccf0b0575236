// The link to one database file: how it is opened, shared and closed, and what its failures are called.
//
// A commit is durable before it returns: the rollback journal is written and synchronised before the database, and cut
// to nothing (and synchronised again) behind it. So the file alone holds every row, whatever happens next.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace storage {

class PreparedStatement;

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const;
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// What a statement was about when it failed.
enum class Access { reading, writing };

class Connection {
 public:
    /// Opens a file that exists and is a database. Errors as in database.h.
    explicit Connection(const std::filesystem::path& file);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() = default;

    /// Name of the file without its folder, for the operator.
    const std::string& fileName() const { return fileName_; }

    /// Runs one statement of SQLite that gives no rows; what it changed is durable when this returns.
    void execute(const std::string& statement);

    /// Runs a prepared statement to its end and returns the number of rows that it changed. When the disk fails at the
    /// very end of the commit, the rows may be in the file all the same: if they are, that is no error. As long as the
    /// disk does not even tell, the same statement in execute() is not run a second time once it is known to be in.
    std::int64_t run(PreparedStatement& statement);

    /// True when the file has this table, in any case of letters.
    bool hasTable(const std::string& name);

    /// Grows with every statement that may have changed rows: rows read before it may be different now.
    std::uint64_t writes() const { return writes_; }

    /// True when the file was removed, or another one stands under its name.
    bool fileHasMoved() const;

    /// True when the file could only be opened for reading. That may be over when it is opened anew.
    bool isForReadingOnly() const;

    /// Raises the error that a code of SQLite stands for.
    [[noreturn]] void raise(int code, Access access) const;

 private:
    friend class PreparedStatement;

    struct Close {
        void operator()(sqlite3* handle) const;
    };

    /// A readied statement that nobody uses, with its text.
    struct KeptStatement {
        std::string text;
        StatementHandle statement;
    };

    /// The kept statement of this text, empty when there is none. It is the caller's until it is kept again.
    StatementHandle takeKept(const std::string& text);
    /// Resets a statement and keeps it, in place of the one that was not used for longest.
    void keep(const std::string& text, StatementHandle statement);

    /// A commit that failed on the disk.
    struct Doubt {
        std::string statement;
        std::uint32_t commitsBefore = 0;
    };

    void prepareFile();
    std::string settingAfter(const char* pragma);
    std::optional<std::uint32_t> commitCount() const;
    bool isInAllTheSame();
    void leaveDoubt();

    std::filesystem::path file_;
    std::string fileName_;
    std::unique_ptr<sqlite3, Close> handle_;
    std::vector<KeptStatement> kept_;  ///< oldest first; behind the handle, so that it goes before it
    std::uint64_t writes_ = 0;
    std::optional<Doubt> doubt_;
};

/// The connection to a file: the open one if there is one, unless the file was removed or replaced in the meantime, or
/// could only be opened for reading.
std::shared_ptr<Connection> connectionTo(const std::filesystem::path& file);

}  // namespace storage
