// The statement texts of the log tables and of the locator memory, with their exact blanks.
//
// Values stand between single quotes and are not escaped: a quote in a value breaks the statement, whatever stands
// behind it. Each of these functions raises error 5 for such a value.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace storage {

/// One row for a band table: the nine values in the order of the columns behind `ID`.
std::string insertQso(std::string_view table, std::span<const std::string> values);

/// One row for the Maraton log: twelve values.
std::string insertMaratonQso(std::span<const std::string> values);

/// The whole table, for a grid.
std::string showTable(std::string_view table);

/// The whole table, for a walk over its rows.
std::string readTable(std::string_view table);

/// Rows of one call.
std::string rowsOfCall(std::string_view table, std::string_view call);

/// Rows of one call in one mode.
std::string rowsOfCallInMode(std::string_view table, std::string_view call, std::string_view mode);

/// Rows of one call on one microwave band.
std::string rowsOfCallOnBand(std::string_view table, std::string_view call, std::string_view band);

/// Calls that begin with `start`, sorted.
std::string callsBeginningWith(std::string_view table, std::string_view start);

/// Rows that have points, which every logged row does.
std::string rowsWithPoints(std::string_view table);

/// Takes the points of all rows of a call away.
std::string zeroPointsOfCall(std::string_view table, std::string_view call);

/// The Maraton log of one band.
std::string maratonLogOfBand(std::string_view band);

/// The same, as the review form asks for it.
std::string maratonLogSortedByBand(std::string_view band);

/// The whole Maraton log, in the order of entry.
std::string maratonLogByNumber();

/// The whole Maraton log, band by band.
std::string wholeMaratonLogByBand();

/// The GHz log as its writer asks for it: rows with a time, which every logged row has.
std::string microwaveRowsWithTime();

/// Takes all rows out of a table.
std::string emptyTable(std::string_view table);

/// QSOs of one call in the Maraton log on one band and day.
std::string maratonRowsOfCall(std::string_view call, std::string_view band, std::string_view date);

/// The locator memory, sorted by call.
std::string sortedLocators();

/// The entry of a call in the locator memory.
std::string locatorOfCall(std::string_view call);

/// A new station for the locator memory.
std::string insertLocator(std::string_view call, std::string_view locator);

/// Another locator for a station of the locator memory.
std::string updateLocator(std::string_view call, std::string_view locator);

}  // namespace storage
