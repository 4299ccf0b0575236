#include "entry/flow.h"

#include <string>

#include "entry/log_table.h"
#include "entry/offline.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

void YesEnabl()
{
    if (Modul1.BandCur <= bandGHz) return;
    for (screen::TextBox* field : {&FrmQSO.txtIndic, &FrmQSO.TxtRSTE1, &FrmQSO.txtRSTE2, &FrmQSO.txtRSTe3,
                                   &FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3})
        field->Enabled = true;
    if (!paperLog()) return;
    FrmQSO.TxtUTC.Enabled = true;
    FrmQSO.TxtDate.Enabled = true;
}

bool modeIsChosen()
{
    const std::string& mode = Modul1.ModeCur;
    return mode == "SSB" || mode == "CW" || mode == "Fm" || mode == "Mixt";
}

void openWhenAllIsChosen()
{
    const bool stageIsChosen = Modul1.Etapa == "A" || Modul1.Etapa == "B";
    if (modeIsChosen() && stageIsChosen) YesEnabl();
}

void NoEnabl()
{
    for (screen::TextBox* field : {&FrmQSO.txtIndic, &FrmQSO.TxtRSTE1, &FrmQSO.txtRSTE2, &FrmQSO.txtRSTe3,
                                   &FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3})
        field->Enabled = false;
    if (!paperLog()) return;
    FrmQSO.TxtUTC.Enabled = false;
    FrmQSO.TxtDate.Enabled = false;
}

void Init()
{
    for (screen::Label* lamp :
         {&FrmQSO.Lbl144, &FrmQSO.Lbl432, &FrmQSO.Lbl1296, &FrmQSO.LblGHz, &FrmQSO.LblA, &FrmQSO.LblB})
        lamp->BackColor = screen::lampOff;
    switch (Modul1.BandCur) {
        case 144:
            FrmQSO.Lbl144.BackColor = screen::lampOn;
            break;
        case 432:
            FrmQSO.Lbl432.BackColor = screen::lampOn;
            break;
        case 1296:
            FrmQSO.Lbl1296.BackColor = screen::lampOn;
            break;
        case bandGHz:
            FrmQSO.LblGHz.BackColor = screen::lampOn;
            break;
        default:
            break;
    }
    for (screen::Grid* grid : {&FrmQSO.DBGrid1, &FrmQSO.DBGrid2, &FrmQSO.DBGrid3, &FrmQSO.DBGrid4, &FrmQSO.DBGrid5,
                               &FrmQSO.DBGrid6, &FrmQSO.DBGrid7, &FrmQSO.DBGrid8, &FrmQSO.DBGrid9})
        grid->Visible = false;
    FrmQSO.Frame3.Visible = Modul1.BandCur == bandGHz;
}

}  // namespace entry
