// One statement of SQLite, from its text to its last row. It is gone, with all its locks, when the object is.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "storage/connection.h"

struct sqlite3_stmt;

namespace storage {

class PreparedStatement {
 public:
    /// Errors: 5 when the text is no statement, or more than one; 3059 when its table is not there; others as in
    /// database.h.
    PreparedStatement(Connection& connection, const std::string& text, Access access = Access::reading);

    /// Gives the next value, in the order of the question marks in the text.
    void bind(std::int64_t value);
    void bind(const std::string& value);

    /// Goes on to the next row. False when there is none.
    bool step();

    int columnCount() const;
    std::string columnName(int column) const;

    /// Values of the present row. A null is 0, or empty text; a text stays valid until the next step.
    std::int64_t integer(int column) const;
    std::string_view text(int column) const;
    bool isNull(int column) const;

 private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };

    void check(int code) const;

    Connection* connection_;
    Access access_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
    int bound_ = 0;
};

}  // namespace storage
