#include "entry/normalise.h"

#include <algorithm>
#include <cmath>

#include "base/number.h"
#include "base/text.h"
#include "entry/commit.h"
#include "entry/duplicate.h"
#include "entry/offline.h"
#include "geo/locator.h"
#include "geo/points.h"
#include "geo/rose.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

namespace {

constexpr std::size_t mostCodeDigits = 3;

void readCall()
{
    Modul1.IndicLog = FrmQSO.txtIndic.Text;
    Modul1.Indic = base::trim(Modul1.IndicLog);
}

void repairDoubledPrefix()
{
    const std::string repaired = withoutDoubledPrefix(Modul1.Indic);
    if (repaired == Modul1.Indic) return;
    FrmQSO.txtIndic.Text = repaired;
    readCall();
}

/// The championship counts from the label of 144 on every band, which overrides what the band's own label said.
void countFromFirstLabel()
{
    if (Modul1.ConcId != 0) return;
    const long next = std::lround(base::numericValue(FrmQSO.LblCod.Caption)) + 1;
    if (base::toText(next).size() <= mostCodeDigits) FrmQSO.NextCod = base::paddedCode(next);
    FrmQSO.txtRSTE2.Text = FrmQSO.NextCod;
}

void stampCall()
{
    if (paperLog()) return;
    CalcOraData();
    FrmQSO.TxtDate.Text = Modul1.DateQso;
    FrmQSO.TxtUTC.Text = Modul1.TimeQso;
}

void switchEnterCall()
{
    if (FrmQSO.DupLock != 10) FrmQSO.CmdEnterCall.Enabled = true;
    if (Modul1.ModeCur.empty() || Modul1.BandCur == 0) FrmQSO.CmdEnterCall.Enabled = false;
}

/// A memory that knows only the square is taken at the square's middle, for the distance alone.
void completeSquare()
{
    constexpr std::size_t squareOnly = 4;
    if (base::length(base::trim(Modul1.QraLoc)) == squareOnly) Modul1.QraLoc = base::trim(Modul1.QraLoc) + "MM";
}

void placeKnownStation()
{
    if (Modul1.QraUnknown != 0) return;
    geo::ClcCoord();
    geo::CLCRicht();
    geo::Medalion();
    geo::ClcPct();
}

/// On paper the operator goes on with the minutes.
void goOnWithMinutes()
{
    if (!paperLog()) return;
    FrmQSO.TxtUTC.Enabled = true;
    FrmQSO.TxtDate.Enabled = true;
    showPaperDateAndHour();
    FrmQSO.Show();
    FrmQSO.TxtUTC.SetFocus();
    FrmQSO.TxtUTC.SelStart = std::min<std::size_t>(3, base::length(FrmQSO.TxtUTC.Text));
    switchTimeFields();
}

std::string withoutBlanks(std::string text)
{
    std::erase(text, ' ');
    return text;
}

/// The fields that are swept, with their variable and the number of characters that are looked at.
struct SweptField {
    screen::TextBox screen::FrmQSOForm::*field;
    std::string runstate::Modul1State::*variable;
    std::size_t width;
    bool paperOnly;
};

using screen::FrmQSOForm;
using State = runstate::Modul1State;

constexpr SweptField sweptFields[] = {
    {&FrmQSOForm::TxtRSTE1, &State::RstSent1, 5, false}, {&FrmQSOForm::txtRSTE2, &State::RstSent2, 5, false},
    {&FrmQSOForm::txtRSTe3, &State::RstSent3, 8, false}, {&FrmQSOForm::TxtRSTR1, &State::RstRcvd1, 5, false},
    {&FrmQSOForm::TxtRSTR2, &State::RstRcvd2, 5, false}, {&FrmQSOForm::TxtRSTr3, &State::RstRcvd3, 8, false},
    {&FrmQSOForm::TxtDate, &State::DateOff, 10, true},   {&FrmQSOForm::TxtUTC, &State::TimeOff, 7, true},
};

}  // namespace

void SubRep()
{
    readCall();
    Plus1();
    repairDoubledPrefix();
    if (geo::isRomanianCall(Modul1.Indic)) FrmQSO.PrefixYO = "YO";
    if (Modul1.Indic.empty()) {
        platform::msgBox("Falsche Eingabe");
        return;
    }
    countFromFirstLabel();
    FrmQSO.txtRSTe3.Text = Modul1.MyQRA;
    stampCall();
    Modul1.Indic = base::upper(Modul1.Indic);
    FrmQSO.CallTyped = Modul1.Indic;
    IndicInfo();
    IndicInfoDubl();
    if (!paperLog()) FrmQSO.TxtRSTR2.SetFocus();
    switchEnterCall();
    completeSquare();
    placeKnownStation();
    FrmQSO.QraRefuz = 0;
    goOnWithMinutes();
}

void ElimSp()
{
    Modul1.Indic = sweptCall(Modul1.IndicLog, Modul1.Indic);
    FrmQSO.txtIndic.Text = base::trim(Modul1.Indic);
}

void ElimSp1()
{
    constexpr std::size_t shortestCall = 3;
    if (base::length(base::trim(FrmQSO.txtIndic.Text)) < shortestCall) return;
    for (const SweptField& row : sweptFields) {
        if (row.paperOnly && !paperLog()) continue;
        screen::TextBox& field = FrmQSO.*row.field;
        Modul1.*row.variable = sweptField(field.Text, row.width);
        field.Text = base::trim(Modul1.*row.variable);
    }
}

std::string withoutDoubledPrefix(std::string_view call)
{
    if (!call.starts_with("YOYO")) return std::string(call);
    return "YO" + base::mid(call, 5);
}

std::string sweptCall(std::string_view typed, std::string_view trimmed)
{
    // The tail is put behind the whole call and not behind its first nine characters.
    return std::string(typed) + withoutBlanks(base::mid(trimmed, 10, 6));
}

std::string sweptField(std::string_view text, std::size_t width)
{
    return withoutBlanks(base::left(base::trim(text), width));
}

}  // namespace entry
