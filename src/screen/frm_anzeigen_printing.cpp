// The review form: logs and summaries to print.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

using review_places::jobLeft;
using review_places::jobWidth;
using review_places::pageTop;

void FrmAnzeigenForm::placePrinting()
{
    // Two rows fit a height of 1215, five rows of logs alone a height of 2550 and a width of 1475.
    struct PrintRow {
        OptionButton& log;
        const char* caption;
    };
    const PrintRow logs[] = {
        {OpBD144a, "Log 144a"}, {OpBD144b, "Log 144b"},   {OpBD432a, "Log 432a"},
        {OpBD432b, "Log 432b"}, {OpBD1296a, "Log 1296a"}, {OpBD1296b, "Log 1296b"},
    };
    constexpr double firstRow = 330;
    constexpr double rowHeight = 420;

    put(Frame3, "PRINT", {jobLeft, pageTop, jobWidth, 2880});
    double top = firstRow;
    for (const PrintRow& row : logs) {
        put(row.log, row.caption, {100, top, 1170, 300});
        top += rowHeight;
    }
    put(OpBDSumm144, "Summary 144", {1290, firstRow, 1430, 300});
    put(OpBDSumm432, "Summary 432", {1290, firstRow + 2 * rowHeight, 1430, 300});
    put(OpbDSumm1296, "Summary 1296", {1290, firstRow + 4 * rowHeight, 1430, 300});
    hide({&Frame3});
}

}  // namespace screen
