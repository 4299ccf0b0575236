// The review form: the choice of a band, and the station data of the summary.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

void FrmAnzeigenForm::placeBandChoices()
{
    using namespace review_places;
    const auto putBands = [](Frame& frame, const char* caption, std::initializer_list<OptionRow> bands) {
        put(frame, caption, {jobLeft, pageTop, jobWidth, putOptions(bands)});
    };
    putBands(Frame8, "DISKETA", {{OpBDsk144, "144 MHz"}, {OpBDsk432, "432 MHz"}, {OpBDsk1296, "1296 MHz"}});
    putBands(Frame10, "BANDA", {{OpB0144, "144 MHz"}, {Opb0432, "432 MHz"}, {OpB01296, "1296 MHz"}});
    putBands(FraBandEdi, "BAND EDI",
             {{OpB144Edi, "1&44 MHz"}, {OpB432Edi, "4&32 MHz"}, {OpB1296Edi, "1&296 MHz"}, {OpBGHzEdi, "GHz"}});
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
        const double left = review_places::margin + 3960.0 * (number % boxesARow);
        const double top = 300 + 420.0 * line;
        put(row.label, row.caption, {left, top, 960, 360});
        put({{row.box, "", "", {left + 1020, top, 2820, 360}}});
        row.label.rightAligned = true;
        setFont({&row.label, &row.box}, 9, false);
        ++number;
    }
    put(CmdGata, "INTRODUCEREDE DATE TERMINATA", review_places::endOfInput);
    hide({&Frame6, &CmdGata});
}

}  // namespace screen
