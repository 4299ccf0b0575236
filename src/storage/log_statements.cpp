#include "storage/log_statements.h"

namespace storage {

namespace {

std::string joinValues(std::span<const std::string> values)
{
    std::string joined;
    for (const std::string& value : values) {
        if (!joined.empty()) joined += "','";
        joined += value;
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
    return "SELECT * FROM " + text(table) + " WHERE Callsign='" + text(call) + "'; ";
}

std::string rowsOfCallInMode(std::string_view table, std::string_view call, std::string_view mode)
{
    return "SELECT * FROM " + text(table) + " WHERE Callsign='" + text(call) + "'AND Mode='" + text(mode) + "'; ";
}

std::string rowsOfCallOnBand(std::string_view table, std::string_view call, std::string_view band)
{
    return "SELECT * FROM " + text(table) + " WHERE Callsign='" + text(call) + "' AND Freq ='" + text(band) + "'; ";
}

std::string callsBeginningWith(std::string_view table, std::string_view start)
{
    return "SELECT * FROM " + text(table) + " WHERE Callsign LIKE '" + text(start) + "*' ORDER BY Callsign ; ";
}

std::string rowsWithPoints(std::string_view table)
{
    return "SELECT * FROM " + text(table) + " WHERE Pct>''; ";
}

std::string zeroPointsOfCall(std::string_view table, std::string_view call)
{
    return "UPDATE " + text(table) + " SET Pct = '0' WHERE Callsign = '" + text(call) + "';";
}

std::string maratonLogOfBand(std::string_view band)
{
    return "SELECT * FROM UusLGYO2 WHERE Bnd='" + text(band) + "' ORDER BY ID ";
}

std::string locatorOfCall(std::string_view call)
{
    return "SELECT * FROM QRA WHERE Call='" + text(call) + "'; ";
}

std::string insertLocator(std::string_view call, std::string_view locator)
{
    return "INSERT INTO QRA (Call, QRA_LOC) VALUES ('" + text(call) + "','" + text(locator) + "');";
}

std::string updateLocator(std::string_view call, std::string_view locator)
{
    return "UPDATE QRA SET QRA_LOC = '" + text(locator) + "' WHERE Call = '" + text(call) + "';";
}

}  // namespace storage
