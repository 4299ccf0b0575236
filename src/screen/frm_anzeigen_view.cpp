// The review form: logs to view, to correct and to empty.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

using review_places::jobLeft;
using review_places::jobWidth;
using review_places::pageTop;
using review_places::putOptions;
using review_places::resultLeft;
using review_places::resultWidth;

void FrmAnzeigenForm::placeView()
{
    // Without the upper bands the frame is 1455 high, with OpBQRALoc at 1080.
    put(Frame1, "VIEW", {jobLeft, pageTop, jobWidth, 2940});
    putOptions({
        {OpB144a, "Log 144a"},
        {Opb144b, "Log 144b"},
        {OpB432a, "Log 432a"},
        {OpB432b, "Log 432b"},
        {OpB1296a, "Log 1296a"},
        {OpB1296b, "Log 1296b"},
        {OpBQRALoc, " &QRA Loc"},
    });
    hide({&Frame1});
}

void FrmAnzeigenForm::placeEmptying()
{
    // With the GHz log the frame is 3000 high.
    put(Frame2, "DELETE LOG", {jobLeft, pageTop, jobWidth, 2580});
    putOptions({
        {OpbL144a, "Log 144a"},
        {OpbL144b, "Log 144b"},
        {OpbL432a, "Log 432a"},
        {OpbL432b, "Log 432b"},
        {OpBL1296a, "Log 1296a"},
        {OpBL1296b, "Log 1296b"},
        {OpbLGHz, "Log GHz"},
    });
    hide({&Frame2, &OpbLGHz});
}

void FrmAnzeigenForm::placeSums()
{
    put(Frame4, "Summe/Band", {resultLeft, pageTop, resultWidth, 1080});
    put({
        {LblQSO, "QSO", {120, 300, 600, 300}},
        {LblQSO1, "0", {720, 300, 1080, 300}},
        {LblPkt, "Pkt", {120, 660, 600, 300}},
        {LblPkt1, "0", {720, 660, 1080, 300}},
    });
    LblQSO1.rightAligned = true;
    LblPkt1.rightAligned = true;
    setFont({&LblQSO, &LblPkt}, 9, false);
    setFont({&LblQSO1, &LblPkt1}, 11, true);
    hide({&Frame4});
}

void FrmAnzeigenForm::placeDeletion()
{
    put(Frame5, "&DELETE", {resultLeft, 1320, resultWidth, 780});
    put(OpBDelete, "Delete", {120, 360, 1680, 300});
    setFont({&OpBDelete}, 9, false);
    hide({&Frame5});
}

}  // namespace screen
