// One statement of SQLite, from its text to its last row. It is reset, and its locks are gone, when the object is; the
// connection keeps the readied form of a SELECT for the next time, since understanding the text costs more than running
// it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "storage/connection.h"

namespace storage {

class PreparedStatement {
 public:
    /// Errors: 5 when the text is no statement, or more than one; 3059 when its table is not there; others as in
    /// database.h.
    PreparedStatement(Connection& connection, const std::string& text, Access access = Access::reading);
    PreparedStatement(const PreparedStatement&) = delete;
    PreparedStatement& operator=(const PreparedStatement&) = delete;
    ~PreparedStatement();

    /// Gives the next value, in the order of the question marks in the text.
    void bind(std::int64_t value);
    void bind(const std::string& value);

    /// Goes on to the next row. False when there is none.
    bool step();

    /// The text that it was made from.
    const std::string& statementText() const { return text_; }

    int columnCount() const;
    std::string columnName(int column) const;

    /// Values of the present row. A null is 0, or empty text; a text stays valid until the next step.
    std::int64_t integer(int column) const;
    std::string_view text(int column) const;
    bool isNull(int column) const;

 private:
    void prepare();
    void check(int code) const;

    Connection* connection_;
    std::string text_;
    Access access_;
    StatementHandle statement_;
    int bound_ = 0;
};

}  // namespace storage
