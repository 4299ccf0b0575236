#include "storage/log_statements.h"

#include "base/runtime_error.h"

namespace storage {

namespace {

/// A value as it goes between single quotes. It is not escaped: one with a quote in it breaks the statement, and must
/// not become another statement that happens to be whole.
std::string value(std::string_view text)
{
    if (text.find('\'') == std::string_view::npos) return std::string(text);
    throw base::RuntimeError(base::invalidArgument, "A single quote cannot be logged: " + std::string(text));
}

std::string joinValues(std::span<const std::string> values)
{
    std::string joined;
    for (const std::string& each : values) {
        if (!joined.empty()) joined += "','";
        joined += value(each);
    }
    return " VALUES ('" + joined + "');";
}

std::string text(std::string_view part)
{
    return std::string(part);
}

}  // namespace

std::string insertQso(std::string_view table, std::span<const std::string> values)
{
    return "INSERT INTO " + text(table) + " (Callsign, Data , UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) " +
           joinValues(values);
}

std::string insertMaratonQso(std::span<const std::string> values)
{
    return "INSERT INTO UusLGYO2 (Callsign, Data , UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, QRALcE, NameE) " +
           joinValues(values);
}

std::string showTable(std::string_view table)
{
    return "SELECT * FROM " + text(table) + " ";
}

std::string readTable(std::string_view table)
{
    return "SELECT * FROM " + text(table);
}

std::string rowsOfCall(std::string_view table, std::string_view call)
{
    return "SELECT * FROM " + text(table) + " WHERE Callsign='" + value(call) + "'; ";
}

std::string rowsOfCallInMode(std::string_view table, std::string_view call, std::string_view mode)
{
    return "SELECT * FROM " + text(table) + " WHERE Callsign='" + value(call) + "'AND Mode='" + value(mode) + "'; ";
}

std::string rowsOfCallOnBand(std::string_view table, std::string_view call, std::string_view band)
{
    return "SELECT * FROM " + text(table) + " WHERE Callsign='" + value(call) + "' AND Freq ='" + value(band) + "'; ";
}

std::string callsBeginningWith(std::string_view table, std::string_view start)
{
    return "SELECT * FROM " + text(table) + " WHERE Callsign LIKE '" + value(start) + "*' ORDER BY Callsign ; ";
}

std::string rowsWithPoints(std::string_view table)
{
    return "SELECT * FROM " + text(table) + " WHERE Pct>''; ";
}

std::string zeroPointsOfCall(std::string_view table, std::string_view call)
{
    return "UPDATE " + text(table) + " SET Pct = '0' WHERE Callsign = '" + value(call) + "';";
}

std::string maratonLogOfBand(std::string_view band)
{
    return "SELECT * FROM UusLGYO2 WHERE Bnd='" + value(band) + "' ORDER BY ID ";
}

std::string maratonLogSortedByBand(std::string_view band)
{
    return "SELECT * FROM UusLGYO2 WHERE Bnd='" + value(band) + "' ORDER BY Bnd , ID; ";
}

std::string maratonLogByNumber()
{
    return "SELECT * FROM UusLGYO2 ORDER BY ID";
}

std::string wholeMaratonLogByBand()
{
    return "SELECT * FROM UusLGYO2 ORDER BY Bnd , ID ";
}

std::string microwaveRowsWithTime()
{
    return "SELECT * FROM UusGHz WHERE UTC>''; ";
}

std::string emptyTable(std::string_view table)
{
    return "DELETE * FROM " + text(table);
}

std::string maratonRowsOfCall(std::string_view call, std::string_view band, std::string_view date)
{
    return "SELECT * FROM UusLGYO2 WHERE Callsign='" + value(call) + "' and Bnd='" + value(band) + "' and Data='" +
           value(date) + "'; ";
}

std::string sortedLocators()
{
    return "SELECT * From QRA ORDER BY Call";
}

std::string locatorOfCall(std::string_view call)
{
    return "SELECT * FROM QRA WHERE Call='" + value(call) + "'; ";
}

std::string insertLocator(std::string_view call, std::string_view locator)
{
    return "INSERT INTO QRA (Call, QRA_LOC) VALUES ('" + value(call) + "','" + value(locator) + "');";
}

std::string updateLocator(std::string_view call, std::string_view locator)
{
    return "UPDATE QRA SET QRA_LOC = '" + value(locator) + "' WHERE Call = '" + value(call) + "';";
}

}  // namespace storage
