#include "screen/frm_anzeigen.h"

#include "screen/access_keys.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

screen::FrmAnzeigenForm FrmAnzeigen;

namespace screen {

FrmAnzeigenForm::FrmAnzeigenForm() : Form("FrmAnzeigen")
{
    Caption = "Anzeigen";
    writeMenu();
    bindTables();
    placeGrids();
    placeView();
    placeEmptying();
    placePrinting();
    placeSums();
    placeDeletion();
    placeBandChoices();
    placeArchive();
    placeEdiStation();
    placeEdiClaims();
    placeStation();
    giveAccessKeys(*this);
    makeParkingPlace(TxtFoc);
    stopTabEverywhere(*this);
}

void FrmAnzeigenForm::takeMaratonPlaces()
{
    using namespace review_places;
    put({{DBGrid9, maratonLog}});
    for (Frame* frame : {&Frame1, &Frame2, &Frame3, &Frame8})
        frame->place(maratonJobLeft, frame->design.Top, maratonJobWidth, frame->design.Height);
    Frame4.place(maratonJobLeft, 3180, maratonJobWidth, Frame4.design.Height);
    Frame5.place(maratonJobLeft, 4380, maratonJobWidth, Frame5.design.Height);
    put({{OpBDSumm144, {1290, firstOption, 1270, optionHeight}}});
    narrowArchive();
}

void FrmAnzeigenForm::writeMenu()
{
    put({
        {mnuBeenden, "E&XIT"},
        {mnuAnfang, "1_ST_P&AGE"},
        {mnuLogAnzeigen, "VIEW_LO&G "},
        {mnuLOGDrucken, "P&RINT_LOG"},
        {mnuLOG, "&MEMORARE LOG"},
        {MnuASCIIDATEI, "Memorare pe Dis&k"},
        {MnuHDDLOG, "Memorare pe &HDD in folderul"},
        {mnuFormTXT, "Memorare format TXT"},
        {mnuFormEDI, "Memorare format EDI"},
        {MnuArhiva, "Arhivare log pe HDD in folderul Arhiva"},
        {mnuLOGLöschen, "&DELETE_LOG "},
        {mnuHelp3, "HELP"},
        {mnuVizLog, "Vizualizare log"},
        {mnuTipLog, "Tiparire log"},
        {mnuMemLog, "Memorare log"},
        {MnuStergLog, "Stergere log"},
        {mnuOutPrel, "Iesire din pagina"},
    });
}

void FrmAnzeigenForm::bindTables()
{
    put({
        {QRA, "QRA"},
        {Uus144a, "Uus144a"},
        {Uus144b, "Uus144b"},
        {Uus432a, "Uus432a"},
        {Uus432b, "Uus432b"},
        {Uus1296a, "Uus1296a"},
        {Uus1296b, "Uus1296b"},
        {UusGHz, "UusGHZ"},
        {UusLGYO2, "UusLGYO2"},
    });
}

void FrmAnzeigenForm::placeGrids()
{
    for (Grid* grid : {&DBGrid1, &DBGrid2, &DBGrid3, &DBGrid4, &DBGrid5, &DBGrid6, &DBGrid7, &DBGrid8, &DBGrid9}) {
        put({{*grid, review_places::log}});
        grid->gesture = RowGesture::click;
        grid->farKeys = true;
        grid->Visible = false;
    }
}

}  // namespace screen
