// Database files that were damaged, or that somebody else wrote under the right name: broken pages, other tables, other
// columns, other values. The usual operator works with them; nothing may happen but that the program refuses, and says
// so. The rows of the other files stay.
//
// The bytes: choice of contest; which file; what is done to it; then what that takes.
#include <sqlite3.h>

#include <array>
#include <memory>

#include "fuzz/fresh_folder.h"
#include "fuzz/tables.h"
#include "fuzz/targets.h"
#include "fuzz/usual_operator.h"
#include "fuzz/watch.h"

namespace fuzz {

namespace fs = std::filesystem;

namespace {

constexpr std::array fileNames = {"LogKelvo.mdb", "DbsKelvo.mdb", "Kelvo.mdb"};
constexpr int oldRows = 12;

class ByteSource {
 public:
    explicit ByteSource(Bytes bytes) : bytes_(bytes) {}
    bool isEmpty() const { return at_ >= bytes_.size(); }
    std::uint8_t next() { return isEmpty() ? std::uint8_t{0} : bytes_[at_++]; }
    std::string rest()
    {
        std::string text;
        while (!isEmpty())
            text.push_back(static_cast<char>(next()));
        return text;
    }

 private:
    Bytes bytes_;
    std::size_t at_ = 0;
};

/// Runs statements one by one; one that fails is left out.
void execute(const fs::path& file, const std::vector<std::string>& statements)
{
    sqlite3* opened = nullptr;
    sqlite3_open(file.c_str(), &opened);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> handle(opened, sqlite3_close);
    for (const std::string& statement : statements)
        sqlite3_exec(handle.get(), statement.c_str(), nullptr, nullptr, nullptr);
}

/// Rows of an earlier contest in every file.
void fill(const fs::path& folder)
{
    std::vector<std::string> log = {"PRAGMA journal_mode=MEMORY", "BEGIN"};
    std::vector<std::string> memory = log;
    for (int i = 0; i < oldRows; ++i) {
        const std::string call = "'OLD" + std::to_string(i) + "'";
        for (const std::string& table : logTableNames()) {
            const bool maraton = table == "UusLGYO2";
            log.push_back("INSERT INTO " + table + " (Callsign, Data, UTC, Sent, Rcvd, Mode, " +
                          (maraton ? "Bnd, QRALcR" : "Freq, QRALoc") + ", Pct) VALUES (" + call +
                          ", '15.11.26', '12:00', '599 001', '599 007', 'CW', '144', 'KN16AA', '70')");
        }
        memory.push_back("INSERT INTO QRA VALUES (" + call + ", 'KN16AA')");
    }
    log.emplace_back("COMMIT");
    memory.emplace_back("COMMIT");
    execute(folder / "LogKelvo.mdb", log);
    execute(folder / "DbsKelvo.mdb", memory);
}

/// The bytes of a filled file; made once.
std::string filled(const std::string& fileName)
{
    static const std::map<std::string, std::string> files = [] {
        std::map<std::string, std::string> made;
        const fs::path& folder = FreshFolder::instance().prepare();
        fill(folder);
        for (const char* name : fileNames)
            made[name] = bytesOfFile(folder / name);
        return made;
    }();
    return files.at(fileName);
}

/// Some bytes are others: groups of three for the place and one for the change. A change of 0 cuts the file there.
void damage(std::string& bytes, ByteSource& source)
{
    while (!source.isEmpty() && !bytes.empty()) {
        const std::size_t place = source.next() + 256UL * source.next() + 65536UL * source.next();
        const std::uint8_t change = source.next();
        if (change == 0)
            bytes.resize(place % bytes.size());
        else
            bytes[place % bytes.size()] = static_cast<char>(bytes[place % bytes.size()] ^ change);
    }
}

std::string hostileValue(std::uint8_t which)
{
    switch (which % 16) {
        case 0:
            return "NULL";
        case 1:
            return "printf('%.*c', 70000, 'A')";
        case 2:
            return "1e308";
        case 3:
            return "-9223372036854775808";
        case 4:
            return "9223372036854775807";
        case 5:
            return "x'00ff00fe80'";
        case 6:
            return "''";
        case 7:
            return "'12abc'";
        case 8:
            return "CAST(x'c3c3a9ff' AS TEXT)";
        case 9:
            return "'KN16AA' || char(0) || 'KN'";
        case 10:
            return "'YO2ABC'";
        case 11:
            return "'2147483647'";
        case 12:
            return "'32768'";
        case 13:
            return "zeroblob(3)";
        case 14:
            return "'-0.5'";
        default:
            return "'144'";
    }
}

std::string otherTable(const std::string& table, std::uint8_t which)
{
    const std::string columns = "Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct";
    const std::string start = "CREATE TABLE " + table + " ";
    switch (which % 12) {
        case 0:
            return "CREATE VIEW " + table + " AS SELECT 1 AS ID, 'YO2ABC' AS Callsign";
        case 1:
            return start + "(ID INTEGER PRIMARY KEY)";
        case 2:
            return start + "(Pct, QRALoc, Freq, Mode, Rcvd, Sent, UTC, Data, Callsign, ID INTEGER PRIMARY KEY)";
        case 3:
            return start + "(" + columns + ")";
        case 4:
            return start + "(ID TEXT PRIMARY KEY, " + columns + ") WITHOUT ROWID";
        case 5:
            return start + "(ID INTEGER PRIMARY KEY, " + columns + ", More TEXT NOT NULL)";
        case 6:
            return start +
                   "(ID INTEGER PRIMARY KEY, Callsign TEXT UNIQUE, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct)";
        case 7:
            return start + "(ID INTEGER PRIMARY KEY, " + columns + ", CHECK (Callsign = 'X'))";
        case 8:
            return start +
                   "(ID INTEGER PRIMARY KEY, Callsign INTEGER, Data REAL, UTC BLOB, Sent INTEGER, Rcvd INTEGER, "
                   "Mode INTEGER, Freq REAL, QRALoc BLOB, Pct REAL)";
        case 9:
            return start + "(ID INTEGER PRIMARY KEY, Callsign TEXT COLLATE unheardOf, Data)";
        case 10:
            return start + "(rowid TEXT, oid TEXT, _rowid_ TEXT, ID, " + columns + ")";
        default:
            return start + "(ID INTEGER PRIMARY KEY AUTOINCREMENT, \"Call sign\", [a]]b], \"\" )";
    }
}

const std::vector<std::string>& tablesOf(const std::string& fileName)
{
    static const std::vector<std::string> memory = {"QRA"};
    return fileName == "LogKelvo.mdb" ? logTableNames() : memory;
}

/// Some tables are other tables: a byte for which, one for what stands in its place.
void exchangeTables(const fs::path& file, const std::string& name, ByteSource& source)
{
    std::vector<std::string> statements;
    while (!source.isEmpty()) {
        const std::vector<std::string>& tables = tablesOf(name);
        const std::string& table = tables[source.next() % tables.size()];
        const std::uint8_t what = source.next();
        statements.push_back("DROP TABLE " + table);
        if (what % 16 != 15) statements.push_back(otherTable(table, what));
    }
    execute(file, statements);
}

/// Rows with values that nobody wrote by this program: a byte for the table, one for each column.
void addRows(const fs::path& file, const std::string& name, ByteSource& source)
{
    std::vector<std::string> statements;
    while (!source.isEmpty()) {
        const std::vector<std::string>& tables = tablesOf(name);
        const std::string& table = tables[source.next() % tables.size()];
        const int columns = table == "QRA" ? 2 : (table == "UusLGYO2" ? 13 : 10);
        std::string values = table == "QRA" ? hostileValue(source.next()) : "NULL";
        const std::uint8_t key = source.next();
        // The greatest key of all leaves no number for the next row.
        if (table != "QRA" && key % 16 == 4) values = "9223372036854775807";
        for (int column = 1; column < columns; ++column)
            values += ", " + hostileValue(source.next());
        statements.push_back("INSERT INTO " + table + " VALUES (" + values + ")");
    }
    execute(file, statements);
}

void spoil(const fs::path& file, const std::string& name, ByteSource& source)
{
    switch (source.next() % 4) {
        case 0: {
            std::string bytes = filled(name);
            damage(bytes, source);
            return writeBytes(file, bytes);
        }
        case 1:
            return exchangeTables(file, name, source);
        case 2:
            return addRows(file, name, source);
        default:
            return writeBytes(file, source.rest());
    }
}

/// Rows of the earlier contest that are left in a file.
std::size_t oldRowsIn(const fs::path& file, const std::vector<std::string>& tables)
{
    TableReader reader(file);
    std::size_t found = 0;
    for (const std::string& table : tables)
        for (const auto& [key, row] : reader.rows(table).value_or(Rows{}))
            if (!row.empty() && row.front().starts_with("OLD")) ++found;
    return found;
}

}  // namespace

void openHostileDatabase(Bytes bytes, const LineSink& print)
{
    ByteSource source(bytes);
    const std::uint8_t choice = source.next();
    const std::string name = fileNames.at(source.next() % fileNames.size());
    for (const char* file : fileNames)
        filled(file);
    const fs::path folder = FreshFolder::instance().prepare();
    for (const char* file : fileNames)
        writeBytes(folder / file, filled(file));
    spoil(folder / name, name, source);

    UsualOperator hands(folder, choice);
    hands.openEntry();
    hands.logQso("YO2ABC");
    hands.logQso("YO5KAA");
    hands.deleteRow();
    hands.review();
    hands.logQso("YO7LOG");
    hands.end();
    if (print) hands.printWhatWasSaid(print);

    const bool logged = hands.rowsOf("YO5KAA") > 0;
    if (!logged && !hands.somethingWasSaid()) throw Broken{"the QSO is not in the log, and nobody was told"};
    constexpr std::size_t deleted = 2;
    if (name != "LogKelvo.mdb" && oldRowsIn(folder / "LogKelvo.mdb", logTableNames()) + deleted < 8 * oldRows)
        throw Broken{"rows of the log are gone although another file was damaged"};
    if (name != "DbsKelvo.mdb" && oldRowsIn(folder / "DbsKelvo.mdb", {"QRA"}) < oldRows)
        throw Broken{"calls of the locator memory are gone although another file was damaged"};
}

}  // namespace fuzz
