#include "review/reset.h"

#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/scale.h"

namespace review {

namespace {

void setLogHeight(double height)
{
    for (screen::Control* control : FrmAnzeigen.controls())
        if (control->kind == screen::Kind::grid) screen::setDesignHeight(*control, height);
}

}  // namespace

void Anulat()
{
    for (screen::OptionButton* button :
         {&FrmAnzeigen.OpB144a,     &FrmAnzeigen.OpB432a,     &FrmAnzeigen.OpB1296a,     &FrmAnzeigen.OpBD144a,
          &FrmAnzeigen.OpBD144b,    &FrmAnzeigen.OpBD432a,    &FrmAnzeigen.OpBD432b,     &FrmAnzeigen.OpBD1296a,
          &FrmAnzeigen.OpBD1296b,   &FrmAnzeigen.OpbL144a,    &FrmAnzeigen.OpbL144b,     &FrmAnzeigen.OpbL432a,
          &FrmAnzeigen.OpbL432b,    &FrmAnzeigen.OpBL1296a,   &FrmAnzeigen.OpBL1296b,    &FrmAnzeigen.OpBDelete,
          &FrmAnzeigen.OpBDSumm144, &FrmAnzeigen.OpBDSumm432, &FrmAnzeigen.OpbDSumm1296, &FrmAnzeigen.OpBQRALoc})
        button->Value = false;
    for (screen::Grid* grid : {&FrmAnzeigen.DBGrid1, &FrmAnzeigen.DBGrid2, &FrmAnzeigen.DBGrid3, &FrmAnzeigen.DBGrid4,
                               &FrmAnzeigen.DBGrid5, &FrmAnzeigen.DBGrid9})
        grid->Visible = false;
    for (screen::Frame* frame :
         {&FrmAnzeigen.FraArh, &FrmAnzeigen.Frame2, &FrmAnzeigen.Frame3, &FrmAnzeigen.Frame4, &FrmAnzeigen.Frame8})
        frame->Visible = false;
}

void hideOtherJobs()
{
    for (screen::Frame* frame :
         {&FrmAnzeigen.Frame1, &FrmAnzeigen.Frame2, &FrmAnzeigen.Frame3, &FrmAnzeigen.Frame4, &FrmAnzeigen.Frame5,
          &FrmAnzeigen.Frame6, &FrmAnzeigen.Frame8, &FrmAnzeigen.Frame10, &FrmAnzeigen.FraArh, &FrmAnzeigen.FraBandEdi,
          &FrmAnzeigen.FraLogEDI1, &FrmAnzeigen.FraLogEDI2})
        frame->Visible = false;
    FrmAnzeigen.CmdGata.Visible = false;
    setLogHeight(screen::review_places::log.Height);
}

void giveLogThePage()
{
    setLogHeight(screen::review_places::wholePageHeight);
}

}  // namespace review
