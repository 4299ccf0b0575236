// The review form: the archive.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

void FrmAnzeigenForm::placeArchive()
{
    // The name and what is done with it, then where archives are kept; to delete one, it is first picked there.
    put(FraArh, "Arhivare LOG", review_places::archive);
    put(LblNumeFis, "Nume fisier", {120, 300, 1080, 360});
    put({{TxtNameDat, "", "", {1260, 300, 3540, 360}}});
    put(CmdMem, "Arhivare fisier TEXT", {120, 840, 2280, 360});
    put(CmdArhivADI, "Arhivare fisier ADIF", {2520, 840, 2280, 360});
    put({
        {DrvList, {120, 1320, 4680, 780}},
        {DirList, {120, 2220, 1740, 3240}},
        {FilList, {1980, 2220, 2820, 3240}},
    });
    put(CmdSterg, "Stergere", {2520, 5580, 2280, 360});
    LblNumeFis.rightAligned = true;
    DirList.choiceClicks = false;  // a folder that is only passed on the way to another one is not opened
    setFont({&LblNumeFis, &TxtNameDat, &CmdMem, &CmdArhivADI, &CmdSterg}, 9, false);
    hide({&FraArh});
}

/// Archiving shows the log that it reads: the wide one leaves a single column.
void FrmAnzeigenForm::narrowArchive()
{
    using namespace review_places;
    constexpr double width = maratonJobWidth - 2 * margin;

    put({
        {FraArh, {maratonJobLeft, pageTop, maratonJobWidth, pageHeight}},
        {LblNumeFis, {margin, 300, width, 240}},
        {TxtNameDat, {margin, 540, width, 360}},
        {CmdMem, {margin, 1020, width, 360}},
        {CmdArhivADI, {margin, 1440, width, 360}},
        {DrvList, {margin, 1920, width, 780}},
        {DirList, {margin, 2820, width, 1140}},
        {FilList, {margin, 4080, width, 1380}},
        {CmdSterg, {margin, 5580, width, 360}},
    });
    LblNumeFis.rightAligned = false;
}

}  // namespace screen
