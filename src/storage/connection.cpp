#include "storage/connection.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <map>
#include <new>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "base/runtime_error.h"
#include "platform/files.h"
#include "storage/busy_wait.h"
#include "storage/like_operator.h"
#include "storage/prepared_statement.h"

namespace storage {

namespace {

using base::RuntimeError;

/// Name behind "no such table: ", empty when the message is about something else.
std::string missingTable(std::string_view message)
{
    constexpr std::string_view beginning = "no such table: ";
    return message.starts_with(beginning) ? std::string(message.substr(beginning.size())) : std::string();
}

RuntimeError errorOfStatement(const std::string& fileName, const std::string& message)
{
    const std::string table = missingTable(message);
    if (!table.empty()) return {base::noDatabase, fileName + " has no table " + table};
    return {base::invalidArgument, fileName + " cannot run the statement: " + message};
}

RuntimeError errorOfProtection(const std::string& fileName, int code)
{
    if (code == SQLITE_READONLY_DBMOVED)
        return {base::existsOrNoAccess, fileName + " was removed or replaced while it was open: nothing was written"};
    return {base::existsOrNoAccess, fileName + " is write-protected: nothing was written"};
}

RuntimeError errorOfLock(const std::string& fileName, Access access)
{
    const char* const what = access == Access::writing ? "nothing was written" : "it cannot be read";
    return {base::existsOrNoAccess, fileName + " is locked by another program: " + what};
}

RuntimeError errorOfDisk(const std::string& fileName, Access access, const std::string& message)
{
    const char* const what = access == Access::writing ? "written" : "read";
    return {base::existsOrNoAccess, "The disk failed while " + fileName + " was being " + what + ": " + message};
}

using Registry = std::map<std::string, std::weak_ptr<Connection>>;

/// All open connections of the process, by the place of their file. Only the program thread comes here.
Registry& registry()
{
    static Registry connections;
    return connections;
}

std::string placeOf(const std::filesystem::path& file)
{
    std::error_code failed;
    const std::filesystem::path place = std::filesystem::weakly_canonical(file, failed);
    return platform::pathText(failed ? file : place);
}

}  // namespace

Connection::Connection(const std::filesystem::path& file) : file_(file), fileName_(platform::pathText(file.filename()))
{
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(placeOf(file).c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    handle_.reset(handle);
    if (code != SQLITE_OK) raise(code, Access::reading);
    sqlite3_extended_result_codes(handle, 1);
    waitForOtherPrograms(handle);
    takeOverLike(handle);
    prepareFile();
}

void FinalizeStatement::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

StatementHandle Connection::takeKept(const std::string& text)
{
    const auto found =
        std::find_if(kept_.begin(), kept_.end(), [&](const KeptStatement& kept) { return kept.text == text; });
    if (found == kept_.end()) return nullptr;
    StatementHandle statement = std::move(found->statement);
    kept_.erase(found);
    return statement;
}

void Connection::keep(const std::string& text, StatementHandle statement)
{
    constexpr std::size_t mostKept = 48;
    if (!statement) return;
    sqlite3_reset(statement.get());
    sqlite3_clear_bindings(statement.get());
    if (kept_.size() == mostKept) kept_.erase(kept_.begin());
    kept_.push_back({text, std::move(statement)});
}

void Connection::Close::operator()(sqlite3* handle) const
{
    sqlite3_close_v2(handle);
}

std::string Connection::settingAfter(const char* pragma)
{
    PreparedStatement statement(*this, pragma);
    return statement.step() ? std::string(statement.text(0)) : std::string();
}

void Connection::prepareFile()
{
    // Sorting and statement journals stay in memory, so that a full disk of temporary files stops nothing.
    settingAfter("PRAGMA temp_store=MEMORY");
    settingAfter("PRAGMA synchronous=FULL");
    if (settingAfter("PRAGMA journal_mode=TRUNCATE") != "truncate")
        throw RuntimeError(base::existsOrNoAccess, fileName_ + " cannot be given a journal of its own");
    // This reads the file, and takes back what a power cut left half done. SQLite takes a file without a byte for an
    // empty database; nobody made that one as a database.
    if (settingAfter("PRAGMA page_count") == "0") raise(SQLITE_NOTADB, Access::reading);
}

void Connection::execute(const std::string& text)
{
    if (doubt_ && doubt_->statement == text && isInAllTheSame()) return;
    PreparedStatement statement(*this, text, Access::writing);
    if (statement.columnCount() != 0)
        throw RuntimeError(base::invalidArgument, "This statement asks for rows: " + text);
    run(statement);
}

std::int64_t Connection::run(PreparedStatement& statement)
{
    ++writes_;
    leaveDoubt();
    const std::optional<std::uint32_t> before = commitCount();
    try {
        while (statement.step()) {
        }
    } catch (const RuntimeError&) {
        const bool diskFailed = (sqlite3_errcode(handle_.get()) & 0xFF) == SQLITE_IOERR;
        if (!diskFailed || !before) throw;
        doubt_ = Doubt{statement.statementText(), *before};
        if (!isInAllTheSame()) throw;
        base::reportSwallowed({base::existsOrNoAccess,
                               "The disk failed behind the writing of " + fileName_ + ": what was written is in it"});
        return 1;
    }
    return sqlite3_changes64(handle_.get());
}

/// The head of the file counts the commits. It is read past the engine, which keeps a copy.
std::optional<std::uint32_t> Connection::commitCount() const
{
    constexpr sqlite3_int64 place = 24;
    sqlite3_file* file = nullptr;
    std::array<unsigned char, 4> bytes{};
    if (sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK) return std::nullopt;
    if (file == nullptr || file->pMethods == nullptr) return std::nullopt;
    if (file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), place) != SQLITE_OK)
        return std::nullopt;
    std::uint32_t count = 0;
    for (const unsigned char byte : bytes)
        count = count << 8U | byte;
    return count;
}

