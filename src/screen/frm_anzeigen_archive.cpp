// The review form: the archive.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

void FrmAnzeigenForm::placeArchive()
{
    using namespace review_places;
    constexpr double left = 120;
    constexpr double width = jobWidth - 2 * left;

    put(FraArh, "Arhivare LOG", {jobLeft, pageTop, jobWidth, pageHeight});
    put(LblNumeFis, "Nume fisier", {left, 300, width, 250});
    put({{TxtNameDat, "", "", {left, 560, width, 340}}});
    put(CmdMem, "Arhivare fisier TEXT", {left, 1020, width, 340});
    put(CmdArhivADI, "Arhivare fisier ADIF", {left, 1420, width, 340});
    put(CmdSterg, "Stergere", {left, 1820, width, 340});
    put({
        {DrvList, {left, 2300, width, 600}},
        {DirList, {left, 3000, width, 1100}},
        {FilList, {left, 4200, width, 1740}},
    });
    setFont({&LblNumeFis, &TxtNameDat, &CmdMem, &CmdArhivADI, &CmdSterg}, 9, false);
    hide({&FraArh});
}

}  // namespace screen
