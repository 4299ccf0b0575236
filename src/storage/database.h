// The databases: one SQLite file each, opened under its fixed name, one connection per file shared by everything.
//
// A statement is the program's own text. What SQLite lacks is translated (DELETE *; LIKE with * ? # [...]), names are
// case-blind, and what follows the first statement of a text is an error and is never run.
//
// Errors: 3059 the file cannot be opened, is no database, or lacks the table; 75 no access (read-only, locked longer
// than the busy time-out, any other failure of the disk); 61 disk full; 5 a statement that is none; 91 used after
// Close. The texts name the file and say what it means for the operator. After any of them the database can be used as
// before.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "storage/record_set.h"

namespace storage {

class Connection;

/// A named link to a table of the database, to be appended to the database's table definitions.
struct TableDef {
    std::string Name;
    std::string SourceTableName;
};

/// An open database. Copies are the same connection; it ends with the last of them.
class Database {
 public:
    Database() = default;  ///< not open

    /// Runs one INSERT, UPDATE or DELETE (or a CREATE, ALTER or DROP) and makes it durable before it returns.
    void Execute(const std::string& statement);

    /// Rows of one "SELECT * FROM", or of a table given by its bare name, in the order of the statement or else of
    /// `ID`; positioned on the first row if there is one.
    RecordSet OpenRecordset(const std::string& statement) const;

    /// A definition to be filled in and appended.
    static TableDef CreateTableDef(const std::string& name);

    /// Appends a definition. Error 75 when a table of that name is there already, 3059 when its source table is not,
    /// 5 when that one is there under another name: a table has one name here.
    void AppendTableDef(const TableDef& definition) const;

    /// Ends this link to the database; other copies stay open.
    void Close();

    bool isOpen() const { return connection_ != nullptr; }

 private:
    friend Database OpenDatabase(const std::string& path);
    explicit Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}
    Connection& connection() const;

    std::shared_ptr<Connection> connection_;
};

/// Opens a database that exists. `path` is the program's own form of a path (see platform::resolve). A file that is
/// open already gives the same connection, unless the file has been removed or replaced in the meantime.
Database OpenDatabase(const std::string& path);

}  // namespace storage
