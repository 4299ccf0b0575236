#include "storage/schema.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <string>
#include <system_error>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/file_calls.h"
#include "platform/files.h"

namespace storage {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 10> logColumns = {"ID",   "Callsign", "Data", "UTC",    "Sent",
                                                         "Rcvd", "Mode",     "Freq", "QRALoc", "Pct"};
constexpr std::array<std::string_view, 13> maratonColumns = {
    "ID", "Callsign", "Data", "UTC", "Sent", "Rcvd", "Mode", "Bnd", "QRALcR", "NameR", "Pct", "QRALcE", "NameE"};
constexpr std::array<std::string_view, 2> locatorColumns = {"Call", "QRA_LOC"};

constexpr std::array<std::string_view, 1> byCallsign = {"Callsign"};
/// One log for all bands, shown band by band. Of two indexes that serve a search SQLite takes the one made last: the
/// search for a duplicate is to go by the call.
constexpr std::array<std::string_view, 2> byBandAndCallsign = {"Bnd", "Callsign"};
constexpr std::array<std::string_view, 1> byCall = {"Call"};

constexpr std::array<TableSchema, 8> logTables = {{
    {"Uus144a", logColumns, byCallsign},
    {"Uus144b", logColumns, byCallsign},
    {"Uus432a", logColumns, byCallsign},
    {"Uus432b", logColumns, byCallsign},
    {"Uus1296a", logColumns, byCallsign},
    {"Uus1296b", logColumns, byCallsign},
    {"UusGHz", logColumns, byCallsign},
    {"UusLGYO2", maratonColumns, byBandAndCallsign},
}};
constexpr std::array<TableSchema, 1> locatorTables = {{{"QRA", locatorColumns, byCall}}};

constexpr std::array<DatabaseSchema, 3> databases = {{
    {"LogKelvo.mdb", logTables},
    {"DbsKelvo.mdb", locatorTables},
    // Nobody reads this table. The program appends a definition of that name at its start, which proves the folder.
    {"Kelvo.mdb", locatorTables},
}};

std::string definitionOf(std::string_view column)
{
    return std::string(column) + (column == "ID" ? " INTEGER PRIMARY KEY AUTOINCREMENT" : " TEXT COLLATE NOCASE");
}

std::string indexOf(const std::string& table, const std::string& column)
{
    return "CREATE INDEX " + table + "_" + column + " ON " + table + " (" + column + ");";
}

std::string creationOf(const TableSchema& table)
{
    const std::string name(table.name);
    std::string columns;
    for (const std::string_view column : table.columns) {
        if (!columns.empty()) columns += ", ";
        columns += definitionOf(column);
    }
    std::string statements = "CREATE TABLE " + name + " (" + columns + ");";
    for (const std::string_view column : table.indexedColumns)
        statements += indexOf(name, std::string(column));
    return statements;
}

/// The file is seen by nobody yet, so a journal in memory is enough: it is whole or it is thrown away.
std::string creationOf(const DatabaseSchema& database)
{
    std::string statements = "PRAGMA journal_mode=MEMORY; PRAGMA synchronous=FULL; BEGIN;";
    for (const TableSchema& table : database.tables)
        statements += creationOf(table);
    return statements + "COMMIT;";
}

/// Removes the unfinished file when its making is left.
class UnfinishedFile {
 public:
    explicit UnfinishedFile(fs::path place) : place_(std::move(place)) {}
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile()
    {
        std::error_code ignored;
        fs::remove(place_, ignored);
    }

    const fs::path& place() const { return place_; }

 private:
    fs::path place_;
};

constexpr std::string_view unfinishedEnd = ".new";

/// A name beside `file` that nothing has yet.
fs::path temporaryNameFor(const fs::path& file)
{
    std::random_device random;
    for (;;) {
        fs::path name = file;
        name += ".";
        name += base::toText(random());
        name += unfinishedEnd;
        if (!fs::exists(fs::symlink_status(name))) return name;
    }
}

bool isTemporaryNameFor(std::string_view fileName, std::string_view name)
{
    if (!name.starts_with(std::string(fileName) + ".") || !name.ends_with(unfinishedEnd)) return false;
    if (name.size() <= fileName.size() + 1 + unfinishedEnd.size()) return false;
    const std::string_view number =
        name.substr(fileName.size() + 1, name.size() - fileName.size() - 1 - unfinishedEnd.size());
    return number.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Removes what a making left that was killed, or whose power went.
void sweepUnfinished(const fs::path& folder, std::string_view fileName)
{
    std::vector<fs::path> unfinished;
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end; entry.increment(ignored))
        if (isTemporaryNameFor(fileName, platform::pathText(entry->path().filename())))
            unfinished.push_back(entry->path());
    for (const fs::path& file : unfinished)
        fs::remove(file, ignored);
}

[[noreturn]] void refuse(int code, const DatabaseSchema& database, const std::string& why)
{
    const std::string name(database.fileName);
    if ((code & 0xFF) == SQLITE_FULL)
        throw base::RuntimeError(base::diskFull, "The disk is full: " + name + " was not made");
    throw base::RuntimeError(base::existsOrNoAccess, name + " cannot be made: " + why);
}

void writeDatabase(const fs::path& file, const DatabaseSchema& database)
{
    sqlite3* opened = nullptr;
    int code =
        sqlite3_open_v2(platform::pathText(file).c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close_v2)> handle(opened, sqlite3_close_v2);
    if (code == SQLITE_OK) code = sqlite3_exec(opened, creationOf(database).c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) refuse(code, database, sqlite3_errmsg(opened));
}

/// Gives the finished file its name, and fails where that name has come into use: a second link cannot replace a file,
/// as renaming would. A file system without links is asked first instead.
void giveName(const fs::path& finished, const fs::path& file, const DatabaseSchema& database)
{
    std::error_code failed;
    fs::create_hard_link(finished, file, failed);
    if (!failed) return;
    if (fs::exists(fs::symlink_status(file))) refuse(SQLITE_ERROR, database, "a file of this name has appeared");
    fs::rename(finished, file, failed);
    if (failed) refuse(SQLITE_ERROR, database, failed.message());
}

/// The same, safe from a power cut.
void putInPlace(const fs::path& finished, const fs::path& file, const DatabaseSchema& database)
{
    giveName(finished, file, database);
    std::error_code failed;
    platform::synchroniseFolder(file.parent_path(), failed);
    if (failed) refuse(SQLITE_ERROR, database, failed.message());
}

bool isThere(const fs::path& folder, std::string_view fileName)
{
    std::error_code failed;
    const fs::directory_iterator entries(folder, failed);
    if (failed) throw base::RuntimeError(base::noSuchFolder, "There is no folder " + platform::pathText(folder));
    return std::any_of(begin(entries), end(entries), [&](const fs::directory_entry& entry) {
        return base::equalIgnoringCase(platform::pathText(entry.path().filename()), fileName);
    });
}

}  // namespace

std::span<const DatabaseSchema> databaseSchemas()
{
    return databases;
}

std::vector<std::string_view> makeMissingDatabases(const fs::path& folder)
{
    std::vector<std::string_view> made;
    for (const DatabaseSchema& database : databases) {
        sweepUnfinished(folder, database.fileName);
        if (isThere(folder, database.fileName)) continue;
        const fs::path file = folder / database.fileName;
        const UnfinishedFile unfinished(temporaryNameFor(file));
        writeDatabase(unfinished.place(), database);
        putInPlace(unfinished.place(), file, database);
        made.push_back(database.fileName);
    }
    return made;
}

}  // namespace storage
