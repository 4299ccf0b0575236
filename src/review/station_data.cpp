#include "review/station_data.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/keys.h"
#include "review/output_modes.h"
#include "runstate/modul1.h"
#include "runstate/setup_files.h"
#include "screen/frm_anzeigen.h"
#include "screen/setup_page.h"

namespace review {

namespace {

using Form = screen::FrmAnzeigenForm;
using State = runstate::Modul1State;

constexpr double leftOfButton = 4000;

/// A box and the value that it shows. The number of operators is no text.
struct StationBox {
    screen::TextBox Form::*box;
    std::string State::*value;
};

constexpr std::string State::*numberOfOperators = nullptr;

/// In the order in which Enter walks through them.
constexpr StationBox boxes[] = {
    {&Form::TxtSection, &State::CfgSection}, {&Form::TxtOp, &State::CfgOp},     {&Form::TxtNo, numberOfOperators},
    {&Form::TxtQTH, &State::CfgQTH},         {&Form::TxtAds, &State::CfgAds},   {&Form::TxtTx, &State::CfgTx},
    {&Form::TxtRx, &State::CfgRx},           {&Form::TxtAnt, &State::CfgAnt},   {&Form::TxtAnt2, &State::CfgAnt2},
    {&Form::TxtAnt3, &State::CfgAnt3},       {&Form::TxtAnt4, &State::CfgAnt4}, {&Form::TxtClub, &State::CfgClub},
};

void fill(const StationBox& each)
{
    screen::TextBox& box = FrmAnzeigen.*each.box;
    if (each.value == numberOfOperators)
        box.Text = base::toText(Modul1.CfgNo);
    else
        box.Text = Modul1.*each.value;
}

void take(const StationBox& each)
{
    screen::TextBox& box = FrmAnzeigen.*each.box;
    if (each.value == numberOfOperators) {
        Modul1.CfgNo = screen::countIn(box);
        return;
    }
    box.Text = base::upper(box.Text.get());
    Modul1.*each.value = box.Text;
}

/// Boxes that were never filled would wipe out what the set-up file holds.
bool boxesCount()
{
    if (FrmAnzeigen.OutMode == toPrinter) return true;
    return FrmAnzeigen.OutFormat == asText && FrmAnzeigen.StationFilled == 100;
}

}  // namespace

void DatInSumm()
{
    FrmAnzeigen.LblQSO1.Visible = false;
    FrmAnzeigen.Frame2.Visible = false;
    FrmAnzeigen.Frame1.Visible = false;
    FrmAnzeigen.Frame6.Visible = true;
    FrmAnzeigen.Frame6.Left = 0;
    FrmAnzeigen.CmdGata.Visible = true;
    FrmAnzeigen.CmdGata.Left = leftOfButton;
    base::quietly<base::noSuchFile>(runstate::ReadInitDat);
    for (const StationBox& each : boxes)
        fill(each);
    FrmAnzeigen.StationFilled = 100;
    FrmAnzeigen.TxtClub.SetFocus();
}

void takeStationData()
{
    if (!boxesCount()) return;
    for (const StationBox& each : boxes)
        take(each);
}

void stationBox_KeyDown(int& KeyCode)
{
    if (KeyCode != platform::keyEnter) return;
    const auto* const end = std::prev(std::end(boxes));
    const auto* const here = std::find_if(std::begin(boxes), end, [](const StationBox& each) {
        return &(FrmAnzeigen.*each.box) == FrmAnzeigen.ActiveControl;
    });
    if (here == end) return;
    if (boxesCount()) take(*here);
    (FrmAnzeigen.*std::next(here)->box).SetFocus();
}

}  // namespace review
