#include "entry/time_fields.h"

#include "base/text.h"
#include "entry/field_keys.h"
#include "entry/offline.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

namespace {

/// "hh" and "dd.mm", behind which the program puts the separator.
constexpr std::size_t hourLength = 2;
constexpr std::size_t dayLength = 2;
constexpr std::size_t dayAndMonthLength = 5;
/// With the key about to come the field is full from here on.
constexpr std::size_t almostWholeTime = 4;
constexpr std::size_t almostWholeDate = 7;

/// The caret goes behind the call as it was taken, not behind what the field shows.
void toTakenCall()
{
    FrmQSO.txtIndic.SetFocus();
    FrmQSO.txtIndic.SelStart = base::length(Modul1.Indic);
    FrmQSO.txtIndic.SelLength = 0;
}

void appendSeparator(screen::TextBox& box, const char* separator)
{
    box.Text = base::trim(box.Text) + separator;
    box.SetFocus();
    box.caretToEnd();
}

void finishDate()
{
    FrmQSO.CmdEnterCall.Enabled = true;
    Modul1.DateOff = FrmQSO.TxtDate.Text;
    toTakenCall();
}

void finishTime()
{
    FrmQSO.NextField = 0;
    FrmQSO.CmdEnterCall.Enabled = true;
    Modul1.TimeOff = FrmQSO.TxtUTC.Text;
    if (!paperLog()) return toTakenCall();
    FrmQSO.TimeDone = 100;
    if (base::trim(FrmQSO.TxtRSTR2.Text).empty())
        FrmQSO.TxtRSTR2.SetFocus();
    else
        toTakenCall();
}

}  // namespace

void TxtUTC_GotFocus()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void TxtUTC_DblClick()
{
    FrmQSO.TxtUTC.Text = "";
}

void TxtUTC_KeyDown(int& KeyCode)
{
    markNextField(KeyCode);
}

void TxtUTC_KeyPress(char32_t& KeyAscii)
{
    const std::size_t length = trimmedLength(FrmQSO.TxtUTC);
    KeyAscii = base::upper(KeyAscii);
    FrmQSO.CmdEnterCall.Enabled = false;
    if (length >= almostWholeTime || FrmQSO.NextField == 100) return finishTime();
    if (length == hourLength) appendSeparator(FrmQSO.TxtUTC, ":");
}

void TxtDate_GotFocus()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void TxtDate_DblClick()
{
    FrmQSO.TxtDate.Text = "";
}

void TxtDate_KeyDown(int& KeyCode)
{
    markNextField(KeyCode);
    if (FrmQSO.NextField == 100) finishDate();
    const std::size_t length = trimmedLength(FrmQSO.TxtDate);
    if (length == dayLength || length == dayAndMonthLength) return appendSeparator(FrmQSO.TxtDate, ".");
    if (length < almostWholeDate) return;
    Modul1.DateOff = FrmQSO.TxtDate.Text;
    toTakenCall();
}

void TxtDate_KeyPress(char32_t& /*KeyAscii*/)
{
    FrmQSO.CmdEnterCall.Enabled = false;
    if (FrmQSO.NextField != 100) return;
    finishDate();
    FrmQSO.NextField = 0;
}

}  // namespace entry
