#include "entry/side_fields.h"

#include <string>

#include "base/text.h"
#include "entry/field_keys.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

namespace {

/// The KeyPress of a side field: with Tab or Space its text goes to its variable and the operator back to the call.
void leaveSideField(const screen::TextBox& field, std::string& variable)
{
    if (FrmQSO.NextField != 100) return;
    variable = field.Text;
    FrmQSO.CmdEnterCall.Enabled = true;
    toCall();
    FrmQSO.NextField = 0;
}

}  // namespace

void TxtRSTR1_Click()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void TxtRSTR1_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
}

void TxtRSTR1_KeyPress(char32_t& /*KeyAscii*/)
{
    leaveSideField(FrmQSO.TxtRSTR1, Modul1.RstRcvd1);
}

void TxtRSTE1_Click()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void TxtRSTE1_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
}

void TxtRSTE1_KeyPress(char32_t& KeyAscii)
{
    KeyAscii = base::upper(KeyAscii);
    leaveSideField(FrmQSO.TxtRSTE1, Modul1.RstSent1);
}

void txtRSTE2_KeyDown(int& KeyCode)
{
    exchangeFieldKeyDown(KeyCode);
}

void txtRSTE2_KeyPress(char32_t& /*KeyAscii*/)
{
    FrmQSO.CwRepBreak = 100;
    leaveSideField(FrmQSO.txtRSTE2, Modul1.RstSent2);
}

void txtRSTE2_KeyUp(int& KeyCode)
{
    clearKeyerBusyOnEscape(KeyCode);
}

void txtRSTe3_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
}

void txtRSTe3_KeyPress(char32_t& /*KeyAscii*/)
{
    leaveSideField(FrmQSO.txtRSTe3, Modul1.RstSent3);
}

void TxtYourName_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
}

void TxtYourName_KeyPress(char32_t& KeyAscii)
{
    KeyAscii = base::upper(KeyAscii);
    leaveSideField(FrmQSO.TxtYourName, Modul1.YourName);
}

}  // namespace entry