/// Asks the file whether it has the commit that failed, and makes safe what it has. False when it has not, or when
/// nobody can tell: then the doubt stays.
bool Connection::isInAllTheSame()
{
    try {
        // The first look takes back what the commit left half done.
        settingAfter("PRAGMA schema_version");
        const std::optional<std::uint32_t> now = commitCount();
        if (!now) return false;
        const bool isIn = *now != doubt_->commitsBefore;
        // The end of the journal may not be on the disk: a power cut would bring it back, and with it the state before.
        // The journal of one more commit takes its place.
        if (isIn) settingAfter("PRAGMA user_version=0");
        doubt_.reset();
        return isIn;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// Another statement ends the doubt. What the failed commit left half done is taken back first, as it would count.
void Connection::leaveDoubt()
{
    if (!doubt_) return;
    doubt_.reset();
    base::quietly<base::existsOrNoAccess, base::noDatabase>([this] { settingAfter("PRAGMA schema_version"); });
}

bool Connection::hasTable(const std::string& name)
{
    PreparedStatement statement(*this, "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE");
    statement.bind(name);
    return statement.step();
}

bool Connection::fileHasMoved() const
{
    int moved = 0;
    const int code = sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    // A file system on which an open file cannot be moved does not know the question.
    return code == SQLITE_OK && moved != 0;
}

bool Connection::isForReadingOnly() const
{
    return sqlite3_db_readonly(handle_.get(), "main") == 1;
}

void Connection::raise(int code, Access access) const
{
    const std::string message = handle_ ? sqlite3_errmsg(handle_.get()) : sqlite3_errstr(code);
    switch (code & 0xFF) {
        case SQLITE_ERROR:
            throw errorOfStatement(fileName_, message);
        case SQLITE_CANTOPEN: {
            std::error_code ignored;
            const bool there = std::filesystem::exists(file_, ignored);
            throw RuntimeError(base::noDatabase, fileName_ + (there ? " cannot be opened" : " is not there"));
        }
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
            throw RuntimeError(base::noDatabase, fileName_ + " is no database, or it is damaged");
        case SQLITE_FULL:
            throw RuntimeError(base::diskFull, "The disk is full: nothing was written to " + fileName_);
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw errorOfLock(fileName_, access);
        case SQLITE_READONLY:
            throw errorOfProtection(fileName_, code);
        case SQLITE_NOMEM:
            throw std::bad_alloc();
        case SQLITE_MISUSE:
        case SQLITE_RANGE:
            throw std::logic_error("wrong use of " + fileName_ + ": " + message);
        case SQLITE_CONSTRAINT:
        case SQLITE_MISMATCH:
        case SQLITE_TOOBIG:
            throw RuntimeError(base::existsOrNoAccess, fileName_ + " takes no such row: " + message);
        default:
            throw errorOfDisk(fileName_, access, message);
    }
}

std::shared_ptr<Connection> connectionTo(const std::filesystem::path& file)
{
    const std::string place = placeOf(file);
    if (const auto found = registry().find(place); found != registry().end()) {
        std::shared_ptr<Connection> open = found->second.lock();
        if (open != nullptr && !open->fileHasMoved() && !open->isForReadingOnly()) return open;
    }
    std::erase_if(registry(), [](const auto& entry) { return entry.second.expired(); });
    auto fresh = std::make_shared<Connection>(file);
    registry()[place] = fresh;
    return fresh;
}

}  // namespace storage
