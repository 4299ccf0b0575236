// A program with QSOs in its log that were never entered.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "runstate/modul1.h"
#include "support/running_program.h"

namespace test {

class FilledLog : public testing::Test {
 protected:
    void insert(const std::string& table, const std::string& values)
    {
        program.changeLog("INSERT INTO " + table +
                          " (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES " + values);
    }

    /// A QSO with these exchanges, 100 points.
    void add(const std::string& table, const std::string& sent, const std::string& rcvd)
    {
        insert(table, "('YO2ABC', '15.11.26', '12:34', '" + sent + "', '" + rcvd + "', 'CW', '144', 'KN16AA', '100')");
    }

    /// A QSO with these points and locator, as they stand between the commas.
    void addPoints(const std::string& table, const std::string& points, const std::string& locator = "'KN16AA'")
    {
        insert(table,
               "('YO2ABC', '15.11.26', '12:34', '599 001', '599 002', 'CW', '144', " + locator + ", " + points + ")");
    }

    void empty(const std::string& table) { program.changeLog("DELETE * FROM " + table); }

    static void contest(int id) { Modul1.ConcId = static_cast<std::uint16_t>(id); }

    RunningProgram program;
};

}  // namespace test
