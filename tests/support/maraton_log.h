// The program in the Maraton contest, with QSOs in its log that were never entered.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/running_program.h"

namespace test {

class MaratonLog : public testing::Test {
 protected:
    void SetUp() override
    {
        program.click(FrmInit.OpBMaraton);
        program.click(FrmInit.OpbTest);
        FrmInit.TxtMyCall.Text = "YO2XYZ";
        FrmInit.txtMyQRA.Text = "KN05OS";
        FrmInit.TxtMyName.Text = "ION";
        FrmInit.TxtTime.Text = "0";
        program.click(FrmInit.mnuQSOfahren);
    }

    /// A row of the log; values as they stand between the commas.
    void add(const std::string& call, const std::string& day, const std::string& band, const std::string& name,
             const std::string& points = "'100'", const std::string& mode = "'CW'")
    {
        program.changeLog(
            "INSERT INTO UusLGYO2 (Callsign, Data, UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, QRALcE, NameE) "
            "VALUES (" +
            call + ", " + day + ", '12:34', '599 001', '599 002', " + mode + ", " + band + ", 'KN16AA', " + name +
            ", " + points + ", 'KN05OS', 'ION')");
    }

    void addPoints(const std::string& band, const std::string& points)
    {
        add("'YO2ABC'", "'15.11.26'", band, "'DAN'", points);
    }

    /// The log that the program has: its rows, each as its columns behind `ID`.
    static std::vector<std::vector<std::string>> logged()
    {
        storage::RecordSet rows =
            storage::OpenDatabase(storage::logDatabasePath()).OpenRecordset("SELECT * FROM UusLGYO2");
        std::vector<std::vector<std::string>> found;
        for (; !rows.IsEof(); rows.MoveNext()) {
            found.emplace_back();
            for (int column = 1; column <= 12; ++column)
                found.back().push_back(rows.Field(column));
        }
        return found;
    }

    /// Calls that the grid shows, from its first row on.
    static std::vector<std::string> shownCalls()
    {
        std::vector<std::string> calls;
        for (const storage::Row& row : FrmQSO.UusLGYO2.Recordset.firstRows(100))
            calls.push_back(row.columns.at(1));
        return calls;
    }

    static std::string currentCall() { return FrmQSO.UusLGYO2.Recordset.Field(1); }

    RunningProgram program;
};

}  // namespace test
