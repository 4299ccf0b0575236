// The program's statement texts, and their translation for SQLite.
//
// SQLite knows no star behind DELETE, and its LIKE has other signs. LIKE itself is taken over when a database is opened
// (see Connection); here a LIKE with a literal head gets the range of that head beside it, so that an index serves it.
// Texts in quotes are never touched.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace storage {

/// A SELECT taken apart.
struct Selection {
    std::string table;               ///< as the statement spells it
    std::string condition;           ///< what stands behind WHERE, translated; empty without one
    std::vector<std::string> order;  ///< the columns behind ORDER BY
    std::vector<std::string> fixed;  ///< columns that the condition gives one value in all rows
};

/// Takes apart "SELECT * FROM table [WHERE condition] [ORDER BY column, ...] [;]", or the bare name of a table, which
/// stands for all of its rows. Error 5 for everything else, and for anything behind the statement.
Selection parseSelection(std::string_view statement);

/// Translates a statement that changes rows or tables. Error 5 for one that does not begin like such a statement.
std::string translateAction(std::string_view statement);

}  // namespace storage
