// The review form: logs to view, to correct and to empty.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

using review_places::jobLeft;
using review_places::jobWidth;
using review_places::pageTop;

void FrmAnzeigenForm::placeView()
{
    // Without the upper bands the frame is 1455 high, with OpBQRALoc at 1080.
    put(Frame1, "VIEW", {jobLeft, pageTop, jobWidth, 2925});
    put(OpB144a, "Log 144a", {160, 360, 2440, 300});
    put(Opb144b, "Log 144b", {160, 720, 2440, 300});
    put(OpB432a, "Log 432a", {160, 1080, 2440, 300});
    put(OpB432b, "Log 432b", {160, 1440, 2440, 300});
    put(OpB1296a, "Log 1296a", {160, 1800, 2440, 300});
    put(OpB1296b, "Log 1296b", {160, 2160, 2440, 300});
    put(OpBQRALoc, " &QRA Loc", {160, 2520, 2440, 300});
    setFont({&OpB144a, &Opb144b, &OpB432a, &OpB432b, &OpB1296a, &OpB1296b, &OpBQRALoc}, 9, false);
    hide({&Frame1});
}

void FrmAnzeigenForm::placeEmptying()
{
    // With the GHz log the frame is 3000 high.
    put(Frame2, "DELETE LOG", {jobLeft, pageTop, jobWidth, 2580});
    put(OpbL144a, "Log 144a", {160, 360, 2440, 300});
    put(OpbL144b, "Log 144b", {160, 720, 2440, 300});
    put(OpbL432a, "Log 432a", {160, 1080, 2440, 300});
    put(OpbL432b, "Log 432b", {160, 1440, 2440, 300});
    put(OpBL1296a, "Log 1296a", {160, 1800, 2440, 300});
    put(OpBL1296b, "Log 1296b", {160, 2160, 2440, 300});
    put(OpbLGHz, "Log GHz", {160, 2520, 2440, 300});
    setFont({&OpbL144a, &OpbL144b, &OpbL432a, &OpbL432b, &OpBL1296a, &OpBL1296b, &OpbLGHz}, 9, false);
    hide({&Frame2, &OpbLGHz});
}

void FrmAnzeigenForm::placeSums()
{
    put(Frame4, "Summe/Band", {jobLeft, 3200, jobWidth, 1060});
    put({
        {LblQSO, "QSO", {160, 300, 640, 280}},
        {LblQSO1, "0", {860, 300, 1740, 280}},
        {LblPkt, "Pkt", {160, 680, 640, 280}},
        {LblPkt1, "0", {860, 680, 1740, 280}},
    });
    LblQSO1.rightAligned = true;
    LblPkt1.rightAligned = true;
    setFont({&LblQSO, &LblPkt}, 9, false);
    setFont({&LblQSO1, &LblPkt1}, 11, true);
    hide({&Frame4});
}

void FrmAnzeigenForm::placeDeletion()
{
    put(Frame5, "&DELETE", {jobLeft, 4380, jobWidth, 800});
    put(OpBDelete, "Delete", {160, 360, 2440, 300});
    setFont({&OpBDelete}, 9, false);
    hide({&Frame5});
}

}  // namespace screen
