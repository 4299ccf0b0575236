#include "fuzz/tables.h"

#include <array>
#include <fstream>

namespace fuzz {

namespace {

struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

Statement prepared(sqlite3* handle, const std::string& text)
{
    sqlite3_stmt* statement = nullptr;
    if (handle == nullptr || sqlite3_prepare_v2(handle, text.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        return nullptr;
    return Statement(statement);
}

std::string textOf(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text == nullptr ? std::string() : std::string(text);
}

}  // namespace

bool TableReader::fileHasChanged()
{
    // A database file counts its changes in its head.
    constexpr std::streamoff placeOfCounter = 24;
    std::array<char, 4> bytes{};
    std::ifstream stream;
    stream.rdbuf()->pubsetbuf(nullptr, 0);
    stream.open(file_, std::ios::binary);
    stream.seekg(placeOfCounter);
    stream.read(bytes.data(), bytes.size());
    const std::string counter(bytes.data(), stream ? bytes.size() : 0);
    if (counter == counter_) return false;
    counter_ = counter;
    return true;
}

sqlite3* TableReader::handle()
{
    if (handle_) return handle_.get();
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(file_.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
    handle_.reset(opened);
    if (code != SQLITE_OK) handle_.reset();
    return handle_.get();
}

std::optional<Rows> TableReader::rows(const std::string& table)
{
    const Statement statement = prepared(handle(), "SELECT rowid, * FROM " + table + " ORDER BY rowid");
    if (!statement) return std::nullopt;
    const bool keyIsAColumn = table != "QRA";
    Rows rows;
    int code = 0;
    while ((code = sqlite3_step(statement.get())) == SQLITE_ROW) {
        std::vector<std::string>& row = rows[sqlite3_column_int64(statement.get(), 0)];
        for (int column = keyIsAColumn ? 2 : 1; column < sqlite3_column_count(statement.get()); ++column)
            row.push_back(textOf(statement.get(), column));
    }
    if (code != SQLITE_DONE) return std::nullopt;
    return rows;
}

std::string TableReader::damage()
{
    const Statement statement = prepared(handle(), "PRAGMA integrity_check");
    if (!statement) return "it cannot be opened";
    if (sqlite3_step(statement.get()) != SQLITE_ROW) return "it cannot be read";
    const std::string answer = textOf(statement.get(), 0);
    return answer == "ok" ? std::string() : answer;
}

const std::vector<std::string>& logTableNames()
{
    static const std::vector<std::string> names = {"Uus144a",  "Uus144b",  "Uus432a", "Uus432b",
                                                   "Uus1296a", "Uus1296b", "UusGHz",  "UusLGYO2"};
    return names;
}

}  // namespace fuzz
