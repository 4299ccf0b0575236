// The review form: the choice of a band, and the station data of the summary.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

using review_places::bandLeft;
using review_places::bandWidth;
using review_places::jobLeft;
using review_places::pageTop;

void FrmAnzeigenForm::placeBandChoices()
{
    put(Frame8, "DISKETA", {jobLeft, pageTop, bandWidth, 1500});
    put(OpBDsk144, "144 MHz", {160, 360, 1680, 300});
    put(OpBDsk432, "432 MHz", {160, 720, 1680, 300});
    put(OpBDsk1296, "1296 MHz", {160, 1080, 1680, 300});

    put(Frame10, "BANDA", {bandLeft, pageTop, bandWidth, 1500});
    put(OpB0144, "144 MHz", {160, 360, 1680, 300});
    put(Opb0432, "432 MHz", {160, 720, 1680, 300});
    put(OpB01296, "1296 MHz", {160, 1080, 1680, 300});

    put(FraBandEdi, "BAND EDI", {bandLeft, 1740, bandWidth, 1860});
    put(OpB144Edi, "1&44 MHz", {160, 360, 1680, 300});
    put(OpB432Edi, "4&32 MHz", {160, 720, 1680, 300});
    put(OpB1296Edi, "1&296 MHz", {160, 1080, 1680, 300});
    put(OpBGHzEdi, "GHz", {160, 1440, 1680, 300});

    setFont({&OpBDsk144, &OpBDsk432, &OpBDsk1296, &OpB0144, &Opb0432, &OpB01296, &OpB144Edi, &OpB432Edi, &OpB1296Edi,
             &OpBGHzEdi},
            9, false);
    hide({&Frame8, &Frame10, &FraBandEdi});
}

void FrmAnzeigenForm::placeStation()
{
    struct StationRow {
        Label& label;
        const char* caption;
        TextBox& box;
    };
    const StationRow rows[] = {
        {LblSection, "Section", TxtSection},
        {LblOp, "Op's Name", TxtOp},
        {LblNo, "No Operat", TxtNo},
        {LblQTH, "QTH", TxtQTH},
        {LblAds, "Adress", TxtAds},
        {LblTx, "Tx", TxtTx},
        {LblRx, "Rx", TxtRx},
        {LblAnt, "Ant1", TxtAnt},
        {LblAnt2, "Ant2", TxtAnt2},
        {LblAnt3, "Ant3", TxtAnt3},
        {LblAnt4, "Ant4", TxtAnt4},
        {LblClub, "Club", TxtClub},
    };
    constexpr int boxesARow = 3;

    put(Frame6, "ENTER DATA", review_places::station);
    int number = 0;
    for (const StationRow& row : rows) {
        const int line = number / boxesARow;
        const double left = 120 + 3900.0 * (number % boxesARow);
        const double top = 300 + 420.0 * line;
        put(row.label, row.caption, {left, top + 50, 1000, 250});
        put({{row.box, "", "", {left + 1060, top, 2700, 340}}});
        row.label.rightAligned = true;
        setFont({&row.label, &row.box}, 9, false);
        ++number;
    }
    put(CmdGata, "INTRODUCEREDE DATE TERMINATA", review_places::endOfInput);
    hide({&Frame6, &CmdGata});
}

}  // namespace screen
