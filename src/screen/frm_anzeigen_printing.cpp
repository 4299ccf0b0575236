// The review form: logs and summaries to print.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

void FrmAnzeigenForm::placePrinting()
{
    using namespace review_places;
    // Two rows fit a height of 1215, five rows of logs alone a height of 2550 and a width of 1475.
    struct PrintRow {
        OptionButton& log;
        const char* caption;
    };
    const PrintRow logs[] = {
        {OpBD144a, "Log 144a"}, {OpBD144b, "Log 144b"},   {OpBD432a, "Log 432a"},
        {OpBD432b, "Log 432b"}, {OpBD1296a, "Log 1296a"}, {OpBD1296b, "Log 1296b"},
    };
    constexpr double rowPitch = 420;
    constexpr double logWidth = 1170;
    constexpr double summaryLeft = 1290;
    constexpr double summaryWidth = 1470;

    put(Frame3, "PRINT", {jobLeft, pageTop, jobWidth, 2880});
    double top = firstOption;
    for (const PrintRow& row : logs) {
        put(row.log, row.caption, {margin, top, logWidth, optionHeight});
        top += rowPitch;
    }
    put(OpBDSumm144, "Summary 144", {summaryLeft, firstOption, summaryWidth, optionHeight});
    put(OpBDSumm432, "Summary 432", {summaryLeft, firstOption + 2 * rowPitch, summaryWidth, optionHeight});
    put(OpbDSumm1296, "Summary 1296", {summaryLeft, firstOption + 4 * rowPitch, summaryWidth, optionHeight});
    hide({&Frame3});
}

}  // namespace screen
